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
