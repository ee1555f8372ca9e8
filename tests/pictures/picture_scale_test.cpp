// How large pictures are at other scales, and which file holds them.
#include "pictures/picture_scale.h"
#include <gtest/gtest.h>

TEST(PictureScale, FarEdgesAreRoundedAsThoseOfControls)
{
    for (const int percent : { 50, 100, 125, 150, 175, 200, 300 }) {
        const ScaleCL scale(percent);
        for (int corner = 0; corner < 20; ++corner) {
            const PictureScaleCL picture(scale, { corner, corner + 1 });
            EXPECT_EQ(picture.WidthM(33), scale.LengthM(corner, 33));
            EXPECT_EQ(picture.HeightM(33), scale.LengthM(corner + 1, 33));
            EXPECT_EQ(picture.AnywhereM().WidthM(33), scale.PlaceM(33));
        }
        EXPECT_GE(PictureScaleCL(scale, { 1, 1 }).WidthM(1), 1);
        EXPECT_EQ(PictureScaleCL(scale, { 1, 1 }).WidthM(0), 0);
    }
    EXPECT_FALSE(PictureScaleCL().MayChangeM());
    EXPECT_EQ(PictureScaleCL().WidthM(7), 7);
}

TEST(PictureScale, FileOfAScaleIsNamedBeforeItsExtension)
{
    EXPECT_EQ(slNameAtScale("knob.bmp", 150), "knob@150.bmp");
    EXPECT_EQ(slNameAtScale("a.b/knob", 200), "a.b/knob@200");
    EXPECT_EQ(slNameAtScale("a.b\\x.y.BMP", 125), "a.b\\x.y@125.BMP");
    EXPECT_EQ(slNameAtScale(nullptr, 125), "@125");
}
