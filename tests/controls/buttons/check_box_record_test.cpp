#include "controls/buttons/check_box_record.h"
#include "support/printed.h"
#include <gtest/gtest.h>

TEST(CheckBoxRecord, NumberStandsBeforeTheCaption)
{
    EXPECT_EQ(printed<DVrCheckBoxCL>("1 11 2 3 4 5 1\n自动进纸\n"), "checked=1 caption=自动进纸");
    EXPECT_EQ(printed<DVrCheckBoxCL>("1 11 2 3 4 5"), "checked=0 caption=");
}
