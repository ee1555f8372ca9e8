#include "controls/animation/normal_animate.h"
#include "controls/animation/normal_animate_record.h"
#include "frames.h"
#include <gtest/gtest.h>

using namespace testing_support;

namespace {

// One animation with id 11 of 40 by 30 pixels with three frames.
struct AnimationDialogCL
{
    explicit AnimationDialogCL(const std::string& own)
        : dialog("[普通动画控件]\n1\n0\n1 11 20 30 40 30 " + own + "\n" + frames.RowsM())
    {
    }
    DuNormalAnimateCL* ControlM() { return dialog.ControlM<DuNormalAnimateCL>(11); }
    COLORREF PixelM(int x = 7, int y = 8) { return dialog.PixelM(11, x, y); }
    int FrameM()
    {
        int index = -1;
        return ControlM()->GetCurIdxM(&index) == 1 ? index : -1;
    }
    FramesCL frames;
    PicturedDialogCL dialog;
};

} // namespace

TEST(NormalAnimate, StyleFollowsSunkenAndNotify)
{
    const AnimationDialogCL plain("1 0 0 0");
    EXPECT_EQ(styleOf(plain.dialog.ItemM(11)), 0x50000000U);
    EXPECT_EQ(exStyleOf(plain.dialog.ItemM(11)) & WS_EX_CLIENTEDGE, 0U);
    const AnimationDialogCL edged("1 0 1 1");
    EXPECT_EQ(styleOf(edged.dialog.ItemM(11)), 0x50000100U);
    EXPECT_EQ(exStyleOf(edged.dialog.ItemM(11)) & WS_EX_CLIENTEDGE, static_cast<DWORD>(WS_EX_CLIENTEDGE));
    EXPECT_EQ(placeOf(edged.dialog.ItemM(11)), "20 30 40 30");
}

TEST(NormalAnimate, WithoutIntervalTheFirstFrameStays)
{
    AnimationDialogCL animation("1 0 0 0");
    EXPECT_EQ(animation.PixelM(), asShown(Red));
    EXPECT_EQ(animation.FrameM(), 0);
    EXPECT_FALSE(::KillTimer(animation.dialog.ItemM(11), 0)); // There is none.
    ::SendMessageW(animation.dialog.ItemM(11), WM_TIMER, 0, 0);
    EXPECT_EQ(animation.FrameM(), 0);
}

TEST(NormalAnimate, FramesPlayInOrderAndLoopWithoutAPause)
{
    AnimationDialogCL animation("1 60 0 0");
    std::vector<int> seen { animation.FrameM() };
    std::vector<DWORD> times { ::GetTickCount() };
    ASSERT_TRUE(PumpUntil([&] {
        if (animation.FrameM() != seen.back()) {
            seen.push_back(animation.FrameM());
            times.push_back(::GetTickCount());
        }
        return seen.size() == 8;
    }));
    for (size_t i = 1; i < seen.size(); ++i) {
        EXPECT_EQ(seen[i], (seen[i - 1] + 1) % 3);
    }
    EXPECT_GE(times.back() - times.front(), 6U * 60U - 50U); // Not faster than the timer.
}

TEST(NormalAnimate, EachTickShowsTheNextFrameAtOnce)
{
    AnimationDialogCL animation("1 100000000 0 0");
    const HWND window = animation.dialog.ItemM(11);
    const std::uint32_t colours[] = { Green, Blue, Red, Green };
    EXPECT_EQ(animation.PixelM(), asShown(Red));
    for (const std::uint32_t colour : colours) {
        ::SendMessageW(window, WM_TIMER, 42, 0); // Any timer of the control counts.
        EXPECT_EQ(Pixels(window).AtM(7, 8), asShown(colour));
    }
    EXPECT_TRUE(::KillTimer(window, 0)); // It ran with the id 0.
}

TEST(NormalAnimate, ModeChangedLaterLeavesTheTimerAlone)
{
    AnimationDialogCL animation("2 100000000 0 0");
    EXPECT_EQ(animation.ControlM()->SetCtrlModeM(1), 1);
    EXPECT_FALSE(::KillTimer(animation.dialog.ItemM(11), 0));
    AnimationDialogCL playing("1 100000000 0 0");
    EXPECT_EQ(playing.ControlM()->SetTimeLapM(0), 1);
    EXPECT_TRUE(::KillTimer(playing.dialog.ItemM(11), 0));
}

TEST(NormalAnimate, HostChoosesTheFrameInManualModeOnly)
{
    AnimationDialogCL animation("1 0 0 0");
    EXPECT_EQ(animation.ControlM()->DispBmpM(1), 0);
    EXPECT_EQ(animation.PixelM(), asShown(Red));
    EXPECT_EQ(animation.ControlM()->SetCtrlModeM(3), 0);
    EXPECT_EQ(animation.ControlM()->DispBmpM(1), 0);
    EXPECT_EQ(animation.ControlM()->SetCtrlModeM(2), 1);
    EXPECT_EQ(animation.FrameM(), 0);
    EXPECT_EQ(animation.ControlM()->DispBmpM(1), 1);
    EXPECT_EQ(animation.PixelM(), asShown(Green));
    EXPECT_EQ(animation.ControlM()->DispBmpM(77), 1);
    EXPECT_EQ(animation.PixelM(), RGB(255, 255, 255));
    EXPECT_EQ(animation.FrameM(), 77);
    EXPECT_EQ(animation.ControlM()->DispBmpM(-7), 1);
    EXPECT_EQ(animation.FrameM(), -1);
    EXPECT_EQ(animation.ControlM()->RedrawWindowM(), 1);
    EXPECT_EQ(animation.ControlM()->DispBmpM(-1), 1);
    EXPECT_EQ(animation.ControlM()->RedrawWindowM(), 0);
}

TEST(NormalAnimate, FirstFrameIsShownOnDemand)
{
    AnimationDialogCL animation("2 0 0 0");
    animation.ControlM()->DispBmpM(2);
    EXPECT_EQ(animation.PixelM(), asShown(Blue));
    EXPECT_EQ(animation.ControlM()->SetFirstIdxM(), 1);
    EXPECT_EQ(animation.FrameM(), 0);
    EXPECT_EQ(animation.PixelM(), asShown(Red));
}

TEST(NormalAnimate, ManualModeShowsFrameZeroAtOnce)
{
    AnimationDialogCL animation("1 100000000 0 0");
    ::SendMessageW(animation.dialog.ItemM(11), WM_TIMER, 0, 0);
    EXPECT_EQ(animation.PixelM(), asShown(Green));
    EXPECT_EQ(animation.ControlM()->SetCtrlModeM(2), 1);
    EXPECT_EQ(animation.PixelM(), asShown(Red));
}

TEST(NormalAnimate, FrameSetAnewLeavesNoBitmapBehind)
{
    const FramesCL frames;
    DuNormalAnimateCL animation;
    animation.AddBmpM(frames.red.path());
    animation.SetBmpM(0, frames.green.path());
    const int objects = LiveGdiObjectsM();
    for (int i = 0; i < 50; ++i) {
        EXPECT_EQ(animation.SetBmpM(0, frames.blue.path()), 1);
    }
    EXPECT_EQ(LiveGdiObjectsM(), objects);
}

TEST(NormalAnimate, ManualAnimationWithoutFramesStandsAtFrameZeroAndIsWhite)
{
    const PicturedDialogCL dialog(
        "[普通动画控件]\n1\n0\n1 11 20 30 40 30 2 0 0 0\n[普通动画控件位图]\n0\n0\n");
    int index = -1;
    EXPECT_EQ(dialog.ControlM<DuNormalAnimateCL>(11)->GetCurIdxM(&index), 1);
    EXPECT_EQ(index, 0);
    EXPECT_EQ(dialog.PixelM(11, 7, 8), RGB(255, 255, 255));
}

TEST(NormalAnimate, HostReachesItById)
{
    AnimationDialogCL animation("2 0 0 0");
    int index = -1;
    EXPECT_EQ(animation.dialog.GetNormalAnimateBmpIdxM(11, &index), 1);
    EXPECT_EQ(index, 0);
    EXPECT_EQ(animation.dialog.ChangeNormalAnimateM(11, 2), 1);
    EXPECT_EQ(animation.PixelM(), asShown(Blue));
    EXPECT_EQ(animation.dialog.GetNormalAnimateBmpIdxM(11, &index), 1);
    EXPECT_EQ(index, 2);
    EXPECT_EQ(animation.ControlM()->DeleteBmpM(2), 1);
    EXPECT_EQ(animation.dialog.GetNormalAnimateBmpIdxM(11, &index), 0);
    EXPECT_EQ(index, 2);
    animation.ControlM()->SetCtrlModeM(1);
    EXPECT_EQ(animation.dialog.ChangeNormalAnimateM(11, 1), 0);
}

TEST(NormalAnimate, DeletingTheCurrentFrameBlanksToWhite)
{
    AnimationDialogCL animation("1 100000000 0 0");
    EXPECT_EQ(animation.ControlM()->DeleteBmpM(1), 1);
    EXPECT_EQ(animation.PixelM(), asShown(Red));
    EXPECT_EQ(animation.ControlM()->DeleteBmpM(0), 1);
    EXPECT_EQ(animation.PixelM(), RGB(255, 255, 255));
    EXPECT_EQ(animation.FrameM(), -1);
    ::SendMessageW(animation.dialog.ItemM(11), WM_TIMER, 0, 0); // From none the first that is left.
    EXPECT_EQ(animation.FrameM(), 2);
    EXPECT_EQ(animation.PixelM(), asShown(Blue));
    PumpPending();
    EXPECT_EQ(animation.ControlM()->DelAllBmpM(), 1);
    EXPECT_TRUE(::GetUpdateRect(animation.dialog.m_hWnd, nullptr, FALSE)); // What lies behind, too.
    EXPECT_EQ(animation.PixelM(), RGB(255, 255, 255));
    EXPECT_EQ(animation.ControlM()->SetFirstIdxM(), 0);
    ::SendMessageW(animation.dialog.ItemM(11), WM_TIMER, 0, 0);
    EXPECT_EQ(animation.FrameM(), -1);
}

TEST(NormalAnimate, FrameThatCannotBeLoadedIsWhiteAndKeepsItsPlace)
{
    const FramesCL frames;
    PicturedDialogCL dialog(
        std::string("[普通动画控件]\n1\n0\n1 11 0 0 40 30 2 0 0 0\n[普通动画控件位图]\n3\n0\n11 ")
        + frames.red.path() + "\n11 no_such_frame.bmp\n11 " + frames.blue.path() + "\n");
    dialog.ChangeNormalAnimateM(11, 1);
    EXPECT_EQ(dialog.PixelM(11, 7, 8), RGB(255, 255, 255));
    dialog.ChangeNormalAnimateM(11, 2);
    EXPECT_EQ(dialog.PixelM(11, 7, 8), asShown(Blue));
}

TEST(NormalAnimate, FramesAreAppendedAndReplaced)
{
    const FramesCL frames;
    DuNormalAnimateCL animation;
    EXPECT_EQ(animation.SetInitBmpNumM(0), 1);
    EXPECT_EQ(animation.AddBmpM(""), 0);
    EXPECT_EQ(animation.SetBmpM(0, ""), 0);
    EXPECT_EQ(animation.AddBmpM(frames.red.path()), 0);
    EXPECT_EQ(animation.AddBmpM(frames.green.path()), 1);
    EXPECT_EQ(animation.AddBmpM("no_such_frame.bmp"), -1);
    EXPECT_EQ(animation.SetBmpM(2, frames.blue.path()), 1);
    EXPECT_EQ(animation.SetBmpM(2, "no_such_frame.bmp"), 0);
    int index = 5;
    EXPECT_EQ(animation.GetCurIdxM(&index), 0);
    EXPECT_EQ(index, 5);
    EXPECT_EQ(animation.RedrawWindowM(), 0);
    EXPECT_EQ(animation.SetFirstIdxM(), 1);
    EXPECT_EQ(animation.GetCurIdxM(&index), 1);
    EXPECT_EQ(index, 0);
}

TEST(NormalAnimate, LargerFrameIsScaledToTheWindowAndSmallerOneIsNot)
{
    const SmallPictureCL halves({ { Red, Red, Blue, Blue }, { Red, Red, Blue, Blue } });
    PicturedDialogCL dialog(
        std::string("[普通动画控件]\n2\n0\n1 11 0 0 2 1 2 0 0 0\n1 12 20 20 30 20 2 0 0 0\n"
                    "[普通动画控件位图]\n2\n0\n11 ")
        + halves.path() + "\n12 " + halves.path() + "\n");
    EXPECT_EQ(dialog.PixelM(11, 0, 0), asShown(Red));
    EXPECT_EQ(dialog.PixelM(11, 1, 0), asShown(Blue));
    EXPECT_EQ(dialog.PixelM(12, 1, 1), asShown(Red));
    EXPECT_EQ(dialog.PixelM(12, 3, 1), asShown(Blue));
    EXPECT_NE(dialog.PixelM(12, 20, 10), asShown(Blue));
}

TEST(NormalAnimate, ClickInsideIsPostedAndOneThatEndsOutsideIsNot)
{
    AnimationDialogCL animation("1 0 0 1");
    const HWND window = animation.dialog.ItemM(11);
    ::SetFocus(nullptr);
    PumpPending();
    const MessageRecorder messages(animation.dialog.m_hWnd);
    ClickM(window, 5, 5);
    ClickM(window, 5, 5, Button::Right);
    MoveMouseToM(window, 39, 29);
    PressM();
    EXPECT_EQ(::GetCapture(), window);
    MoveMouseToM(window, 60, 50);
    ReleaseM();
    EXPECT_EQ(::GetCapture(), nullptr);
    MoveMouseToM(window, 60, 50);
    PressM();
    MoveMouseToM(window, 5, 5);
    ReleaseM(); // Did not begin here.
    FocusM(window);
    PumpPending();
    EXPECT_EQ(messages.ListM(), (MessageListTP { "posted 1744 w=11 l=0", "posted 1625 w=11 l=0" }));
}

TEST(NormalAnimate, SecondOfTwoFastClicksIsAClickToo)
{
    AnimationDialogCL animation("1 0 0 1");
    const MessageRecorder messages(animation.dialog.m_hWnd);
    DoubleClickM(animation.dialog.ItemM(11), 5, 5);
    EXPECT_EQ(messages.ListM(), (MessageListTP { "posted 1744 w=11 l=0", "posted 1744 w=11 l=0" }));
}

TEST(NormalAnimate, WithoutNotifyTheMouseGoesThrough)
{
    AnimationDialogCL animation("1 0 0 0");
    const MessageRecorder messages(animation.dialog.m_hWnd);
    ClickM(animation.dialog.ItemM(11), 5, 5);
    PumpPending();
    EXPECT_EQ(messages.ListM(), MessageListTP {});
}

TEST(NormalAnimate, RoundsOfBuildingAndDestroyingWithRunningTimersLeakNothingAndTickNobody)
{
    const FramesCL frames;
    DVrNormalAnimateArr records;
    {
        const DescriptionFileCL file("[普通动画控件]\n1\n0\n1 11 0 0 40 30 1 1 0 1\n" + frames.RowsM());
        VrIOCL io;
        io.OpenM(file.path(), "r");
        int count = 0;
        ASSERT_EQ(slReadSection(io, records, &count), SectionStatus::Read);
    }
    PlainWindowCL parent;
    int ticks = 0;
    int lateTicks = 0;
    HWND alive = nullptr;
    pumpFilter = [&](const MSG* message) {
        if (message->message == WM_TIMER) {
            ++(message->hwnd == alive ? ticks : lateTicks);
        }
        return false;
    };
    const auto round = [&](bool wait) {
        DuNormalAnimateArr animations;
        animations.SetItemM(DuNormalAnimateCL(AliveTag), 0);
        records.InitNormalAnimateM(0, &animations[0]);
        ASSERT_EQ(animations.Create(&parent), 1);
        alive = animations[0].m_hWnd;
        if (wait) {
            const int before = ticks;
            EXPECT_TRUE(PumpUntil([&] { return ticks > before; }));
        }
        animations.DelAllM();
        EXPECT_FALSE(::IsWindow(alive));
        alive = nullptr;
        PumpPending();
    };
    for (int i = 0; i < 20; ++i) {
        round(i % 10 == 0);
    }
    const int windows = LiveWindowsM();
    const int objects = LiveGdiObjectsM();
    const HeapUse heap = LiveHeapM();
    for (int i = 0; i < 1000; ++i) {
        round(i % 50 == 0);
    }
    const HeapUse after = LiveHeapM();
    pumpFilter = nullptr;
    EXPECT_EQ(LiveWindowsM(), windows);
    EXPECT_EQ(LiveGdiObjectsM(), objects);
    EXPECT_LT(after.blocks, heap.blocks + 100); // Less than one block in ten rounds: none is a round's own.
    EXPECT_EQ(lateTicks, 0);
    EXPECT_GE(ticks, 20);
}
