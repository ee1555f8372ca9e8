#include "pictures/rotation.h"
#include <algorithm>
#include <climits>
#include <cmath>
#include <gtest/gtest.h>
#include <iterator>
#include <random>
#include <vector>

namespace {

constexpr std::uint32_t White = 0xFFFFFF;
constexpr std::uint32_t Guard = 0x5A5A5A5A;

// A picture with rows of guards around it, that can be read and written by place as a window system does.
struct PlainPictureCL
{
    PlainPictureCL(int w, int h)
        : width(w)
        , height(h)
        , all(static_cast<size_t>(w) * h + 2 * Margin, Guard)
    {
    }
    PixelBlockCL BlockM() { return { all.data() + Margin, width, height }; }
    std::uint32_t GetM(int x, int y) const { return all[Margin + static_cast<size_t>(y) * width + x]; }
    void SetM(long long x, long long y, std::uint32_t pixel)
    {
        if (x >= 0 && x < width && y >= 0 && y < height) {
            all[Margin + static_cast<size_t>(y) * width + static_cast<size_t>(x)] = pixel;
        }
    }
    bool GuardsAreWholeM() const
    {
        return std::all_of(all.begin(), all.begin() + Margin, [](auto pixel) { return pixel == Guard; })
            && std::all_of(all.end() - Margin, all.end(), [](auto pixel) { return pixel == Guard; });
    }

    static constexpr std::ptrdiff_t Margin = 256;
    int width;
    int height;
    std::vector<std::uint32_t> all;
};

PlainPictureCL randomPicture(std::mt19937& random, int w, int h, unsigned whites)
{
    PlainPictureCL picture(w, h);
    for (int y = 0; y < h; ++y) {
        for (int x = 0; x < w; ++x) {
            picture.SetM(x, y, random() % 100 < whites ? White : random() & White);
        }
    }
    return picture;
}

// The steps one pixel at a time.
void drawPlainly(const PlainPictureCL& picture, PlainPictureCL& cache, const int position[2],
    const int centre[2], float angle)
{
    const float r = angle * 3.1415925F / 180;
    const auto s = static_cast<float>(std::sin(double { r }));
    const auto c = static_cast<float>(std::cos(double { r }));
    const int dx = centre[0] - position[0];
    const int dy = centre[1] - position[1];
    for (int j = 0; j < picture.height; ++j) {
        const int Y = dy - j;
        for (int i = 0; i < picture.width; ++i) {
            const int X = i - dx;
            const std::uint32_t p = picture.GetM(i, j);
            if (p == White) {
                continue;
            }
            const float newX = c * static_cast<float>(X) - s * static_cast<float>(Y) + static_cast<float>(dx);
            const float newY = s * static_cast<float>(X) + c * static_cast<float>(Y) + static_cast<float>(dy);
            int px = static_cast<int>(newX);
            if (newX - static_cast<float>(px) > 0.4F) {
                px += 1;
            }
            int py = static_cast<int>(newY);
            if (newY - static_cast<float>(py) > 0.4F) {
                py += 1;
            }
            cache.SetM(px, picture.width - py, p);
            cache.SetM(px + 1, picture.width - py, p);
        }
    }
}

void expectSameAsPlain(std::mt19937& random, int w, int h)
{
    PlainPictureCL picture = randomPicture(random, w, h, 30);
    const PlainPictureCL base = randomPicture(random, w, h, 0);
    const int position[2] = { static_cast<int>(random() % 20), static_cast<int>(random() % 20) };
    const int centre[2] = { position[0] + static_cast<int>(random() % (w + 1)),
        position[1] + static_cast<int>(random() % (h + 1)) };
    for (float angle = -720; angle <= 720; angle += 7.5F) {
        PlainPictureCL wanted = base;
        drawPlainly(picture, wanted, position, centre, angle);
        PlainPictureCL drawn = base;
        slDrawRotated(picture.BlockM(), drawn.BlockM(), position, centre, angle);
        ASSERT_EQ(drawn.all, wanted.all) << w << "x" << h << " at " << angle;
    }
}

} // namespace

TEST(Rotation, EqualsThePlainStepsForSquarePictures)
{
    std::mt19937 random(11);
    for (const int size : { 1, 2, 3, 16, 31, 64 }) {
        expectSameAsPlain(random, size, size);
    }
}

TEST(Rotation, EqualsThePlainStepsForPicturesThatAreNotSquare)
{
    std::mt19937 random(12);
    const int sizes[][2] = { { 1, 9 }, { 9, 1 }, { 20, 33 }, { 48, 17 }, { 5, 64 } };
    for (const auto& size : sizes) {
        expectSameAsPlain(random, size[0], size[1]);
    }
}

TEST(Rotation, AngleZeroAboutTheMiddleKeepsThePictureAndDoublesItsPixelsToTheRight)
{
    // The row is counted from the width: row j goes to W - (dy - j + dy) = j for dy = W / 2.
    PlainPictureCL picture(4, 4);
    PlainPictureCL drawn(4, 4);
    for (int y = 0; y < 4; ++y) {
        for (int x = 0; x < 4; ++x) {
            picture.SetM(x, y, White);
            drawn.SetM(x, y, 0);
        }
    }
    picture.SetM(1, 2, 0xAA);
    picture.SetM(3, 0, 0xBB);
    picture.SetM(0, 3, 0xCC);
    picture.SetM(1, 3, 0xDD);
    const int position[2] = { 10, 20 };
    const int centre[2] = { 12, 22 };
    slDrawRotated(picture.BlockM(), drawn.BlockM(), position, centre, 0);
    const std::uint32_t wanted[4][4]
        = { { 0, 0, 0, 0xBB }, { 0, 0, 0, 0 }, { 0, 0xAA, 0xAA, 0 }, { 0xCC, 0xDD, 0xDD, 0 } };
    for (int y = 0; y < 4; ++y) {
        for (int x = 0; x < 4; ++x) {
            EXPECT_EQ(drawn.GetM(x, y), wanted[y][x]) << x << "," << y;
        }
    }
}

namespace {

// Where a pixel lands that the turn carries from (dx + 1, dy) to (dx + cosine, ...).
int landedAt(float fraction)
{
    PlainPictureCL picture(3, 3);
    PlainPictureCL drawn(3, 3);
    for (int y = 0; y < 3; ++y) {
        for (int x = 0; x < 3; ++x) {
            picture.SetM(x, y, White);
            drawn.SetM(x, y, 0);
        }
    }
    picture.SetM(1, 2, 0xAA);
    const int origin[2] = { 0, 0 };
    const int centre[2] = { 0, 2 };
    // X = 1, Y = 0: the new column is the cosine alone.
    const float angle = std::acos(fraction) * 180 / 3.1415925F;
    slDrawRotated(picture.BlockM(), drawn.BlockM(), origin, centre, angle);
    for (int x = 0; x < 3; ++x) {
        for (int y = 0; y < 3; ++y) {
            if (drawn.GetM(x, y) == 0xAA) {
                return x;
            }
        }
    }
    return -1;
}

} // namespace

TEST(Rotation, FractionsUpToFourTenthsRoundDownAndAboveUp)
{
    // A cosine of exactly 0.4 in single precision, so that the threshold itself is met.
    const float angle = std::acos(0.4F) * 180 / 3.1415925F;
    float exact = angle;
    for (float candidate = angle - 0.0005F; candidate < angle + 0.0005F;
         candidate = std::nextafter(candidate, 1000.0F)) {
        const float r = candidate * 3.1415925F / 180;
        if (static_cast<float>(std::cos(double { r })) == 0.4F) {
            exact = candidate;
        }
    }
    const float r = exact * 3.1415925F / 180;
    ASSERT_EQ(static_cast<float>(std::cos(double { r })), 0.4F);
    PlainPictureCL picture(3, 3);
    PlainPictureCL drawn(3, 3);
    for (int y = 0; y < 3; ++y) {
        for (int x = 0; x < 3; ++x) {
            picture.SetM(x, y, White);
            drawn.SetM(x, y, 0);
        }
    }
    picture.SetM(1, 2, 0xAA);
    const int origin[2] = { 0, 0 };
    const int centre[2] = { 0, 2 };
    slDrawRotated(picture.BlockM(), drawn.BlockM(), origin, centre, exact);
    EXPECT_EQ(drawn.GetM(0, 0) | drawn.GetM(0, 1) | drawn.GetM(0, 2), 0xAAU); // Rounded down to 0.
    EXPECT_EQ(landedAt(0.39F), 0);
    EXPECT_EQ(landedAt(0.41F), 1);
}

TEST(Rotation, TopByteOfAPixelCountsForNothing)
{
    std::uint32_t picture[4] = { 0xFFFFFFFF, 0xFFFFFFFF, 0xAAFFFFFF, 0xFF123456 };
    std::uint32_t onto[4] = { 5, 6, 7, 8 };
    const int place[2] = { 0, 0 };
    const int centre[2] = { 1, 1 };
    slDrawRotated({ picture, 2, 2 }, { onto, 2, 2 }, place, centre, 0);
    EXPECT_EQ(onto[0], 5U);
    EXPECT_EQ(onto[1], 6U);
    EXPECT_EQ(onto[2], 7U);
    EXPECT_EQ(onto[3], 0x123456U);
}

TEST(Rotation, BlocksOfDifferentOrNoSizeAreLeftAlone)
{
    std::uint32_t picture[2] = { 1, 2 };
    std::uint32_t onto[2] = { 7, 8 };
    const int place[2] = { 0, 0 };
    slDrawRotated({ picture, 2, 1 }, { onto, 1, 2 }, place, place, 0);
    slDrawRotated({ nullptr, 0, 0 }, { nullptr, 0, 0 }, place, place, 0);
    slDrawRotated({ picture, -1, 1 }, { onto, -1, 1 }, place, place, 0);
    EXPECT_EQ(onto[0], 7U);
    EXPECT_EQ(onto[1], 8U);
}

TEST(Rotation, NoAngleCentreOrPositionReachesOutsideThePicture)
{
    std::mt19937 random(13);
    const int extremes[] = { INT_MIN, INT_MIN + 1, -1000000, -65536, -100, -1, 0, 1, 7, 100, 65535, 1 << 24,
        INT_MAX - 1, INT_MAX };
    const float angles[] = { 0, 90, -90, 45, 180, 360.5F, 7.5F, 1e6F, -1e20F, 3.4e38F, -3.4e38F, 1e-38F };
    const auto any = [&] {
        const unsigned kind = random() % 3;
        return kind == 0 ? extremes[random() % std::size(extremes)]
            : kind == 1  ? static_cast<int>(random())
                         : static_cast<int>(random() % 60) - 20;
    };
    for (int round = 0; round < 20000; ++round) {
        const int w = 1 + static_cast<int>(random() % 12);
        const int h = 1 + static_cast<int>(random() % 12);
        PlainPictureCL picture = randomPicture(random, w, h, 20);
        PlainPictureCL drawn(w, h);
        const int position[2] = { any(), any() };
        const int centre[2] = { any(), any() };
        const float angle = random() % 2 == 0 ? angles[random() % std::size(angles)]
                                              : static_cast<float>(random() % 7200) / 10;
        slDrawRotated(picture.BlockM(), drawn.BlockM(), position, centre, angle);
        ASSERT_TRUE(drawn.GuardsAreWholeM()) << round;
        ASSERT_TRUE(picture.GuardsAreWholeM()) << round;
    }
}

TEST(Rotation, StepCutsTheNewAngleTowardZero)
{
    EXPECT_EQ(slAngleAfterStep(0, 1, 7.5F), 7);
    EXPECT_EQ(slAngleAfterStep(7, 1, 7.5F), 14);
    EXPECT_EQ(slAngleAfterStep(0, -1, 7.5F), -7);
    EXPECT_EQ(slAngleAfterStep(0.75F, 1, 0.5F), 1);
    EXPECT_EQ(slAngleAfterStep(10, 0, 7.5F), 10);
    EXPECT_EQ(slAngleAfterStep(1e30F, 1, 1), 1e30F);
}

TEST(Rotation, PartsShowWhatTheWholeShows)
{
    std::mt19937 random(13);
    for (int i = 0; i < 3000; ++i) {
        const int w = 1 + static_cast<int>(random() % 60);
        const int h = 1 + static_cast<int>(random() % 60);
        PlainPictureCL picture = randomPicture(random, w, h, 30);
        PlainPictureCL wanted = randomPicture(random, w, h, 0);
        const int position[2]
            = { static_cast<int>(random() % 60) - 30, static_cast<int>(random() % 60) - 30 };
        const int reach = i % 10 == 0 ? 100000 : 80;
        const int centre[2] = { static_cast<int>(random() % reach), static_cast<int>(random() % reach) - 40 };
        const auto angle = static_cast<float>(static_cast<int>(random() % 7200) - 3600) / 10.0F;
        PixelPartCL onto { nullptr, static_cast<int>(random() % w), static_cast<int>(random() % h), 0, 0 };
        onto.width = 1 + static_cast<int>(random() % (w - onto.left));
        onto.height = 1 + static_cast<int>(random() % (h - onto.top));
        std::vector<std::uint32_t> shown;
        for (int y = onto.top; y < onto.top + onto.height; ++y) {
            for (int x = onto.left; x < onto.left + onto.width; ++x) {
                shown.push_back(wanted.GetM(x, y));
            }
        }
        PixelPartCL from = slPartToRotate(onto, w, h, position, centre, angle);
        std::vector<std::uint32_t> pixels(1);
        for (int y = from.top; y < from.top + from.height; ++y) {
            for (int x = from.left; x < from.left + from.width; ++x) {
                pixels.push_back(picture.GetM(x, y));
            }
        }
        onto.pixels = shown.data();
        from.pixels = pixels.data() + 1;
        slDrawRotatedPart(from, onto, w, h, position, centre, angle);
        slDrawRotated(picture.BlockM(), wanted.BlockM(), position, centre, angle);
        for (int y = 0; y < onto.height; ++y) {
            for (int x = 0; x < onto.width; ++x) {
                ASSERT_EQ(
                    shown[static_cast<size_t>(y) * onto.width + x], wanted.GetM(onto.left + x, onto.top + y));
            }
        }
    }
}

TEST(Rotation, OfAHugePictureOnlyWhatIsSeenIsLookedAt)
{
    const int position[2] = { 0, 0 };
    const int centre[2] = { 15000, 15000 };
    const PixelPartCL part
        = slPartToRotate({ nullptr, 3000, 14000, 40, 30 }, 30000, 30000, position, centre, 45);
    EXPECT_GT(part.width * part.height, 40 * 30);
    EXPECT_LT(part.width * part.height, 100 * 100);
}

TEST(Rotation, WhatLeavesAPictureWhoseSizeIsNoExactNumberIsNotSeenAtItsEdge)
{
    constexpr int Width = (1 << 25) + 2; // In single precision this, and two more, are two less.
    std::uint32_t pixel = 0x123456;
    std::vector<std::uint32_t> shown(16, White);
    const int position[2] = { 0, 0 };
    const int centre[2] = { 0, 40000000 }; // Twice as far up as the centre is down.
    slDrawRotatedPart({ &pixel, 0, 0, 1, 1 }, { shown.data(), 0, 0, 4, 4 }, Width, 8, position, centre, 0);
    EXPECT_EQ(shown, std::vector<std::uint32_t>(16, White));
}
