// Pictures at another size: exact averages down, smooth curves up, and shapes that keep clean edges.
#include "pictures/resampling.h"
#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <random>
#include <vector>

namespace {

constexpr std::uint32_t White = 0xFFFFFF;

class BlockCL
{
public:
    BlockCL(int width, int height, std::uint32_t colour = 0x123456)
        : pixels(static_cast<std::size_t>(width * height), colour)
        , block { pixels.data(), width, height }
    {
    }
    BlockCL(int width, std::vector<std::uint32_t> given)
        : pixels(std::move(given))
        , block { pixels.data(), width, static_cast<int>(pixels.size()) / width }
    {
    }
    BlockCL(const BlockCL&) = delete;
    BlockCL& operator=(const BlockCL&) = delete;

    std::vector<std::uint32_t> pixels;
    PixelBlockCL block;
};

std::vector<std::uint32_t> resampled(const BlockCL& from, int width, int height, std::int64_t key = NoKey)
{
    BlockCL onto(width, height);
    slResample(from.block, onto.block, key);
    return onto.pixels;
}

std::uint32_t grey(int value)
{
    return static_cast<std::uint32_t>(value) * 0x010101;
}

std::vector<std::uint32_t> randomPixels(std::mt19937& random, int count)
{
    std::vector<std::uint32_t> pixels(static_cast<std::size_t>(count));
    for (std::uint32_t& pixel : pixels) {
        pixel = random() & White;
    }
    return pixels;
}

// The average of what each pixel covers, straight from its definition.
std::uint32_t plainAverage(const BlockCL& from, int width, int height, int x, int y)
{
    const double stepX = static_cast<double>(from.block.width) / width;
    const double stepY = static_cast<double>(from.block.height) / height;
    std::uint32_t colour = 0;
    for (int shift = 16; shift >= 0; shift -= 8) {
        double sum = 0;
        for (int v = 0; v < from.block.height; ++v) {
            for (int u = 0; u < from.block.width; ++u) {
                const double w = std::min((x + 1) * stepX, u + 1.0) - std::max(x * stepX, 0.0 + u);
                const double h = std::min((y + 1) * stepY, v + 1.0) - std::max(y * stepY, 0.0 + v);
                const auto at = static_cast<std::size_t>(v * from.block.width + u);
                sum += std::max(w, 0.0) * std::max(h, 0.0) * (from.pixels[at] >> shift & 0xFF);
            }
        }
        colour |= static_cast<std::uint32_t>(sum / (stepX * stepY) + 0.5) << shift;
    }
    return colour;
}

int farthest(std::uint32_t a, std::uint32_t b)
{
    int most = 0;
    for (int shift = 0; shift <= 16; shift += 8) {
        most = std::max(
            most, std::abs(static_cast<int>(a >> shift & 0xFF) - static_cast<int>(b >> shift & 0xFF)));
    }
    return most;
}

} // namespace

TEST(Resampling, TheSameSizeIsTheSamePicture)
{
    std::mt19937 random(1);
    const BlockCL from(9, randomPixels(random, 9 * 7));
    EXPECT_EQ(resampled(from, 9, 7), from.pixels);
}

TEST(Resampling, OneColourStaysThatColourAtEverySize)
{
    const BlockCL from(5, 3, 0x3A7FC1);
    for (int width = 1; width < 14; ++width) {
        for (int height = 1; height < 9; ++height) {
            const auto to = resampled(from, width, height);
            EXPECT_EQ(std::count(to.begin(), to.end(), 0x3A7FC1U), width * height) << width << 'x' << height;
        }
    }
}

TEST(Resampling, SmallerIsTheAverageOfWhatAPixelCovers)
{
    std::mt19937 random(2);
    for (int round = 0; round < 60; ++round) {
        const int width = static_cast<int>(random() % 12) + 2;
        const int height = static_cast<int>(random() % 12) + 2;
        const BlockCL from(width, randomPixels(random, width * height));
        const int toWidth = static_cast<int>(random()) % (width - 1) % width + 1;
        const int toHeight = static_cast<int>(random() % static_cast<unsigned>(height - 1)) + 1;
        const int w = std::clamp(toWidth, 1, width - 1);
        const auto to = resampled(from, w, toHeight);
        for (int y = 0; y < toHeight; ++y) {
            for (int x = 0; x < w; ++x) {
                ASSERT_LE(
                    farthest(to[static_cast<std::size_t>(y * w + x)], plainAverage(from, w, toHeight, x, y)),
                    1)
                    << "round " << round;
            }
        }
    }
}

TEST(Resampling, LargerGoesThroughAStraightRampWithoutSteps)
{
    std::vector<std::uint32_t> ramp;
    for (int i = 0; i < 16; ++i) {
        ramp.push_back(grey(i * 16));
    }
    const BlockCL from(16, ramp);
    const auto to = resampled(from, 64, 1);
    for (std::size_t i = 8; i < 56; ++i) { // The ends are flat: nothing is known beyond them.
        EXPECT_NEAR(static_cast<int>(to[i] & 0xFF), (static_cast<int>(i) + 0.5) * 4 - 8, 1) << i;
    }
    EXPECT_TRUE(std::is_sorted(to.begin(), to.end()));
}

TEST(Resampling, AKeyColouredSurroundingMixesIntoNothing)
{
    BlockCL from(20, 20, White);
    for (int y = 4; y < 15; ++y) {
        for (int x = 3; x < 17; ++x) {
            if ((x - 10) * (x - 10) + (y - 9) * (y - 9) < 40) {
                from.pixels[static_cast<std::size_t>(y * 20 + x)] = 0xC02040;
            }
        }
    }
    for (const int size : { 7, 10, 13, 25, 30, 40, 60 }) {
        const auto to = resampled(from, size, size, White);
        const auto red = std::count(to.begin(), to.end(), 0xC02040U);
        EXPECT_EQ(red + std::count(to.begin(), to.end(), White), size * size) << size;
        const auto was = std::count(from.pixels.begin(), from.pixels.end(), 0xC02040U);
        EXPECT_NEAR(static_cast<double>(red) / (size * size), static_cast<double>(was) / 400, 0.05) << size;
    }
}

TEST(Resampling, AMixtureIsNeverTheKey)
{
    // Between these two the key would lie.
    const BlockCL from(2, { 0x000000, 0x020202 });
    EXPECT_NE(resampled(from, 1, 1, 0x010101)[0], 0x010101U);
    EXPECT_EQ(resampled(from, 1, 1)[0], 0x010101U);
}

TEST(Resampling, OddPicturesAndBlocksAreNoFault)
{
    slResample({ nullptr, 0, 0 }, { nullptr, 4, 4 });
    BlockCL onto(2, 2);
    slResample({ nullptr, 3, 3 }, onto.block);
    EXPECT_EQ(onto.pixels, std::vector<std::uint32_t>(4, 0));
    slResample({ onto.pixels.data(), 0, 1 }, onto.block, White);
    EXPECT_EQ(onto.pixels, std::vector<std::uint32_t>(4, White));
    const PixelBlockCL none { onto.pixels.data(), -1, 2 };
    slResample(onto.block, none);
    std::mt19937 random(3);
    const BlockCL line(1, randomPixels(random, 5000));
    EXPECT_EQ(resampled(line, 3, 2).size(), 6U);
    EXPECT_EQ(resampled(line, 1, 1).size(), 1U);
}
