#include "described_buttons.h"
#include <gtest/gtest.h>

using namespace testing_support;

TEST(CheckBox, StyleCaptionAndCheckFollowTheRecord)
{
    const TestDialogCL dialog(HeaderSections + checks({ check(1, 11, 1), check(2, 12, 0), check(3, 13, 2) }));
    EXPECT_EQ(styleOf(dialog.ItemM(11)), 0x50010003U);
    EXPECT_EQ(textOf(dialog.ItemM(11)), "自动");
    EXPECT_EQ(checkedOf(dialog, 11, 13), "x--");
}

TEST(CheckBox, OnlyOneChecks)
{
    PlainWindowCL parent;
    DuCheckBoxCL control;
    control.Create(&parent);
    EXPECT_EQ(control.SetCurCheckM(1), 1);
    EXPECT_EQ(control.GetCheck(), 1);
    EXPECT_EQ(control.SetCurCheckM(2), 1);
    EXPECT_EQ(control.GetCheck(), 0);
    control.SetCurCheckM(1);
    EXPECT_EQ(control.SetCurCheckM(0), 1);
    EXPECT_EQ(control.GetCheck(), 0);
}

TEST(CheckBox, SpaceAndClickChangeTheCheckAndPostWithoutAFocusReport)
{
    ShownDialogCL dialog(HeaderSections + checks({ check(1, 11, 0), check(2, 12, 0) }));
    dialog.StartAtM(11);
    KeyM(VK_SPACE);
    EXPECT_TRUE(isChecked(dialog.ItemM(11)));
    EXPECT_EQ(dialog.StoryM(), "posted 1739 w=11 l=0");
    KeyM(VK_SPACE);
    EXPECT_FALSE(isChecked(dialog.ItemM(11)));
    dialog.StoryM();
    dialog.ClickItemM(12);
    EXPECT_TRUE(isChecked(dialog.ItemM(12)));
    EXPECT_EQ(dialog.StoryM(), "posted 1739 w=12 l=0");
}
