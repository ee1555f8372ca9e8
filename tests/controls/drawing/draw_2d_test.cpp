#include "controls/drawing/draw_2d.h"
#include "support/pictured_dialog.h"
#include <gtest/gtest.h>

using namespace testing_support;

namespace {

struct CanvasCL
{
    explicit CanvasCL(const std::string& colour)
        : dialog("[二维绘图控件]\n1\n0\n1 11 20 30 60 40 " + colour + "\n")
    {
    }
    DuDraw2DCL* ControlM() { return dialog.ControlM<DuDraw2DCL>(11); }
    PicturedDialogCL dialog;
};

} // namespace

TEST(Draw2D, WindowHasStyleAndPlaceOfItsRecord)
{
    const CanvasCL canvas("0 128 255");
    const HWND window = canvas.dialog.ItemM(11);
    ASSERT_NE(window, nullptr);
    EXPECT_EQ(styleOf(window), 0x50010100U);
    EXPECT_EQ(placeOf(window), "20 30 60 40");
    EXPECT_EQ(textOf(window), "");
}

TEST(Draw2D, ErasingFillsWithTheBackgroundAndNothingElseIsDrawn)
{
    CanvasCL canvas("0 128 255");
    PumpPending();
    EXPECT_EQ(Pixels(canvas.dialog.ItemM(11)).CountM(0xFF8000), 60 * 40);
    EXPECT_EQ(canvas.ControlM()->SetBkColorM(RGB(1, 2, 3)), 1);
    PumpPending();
    EXPECT_EQ(canvas.dialog.PixelM(11, 5, 5), static_cast<COLORREF>(0xFF8000)); // Not yet erased.
    canvas.ControlM()->Invalidate();
    EXPECT_EQ(canvas.dialog.PixelM(11, 5, 5), RGB(1, 2, 3));
}

TEST(Draw2D, PaintingValidatesWithoutTouchingWhatTheHostDrew)
{
    CanvasCL canvas("300 0 0");
    EXPECT_EQ(canvas.dialog.PixelM(11, 3, 3), RGB(44, 0, 0));
    {
        CClientDC dc(canvas.ControlM());
        dc.FillSolidRect(10, 10, 20, 20, RGB(0, 255, 0));
    }
    canvas.ControlM()->Invalidate(FALSE);
    EXPECT_EQ(canvas.dialog.PixelM(11, 15, 15), RGB(0, 255, 0));
    EXPECT_FALSE(::GetUpdateRect(canvas.dialog.ItemM(11), nullptr, FALSE));
}

TEST(Draw2D, SendsNothing)
{
    const CanvasCL canvas("1 2 3");
    const MessageRecorder messages(canvas.dialog.m_hWnd);
    ClickM(canvas.dialog.ItemM(11), 5, 5);
    ClickM(canvas.dialog.ItemM(11), 5, 5, Button::Right);
    FocusM(canvas.dialog.ItemM(11));
    PumpPending();
    EXPECT_EQ(messages.ListM(), MessageListTP {});
}
