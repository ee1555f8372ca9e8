#include "controls/buttons/standard_button_record.h"
#include "support/printed.h"
#include <gtest/gtest.h>

TEST(StandardButtonRecord, CaptionStandsBeforeTheNumber)
{
    EXPECT_EQ(printed<DVrStandardButtonCL>("1 11 2 3 4 5\n确定\n1\n"), "caption=确定 default_button=1");
    EXPECT_EQ(printed<DVrStandardButtonCL>("1 11 2 3 4 5"), "caption= default_button=0");
}
