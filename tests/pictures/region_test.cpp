#include "pictures/bmp_reader.h"
#include "pictures/region_functions.h"
#include "pictures/rgn_record.h"
#include "support/plain_region.h"
#include "support/platform_pictures.h"
#include <algorithm>
#include <chrono>
#include <random>

namespace {

const Colour White { 255, 255, 255 };
const Colour Black { 0, 0, 0 };

bool isRect(const CRgn& rgn, int left, int top, int right, int bottom)
{
    CRgn expected;
    expected.CreateRectRgn(left, top, right, bottom);
    return rgn.GetSafeHandle() != nullptr && expected.EqualRgn(&rgn);
}

bool isEmpty(const CRgn& rgn)
{
    RECT box {};
    return rgn.GetSafeHandle() == nullptr || rgn.GetRgnBox(&box) == NULLREGION;
}

// The region's pixels, rows from the top.
std::vector<std::string> rowsOf(const CRgn& rgn, int w, int h)
{
    std::vector<std::string> rows;
    for (int y = 0; y < h; ++y) {
        rows.emplace_back();
        for (int x = 0; x < w; ++x) {
            rows.back() += rgn.GetSafeHandle() != nullptr && rgn.PtInRegion(x, y) ? '#' : '.';
        }
    }
    return rows;
}

Int2DArr pointList(const std::vector<std::pair<int, int>>& points)
{
    Int2DArr list;
    for (const auto& point : points) {
        const int pair[2] = { point.first, point.second };
        list.AddItemM(pair);
    }
    return list;
}

// Several figures in which the four ways give four different regions.
Pixels figures()
{
    return Pixels::fromRows({
                                "............",
                                ".######.....",
                                ".######..##.",
                                ".##..##..##.",
                                ".######.....",
                                ".######.....",
                                "............",
                            })
        .upsideDown();
}

} // namespace

TEST(RegionRecord, HoldsNoneAtFirstAndDeletesItsOwn)
{
    HGDIOBJ handle = nullptr;
    {
        DVrRgnCL rgn;
        EXPECT_EQ(nullptr, rgn.GetSafeHandle());
        rgn.CreateRectRgn(0, 0, 5, 5);
        handle = rgn.GetSafeHandle();
        ASSERT_EQ(static_cast<DWORD>(OBJ_REGION), ::GetObjectType(handle));
    }
    EXPECT_EQ(0U, ::GetObjectType(handle));
}

TEST(RegionRecord, AssignmentCopiesNothing)
{
    DVrRgnCL source;
    source.CreateRectRgn(0, 0, 5, 5);
    DVrRgnCL target;
    target.CreateRectRgn(1, 1, 2, 2);
    const HGDIOBJ before = target.GetSafeHandle();
    target = source;
    EXPECT_EQ(before, target.GetSafeHandle());
    EXPECT_TRUE(isRect(target, 1, 1, 2, 2));
    EXPECT_TRUE(isRect(source, 0, 0, 5, 5));
    DVrRgnCL empty;
    target = empty;
    EXPECT_EQ(before, target.GetSafeHandle());
    const DVrRgnCL copy(source);
    EXPECT_EQ(nullptr, copy.GetSafeHandle());
}

TEST(RegionRecord, PolygonTakesAllPoints)
{
    DVrRgnCL rgn;
    EXPECT_EQ(1, rgn.CreateRgnFromPolygonM(pointList({ { 0, 0 }, { 40, 0 }, { 40, 20 }, { 0, 20 } })));
    EXPECT_TRUE(isRect(rgn, 0, 0, 40, 20));
    DVrRgnCL none;
    none.CreateRgnFromPolygonM(Int2DArr());
    EXPECT_EQ(nullptr, none.GetSafeHandle());
}

TEST(RegionPolygon, LeavesOutTheLastPoint)
{
    CRgn rgn;
    slCreateRgn(pointList({ { 0, 0 }, { 10, 0 }, { 10, 10 }, { 0, 10 }, { 99, 99 } }), &rgn);
    EXPECT_TRUE(isRect(rgn, 0, 0, 10, 10));
    CRgn none;
    slCreateRgn(Int2DArr(), &none);
    EXPECT_TRUE(isEmpty(none));
    slCreateRgn(pointList({ { 0, 0 }, { 10, 0 } }), &none);
    EXPECT_TRUE(isEmpty(none));
}

TEST(RegionPolygon, GoesDownTheFirstListAndBackUpTheSecond)
{
    CRgn rgn;
    slCreateRgnM(pointList({ { 0, 0 }, { 0, 10 } }), pointList({ { 8, 0 }, { 8, 10 } }), &rgn);
    EXPECT_TRUE(isRect(rgn, 0, 0, 8, 10));
}

TEST(RegionPolygon, CrossingLinesLeaveHolesByAlternateFilling)
{
    // A square walked around twice is wound about twice: even, so outside.
    CRgn rgn;
    slCreateRgnM(
        pointList({ { 0, 0 }, { 8, 0 }, { 8, 8 }, { 0, 8 }, { 0, 0 }, { 8, 0 }, { 8, 8 }, { 0, 8 } }),
        Int2DArr(), &rgn);
    EXPECT_TRUE(isEmpty(rgn));
}

TEST(RegionPolygon, AttachingDoesNotDeleteTheRegionBefore)
{
    const Int2DArr square = pointList({ { 0, 0 }, { 10, 0 }, { 10, 10 }, { 0, 10 }, { 0, 0 } });
    CRgn rgn;
    rgn.CreateRectRgn(0, 0, 1, 1);
    const HGDIOBJ before = rgn.GetSafeHandle();
    slCreateRgn(square, &rgn);
    EXPECT_EQ(static_cast<DWORD>(OBJ_REGION), ::GetObjectType(before));
    ::DeleteObject(before);
}

TEST(RegionFile, SquareAndWithoutItsLastPointATriangle)
{
    const TestFile square("region_test.txt", std::string("5\n0 0\n10 0\n10 10\n0 10\n0 0\n"));
    Int2DArr points;
    slReadRgn(square.path(), &points);
    ASSERT_EQ(5, points.GetBoundM());
    EXPECT_EQ(10, points.GetItemPM(1)[0]);
    CRgn rgn;
    rgn.CreateRectRgn(0, 0, 100, 100);
    slCombineRgnFromFile(square.path(), &rgn, RGN_AND);
    EXPECT_TRUE(isRect(rgn, 0, 0, 10, 10));

    const TestFile open("region_open.txt", std::string("4\n0 0\n10 0\n10 10\n0 10\n"));
    CRgn triangle;
    triangle.CreateRectRgn(0, 0, 100, 100);
    slCombineRgnFromFile(open.path(), &triangle, RGN_AND);
    EXPECT_TRUE(triangle.PtInRegion(8, 2));
    EXPECT_FALSE(triangle.PtInRegion(2, 8));
}

TEST(RegionFile, CombinesInEachWay)
{
    const TestFile file("region_test.txt", std::string("5 5 0 15 0 15 10 5 10 5 0"));
    const auto combined = [&](int mode) {
        CRgn rgn;
        rgn.CreateRectRgn(0, 0, 10, 10);
        slCombineRgnFromFile(file.path(), &rgn, mode);
        RECT box {};
        rgn.GetRgnBox(&box);
        const bool middle = rgn.PtInRegion(7, 5);
        return std::vector<int> { static_cast<int>(box.left), static_cast<int>(box.right), middle ? 1 : 0 };
    };
    EXPECT_EQ((std::vector<int> { 5, 10, 1 }), combined(RGN_AND));
    EXPECT_EQ((std::vector<int> { 0, 15, 1 }), combined(RGN_OR));
    EXPECT_EQ((std::vector<int> { 0, 15, 0 }), combined(RGN_XOR));
    EXPECT_EQ((std::vector<int> { 0, 5, 0 }), combined(RGN_DIFF));
    EXPECT_EQ((std::vector<int> { 0, 10, 1 }), combined(RGN_COPY));
}

TEST(RegionFile, MissingOrBrokenFileChangesNothing)
{
    CRgn rgn;
    rgn.CreateRectRgn(0, 0, 10, 10);
    slCombineRgnFromFile("no such region.txt", &rgn, RGN_AND);
    EXPECT_TRUE(isRect(rgn, 0, 0, 10, 10));
    const TestFile huge("region_test.txt", std::string("2000000000 1 1"));
    slCombineRgnFromFile(huge.path(), &rgn, RGN_AND);
    EXPECT_TRUE(isRect(rgn, 0, 0, 10, 10));
    Int2DArr points = pointList({ { 1, 1 } });
    slReadRgn(huge.path(), &points);
    EXPECT_EQ(1, points.GetBoundM());
    const TestFile shorter("region_short.txt", std::string("3 5 6 7            "));
    slReadRgn(shorter.path(), &points);
    ASSERT_EQ(3, points.GetBoundM());
    EXPECT_EQ(5, points.GetItemPM(0)[0]);
    EXPECT_EQ(0, points.GetItemPM(2)[0]);
}

TEST(RegionFile, PointsAreStoredFromTheFirstIndexOnAndLeaveTheRest)
{
    const TestFile file("region_test.txt", std::string("2\n1 2\n3 4\n"));
    Int2DArr points = pointList({ { 9, 9 }, { 9, 9 }, { 7, 8 } });
    slReadRgn(file.path(), &points);
    ASSERT_EQ(3, points.GetBoundM());
    EXPECT_EQ(1, points.GetItemPM(0)[0]);
    EXPECT_EQ(4, points.GetItemPM(1)[1]);
    EXPECT_EQ(7, points.GetItemPM(2)[0]);
}

TEST(RegionOfAPicture, ByRowsFillsBetweenTheOutermostPixels)
{
    const TestFile file("region_test.bmp", figures());
    CRgn rgn;
    slGenerateRgnFromBitmapM(file.path(), White.data(), 107, &rgn);
    CRgn expected;
    const POINT points[] = { { 1, 1 }, { 1, 2 }, { 1, 3 }, { 1, 4 }, { 1, 5 }, { 6, 5 }, { 6, 4 }, { 10, 3 },
        { 10, 2 }, { 6, 1 } };
    expected.CreatePolygonRgn(points, 10, ALTERNATE);
    EXPECT_TRUE(expected.EqualRgn(&rgn));
    EXPECT_TRUE(rgn.PtInRegion(3, 3)); // The hole.
}

TEST(RegionOfAPicture, ByColumnsFillsBetweenTheOutermostPixels)
{
    const TestFile file("region_test.bmp", figures());
    CRgn rgn;
    slGenerateRgnFromBitmapM(file.path(), White.data(), 108, &rgn);
    CRgn expected;
    const POINT points[] = { { 1, 1 }, { 2, 1 }, { 3, 1 }, { 4, 1 }, { 5, 1 }, { 6, 1 }, { 9, 2 }, { 10, 2 },
        { 10, 3 }, { 9, 3 }, { 6, 5 }, { 5, 5 }, { 4, 5 }, { 3, 5 }, { 2, 5 }, { 1, 5 } };
    expected.CreatePolygonRgn(points, 16, ALTERNATE);
    EXPECT_TRUE(expected.EqualRgn(&rgn));
}

TEST(RegionOfAPicture, ByBoundaryTakesTheFirstBlackFigure)
{
    const TestFile file("region_test.bmp", figures());
    CRgn rgn;
    slGenerateRgnFromBitmapM(file.path(), White.data(), 110, &rgn);
    EXPECT_TRUE(isRect(rgn, 1, 1, 6, 5));
    CRgn direct;
    direct.CreateRectRgn(0, 0, 1, 1);
    slCreateRgnAny(file.path(), White.data(), &direct);
    EXPECT_TRUE(direct.EqualRgn(&rgn));
}

TEST(RegionOfAPicture, UnknownModeIsPixelExactForAFileAndBoundaryForABuffer)
{
    const Pixels picture = figures();
    const TestFile file("region_test.bmp", picture);
    CRgn exact;
    slCreatRgnByPixel(file.path(), White.data(), &exact);
    CRgn traced;
    slCreateRgnAny(file.path(), White.data(), &traced);
    ASSERT_FALSE(exact.EqualRgn(&traced));
    for (int mode : { 109, 0, -1, 111 }) {
        DVrRgnCL ofFile;
        ofFile.GenerateRgnFromBitmapM(file.path(), White.data(), mode);
        EXPECT_TRUE(exact.EqualRgn(&ofFile)) << mode;
    }
    for (int mode : { 109, 110, 0 }) {
        CRgn ofBuffer;
        slGenerateRgnFromBitmapM(picture.w, picture.h, picture.bytes.data(), White.data(), mode, &ofBuffer);
        EXPECT_TRUE(traced.EqualRgn(&ofBuffer)) << mode;
    }
    for (int mode : { 107, 108 }) {
        CRgn ofFile;
        slGenerateRgnFromBitmapM(file.path(), White.data(), mode, &ofFile);
        CRgn ofBuffer;
        slGenerateRgnFromBitmapM(picture.w, picture.h, picture.bytes.data(), White.data(), mode, &ofBuffer);
        EXPECT_TRUE(ofFile.EqualRgn(&ofBuffer)) << mode;
    }
}

TEST(RegionOfAPicture, EachWayDeletesTheRegionBefore)
{
    const Pixels picture = figures();
    const TestFile file("region_test.bmp", picture);
    for (int mode : { 107, 108, 109, 110 }) {
        CRgn rgn;
        rgn.CreateRectRgn(0, 0, 1, 1);
        const DWORD before = ::GetGuiResources(::GetCurrentProcess(), GR_GDIOBJECTS);
        for (int i = 0; i < 50; ++i) {
            slGenerateRgnFromBitmapM(file.path(), White.data(), mode, &rgn);
        }
        EXPECT_LE(::GetGuiResources(::GetCurrentProcess(), GR_GDIOBJECTS), before + 2) << mode;
        EXPECT_FALSE(isEmpty(rgn)) << mode;
        slGenerateRgnFromBitmapM("no such picture.bmp", White.data(), mode, &rgn);
        EXPECT_TRUE(isEmpty(rgn)) << mode;
    }
}

TEST(RegionPixelExact, RunsTakeTheOpaquePixelBelowAndTheBottom)
{
    const TestFile file(
        "region_test.bmp", Pixels::fromRows({ ".##.", ".##.", ".#.#", "##.#", "##.#" }).upsideDown());
    CRgn rgn;
    slCreatRgnByPixel(file.path(), White.data(), &rgn);
    EXPECT_EQ((std::vector<std::string> { ".##.", ".##.", ".#..", ".#.#", "##.#" }), rowsOf(rgn, 4, 5));
}

TEST(RegionPixelExact, LighterPixelsAreTransparentToo)
{
    Pixels picture(3, 1);
    picture.set(0, 0, { 210, 220, 255 });
    picture.set(1, 0, { 255, 255, 199 });
    picture.set(2, 0, { 200, 200, 200 });
    const TestFile file("region_test.bmp", picture);
    const Colour key { 200, 200, 200 };
    CRgn rgn;
    slCreatRgnByPixel(file.path(), key.data(), &rgn);
    EXPECT_TRUE(isRect(rgn, 1, 0, 2, 1));
}

TEST(RegionPixelExact, OfRandomPicturesEqualsStepByStep)
{
    std::mt19937 random(21);
    int rich = 0;
    for (int round = 0; round < 200; ++round) {
        const Colour key = randomKey(&random);
        const Pixels picture = randomPicture(&random, 64, key);
        const TestFile file("region_test.bmp", picture);
        CRgn rgn;
        slCreatRgnByPixel(file.path(), key.data(), &rgn);
        CRgn plain;
        plain.Attach(plainPixelRegion(picture, key));
        ASSERT_TRUE(plain.EqualRgn(&rgn)) << "round " << round;
        rich += plain.GetRegionData(nullptr, 0) > 4000 ? 1 : 0;
    }
    EXPECT_GT(rich, 20);
}

TEST(RegionPixelExact, OfANoisyPictureEqualsStepByStep)
{
    const Pixels picture = noisyPicture(200, 500);
    const TestFile file("region_test.bmp", picture);
    CRgn rgn;
    slCreatRgnByPixel(file.path(), White.data(), &rgn);
    CRgn plain;
    plain.Attach(plainPixelRegion(picture, White));
    EXPECT_TRUE(plain.EqualRgn(&rgn));
}

TEST(RegionByBoundary, OfBlackPixelsWhateverTheKey)
{
    const TestFile file("region_test.bmp", figures());
    CRgn one;
    CRgn two;
    slCreateRgnAny(file.path(), White.data(), &one);
    slCreateRgnAny(file.path(), Black.data(), &two);
    EXPECT_TRUE(one.EqualRgn(&two));
    Pixels grey(6, 6);
    grey.set(2, 2, { 1, 0, 0 });
    const TestFile other("region_grey.bmp", grey);
    slCreateRgnAny(other.path(), White.data(), &one);
    EXPECT_EQ(nullptr, one.GetSafeHandle());
}

TEST(RegionByBoundary, LowestRowIsTheFirstForTheWalk)
{
    // Buffer rows are not exchanged: the figure comes out upside down.
    const Pixels picture = Pixels::fromRows(
        { "......", ".####.", ".####.", ".####.", "......", "......", "......", "......" });
    CRgn rgn;
    slCreateRgnAny(picture.w, picture.h, picture.bytes.data(), White.data(), &rgn);
    EXPECT_TRUE(isRect(rgn, 1, 1, 4, 3));
    slGenerateRgnFromBitmapM(picture.w, picture.h, picture.bytes.data(), White.data(), 107, &rgn);
    EXPECT_TRUE(isRect(rgn, 1, 4, 4, 6));
}

TEST(RegionPixelExact, OfAFlawedPictureIsWhatIsShown)
{
    BmpFile picture = codedBmp(8, 5, 2, { 5, 1, 0, 0, 7, 2, 0, 0 });
    const TestFile coded("region_test.bmp", picture);
    CRgn rgn;
    slCreatRgnByPixel(coded.path(), White.data(), &rgn);
    EXPECT_TRUE(isRect(rgn, 0, 0, 5, 2));
}

TEST(RegionOfPicture, ManyRowsGiveTheRegionOfOnePolygon)
{
    std::mt19937 random(3);
    for (const int height : { 64, 65, 66, 129, 200, 333 }) {
        Pixels pixels(50, height);
        for (int y = 0; y < height; ++y) {
            const int left = static_cast<int>(random() % 25);
            const int right = random() % 9 == 0 ? left : 25 + static_cast<int>(random() % 25);
            for (int x = 0; x < 50; ++x) {
                pixels.set(x, y, random() % 8 != 0 && x >= left && x < right ? Black : White);
            }
        }
        Int2DArr a;
        Int2DArr b;
        const unsigned char key[3] = { 255, 255, 255 };
        slFindHorizonEdgeM(50, height, pixels.bytes.data(), key, &a, &b);
        CRgn polygon;
        slCreateRgnM(a, b, &polygon);
        CRgn made;
        slGenerateRgnFromBitmapM(50, height, pixels.bytes.data(), key, RgnByRows, &made);
        EXPECT_TRUE(made.EqualRgn(&polygon)) << height;
    }
}

TEST(RegionOfPicture, TimeGrowsAsTheRows)
{
    const unsigned char key[3] = { 255, 255, 255 };
    const auto secondsOf = [&](int height) {
        const std::vector<unsigned char> pixels(static_cast<std::size_t>(height) * 3);
        const auto begin = std::chrono::steady_clock::now();
        CRgn made;
        slGenerateRgnFromBitmapM(1, height, pixels.data(), key, RgnByRows, &made);
        return std::chrono::duration<double>(std::chrono::steady_clock::now() - begin).count();
    };
    // Sixteen times the rows; as one polygon they took 256 times as long.
    const double few = std::min({ secondsOf(2500), secondsOf(2500), secondsOf(2500) });
    EXPECT_LT(std::min({ secondsOf(40000), secondsOf(40000) }), few * 80);
}
