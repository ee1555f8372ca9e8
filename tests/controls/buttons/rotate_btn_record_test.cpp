#include "controls/buttons/rotate_btn_record.h"
#include "support/printed.h"
#include <gtest/gtest.h>

TEST(RotateBtnRecord, FieldsStandInFileOrderTheUpperBoundFirst)
{
    EXPECT_EQ(printed<DVrRotateBtnCL>("1 11 2 3 40 50 5 6 20 25 1 -1 2 -3 7.5 0 90 -45.5 15 100\n"
                                      "底.bmp\nNULL\nnull\n"),
        "picture_position=5,6 centre=20,25 step_signs=1,-1 counter_increments=2,-3 step_angle=7.5 enabled=0 "
        "angle_range=90,-45.5 initial_angle=15 initial_counter=100 background=底.bmp rotating= region=");
}

TEST(RotateBtnRecord, EnabledIsOneAndAllElseZeroWhereNothingCanBeRead)
{
    EXPECT_EQ(printed<DVrRotateBtnCL>("1 11 2 3 40 50"),
        "picture_position=0,0 centre=0,0 step_signs=0,0 counter_increments=0,0 step_angle=0 enabled=1 "
        "angle_range=0,0 initial_angle=0 initial_counter=0 background= rotating= region=");
}
