#include "pictures/picture_edges.h"
#include "pictures/picture_pixels.h"
#include "support/bmp_file.h"
#include "support/random_picture.h"
#include <cstdio>
#include <gtest/gtest.h>

namespace {

using Points = std::vector<std::pair<int, int>>;

Points pointsOf(const Int2DArr& list)
{
    Points points;
    for (int i = 0; i < list.GetBoundM(); ++i) {
        points.emplace_back(list.GetItemPM(i)[0], list.GetItemPM(i)[1]);
    }
    return points;
}

const Colour White { 255, 255, 255 };

bool plainTransparent(const Pixels& picture, int x, int y, const Colour& key)
{
    const unsigned char* pixel = picture.at(x, picture.h - 1 - y);
    return pixel[0] >= key[0] && pixel[1] >= key[1] && pixel[2] >= key[2];
}

// What remains after cutting the runs step by step.
std::vector<char> plainKept(const Pixels& picture, const Colour& key)
{
    std::vector<char> kept(static_cast<std::size_t>(picture.w) * picture.h, 1);
    const auto cut = [&](int x, int from, int to) {
        for (int y = from; y <= to; ++y) {
            kept[static_cast<std::size_t>(y) * picture.w + x] = 0;
        }
    };
    for (int x = 0; x < picture.w; ++x) {
        int begin = -1;
        for (int y = 0; y < picture.h; ++y) {
            if (plainTransparent(picture, x, y, key)) {
                begin = begin < 0 ? y : begin;
                if (y == picture.h - 1) {
                    cut(x, begin, y);
                }
            } else if (begin >= 0) {
                cut(x, begin, y);
                begin = -1;
            }
        }
    }
    return kept;
}

} // namespace

TEST(PicturePixels, LighterThanTheKeyInAllComponentsIsTransparent)
{
    const unsigned char key[3] = { 200, 200, 200 };
    const unsigned char lighter[3] = { 210, 220, 255 };
    const unsigned char mixed[3] = { 255, 255, 199 };
    EXPECT_EQ(1, slIsTransparency(key, key));
    EXPECT_EQ(1, slIsTransparency(lighter, key));
    EXPECT_EQ(0, slIsTransparency(mixed, key));
    const unsigned char darkRed[3] = { 199, 255, 255 };
    const unsigned char darkGreen[3] = { 255, 199, 255 };
    EXPECT_EQ(0, slIsTransparency(darkRed, key));
    EXPECT_EQ(0, slIsTransparency(darkGreen, key));
}

TEST(PicturePixels, SameComparesThreeBytesAndTwoInts)
{
    const unsigned char a[4] = { 1, 2, 3, 4 };
    for (int i = 0; i < 4; ++i) {
        unsigned char b[4] = { 1, 2, 3, 4 };
        b[i] = 9;
        EXPECT_EQ(i == 3 ? 1 : 0, slIsSamePixel4D(a, b));
    }
    const int p[2] = { 1, 2 };
    const int q[2] = { 1, 3 };
    const int r[2] = { 0, 2 };
    EXPECT_EQ(1, slIsSameInt2D(p, p));
    EXPECT_EQ(0, slIsSameInt2D(p, q));
    EXPECT_EQ(0, slIsSameInt2D(p, r));
}

TEST(PicturePixels, AvailabilityTestsYAgainstTheWidthAndXAgainstNothing)
{
    const auto available = [](int x, int y) {
        const int p[2] = { x, y };
        return slIsAvailPosi(p, 4, 6);
    };
    EXPECT_EQ(1, available(0, 0));
    EXPECT_EQ(0, available(-1, 0));
    EXPECT_EQ(0, available(0, -1));
    EXPECT_EQ(1, available(3, 3));
    EXPECT_EQ(1, available(1000, 3)); // Far right of the picture.
    EXPECT_EQ(0, available(0, 4));    // Within the height, not below the width.
    const int p[2] = { 0, 3 };
    EXPECT_EQ(0, slIsAvailPosi(p, 10, 3));
}

TEST(PicturePixels, DirectionsTurnInTheirOrder)
{
    int dir[2] = { 1, 0 };
    Points seen;
    for (int i = 0; i < 4; ++i) {
        slGetNextAxisDirect(dir);
        seen.emplace_back(dir[0], dir[1]);
    }
    EXPECT_EQ((Points { { 0, 1 }, { -1, 0 }, { 0, -1 }, { 1, 0 } }), seen);
    seen.clear();
    for (int i = 0; i < 8; ++i) {
        slGetNextDirect(dir);
        seen.emplace_back(dir[0], dir[1]);
    }
    EXPECT_EQ(
        (Points { { 1, 1 }, { 0, 1 }, { -1, 1 }, { -1, 0 }, { -1, -1 }, { 0, -1 }, { 1, -1 }, { 1, 0 } }),
        seen);
    int diagonal[2] = { 1, 1 };
    slGetNextAxisDirect(diagonal);
    EXPECT_EQ(1, diagonal[0]);
    EXPECT_EQ(1, diagonal[1]);
    int none[2] = { 0, 0 };
    slGetNextDirect(none);
    EXPECT_EQ(0, none[0]);
    EXPECT_EQ(0, none[1]);
}

TEST(PictureEdges, OutermostOpaquePixelsOfRowsFromTheTop)
{
    const Pixels picture = Pixels::fromRows({ ".....", ".#.#.", "..#..", "....." }).upsideDown();
    Int2DArr left;
    Int2DArr right;
    slFindHorizonEdgeM(picture.w, picture.h, picture.bytes.data(), White.data(), &left, &right);
    EXPECT_EQ((Points { { 1, 1 }, { 2, 2 } }), pointsOf(left));
    EXPECT_EQ((Points { { 3, 1 }, { 2, 2 } }), pointsOf(right));
}

TEST(PictureEdges, OutermostOpaquePixelsOfColumnsFromTheLeft)
{
    const Pixels picture = Pixels::fromRows({ ".....", ".#.#.", "...#.", "...#." }).upsideDown();
    Int2DArr first;
    Int2DArr last;
    slFindVerticalEdgeM(picture.w, picture.h, picture.bytes.data(), White.data(), &first, &last);
    EXPECT_EQ((Points { { 1, 1 }, { 3, 1 } }), pointsOf(first));
    EXPECT_EQ((Points { { 1, 1 }, { 3, 3 } }), pointsOf(last));
}

TEST(PictureEdges, AreStoredFromTheFirstIndexOnAndLeaveTheRest)
{
    const Pixels picture = Pixels::fromRows({ "..", ".#", "##" }).upsideDown();
    Int2DArr lists[4];
    for (Int2DArr& list : lists) {
        for (int i = 5; i < 8; ++i) {
            const int before[2] = { i, i };
            list.AddItemM(before);
        }
    }
    slFindHorizonEdgeM(2, 3, picture.bytes.data(), White.data(), &lists[0], &lists[1]);
    slFindVerticalEdgeM(2, 3, picture.bytes.data(), White.data(), &lists[2], &lists[3]);
    EXPECT_EQ((Points { { 1, 1 }, { 0, 2 }, { 7, 7 } }), pointsOf(lists[0]));
    EXPECT_EQ((Points { { 1, 1 }, { 1, 2 }, { 7, 7 } }), pointsOf(lists[1]));
    EXPECT_EQ((Points { { 0, 2 }, { 1, 1 }, { 7, 7 } }), pointsOf(lists[2]));
    EXPECT_EQ((Points { { 0, 2 }, { 1, 2 }, { 7, 7 } }), pointsOf(lists[3]));
}

TEST(PictureEdges, WhollyTransparentOrMissingPictureHasNone)
{
    const Pixels picture(5, 4);
    Int2DArr a;
    Int2DArr b;
    for (int round = 0; round < 3; ++round) {
        const unsigned char* pixels = round == 0 ? picture.bytes.data() : nullptr;
        slFindHorizonEdgeM(round == 2 ? 0 : 5, 4, pixels, White.data(), &a, &b);
        slFindVerticalEdgeM(5, round == 2 ? 0 : 4, pixels, White.data(), &a, &b);
    }
    slFindHorizonEdgeM("no such picture.bmp", White.data(), &a, &b);
    slFindVerticalEdgeM("no such picture.bmp", White.data(), &a, &b);
    EXPECT_EQ(0, a.GetBoundM() + b.GetBoundM());
}

TEST(PictureEdges, OfAFileEqualThoseOfItsPixels)
{
    BmpFile file;
    file.width = 3;
    file.height = 2;
    file.addRow({ 0xFFFFFF, 0x102030, 0xFFFFFF }); // The lowest row.
    file.addRow({ 0x102030, 0x102030, 0xFFFFFF });
    const std::string path = testing::TempDir() + "picture_edges_test.bmp";
    const std::vector<unsigned char> bytes = file.bytes();
    std::FILE* out = std::fopen(path.c_str(), "wb");
    ASSERT_NE(nullptr, out);
    ASSERT_EQ(bytes.size(), std::fwrite(bytes.data(), 1, bytes.size(), out));
    std::fclose(out);
    Int2DArr a;
    Int2DArr b;
    slFindHorizonEdgeM(path.c_str(), White.data(), &a, &b);
    EXPECT_EQ((Points { { 0, 0 }, { 1, 1 } }), pointsOf(a));
    EXPECT_EQ((Points { { 1, 0 }, { 1, 1 } }), pointsOf(b));
    a.DelAllM();
    b.DelAllM();
    slFindVerticalEdgeM(path.c_str(), White.data(), &a, &b);
    EXPECT_EQ((Points { { 0, 0 }, { 1, 0 } }), pointsOf(a));
    EXPECT_EQ((Points { { 0, 0 }, { 1, 1 } }), pointsOf(b));
    // The key is red, green, blue too: only the blue of 0x102030 reaches it.
    const Colour key { 0x11, 0x20, 0x30 };
    a.DelAllM();
    slFindHorizonEdgeM(path.c_str(), key.data(), &a, &b);
    EXPECT_EQ(2, a.GetBoundM());
    const Colour reached { 0x10, 0x20, 0x30 };
    a.DelAllM();
    slFindHorizonEdgeM(path.c_str(), reached.data(), &a, &b);
    EXPECT_EQ(0, a.GetBoundM());
    const Colour reversed { 0x30, 0x20, 0x10 };
    slFindHorizonEdgeM(path.c_str(), reversed.data(), &a, &b);
    EXPECT_EQ(2, a.GetBoundM());
    std::remove(path.c_str());
}

TEST(PictureEdges, OfRandomPicturesEqualAPlainSearch)
{
    std::mt19937 random(11);
    for (int round = 0; round < 300; ++round) {
        const Colour key = randomKey(&random);
        const Pixels picture = randomPicture(&random, 40, key);
        Points expected[4];
        for (int y = 0; y < picture.h; ++y) {
            Points row;
            for (int x = 0; x < picture.w; ++x) {
                if (!plainTransparent(picture, x, y, key)) {
                    row.emplace_back(x, y);
                }
            }
            if (!row.empty()) {
                expected[0].push_back(row.front());
                expected[1].push_back(row.back());
            }
        }
        for (int x = 0; x < picture.w; ++x) {
            Points column;
            for (int y = 0; y < picture.h; ++y) {
                if (!plainTransparent(picture, x, y, key)) {
                    column.emplace_back(x, y);
                }
            }
            if (!column.empty()) {
                expected[2].push_back(column.front());
                expected[3].push_back(column.back());
            }
        }
        Int2DArr found[4];
        slFindHorizonEdgeM(picture.w, picture.h, picture.bytes.data(), key.data(), &found[0], &found[1]);
        slFindVerticalEdgeM(picture.w, picture.h, picture.bytes.data(), key.data(), &found[2], &found[3]);
        for (int i = 0; i < 4; ++i) {
            ASSERT_EQ(expected[i], pointsOf(found[i])) << "round " << round << ", list " << i;
        }
    }
}

TEST(PictureRects, RunTakesTheOpaquePixelBelowWithIt)
{
    // One column: transparent rows 0 to 2, opaque rows 3 to 5.
    const Pixels picture = Pixels::fromRows({ ".", ".", ".", "#", "#", "#" }).upsideDown();
    const auto rects = slFindOpaqueRects(1, 6, picture.bytes.data(), White.data());
    ASSERT_EQ(1U, rects.size());
    EXPECT_EQ(4, rects[0].top);
    EXPECT_EQ(6, rects[0].bottom);
}

TEST(PictureRects, RunDownToTheLastRowIsCutThroughTheBottom)
{
    const Pixels picture = Pixels::fromRows({ "##", "#.", "#." }).upsideDown();
    const auto rects = slFindOpaqueRects(2, 3, picture.bytes.data(), White.data());
    ASSERT_EQ(2U, rects.size());
    EXPECT_EQ(2, rects[0].right);
    EXPECT_EQ(1, rects[0].bottom);
    EXPECT_EQ(1, rects[1].right);
    EXPECT_EQ(1, rects[1].top);
    EXPECT_EQ(3, rects[1].bottom);
}

TEST(PictureRects, OpaquePictureIsOneAndTransparentPictureNone)
{
    const Pixels opaque(7, 9, { 0, 0, 0 });
    EXPECT_EQ(1U, slFindOpaqueRects(7, 9, opaque.bytes.data(), White.data()).size());
    const Pixels transparent(7, 9);
    EXPECT_TRUE(slFindOpaqueRects(7, 9, transparent.bytes.data(), White.data()).empty());
    EXPECT_TRUE(slFindOpaqueRects(7, 9, nullptr, White.data()).empty());
    EXPECT_TRUE(slFindOpaqueRects(0, 9, opaque.bytes.data(), White.data()).empty());
}

TEST(PictureRects, OfRandomPicturesCoverWhatCuttingStepByStepLeaves)
{
    std::mt19937 random(12);
    for (int round = 0; round < 300; ++round) {
        const Colour key = randomKey(&random);
        const Pixels picture = randomPicture(&random, 64, key);
        std::vector<char> covered(static_cast<std::size_t>(picture.w) * picture.h, 0);
        for (const PictureRect& rect :
            slFindOpaqueRects(picture.w, picture.h, picture.bytes.data(), key.data())) {
            for (int y = rect.top; y < rect.bottom; ++y) {
                for (int x = rect.left; x < rect.right; ++x) {
                    char& pixel = covered[static_cast<std::size_t>(y) * picture.w + x];
                    ASSERT_EQ(0, pixel) << "covered twice in round " << round;
                    pixel = 1;
                }
            }
        }
        ASSERT_EQ(plainKept(picture, key), covered) << "round " << round;
    }
}
