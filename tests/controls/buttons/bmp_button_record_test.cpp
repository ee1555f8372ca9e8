#include "controls/buttons/bmp_button_record.h"
#include "support/printed.h"
#include <gtest/gtest.h>

TEST(BmpButtonRecord, FiveNamesOfWhichTheNullWordsMeanNone)
{
    EXPECT_EQ(printed<DVrBmpButtonCL>("1 11 2 3 4 5\na.bmp\nNULL\nnull\n按钮 4.bmp\nNull\n"),
        "normal=a.bmp pressed= released= disabled=按钮 4.bmp region=Null");
    EXPECT_EQ(printed<DVrBmpButtonCL>("1 11 2 3 4 5"), "normal= pressed= released= disabled= region=");
}
