#include "controls/labels/group_box.h"
#include "support/test_dialog.h"
#include <gtest/gtest.h>

TEST(GroupBox, WindowHasStyleTextAndPlaceOfItsRecord)
{
    const TestDialogCL dialog(HeaderSections + std::string("[成组控件]\n1\n0\n1 11 20 30 120 40\nNULL\n"));
    const HWND window = dialog.ItemM(11);
    ASSERT_NE(window, nullptr);
    EXPECT_EQ(styleOf(window), 0x50010007U);
    EXPECT_EQ(textOf(window), "NULL"); // Not a word for no text here.
    EXPECT_EQ(placeOf(window), "20 30 120 40");
}

TEST(GroupBox, TextsAreAcceptedAlsoEmpty)
{
    PlainWindowCL parent;
    DuGroupBoxCL box;
    EXPECT_EQ(box.SetInitTextM("a"), 1);
    EXPECT_EQ(box.SetInitTextM(""), 1);
    box.Create(&parent);
    EXPECT_EQ(textOf(box.m_hWnd), "");
    EXPECT_EQ(box.SetTextM(slUtf8ToGbk("速度").c_str()), 1);
    EXPECT_EQ(textOf(box.m_hWnd), "速度");
    EXPECT_EQ(box.SetItemCmdM(9), 0);
    EXPECT_EQ(box.SetItemCmdM(2), 1);
    EXPECT_FALSE(box.IsWindowEnabled());
}
