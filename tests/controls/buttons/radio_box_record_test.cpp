#include "controls/buttons/radio_box_record.h"
#include "support/printed.h"
#include <gtest/gtest.h>

TEST(RadioBoxRecord, NumbersStandBeforeTheCaption)
{
    EXPECT_EQ(printed<DVrRadioBoxCL>("1 11 2 3 4 5 7 1\n横向\n"), "group=7 checked=1 caption=横向");
    EXPECT_EQ(printed<DVrRadioBoxCL>("1 11 2 3 4 5"), "group=0 checked=0 caption=");
}
