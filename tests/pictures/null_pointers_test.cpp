// Null where pictures and regions want a pointer: refused, what there is stays.
#include "pictures/bitmap_record.h"
#include "pictures/region_functions.h"
#include "pictures/rgn_record.h"
#include "support/bmp_file.h"
#include "support/temp_file.h"
#include <gtest/gtest.h>

namespace {

std::string twoPixels()
{
    BmpFile file;
    file.width = 2;
    file.addRow({ 0x112233, 0x445566 });
    const std::vector<unsigned char> bytes = file.bytes();
    return std::string(bytes.begin(), bytes.end());
}

} // namespace

TEST(NullPointers, BitmapsDrawOnNoContext)
{
    const TempFile file(twoPixels(), ".bmp");
    DVrBitmapCL bitmap(AliveTag);
    ASSERT_EQ(bitmap.LoadSafeBitmapM(file.path()), 1);
    EXPECT_EQ(bitmap.DrawBitmapM(nullptr, 0, 0, nullptr), 0);
    EXPECT_EQ(bitmap.DrawStretchBitmapM(nullptr, 0, 0, 5, 5), 0);
    EXPECT_EQ(bitmap.BlendBitmapM(nullptr), 0);
    EXPECT_EQ(bitmap.MoveBitmapM(nullptr), 0);
    EXPECT_TRUE(bitmap.HoldsBitmapM());
    DVrBitmapArr list;
    ASSERT_EQ(list.AddBitmapM(file.path()), 0);
    EXPECT_EQ(list.DrawBitmapM(0, nullptr, 0, 0, nullptr), 0);
    EXPECT_EQ(list.GetBmpSizeM(0, nullptr), 0);
    EXPECT_EQ(list.AddBitmapM(nullptr), -1);
    EXPECT_EQ(list.InsertBitmapM(0, nullptr), 0);
    EXPECT_EQ(slLoadPicture(nullptr, file.path()), 0);
}

TEST(NullPointers, RegionsAreMadeOfNothingAndForNobody)
{
    const TempFile file(twoPixels(), ".bmp");
    const unsigned char pixels[12] {};
    const unsigned char key[3] { 255, 255, 255 };
    const Int2DArr points;
    EXPECT_EQ(slCreateRgnM(points, points, nullptr), 0);
    EXPECT_EQ(slCreateRgn(points, nullptr), 0);
    EXPECT_EQ(slCreatRgnByPixel(2, 2, pixels, key, nullptr), 0);
    EXPECT_EQ(slCreatRgnByPixel(file.path(), key, nullptr), 0);
    EXPECT_EQ(slCreateRgnAny(2, 2, pixels, key, nullptr), 0);
    EXPECT_EQ(slCreateRgnAny(file.path(), key, nullptr), 0);
    for (const int mode : { RgnByRows, RgnByColumns, RgnByBoundary, 0 }) {
        EXPECT_EQ(slGenerateRgnFromBitmapM(2, 2, pixels, key, mode, nullptr), 0) << mode;
        EXPECT_EQ(slGenerateRgnFromBitmapM(file.path(), key, mode, nullptr), 0) << mode;
    }
    EXPECT_EQ(slReadRgn(file.path(), nullptr), 0);
    EXPECT_EQ(slCombineRgnFromFile(file.path(), nullptr, RGN_OR), 0);
}

TEST(NullPointers, RegionStaysWhereItsKeyIsMissing)
{
    const TempFile file(twoPixels(), ".bmp");
    const unsigned char pixels[12] {};
    DVrRgnCL region;
    region.CreateRectRgn(0, 0, 5, 5);
    const HGDIOBJ before = region.GetSafeHandle();
    EXPECT_EQ(slCreatRgnByPixel(2, 2, pixels, nullptr, &region), 0);
    EXPECT_EQ(slCreatRgnByPixel(file.path(), nullptr, &region), 0);
    EXPECT_EQ(slGenerateRgnFromBitmapM(2, 2, pixels, nullptr, RgnByRows, &region), 0);
    EXPECT_EQ(region.GenerateRgnFromBitmapM(file.path(), nullptr, RgnByColumns), 0);
    EXPECT_EQ(region.GenerateRgnFromBitmapM(file.path(), nullptr, 0), 0);
    EXPECT_EQ(region.GetSafeHandle(), before);
    EXPECT_EQ(region.GenerateRgnFromBitmapM(file.path(), nullptr, RgnByBoundary), 1); // It uses none.
}
