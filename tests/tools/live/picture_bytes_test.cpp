// Pictures as the command writes them, read by the window system's own reader.
#include "picture_bytes.h"
#include "support/temp_file.h"
#include "tools/png_picture.h"
#include <fstream>
#include <functional>
#include <gtest/gtest.h>
#include <random>

namespace {

using ColourTP = std::function<std::uint32_t(int x, int y)>;

PicturePixelsCL painted(int width, int height, const ColourTP& colour)
{
    PicturePixelsCL picture { width, height, {} };
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            picture.pixels.push_back(colour(x, y));
        }
    }
    return picture;
}

std::vector<std::uint32_t> readBack(const std::string& bytes)
{
    const TempFile file("");
    std::ofstream(file.path(), std::ios::binary)
        .write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    std::vector<std::uint32_t> pixels = PngPictureCL(file.path()).PixelsM();
    for (std::uint32_t& pixel : pixels) {
        pixel &= 0xFFFFFF;
    }
    return pixels;
}

} // namespace

TEST(PictureBytes, AreReadAsTheyWere)
{
    std::mt19937 random(7);
    const auto noise = [&random](int, int) { return static_cast<std::uint32_t>(random() & 0xFFFFFF); };
    const auto flat = [](int, int) { return 0x123456U; };
    const auto stripes
        = [](int x, int y) { return x % 7 == 0 ? 0xFFFFFFU : static_cast<std::uint32_t>(y % 5); };
    // Repetitions of every length, nearer and farther than they may be.
    const auto runs = [&random, run = 0, colour = 0U](int, int) mutable {
        if (run-- == 0) {
            run = static_cast<int>(random() % 120);
            colour = static_cast<std::uint32_t>(random() % 3 * 0x010203);
        }
        return colour;
    };
    const ColourTP colours[] = { noise, flat, stripes, runs };
    const std::pair<int, int> sizes[] = { { 1, 1 }, { 2, 3 }, { 5, 1 }, { 300, 200 } };
    for (const auto& [width, height] : sizes) {
        for (const ColourTP& colour : colours) {
            const PicturePixelsCL picture = painted(width, height, colour);
            EXPECT_EQ(readBack(pngOf(picture)), picture.pixels) << width << " x " << height;
            EXPECT_EQ(readBack(bmpOf(picture)), picture.pixels) << width << " x " << height;
        }
    }
}

TEST(PictureBytes, FlatPicturesTakeLittleRoom)
{
    const PicturePixelsCL flat = painted(600, 400, [](int, int) { return 0xD4D0C8U; });
    EXPECT_LT(pngOf(flat).size(), 6000U);
    EXPECT_EQ(bmpOf(flat).size(), 54U + 600U * 400U * 3U);
}
