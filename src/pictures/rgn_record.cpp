#include "pictures/rgn_record.h"
#include "pictures/bmp_rows.h"
#include "pictures/region_functions.h"
#include "pictures/resampling.h"
#include <cstddef>
#include <vector>

namespace {

std::uint32_t packed(const unsigned char* pixel)
{
    return static_cast<std::uint32_t>(pixel[0] << 16 | pixel[1] << 8 | pixel[2]);
}

// Three bytes a pixel, as slLoadBmpTexture delivers them, of one number a pixel.
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

// A .bmp file, read, and its rows.
struct FileRowsCL
{
    explicit FileRowsCL(const char* file)
        : bytes(slReadBmpFile(file, &size))
        , rows({ reinterpret_cast<const unsigned char*>(bytes.get()), size })
    {
    }

    std::size_t size { 0 };
    std::unique_ptr<char[]> bytes;
    BmpRowsCL rows;
};

// The picture at another size, the lowest row first.
std::vector<std::uint32_t> resampled(const BmpRowsCL& rows, int width, int height, std::uint32_t key)
{
    std::vector<std::uint32_t> onto(static_cast<std::size_t>(width) * static_cast<std::size_t>(height));
    std::vector<unsigned char> read(static_cast<std::size_t>(rows.WidthM()) * 3);
    std::vector<std::uint32_t> row(static_cast<std::size_t>(rows.WidthM()));
    slResampleRows(
        rows.WidthM(), rows.HeightM(),
        [&](int y) {
            rows.ReadRowM(y, read.data());
            for (std::size_t x = 0; x < row.size(); ++x) {
                row[x] = packed(&read[x * 3]);
            }
            return row.data();
        },
        { onto.data(), width, height }, key);
    return onto;
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
    const std::string drawn = slNameAtScale(file, scale.PercentM());
    if (FileRowsCL(drawn.c_str()).rows.IsGoodM()) {
        return GenerateRgnFromBitmapM(drawn.c_str(), key, mode);
    }
    const FileRowsCL picture(file);
    if (!picture.rows.IsGoodM()) {
        return GenerateRgnFromBitmapM(file, key, mode);
    }
    const int width = scale.WidthM(picture.rows.WidthM());
    const int height = scale.HeightM(picture.rows.HeightM());
    const std::vector<std::uint32_t> onto = resampled(picture.rows, width, height, packed(key));
    return slGenerateRgnFromBitmapM(width, height, unpacked(onto).data(), key, mode, this);
}

int DVrRgnCL::CreateRgnFromPolygonM(Int2DArr pts)
{
    const Int2DArr none;
    return slCreateRgnM(pts, none, this);
}
