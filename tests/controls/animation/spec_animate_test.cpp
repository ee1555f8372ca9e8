#include "controls/animation/spec_animate.h"
#include "frames.h"
#include <gtest/gtest.h>

using namespace testing_support;

namespace {

struct SpecialDialogCL
{
    explicit SpecialDialogCL(const std::string& own)
        : dialog("[特殊动画控件]\n1\n0\n1 11 20 30 40 30 " + own + "\n[特殊动画控件位图]\n2\n0\n11 "
            + frames.red.path() + "\n11 " + frames.green.path() + "\n")
    {
    }
    FramesCL frames;
    PicturedDialogCL dialog;
};

} // namespace

TEST(SpecAnimate, StyleFollowsSunkMode)
{
    const SpecialDialogCL plain("0 0");
    EXPECT_EQ(styleOf(plain.dialog.ItemM(11)), 0x50020100U);
    EXPECT_EQ(exStyleOf(plain.dialog.ItemM(11)) & WS_EX_CLIENTEDGE, 0U);
    const SpecialDialogCL sunk("0 1");
    EXPECT_EQ(exStyleOf(sunk.dialog.ItemM(11)) & WS_EX_CLIENTEDGE, static_cast<DWORD>(WS_EX_CLIENTEDGE));
}

TEST(SpecAnimate, KeepsItsFramesAndTypeForTheApplication)
{
    const SpecialDialogCL special("7 1");
    auto* control = special.dialog.ControlM<DuSpecAnimateCL>(11);
    ASSERT_NE(control, nullptr);
    EXPECT_EQ(control->GetTypeM(), 7);
    EXPECT_EQ(control->GetSunkModeM(), 1);
    EXPECT_EQ(control->GetFramesM().GetAvailableNumM(), 2);
    EXPECT_TRUE(control->GetFramesM()[1].HoldsBitmapM());
    EXPECT_EQ(control->AddBmpM(""), 0);
    EXPECT_EQ(control->AddBmpM("no_such_frame.bmp"), 1);
    EXPECT_EQ(control->GetFramesM().GetAvailableNumM(), 3);
    EXPECT_EQ(control->DeleteBmpM(1), 1);
    EXPECT_EQ(control->GetFramesM().GetAvailableNumM(), 2);
    EXPECT_EQ(control->DelAllBmpM(), 1);
    EXPECT_EQ(control->GetFramesM().GetAvailableNumM(), 0);
}

TEST(SpecAnimate, PaintsNothingAndSendsNothing)
{
    const SpecialDialogCL special("0 0");
    const HWND window = special.dialog.ItemM(11);
    const MessageRecorder messages(special.dialog.m_hWnd);
    PumpPending();
    CClientDC(CWnd::FromHandle(window)).FillSolidRect(0, 0, 40, 30, RGB(1, 2, 3));
    ::InvalidateRect(window, nullptr, FALSE);
    PumpPending();
    EXPECT_EQ(Pixels(window).CountM(RGB(1, 2, 3)), 40 * 30);
    EXPECT_FALSE(::GetUpdateRect(window, nullptr, FALSE));
    ClickM(window, 5, 5);
    FocusM(window);
    PumpPending();
    EXPECT_EQ(messages.ListM(), MessageListTP {});
}

TEST(SpecAnimate, PainterPaintsOverTheCurrentFrame)
{
    SpecialDialogCL special("0 0");
    auto* control = special.dialog.ControlM<DuSpecAnimateCL>(11);
    int calls = 0;
    const auto shown = [&special] {
        PumpPending();
        return Pixels(special.dialog.ItemM(11));
    };
    EXPECT_TRUE(special.dialog.SetPainterM(11, [&calls](CDC& dc, const CSize& size) {
        ++calls;
        EXPECT_EQ(size, CSize(40, 30));
        dc.FillSolidRect(5, 5, 10, 10, RGB(1, 2, 3));
    }));
    EXPECT_EQ(control->GetCurIdxM(), 0);
    EXPECT_EQ(shown().CountM(asShown(Red)), 40 * 30 - 100); // Scaled: the frame is larger.
    EXPECT_EQ(shown().CountM(RGB(1, 2, 3)), 100);
    EXPECT_EQ(calls, 1);
    EXPECT_TRUE(special.dialog.ShowFrameM(11, 1));
    EXPECT_EQ(shown().CountM(asShown(Green)), 40 * 30 - 100);
    EXPECT_EQ(calls, 2);
    EXPECT_FALSE(special.dialog.ShowFrameM(11, 2));
    EXPECT_FALSE(special.dialog.ShowFrameM(11, -1));
    EXPECT_FALSE(special.dialog.ShowFrameM(12, 0));
    EXPECT_EQ(control->GetCurIdxM(), 1);
    EXPECT_EQ(control->DeleteBmpM(1), 1);
    EXPECT_EQ(control->GetCurIdxM(), -1);
    EXPECT_EQ(shown().CountM(::GetSysColor(COLOR_BTNFACE)), 40 * 30 - 100); // The dialog's.
    EXPECT_EQ(shown().CountM(RGB(1, 2, 3)), 100);
    EXPECT_EQ(control->DispBmpM(0), 1);
    EXPECT_EQ(shown().CountM(asShown(Red)), 40 * 30 - 100);
    EXPECT_EQ(control->DelAllBmpM(), 1);
    EXPECT_EQ(shown().CountM(asShown(Red)), 0);
    EXPECT_EQ(control->DispBmpM(0), 0);
}

TEST(SpecAnimate, AFrameSmallerThanTheControlLeavesTheDialogToBeSeen)
{
    const SmallPictureCL small(Blue, 8, 6);
    SpecialDialogCL special("0 0");
    auto* control = special.dialog.ControlM<DuSpecAnimateCL>(11);
    EXPECT_EQ(control->AddBmpM(small.path()), 1);
    EXPECT_EQ(control->DispBmpM(2), 1); // Without a painter nothing is shown.
    PumpPending();
    EXPECT_EQ(Pixels(special.dialog.ItemM(11)).CountM(asShown(Blue)), 0);
    EXPECT_EQ(control->SetPainterM([](CDC&, const CSize&) {}), 1);
    PumpPending();
    const Pixels shown(special.dialog.ItemM(11));
    EXPECT_EQ(shown.CountM(asShown(Blue)), 8 * 6);
    EXPECT_EQ(shown.AtM(7, 5), asShown(Blue));
    EXPECT_EQ(shown.CountM(::GetSysColor(COLOR_BTNFACE)), 40 * 30 - 8 * 6);
}
