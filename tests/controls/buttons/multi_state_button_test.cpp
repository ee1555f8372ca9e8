#include "box_of.h"
#include "controls/buttons/multi_state_button.h"
#include "support/pictured_dialog.h"
#include <gtest/gtest.h>

using namespace testing_support;

namespace {

// A multi-state button with id 11 of 40 by 30 pixels with the states 10, 20, 30 at state 20.
struct MultiStateCL
{
    explicit MultiStateCL(const std::string& region = "NULL", const std::string& initial = "20")
        : dialog("[多态按钮]\n1\n0\n1 11 20 30 40 30 " + initial + "\n" + region
            + "\n[多态按钮数据]\n3\n0\n11 10 " + red.path() + "\n11 20 " + green.path() + "\n11 30 "
            + blue.path() + "\n")
    {
        ::SetFocus(nullptr);
        PumpPending();
    }
    HWND WindowM() const { return dialog.ItemM(11); }
    DuMultiStateButtonCL* ControlM() const { return dialog.ControlM<DuMultiStateButtonCL>(11); }
    COLORREF PixelM() const { return dialog.PixelM(11, 7, 8); }
    int StatusM() const
    {
        int status = -99;
        EXPECT_EQ(ControlM()->GetCurStatusM(&status), 1);
        return status;
    }
    SmallPictureCL red { Red, 40, 30 };
    SmallPictureCL green { Green, 40, 30 };
    SmallPictureCL blue { Blue, 40, 30 };
    PicturedDialogCL dialog;
};

} // namespace

TEST(MultiStateButton, ClicksGoRoundTheStatesAndPostThePosition)
{
    const MultiStateCL button;
    EXPECT_EQ(styleOf(button.WindowM()), 0x50010100U);
    EXPECT_EQ(button.PixelM(), asShown(Green));
    const MessageRecorder messages(button.dialog.m_hWnd);
    const std::pair<int, std::uint32_t> wanted[] = { { 30, Blue }, { 10, Red }, { 20, Green } };
    for (const auto& [status, colour] : wanted) {
        ClickM(button.WindowM(), 5, 5);
        EXPECT_EQ(button.StatusM(), status);
        EXPECT_EQ(button.PixelM(), asShown(colour));
    }
    FocusM(button.WindowM());
    PumpPending();
    EXPECT_EQ(messages.ListM(),
        (MessageListTP { "posted 1424 w=11 l=2", "posted 1424 w=11 l=0", "posted 1424 w=11 l=1",
            "posted 1625 w=11 l=0" }));
}

TEST(MultiStateButton, SecondOfTwoFastClicksIsAClickToo)
{
    const MultiStateCL button;
    const MessageRecorder messages(button.dialog.m_hWnd);
    DoubleClickM(button.WindowM(), 5, 5);
    EXPECT_EQ(button.StatusM(), 10);
    EXPECT_EQ(messages.ListM(), (MessageListTP { "posted 1424 w=11 l=2", "posted 1424 w=11 l=0" }));
}

TEST(MultiStateButton, ReleaseOutsideGivesTheMouseBackAndChangesNothing)
{
    const MultiStateCL button;
    const MessageRecorder messages(button.dialog.m_hWnd);
    MoveMouseToM(button.WindowM(), 5, 5);
    PressM();
    EXPECT_EQ(::GetCapture(), button.WindowM());
    EXPECT_EQ(button.PixelM(), asShown(Green));
    MoveMouseToM(button.WindowM(), 100, 90);
    ReleaseM();
    EXPECT_EQ(::GetCapture(), nullptr);
    PressM();
    MoveMouseToM(button.WindowM(), 5, 5);
    ReleaseM();
    ClickM(button.WindowM(), 5, 5, Button::Right);
    EXPECT_EQ(button.StatusM(), 20);
    EXPECT_EQ(messages.ListM(), MessageListTP {});
}

TEST(MultiStateButton, CreationReplacesATracedRegionByTheRectangle)
{
    const SmallPictureCL shape(0x000000, 11, 11);
    const MultiStateCL button(shape.path());
    EXPECT_EQ(boxOf(button.ControlM()->GetButtonRgnM()), "0 0 40 30");
    ClickM(button.WindowM(), 30, 25);
    EXPECT_EQ(button.StatusM(), 30);
}

TEST(MultiStateButton, UnknownStatusKeepsTheCurrentOneAndRepaints)
{
    const MultiStateCL button;
    PumpPending();
    EXPECT_EQ(button.ControlM()->SetCurStatusM(77), 0);
    EXPECT_TRUE(::GetUpdateRect(button.WindowM(), nullptr, FALSE));
    EXPECT_EQ(button.PixelM(), asShown(Green));
    EXPECT_EQ(button.ControlM()->SetCurStatusM(30), 1);
    EXPECT_EQ(button.PixelM(), asShown(Blue));
    const MultiStateCL unknown("NULL", "77");
    EXPECT_EQ(unknown.StatusM(), 10);
}

TEST(MultiStateButton, AfterDeletingAllThereIsNoStatusAndNothingIsPainted)
{
    const MultiStateCL button;
    EXPECT_EQ(button.ControlM()->DelAllM(), 1);
    EXPECT_EQ(button.StatusM(), -99); // Nothing to store.
    EXPECT_EQ(button.PixelM(), ::GetSysColor(COLOR_BTNFACE));
    const MessageRecorder messages(button.dialog.m_hWnd);
    ClickM(button.WindowM(), 5, 5);
    EXPECT_EQ(messages.ListM(), MessageListTP {});
    EXPECT_EQ(button.ControlM()->SetCurStatusM(1), 0);
    EXPECT_EQ(button.ControlM()->SetInitStatusM(1), 1);
    EXPECT_EQ(button.ControlM()->SetInitStatusM(2), 0);
    // What is added is not current by itself.
    EXPECT_EQ(button.ControlM()->AddStatusM(5, button.red.path()), 1);
    EXPECT_EQ(button.ControlM()->AddStatusM(6, button.blue.path()), 1);
    EXPECT_EQ(button.StatusM(), -99);
    ClickM(button.WindowM(), 5, 5);
    EXPECT_EQ(button.StatusM(), 5);
    EXPECT_EQ(button.PixelM(), asShown(Red));
    EXPECT_EQ(messages.ListM(), (MessageListTP { "posted 1424 w=11 l=0" }));
}

TEST(MultiStateButton, EqualValuesAreEntriesOfTheirOwnOfWhichASearchFindsTheFirst)
{
    const MultiStateCL button;
    EXPECT_EQ(button.ControlM()->AddStatusM(20, button.red.path()), 1);
    EXPECT_EQ(button.ControlM()->AddStatusM(40, ""), 0);
    button.ControlM()->SetCurStatusM(30);
    ClickM(button.WindowM(), 5, 5);
    EXPECT_EQ(button.StatusM(), 20);
    EXPECT_EQ(button.PixelM(), asShown(Red));
    EXPECT_EQ(button.ControlM()->SetCurStatusM(20), 1);
    EXPECT_EQ(button.PixelM(), asShown(Green));
}

TEST(MultiStateButton, DeletingAStatusTakesItsPictureAlong)
{
    const MultiStateCL button;
    EXPECT_EQ(button.ControlM()->DelStatusM(77), 0);
    EXPECT_EQ(button.ControlM()->DelStatusM(10), 1);
    EXPECT_EQ(button.PixelM(), asShown(Green));
    ClickM(button.WindowM(), 5, 5);
    EXPECT_EQ(button.PixelM(), asShown(Blue));
    ClickM(button.WindowM(), 5, 5);
    EXPECT_EQ(button.StatusM(), 20);
    EXPECT_EQ(button.PixelM(), asShown(Green));
}

TEST(MultiStateButton, DeletedStatusIsNotCurrentAnyMore)
{
    const MultiStateCL button;
    EXPECT_EQ(button.ControlM()->DelStatusM(20), 1);
    EXPECT_EQ(button.StatusM(), -99);
}

TEST(MultiStateButton, PictureThatCannotBeLoadedDrawsNothingAndKeepsTheOthersInStep)
{
    const MultiStateCL button;
    EXPECT_EQ(button.ControlM()->AddStatusM(40, "no_such_picture.bmp"), 1);
    EXPECT_EQ(button.ControlM()->AddStatusM(50, button.red.path()), 1);
    button.ControlM()->SetCurStatusM(50);
    EXPECT_EQ(button.PixelM(), asShown(Red));
}
