#include "controls/drawing/draw_2d_record.h"
#include "support/description.h"
#include "support/printed.h"
#include <gtest/gtest.h>

TEST(Draw2DRecord, BackgroundIsRedGreenBlue)
{
    EXPECT_EQ(printed<DVrDraw2DCL>("1 11 2 3 4 5 0 128 255"), "background=0,128,255");
}

TEST(Draw2DRecord, ComponentsTakeTheirLowByteAlsoANegativeRed)
{
    EXPECT_EQ(printed<DVrDraw2DCL>("1 11 2 3 4 5 300 0 0"), "background=44,0,0");
    EXPECT_EQ(printed<DVrDraw2DCL>("1 11 2 3 4 5 -1 2 3"), "background=255,2,3");
}

TEST(Draw2DRecord, BlackWhereNothingCanBeRead)
{
    EXPECT_EQ(printed<DVrDraw2DCL>("1 11 2 3 4 5"), "background=0,0,0");
}
