// Null where what reads pictures without a window system wants a pointer: refused, nothing read or changed.
#include "pictures/bmp_record.h"
#include "pictures/picture_boundary.h"
#include "pictures/picture_edges.h"
#include "pictures/picture_pixels.h"
#include <array>
#include <gtest/gtest.h>

TEST(NullPointers, PictureNamesAreReadFromNoFileAndWrittenNowhere)
{
    DVrBmpArr names;
    EXPECT_EQ(names.FmInputScpFileM(nullptr, nullptr), 0);
    DVrBmpCL name;
    name.FmInputEvrFileM(nullptr);
    EXPECT_FALSE(name.IsAliveM());
    EXPECT_EQ(name.GetBmpNameM(nullptr), 0);
    names.AddItemM(DVrBmpCL(AliveTag));
    EXPECT_EQ(names.GetBmpNameM(0, nullptr), 0);
    EXPECT_EQ(names.GetBmpContentM(0, nullptr, nullptr), nullptr);
}

TEST(NullPointers, PictureFunctionsFindNothing)
{
    const unsigned char pixels[12] {};
    const unsigned char key[3] { 255, 255, 255 };
    const int place[2] {};
    int dir[2] { 1, 0 };
    int next[2] {};
    EXPECT_EQ(slIsTransparency(nullptr, key), 0);
    EXPECT_EQ(slIsTransparency(pixels, nullptr), 0);
    EXPECT_EQ(slIsSamePixel4D(nullptr, nullptr), 0);
    EXPECT_EQ(slIsSameInt2D(nullptr, place), 0);
    EXPECT_EQ(slIsSameInt2D(place, nullptr), 0);
    EXPECT_EQ(slIsAvailPosi(nullptr, 2, 2), 0);
    EXPECT_EQ(slGetNextAxisDirect(nullptr), 0);
    EXPECT_EQ(slGetNextDirect(nullptr), 0);
    EXPECT_EQ(slGetFirstPntOnBound(key, 2, 2, nullptr, next), 0);
    EXPECT_EQ(slGetFirstPntOnBound(pixels, 2, 2, pixels, nullptr), 0);
    EXPECT_EQ(slGetFirstPntOnBound(nullptr, 2, 2, pixels, next), 0);
    EXPECT_EQ(slIsOnBound(nullptr, key, pixels, 2, 2, pixels), 0);
    EXPECT_EQ(slGetNextPntOnBound(pixels, 2, 2, pixels, nullptr, place, dir, next), 0);
    EXPECT_EQ(slGetNextPntOnBound(pixels, 2, 2, pixels, place, nullptr, dir, next), 0);
    EXPECT_EQ(slGetNextPntOnBound(pixels, 2, 2, pixels, place, place, nullptr, next), 0);
    EXPECT_EQ(slGetNextPntOnBound(pixels, 2, 2, pixels, place, place, dir, nullptr), 0);
    EXPECT_EQ(slGenBitMapBoundary(key, pixels, 2, 2, pixels, nullptr), 0);
}

TEST(NullPointers, EdgesNeedAKeyAndBothLists)
{
    const unsigned char pixels[12] {};
    const unsigned char key[3] { 255, 255, 255 };
    Int2DArr edge;
    edge.AddItemM(std::array<int, 2> { 1, 2 }.data());
    for (const auto find :
        { static_cast<int (*)(int, int, const unsigned char*, const unsigned char*, Int2DArr*, Int2DArr*)>(
              slFindHorizonEdgeM),
            static_cast<int (*)(int, int, const unsigned char*, const unsigned char*, Int2DArr*, Int2DArr*)>(
                slFindVerticalEdgeM) }) {
        EXPECT_EQ(find(2, 2, pixels, key, nullptr, &edge), 0);
        EXPECT_EQ(find(2, 2, pixels, key, &edge, nullptr), 0);
        EXPECT_EQ(find(2, 2, pixels, nullptr, &edge, &edge), 0);
    }
    EXPECT_EQ(slFindHorizonEdgeM("no.bmp", key, nullptr, nullptr), 0);
    EXPECT_EQ(slFindVerticalEdgeM("no.bmp", nullptr, &edge, &edge), 0);
    EXPECT_EQ(edge.GetBoundM(), 1);
    EXPECT_TRUE(slFindOpaqueRects(2, 2, pixels, nullptr).empty());
}
