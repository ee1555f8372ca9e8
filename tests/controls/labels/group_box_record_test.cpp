#include "controls/labels/group_box_record.h"
#include "support/printed.h"
#include <gtest/gtest.h>

TEST(GroupBoxRecord, TextIsKeptEvenIfItIsANullWord)
{
    EXPECT_EQ(printed<DVrGroupBoxCL>("1 11 2 3 4 5 NULL\n"), "text=NULL");
    EXPECT_EQ(printed<DVrGroupBoxCL>("1 11 2 3 4 5\n速度\n"), "text=速度");
    EXPECT_EQ(printed<DVrGroupBoxCL>("1 11 2 3 4 5"), "text=");
}
