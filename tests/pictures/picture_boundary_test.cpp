#include "pictures/picture_boundary.h"
#include "support/plain_walk.h"
#include <gtest/gtest.h>

namespace {

const Colour Black { 0, 0, 0 };
const Colour White { 255, 255, 255 };

Points trace(const Pixels& picture, const Colour& colour = Black)
{
    Int2DArr list;
    EXPECT_EQ(1,
        slGenBitMapBoundary(White.data(), colour.data(), picture.w, picture.h, picture.bytes.data(), &list));
    Points points;
    for (int i = 0; i < list.GetBoundM(); ++i) {
        points.emplace_back(list.GetItemPM(i)[0], list.GetItemPM(i)[1]);
    }
    return points;
}

int isOnBound(const Pixels& picture, int x, int y)
{
    const int p[2] = { x, y };
    return slIsOnBound(p, White.data(), Black.data(), picture.w, picture.h, picture.bytes.data());
}

} // namespace

TEST(PictureBoundary, FirstPointComesInBufferOrder)
{
    const Pixels picture = Pixels::fromRows({ "....", "..#.", "#..." });
    int first[2] = { -1, -1 };
    EXPECT_EQ(1, slGetFirstPntOnBound(Black.data(), picture.w, picture.h, picture.bytes.data(), first));
    EXPECT_EQ(2, first[0]);
    EXPECT_EQ(1, first[1]);
    const Colour red { 255, 0, 0 };
    first[0] = 77;
    EXPECT_EQ(0, slGetFirstPntOnBound(red.data(), picture.w, picture.h, picture.bytes.data(), first));
    EXPECT_EQ(77, first[0]);
}

TEST(PictureBoundary, OnItStandsAPixelOfTheColourWithAnOtherNeighbour)
{
    const Pixels picture = Pixels::fromRows({ "#####", "#####", "#####", "####.", "#####" });
    EXPECT_EQ(1, isOnBound(picture, 3, 2)); // Diagonal neighbour.
    EXPECT_EQ(0, isOnBound(picture, 4, 3)); // Not of the colour.
    EXPECT_EQ(0, isOnBound(picture, 2, 2));
    EXPECT_EQ(0, isOnBound(picture, 0, 0)); // What lies outside the picture is no neighbour.
    // Right of a row's end stand the pixels of the next row.
    const Pixels wrapped = Pixels::fromRows({ "#####", "#####", "#####", ".####", "#####" });
    EXPECT_EQ(1, isOnBound(wrapped, 4, 1));
    EXPECT_EQ(0, isOnBound(wrapped, 3, 1));
}

TEST(PictureBoundary, SquareIsWalkedAroundAndEndsAtItsFirstPoint)
{
    const Pixels picture = Pixels::fromRows({ ".....", ".###.", ".###.", ".###.", "....." });
    const Points expected
        = { { 1, 1 }, { 2, 1 }, { 3, 1 }, { 3, 2 }, { 3, 3 }, { 2, 3 }, { 1, 3 }, { 1, 2 }, { 1, 1 } };
    EXPECT_EQ(expected, trace(picture));
}

TEST(PictureBoundary, NoPixelOfTheColourGivesAnEmptyList)
{
    EXPECT_TRUE(trace(Pixels(4, 4)).empty());
    EXPECT_TRUE(trace(Pixels()).empty());
}

TEST(PictureBoundary, WalkIsAppendedToTheList)
{
    const Pixels picture = Pixels::fromRows({ "....", ".##.", ".##.", "...." });
    const Points walk = trace(picture);
    Int2DArr list;
    for (int i = 0; i < 100; ++i) { // More than the walk may be long.
        const int before[2] = { i, -i };
        list.AddItemM(before);
    }
    slGenBitMapBoundary(White.data(), Black.data(), picture.w, picture.h, picture.bytes.data(), &list);
    ASSERT_EQ(100 + static_cast<int>(walk.size()), list.GetBoundM());
    for (int i = 0; i < 100; ++i) {
        EXPECT_EQ(i, list.GetItemPM(i)[0]);
    }
    for (std::size_t i = 0; i < walk.size(); ++i) {
        const int* const place = list.GetItemPM(100 + static_cast<int>(i));
        EXPECT_EQ(walk[i], Point(place[0], place[1]));
    }
    const Colour red { 255, 0, 0 };
    slGenBitMapBoundary(White.data(), red.data(), picture.w, picture.h, picture.bytes.data(), &list);
    EXPECT_EQ(100 + static_cast<int>(walk.size()), list.GetBoundM());
}

TEST(PictureBoundary, SinglePixelIsTheWholeWalk)
{
    EXPECT_EQ((Points { { 1, 1 } }), trace(Pixels::fromRows({ "...", ".#.", "..." })));
}

TEST(PictureBoundary, LineEndsWhereOnlyTheWayBackIsLeft)
{
    EXPECT_EQ(
        (Points { { 1, 1 }, { 2, 1 }, { 3, 1 } }), trace(Pixels::fromRows({ ".....", ".###.", "....." })));
}

TEST(PictureBoundary, OtherColoursCanBeTraced)
{
    Pixels picture(3, 3);
    const Colour red { 255, 0, 0 };
    picture.set(1, 1, red);
    EXPECT_EQ((Points { { 1, 1 } }), trace(picture, red));
    EXPECT_TRUE(trace(picture).empty());
}

TEST(PictureBoundary, RowsFromTheWidthOnAreNotAvailable)
{
    // Two columns, five rows: the walk can't enter rows 2 to 4.
    const Pixels picture = Pixels::fromRows({ "#.", "#.", "#.", "#.", "#." });
    EXPECT_EQ((Points { { 0, 0 }, { 0, 1 } }), trace(picture));
}

TEST(PictureBoundary, PlacesRightOfARowAreThoseOfTheNextRow)
{
    // Right of (2, 0) comes the first pixel of the second row.
    const Pixels picture = Pixels::fromRows({ "..#", "#..", "..." });
    const Points points = trace(picture);
    ASSERT_EQ(2U, points.size());
    EXPECT_EQ(Point(3, 0), points[1]);
}

TEST(PictureBoundary, EndlessRoundElsewhereEndsWhereItRepeats)
{
    // From the stem's end the walk comes into the ring, and from there never back.
    const Pixels picture = Pixels::fromRows({
        ".......",
        "...#...",
        "...#...",
        ".#####.",
        ".#...#.",
        ".#####.",
        ".......",
    });
    const Points points = trace(picture);
    const Points plain = PlainWalk(picture, 1000).run();
    ASSERT_EQ(1000U, plain.size());
    ASSERT_LT(points.size(), 30U);
    EXPECT_EQ(Points(plain.begin(), plain.begin() + static_cast<std::ptrdiff_t>(points.size())), points);
    // All of the ring is in it.
    for (const Point& corner : { Point(1, 3), Point(5, 3), Point(5, 5), Point(1, 5) }) {
        EXPECT_NE(points.end(), std::find(points.begin(), points.end(), corner));
    }
}

TEST(PictureBoundary, OfRandomPicturesEqualsThePlainWalk)
{
    std::mt19937 random(13);
    int finished = 0;
    int endless = 0;
    for (int round = 0; round < 2000; ++round) {
        Pixels picture(1 + static_cast<int>(random() % 20), 1 + static_cast<int>(random() % 20));
        const unsigned density = random() % 100;
        for (int y = 0; y < picture.h; ++y) {
            for (int x = 0; x < picture.w; ++x) {
                if (random() % 100 < density) {
                    picture.set(x, y, Black);
                }
            }
        }
        const std::size_t most = 20000;
        const Points plain = PlainWalk(picture, most).run();
        const Points points = trace(picture);
        if (plain.size() < most) {
            ASSERT_EQ(plain, points) << "round " << round;
            finished += points.size() > 8 ? 1 : 0;
        } else {
            ASSERT_LE(points.size(), static_cast<std::size_t>(picture.w * picture.h * 4 + 1));
            ASSERT_EQ(
                Points(plain.begin(), plain.begin() + static_cast<std::ptrdiff_t>(points.size())), points);
            ++endless;
        }
    }
    EXPECT_GT(finished, 20);
    EXPECT_GT(endless, 20);
}

TEST(PictureBoundary, LongSpiralIsWalkedToItsEnd)
{
    const Pixels picture = spiral(512);
    std::size_t black = 0;
    for (int y = 0; y < picture.h; ++y) {
        for (int x = 0; x < picture.w; ++x) {
            black += picture.at(x, y)[0] == 0 ? 1U : 0U;
        }
    }
    ASSERT_GT(black, 120000U);
    const Points points = trace(picture);
    EXPECT_EQ(PlainWalk(picture, 4 * black).run(), points);
    EXPECT_EQ(black, points.size());
}
