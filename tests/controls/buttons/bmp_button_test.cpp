#include "box_of.h"
#include "controls/buttons/bmp_button.h"
#include "support/pictured_dialog.h"
#include <gtest/gtest.h>

using namespace testing_support;

namespace {

constexpr std::uint32_t Yellow = 0xFFFF00;

// A bitmap button with id 11 of 40 by 30 pixels with a picture of one colour for each status.
struct BmpButtonCL
{
    explicit BmpButtonCL(const std::string& region = "NULL")
        : dialog(std::string("[位图按钮]\n1\n0\n1 11 20 30 40 30\n") + normal.path() + "\n" + pressed.path()
            + "\n" + released.path() + "\n" + disabled.path() + "\n" + region + "\n")
    {
        ::SetFocus(nullptr);
        PumpPending();
    }
    HWND WindowM() const { return dialog.ItemM(11); }
    DuBmpButtonCL* ControlM() const { return dialog.ControlM<DuBmpButtonCL>(11); }
    COLORREF PixelM() const { return dialog.PixelM(11, 7, 8); }
    SmallPictureCL normal { Red, 40, 30 };
    SmallPictureCL pressed { Green, 40, 30 };
    SmallPictureCL released { Blue, 40, 30 };
    SmallPictureCL disabled { Yellow, 40, 30 };
    PicturedDialogCL dialog;
};

} // namespace

TEST(BmpButton, WindowHasStyleAndPlaceOfItsRecord)
{
    const BmpButtonCL button;
    EXPECT_EQ(styleOf(button.WindowM()), 0x50010100U);
    EXPECT_EQ(placeOf(button.WindowM()), "20 30 40 30");
    EXPECT_EQ(textOf(button.WindowM()), "");
    EXPECT_EQ(button.PixelM(), asShown(Red));
}

TEST(BmpButton, PressIsReportedAndShownAndReleaseEndsInAClick)
{
    const BmpButtonCL button;
    const MessageRecorder messages(button.dialog.m_hWnd);
    MoveMouseToM(button.WindowM(), 5, 5);
    EXPECT_EQ(button.PixelM(), asShown(Red)); // No picture of its own under the pointer.
    PressM();
    EXPECT_EQ(::GetCapture(), button.WindowM());
    EXPECT_EQ(button.PixelM(), asShown(Green));
    ReleaseM();
    EXPECT_EQ(::GetCapture(), nullptr);
    EXPECT_EQ(button.PixelM(), asShown(Blue));
    EXPECT_EQ(button.ControlM()->GetBtnStatusM(), ButtonReleased); // Stays so.
    EXPECT_EQ(messages.ListM(), (MessageListTP { "posted 1224 w=11 l=0", "posted 1424 w=11 l=0" }));
}

TEST(BmpButton, DraggingOffAndReleasingOutsideStillClicks)
{
    const BmpButtonCL button;
    const MessageRecorder messages(button.dialog.m_hWnd);
    MoveMouseToM(button.WindowM(), 5, 5);
    PressM();
    MoveMouseToM(button.WindowM(), 100, 90);
    EXPECT_EQ(button.PixelM(), asShown(Green));
    ReleaseM();
    EXPECT_EQ(button.PixelM(), asShown(Blue));
    MoveMouseToM(button.WindowM(), 100, 90);
    PressM();
    MoveMouseToM(button.WindowM(), 5, 5);
    ReleaseM(); // A press that began elsewhere is nobody's click.
    ClickM(button.WindowM(), 5, 5, Button::Right);
    FocusM(button.WindowM());
    PumpPending();
    EXPECT_EQ(messages.ListM(),
        (MessageListTP { "posted 1224 w=11 l=0", "posted 1424 w=11 l=0", "posted 1625 w=11 l=0" }));
}

TEST(BmpButton, SecondOfTwoFastClicksIsAClickToo)
{
    const BmpButtonCL button;
    const MessageRecorder messages(button.dialog.m_hWnd);
    DoubleClickM(button.WindowM(), 5, 5);
    EXPECT_EQ(messages.ListM(),
        (MessageListTP { "posted 1224 w=11 l=0", "posted 1424 w=11 l=0", "posted 1224 w=11 l=0",
            "posted 1424 w=11 l=0" }));
}

TEST(BmpButton, DisabledStatusTakesTheMouseAwayUntilAnotherIsSet)
{
    const BmpButtonCL button;
    const MessageRecorder messages(button.dialog.m_hWnd);
    EXPECT_EQ(button.ControlM()->SetBtnStatusM(ButtonDisabled), 1);
    EXPECT_FALSE(::IsWindowEnabled(button.WindowM()));
    EXPECT_EQ(button.PixelM(), asShown(Yellow));
    ClickM(button.WindowM(), 5, 5);
    EXPECT_EQ(messages.ListM(), MessageListTP {});
    EXPECT_EQ(button.ControlM()->SetBtnStatusM(ButtonNormal), 1);
    EXPECT_TRUE(::IsWindowEnabled(button.WindowM()));
    EXPECT_EQ(button.PixelM(), asShown(Red));
    ClickM(button.WindowM(), 5, 5);
    EXPECT_EQ(messages.ListM(), (MessageListTP { "posted 1224 w=11 l=0", "posted 1424 w=11 l=0" }));
}

TEST(BmpButton, DisabledBeforeItHasAWindowItIsCreatedDisabled)
{
    PlainWindowCL parent;
    DuBmpButtonCL button;
    EXPECT_EQ(button.SetBtnStatusM(ButtonDisabled), 1);
    ASSERT_EQ(button.Create(&parent), 1);
    EXPECT_FALSE(button.IsWindowEnabled());
    EXPECT_EQ(button.SetBtnStatusM(ButtonPressed), 1);
    EXPECT_TRUE(button.IsWindowEnabled());
}

TEST(BmpButton, WithoutPicturesNothingIsPaintedInAnyStatus)
{
    PicturedDialogCL dialog("[位图按钮]\n1\n0\n1 11 20 30 40 30\nNULL\nNULL\nnull\nNULL\nNULL\n");
    PumpPending();
    auto* control = dialog.ControlM<DuBmpButtonCL>(11);
    for (const int status : { 0, 1, 2, 3, 4, -1 }) {
        control->SetBtnStatusM(static_cast<BUTTON_STATUS>(status));
        PumpPending(); // The platform may paint a static that is enabled or disabled.
        CClientDC(control).FillSolidRect(0, 0, 40, 30, RGB(9, 8, 7));
        control->Invalidate(FALSE);
        PumpPending();
        EXPECT_EQ(Pixels(control->m_hWnd).CountM(RGB(9, 8, 7)), 40 * 30) << status;
    }
}

TEST(BmpButton, EmptyNamesLeaveThePicturesAsTheyWere)
{
    const BmpButtonCL button;
    EXPECT_EQ(button.ControlM()->SetBtnBmpM("", nullptr, "", button.normal.path()), 1);
    // A status without a picture would leave what was shown before.
    button.ControlM()->SetBtnStatusM(ButtonReleased);
    EXPECT_EQ(button.PixelM(), asShown(Blue));
    button.ControlM()->SetBtnStatusM(ButtonNormal);
    EXPECT_EQ(button.PixelM(), asShown(Red));
    button.ControlM()->SetBtnStatusM(ButtonPressed);
    EXPECT_EQ(button.PixelM(), asShown(Green));
    button.ControlM()->SetBtnStatusM(ButtonDisabled);
    EXPECT_EQ(button.PixelM(), asShown(Red));
}

TEST(BmpButton, RegionsAreTheRectangleExceptATracedOne)
{
    const BmpButtonCL plain;
    EXPECT_EQ(boxOf(plain.ControlM()->GetBtnRgnM()), "0 0 40 30");
    EXPECT_EQ(boxOf(plain.ControlM()->GetDrawRgnM()), "0 0 40 30");
    const SmallPictureCL shape(0x000000, 21, 11);
    const BmpButtonCL traced(shape.path());
    EXPECT_EQ(boxOf(traced.ControlM()->GetBtnRgnM()), "0 0 20 10");
    EXPECT_EQ(boxOf(traced.ControlM()->GetDrawRgnM()), "0 0 40 30");
    const HRGN window = ::CreateRectRgn(0, 0, 1, 1);
    EXPECT_EQ(::GetWindowRgn(traced.WindowM(), window), SIMPLEREGION);
    ::DeleteObject(window);
    traced.ControlM()->destroyM();
    EXPECT_EQ(traced.ControlM()->GetBtnRgnM()->GetSafeHandle(), nullptr);
    EXPECT_EQ(traced.ControlM()->GetDrawRgnM()->GetSafeHandle(), nullptr);
}

TEST(BmpButton, AssignmentDropsThePicturesAndRegionsOfBefore)
{
    const SmallPictureCL picture(Red, 40, 30);
    PlainWindowCL parent;
    DuBmpButtonCL button;
    button.SetBtnBmpM(picture.path(), picture.path(), picture.path(), picture.path());
    ASSERT_EQ(button.Create(&parent), 1);
    const int objects = LiveGdiObjectsM();
    button = DuBmpButtonCL();
    EXPECT_LE(LiveGdiObjectsM(), objects - 6);
    EXPECT_EQ(button.GetDrawRgnM()->GetSafeHandle(), nullptr);
}
