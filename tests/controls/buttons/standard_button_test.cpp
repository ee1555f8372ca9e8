#include "described_buttons.h"
#include <gtest/gtest.h>

using namespace testing_support;

TEST(StandardButton, StyleAndCaptionFollowTheRecord)
{
    const TestDialogCL dialog(HeaderSections
        + buttons({ button(1, 11, "确定", 1), button(2, 12, "取消", 0), button(3, 13, "x", 2) }));
    EXPECT_EQ(styleOf(dialog.ItemM(11)), 0x50010001U);
    EXPECT_EQ(styleOf(dialog.ItemM(12)), 0x50010000U);
    EXPECT_EQ(styleOf(dialog.ItemM(13)), 0x50010000U); // Only 1 makes the default button.
    EXPECT_EQ(textOf(dialog.ItemM(11)), "确定");
    EXPECT_EQ(placeOf(dialog.ItemM(12)), "200 40 80 18");
}

TEST(StandardButton, ClickReachesTheDialogBeforeItReturns)
{
    TestDialogCL dialog(HeaderSections + buttons({ button(1, 11, "a", 0) }) + radios({ radio(2, 12, 1, 0) })
        + checks({ check(3, 13, 0) }));
    const MessageRecorder recorder(dialog.m_hWnd);
    dialog.SendDlgItemMessage(12, BM_CLICK);
    dialog.SendDlgItemMessage(13, BM_CLICK);
    const auto clicks = [&recorder] {
        std::string text;
        for (const std::string& message : recorder.ListM()) {
            text += message.find(" 1625 ") == std::string::npos ? message + "; " : "";
        }
        return text;
    };
    dialog.SendDlgItemMessage(11, BM_CLICK);
    EXPECT_EQ(clicks(), "sent 1424 w=11 l=0; ");
    PumpPending();
    EXPECT_EQ(clicks(), "sent 1424 w=11 l=0; posted 1734 w=12 l=0; posted 1739 w=13 l=0; ");
}

TEST(StandardButton, EnterPressesTheDefaultButtonFromAnotherControl)
{
    ShownDialogCL dialog(HeaderSections + buttons({ button(2, 11, "a", 1) }) + checks({ check(1, 13, 0) }));
    dialog.StartAtM(13);
    KeyM(VK_RETURN);
    EXPECT_EQ(dialog.StoryM(), "sent 1424 w=11 l=0");
    EXPECT_EQ(ShownDialogCL::FocusedIdM(), 13);
    dialog.DestroyM();
    dialog.InitDlgM(&dialog, 1);
    dialog.StartAtM(13);
    KeyM(VK_RETURN);
    EXPECT_EQ(dialog.StoryM(), "sent 1424 w=11 l=0");
}

TEST(StandardButton, OfSeveralDefaultButtonsAllKeepTheStyleAndTheFirstAnswersEnter)
{
    ShownDialogCL dialog(HeaderSections
        + buttons({ button(2, 11, "a", 0), button(3, 12, "b", 1), button(4, 13, "c", 1) })
        + checks({ check(1, 31, 0) }));
    EXPECT_EQ(styleOf(dialog.ItemM(12)), 0x50010001U);
    EXPECT_EQ(styleOf(dialog.ItemM(13)), 0x50010001U);
    dialog.StartAtM(31);
    KeyM(VK_RETURN);
    EXPECT_EQ(dialog.StoryM(), "sent 1424 w=12 l=0");
}

TEST(StandardButton, OkAndCancelLeaveClosingToTheApplication)
{
    ShownDialogCL dialog(HeaderSections + buttons({ button(1, IDOK, "a", 1), button(2, IDCANCEL, "b", 0) }));
    dialog.StartAtM(IDOK);
    KeyM(VK_RETURN);
    KeyM(VK_ESCAPE);
    EXPECT_EQ(dialog.StoryM(), "sent 1424 w=1 l=0; sent 1424 w=2 l=0");
    EXPECT_TRUE(dialog.IsWindowVisible());
}

TEST(StandardButton, EscWithoutACancelButtonClosesTheDialog)
{
    ShownDialogCL dialog(HeaderSections + buttons({ button(1, 11, "a", 0) }));
    dialog.StartAtM(11);
    KeyM(VK_ESCAPE);
    EXPECT_FALSE(dialog.IsWindowVisible());
    EXPECT_EQ(dialog.StoryM(), "");
}

TEST(StandardButton, AParentThatIsNoDialogGetsNoDialogMessages)
{
    PlainWindowCL parent;
    const MessageRecorder recorder(parent.m_hWnd);
    DuStandardButtonCL push;
    push.SetDefaultM(1);
    push.Create(&parent);
    EXPECT_TRUE(recorder.ListM().empty());
}

TEST(StandardButton, EnterPressesTheFocusedButtonInsteadOfTheDefaultOne)
{
    ShownDialogCL dialog(HeaderSections + buttons({ button(2, 11, "a", 1), button(3, 12, "b", 0) }));
    dialog.StartAtM(11);
    KeyM(VK_TAB);
    KeyM(VK_RETURN);
    EXPECT_EQ(dialog.StoryM(), "posted 1625 w=12 l=0; sent 1424 w=12 l=0");
}

TEST(StandardButton, MouseClickGivesTheFocusAndPresses)
{
    ShownDialogCL dialog(HeaderSections + buttons({ button(1, 11, "a", 0), button(2, 12, "b", 0) }));
    dialog.StartAtM(11);
    dialog.ClickItemM(12);
    EXPECT_EQ(ShownDialogCL::FocusedIdM(), 12);
    EXPECT_EQ(dialog.StoryM(), "posted 1625 w=12 l=0; sent 1424 w=12 l=0");
}
