#include "pictures/rgn_record.h"
#include "baselib/helpers.h"
#include "pictures/bmp_reader.h"
#include "pictures/region_functions.h"
#include "pictures/resampling.h"
#include <cstddef>
#include <vector>

namespace {

// Three bytes a pixel, as slLoadBmpTexture delivers them, and one number a pixel.
std::vector<std::uint32_t> packed(const unsigned char* pixels, std::size_t count)
{
    std::vector<std::uint32_t> block(count);
    for (std::size_t i = 0; i < count; ++i, pixels += 3) {
        block[i] = static_cast<std::uint32_t>(pixels[0] << 16 | pixels[1] << 8 | pixels[2]);
    }
    return block;
}

std::vector<unsigned char> unpacked(const std::vector<std::uint32_t>& block)
{
    std::vector<unsigned char> pixels;
    pixels.reserve(block.size() * 3);
    for (const std::uint32_t pixel : block) {
        for (const int shift : { 16, 8, 0 }) {
            pixels.push_back(static_cast<unsigned char>(pixel >> shift));
        }
    }
    return pixels;
}

} // namespace

int DVrRgnCL::GenerateRgnFromBitmapM(const char* file, const unsigned char* key, int mode)
{
    return slGenerateRgnFromBitmapM(file, key, mode, this);
}

int DVrRgnCL::GenerateRgnFromBitmapM(
    const char* file, const unsigned char* key, int mode, const PictureScaleCL& scale)
{
    if (scale.PercentM() == 100 || key == nullptr) {
        return GenerateRgnFromBitmapM(file, key, mode);
    }
    int w = 0;
    int h = 0;
    unsigned char* pixels = nullptr;
    const std::string drawn = slNameAtScale(file, scale.PercentM());
    if (slLoadBmpTexture(drawn.c_str(), &w, &h, &pixels) == 1) {
        slFree(pixels);
        return GenerateRgnFromBitmapM(drawn.c_str(), key, mode);
    }
    if (slLoadBmpTexture(file, &w, &h, &pixels) == 0) {
        return GenerateRgnFromBitmapM(file, key, mode);
    }
    std::vector<std::uint32_t> from = packed(pixels, static_cast<std::size_t>(w) * h);
    slFree(pixels);
    const int width = scale.WidthM(w);
    const int height = scale.HeightM(h);
    std::vector<std::uint32_t> onto(static_cast<std::size_t>(width) * height);
    slResample({ from.data(), w, h }, { onto.data(), width, height }, packed(key, 1)[0]);
    return slGenerateRgnFromBitmapM(width, height, unpacked(onto).data(), key, mode, this);
}

int DVrRgnCL::CreateRgnFromPolygonM(Int2DArr pts)
{
    const Int2DArr none;
    return slCreateRgnM(pts, none, this);
}
