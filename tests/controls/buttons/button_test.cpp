#include "described_buttons.h"
#include <gtest/gtest.h>

using namespace testing_support;

TEST(Buttons, TabOrderFollowsTheWindowIndexAndTakesOneStopForAGroup)
{
    ShownDialogCL dialog(HeaderSections + buttons({ button(5, 11, "a", 0), button(1, 12, "b", 0) })
        + radios({ radio(2, 21, 1, 0), radio(3, 22, 1, 1) }) + checks({ check(4, 31, 0) }));
    EXPECT_EQ(dialog.StackM(), "12 21 22 31 11");
    dialog.StartAtM(12);
    std::string order;
    for (int i = 0; i < 4; ++i) {
        KeyM(VK_TAB);
        order += std::to_string(ShownDialogCL::FocusedIdM()) + " ";
    }
    EXPECT_EQ(order, "22 31 11 12 ");
    ChordM(VK_SHIFT, VK_TAB);
    EXPECT_EQ(ShownDialogCL::FocusedIdM(), 11);
    EXPECT_EQ(dialog.StoryM(),
        "posted 1625 w=22 l=0; posted 1625 w=11 l=0; posted 1625 w=12 l=0; posted 1625 w=11 l=0");
}

TEST(Buttons, IdOfACheckBoxAndAStandardButtonMeansTheStandardButton)
{
    TestDialogCL dialog(HeaderSections + checks({ check(1, 11, 0) }) + buttons({ button(2, 11, "b", 0) })
        + radios({ radio(3, 12, 1, 0) }));
    int kind = 0;
    EXPECT_NE(dialog.GetContrlPtrM(11, &kind), nullptr);
    EXPECT_EQ(kind, 13);
    dialog.GetContrlPtrM(12, &kind);
    EXPECT_EQ(kind, 11);
}

TEST(Buttons, CommandsReachEveryKind)
{
    TestDialogCL dialog(HeaderSections + buttons({ button(1, 11, "a", 0) }) + radios({ radio(2, 12, 1, 0) })
        + checks({ check(3, 13, 0) }));
    dialog.EnableAllCtrlM(0);
    dialog.ShowAllCtrlM(0);
    for (int id = 11; id <= 13; ++id) {
        EXPECT_EQ(styleOf(dialog.ItemM(id)) & (WS_DISABLED | WS_VISIBLE), static_cast<DWORD>(WS_DISABLED))
            << id;
    }
}

TEST(Buttons, CaptionsAreCutAtACharacterAndSetOnceAtCreation)
{
    PlainWindowCL parent;
    DuCheckBoxCL box;
    EXPECT_EQ(box.SetTextM((std::string(258, 'x') + "\xD6\xD0").c_str()), 1);
    box.Create(&parent);
    EXPECT_EQ(textOf(box.m_hWnd), std::string(258, 'x'));
    EXPECT_EQ(box.SetTextM("y"), 1);
    EXPECT_EQ(textOf(box.m_hWnd), std::string(258, 'x'));
    DuStandardButtonCL push;
    EXPECT_EQ(push.SetTextM(nullptr), 0);
    EXPECT_EQ(push.Create(&parent), 1);
    EXPECT_EQ(textOf(push.m_hWnd), "");
}
