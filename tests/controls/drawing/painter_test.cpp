// Controls that an application paints by a painter.
#include "controls/drawing/draw_2d.h"
#include "soak/guarded_object.h"
#include "support/handles.h"
#include "support/pictured_dialog.h"
#include <gtest/gtest.h>
#include <stdexcept>

using namespace testing_support;

namespace {

constexpr COLORREF Ground = RGB(0, 128, 255);
constexpr COLORREF Drawn = RGB(255, 0, 0);

std::string canvasSections(const std::string& colour = "0 128 255")
{
    return "[标准按钮]\n1\n0\n1 12 200 30 60 20\nok\n0\n[二维绘图控件]\n1\n0\n1 11 20 30 60 40 " + colour
        + "\n";
}

// A canvas with id 11 of 60 by 40 pixels and a button with id 12.
class PainterTest : public testing::Test
{
protected:
    // Paints a square of 10 pixels at (5, 5), and counts.
    PainterTP squareM()
    {
        return [this](CDC& dc, const CSize& size) {
            ++calls_;
            size_ = size;
            dc.FillSolidRect(5, 5, 10, 10, Drawn);
        };
    }
    HWND windowM() { return dialog_.ItemM(11); }
    DuDraw2DCL* controlM() { return dialog_.ControlM<DuDraw2DCL>(11); }
    Pixels shownM()
    {
        PumpPending();
        return Pixels(windowM());
    }
    // As the dialog itself is built; a window gets the style of its file, which doesn't show it.
    void buildM()
    {
        EXPECT_EQ(dialog_.InitDlgM(&dialog_, 1), 1);
        dialog_.ShowWindow(SW_SHOW);
    }
    // Whether the square and nothing else is on the background.
    bool isSquareM(int width = 60, int height = 40)
    {
        const Pixels shown = shownM();
        return shown.WidthM() == width && shown.HeightM() == height && shown.CountM(Drawn) == 100
            && shown.AtM(5, 5) == Drawn && shown.AtM(14, 14) == Drawn
            && shown.CountM(Ground) == width * height - 100;
    }

    PicturedDialogCL dialog_ { canvasSections() };
    int calls_ { 0 };
    CSize size_;
};

} // namespace

TEST_F(PainterTest, PaintsOnceOverTheBackgroundAndIsKept)
{
    EXPECT_TRUE(dialog_.SetPainterM(11, squareM()));
    EXPECT_EQ(calls_, 0); // Not before the picture is needed.
    EXPECT_TRUE(isSquareM());
    EXPECT_EQ(size_, CSize(60, 40));
    const Pixels shown = shownM();
    ::InvalidateRect(windowM(), nullptr, TRUE);
    EXPECT_EQ(shownM().DifferencesM(shown), 0);
    {
        const PlainWindow cover(500, 400, 50, 40);
        PumpPending();
    }
    EXPECT_TRUE(PumpUntil([&] { return shownM().DifferencesM(shown) == 0; }));
    dialog_.ShowWindow(SW_HIDE);
    dialog_.ShowWindow(SW_SHOW);
    EXPECT_TRUE(PumpUntil([&] { return shownM().DifferencesM(shown) == 0; }));
    ::EnableWindow(windowM(), FALSE);
    EXPECT_EQ(shownM().DifferencesM(shown), 0);
    EXPECT_EQ(calls_, 1);
    EXPECT_FALSE(::GetUpdateRect(windowM(), nullptr, FALSE));
}

TEST_F(PainterTest, NothingIsClearedBeforeThePictureIsShown)
{
    EXPECT_TRUE(dialog_.SetPainterM(11, squareM()));
    EXPECT_TRUE(isSquareM());
    {
        CClientDC dc(controlM());
        dc.FillSolidRect(0, 0, 60, 40, RGB(9, 9, 9));
        EXPECT_NE(::SendMessageW(windowM(), WM_ERASEBKGND, reinterpret_cast<WPARAM>(dc.m_hDC), 0), 0);
    }
    EXPECT_EQ(Pixels(windowM()).CountM(RGB(9, 9, 9)), 60 * 40);
    ::InvalidateRect(windowM(), nullptr, TRUE);
    EXPECT_TRUE(isSquareM());
    EXPECT_EQ(calls_, 1);
}

TEST_F(PainterTest, AnotherSizeNeedsAnotherPicture)
{
    EXPECT_TRUE(dialog_.SetPainterM(11, squareM()));
    EXPECT_TRUE(isSquareM());
    EXPECT_EQ(controlM()->SetBkColorM(RGB(7, 7, 7)), 1); // From the next picture on.
    EXPECT_TRUE(isSquareM());
    controlM()->SetWidthM(90);
    PumpPending();
    EXPECT_EQ(calls_, 2);
    EXPECT_EQ(size_, CSize(90, 40));
    EXPECT_EQ(shownM().CountM(RGB(7, 7, 7)), 90 * 40 - 100);
    controlM()->SetHeightM(20);
    EXPECT_EQ(shownM().CountM(RGB(7, 7, 7)), 90 * 20 - 100);
    controlM()->SetHeightM(0); // Without a pixel there is nothing to paint.
    PumpPending();
    EXPECT_EQ(calls_, 3);
    controlM()->SetHeightM(20);
    EXPECT_EQ(shownM().CountM(RGB(7, 7, 7)), 90 * 20 - 100);
    controlM()->MoveM(3, 3);
    EXPECT_EQ(shownM().CountM(RGB(7, 7, 7)), 90 * 20 - 100);
    EXPECT_EQ(calls_, 3); // It is the same picture.
}

TEST_F(PainterTest, RepaintingIsDoneOnceForAllWishes)
{
    EXPECT_FALSE(dialog_.RepaintM(11)); // No painter yet.
    EXPECT_TRUE(dialog_.SetPainterM(11, squareM()));
    EXPECT_TRUE(isSquareM());
    for (int i = 0; i < 5; ++i) {
        EXPECT_TRUE(dialog_.RepaintM(11));
    }
    EXPECT_EQ(calls_, 1);
    EXPECT_TRUE(isSquareM());
    EXPECT_EQ(calls_, 2);
    EXPECT_FALSE(dialog_.RepaintM(12));
    EXPECT_FALSE(dialog_.RepaintM(99));
    EXPECT_EQ(controlM()->RepaintM(), 1);
    PumpPending();
    EXPECT_EQ(calls_, 3);
}

TEST_F(PainterTest, WithoutPainterAgainTheControlIsAsBefore)
{
    EXPECT_TRUE(dialog_.SetPainterM(11, squareM()));
    EXPECT_TRUE(isSquareM());
    EXPECT_TRUE(dialog_.SetPainterM(11, nullptr));
    EXPECT_EQ(shownM().CountM(Ground), 60 * 40);
    EXPECT_FALSE(dialog_.RepaintM(11));
    {
        CClientDC dc(controlM());
        dc.FillSolidRect(10, 10, 20, 20, RGB(0, 255, 0));
    }
    controlM()->Invalidate(FALSE);
    EXPECT_EQ(shownM().CountM(RGB(0, 255, 0)), 400);
    EXPECT_EQ(calls_, 1);
}

TEST_F(PainterTest, OnlyControlsThatCanBePaintedTakeOne)
{
    EXPECT_FALSE(dialog_.SetPainterM(12, squareM()));
    EXPECT_FALSE(dialog_.SetPainterM(99, squareM()));
    PumpPending();
    EXPECT_EQ(calls_, 0);
}

TEST_F(PainterTest, APainterMayLeaveTheContextAsItLikes)
{
    EXPECT_TRUE(dialog_.SetPainterM(11, [this](CDC& dc, const CSize&) {
        ++calls_;
        EXPECT_EQ(dc.GetMapMode(), MM_TEXT);
        EXPECT_EQ(dc.GetViewportOrg(), CPoint(0, 0));
        RECT all {};
        EXPECT_NE(dc.GetClipBox(&all), ERROR);
        EXPECT_EQ(CRect(all), CRect(0, 0, 60, 40));
        EXPECT_EQ(dc.GetTextColor(), RGB(0, 0, 0));
        dc.FillSolidRect(-500, -500, 505, 505, Drawn); // Outside too.
        dc.FillSolidRect(50, 30, 5000, 5000, Drawn);
        dc.SetTextColor(RGB(1, 2, 3));
        dc.SelectStockObject(GRAY_BRUSH);
        dc.IntersectClipRect(0, 0, 1, 1);
        dc.SetViewportOrg(7, 7);
        dc.SetMapMode(MM_LOMETRIC);
    }));
    for (int i = 0; i < 2; ++i) {
        EXPECT_TRUE(dialog_.RepaintM(11));
        const Pixels shown = shownM();
        EXPECT_EQ(shown.CountM(Drawn), 5 * 5 + 10 * 10);
        EXPECT_EQ(shown.CountM(Ground), 60 * 40 - 5 * 5 - 10 * 10);
        EXPECT_EQ(calls_, i + 1);
    }
}

TEST_F(PainterTest, WhatItPaintsUntilItThrowsIsShown)
{
    EXPECT_TRUE(dialog_.SetPainterM(11, [this, square = squareM()](CDC& dc, const CSize& size) {
        square(dc, size);
        throw std::runtime_error("by a painter");
    }));
    EXPECT_TRUE(isSquareM()); // The exception has ended where those of message handlers do.
    ::InvalidateRect(windowM(), nullptr, TRUE);
    EXPECT_TRUE(isSquareM());
    EXPECT_EQ(calls_, 1); // It isn't called again and again.
    EXPECT_TRUE(dialog_.RepaintM(11));
    EXPECT_TRUE(isSquareM());
    EXPECT_EQ(calls_, 2);
    EXPECT_TRUE(dialog_.SetPainterM(11, [](CDC&, const CSize&) { throw new CUserException; }));
    EXPECT_EQ(shownM().CountM(Ground), 60 * 40);
}

TEST_F(PainterTest, OneThatAsksForItselfIsCalledAgain)
{
    EXPECT_TRUE(dialog_.SetPainterM(11, [this, square = squareM()](CDC& dc, const CSize& size) {
        square(dc, size);
        if (calls_ < 5) {
            EXPECT_TRUE(dialog_.RepaintM(11));
        }
        ::UpdateWindow(windowM()); // Not now.
    }));
    EXPECT_TRUE(PumpUntil([&] { return calls_ == 5; }));
    EXPECT_TRUE(isSquareM());
    EXPECT_EQ(calls_, 5);
}

TEST_F(PainterTest, OneMayPutAnotherInItsPlaceOrNone)
{
    const auto alive = std::make_shared<int>(3);
    EXPECT_TRUE(dialog_.SetPainterM(11, [this, alive](CDC& dc, const CSize&) {
        const std::weak_ptr<int> seen = alive;
        EXPECT_TRUE(dialog_.SetPainterM(11, squareM()));
        EXPECT_FALSE(seen.expired()); // What it holds lives until it returns.
        dc.FillSolidRect(0, 0, 60, 40, RGB(1, 1, 1));
    }));
    EXPECT_TRUE(isSquareM());
    EXPECT_EQ(alive.use_count(), 1);
    EXPECT_TRUE(dialog_.SetPainterM(11, [this](CDC& dc, const CSize&) {
        EXPECT_TRUE(dialog_.SetPainterM(11, nullptr));
        dc.FillSolidRect(0, 0, 60, 40, RGB(1, 1, 1));
    }));
    EXPECT_EQ(shownM().CountM(Ground), 60 * 40);
    EXPECT_EQ(calls_, 1);
}

TEST_F(PainterTest, OneMayChangeTheSize)
{
    EXPECT_TRUE(dialog_.SetPainterM(11, [this, square = squareM()](CDC& dc, const CSize& size) {
        square(dc, size);
        controlM()->SetWidthM(80);
    }));
    EXPECT_TRUE(isSquareM(80, 40));
    EXPECT_EQ(calls_, 2);
}

TEST_F(PainterTest, OneMayWaitForTheUser)
{
    MessageBoxWatcher watcher;
    EXPECT_TRUE(dialog_.SetPainterM(11, [this, square = squareM()](CDC& dc, const CSize& size) {
        square(dc, size);
        ::InvalidateRect(windowM(), nullptr, TRUE);
        ::MessageBoxW(dialog_.m_hWnd, L"waits", L"painter", MB_OK);
        dc.FillSolidRect(30, 20, 5, 5, RGB(0, 255, 0));
    }));
    EXPECT_TRUE(PumpUntil([&] { return shownM().CountM(RGB(0, 255, 0)) == 25; }));
    EXPECT_EQ(watcher.SeenM().size(), 1u);
    EXPECT_EQ(calls_, 1);
    EXPECT_EQ(shownM().CountM(Drawn), 100);
}

TEST_F(PainterTest, OneMayDestroyItsControlsOrItsDialog)
{
    const auto alive = std::make_shared<int>(3);
    EXPECT_TRUE(dialog_.SetPainterM(11, [this, alive](CDC& dc, const CSize&) {
        ++calls_;
        dialog_.DestroyM();
        dc.FillSolidRect(0, 0, 60, 40, RGB(1, 1, 1));
    }));
    PumpPending();
    EXPECT_EQ(windowM(), nullptr);
    EXPECT_EQ(calls_, 1);
    auto other = std::make_unique<PicturedDialogCL>(canvasSections());
    const auto kept = std::make_shared<int>(4);
    EXPECT_TRUE(other->SetPainterM(11, [&other, kept](CDC& dc, const CSize&) {
        const std::shared_ptr<int> still = kept;
        other.reset();
        dc.FillSolidRect(0, 0, 60, 40, RGB(1, 1, 1));
        throw std::runtime_error("and more");
    }));
    PumpPending();
    EXPECT_EQ(other, nullptr);
    EXPECT_EQ(kept.use_count(), 1);
    EXPECT_EQ(alive.use_count(), 2); // The first dialog keeps its painter for the next build.
}

TEST_F(PainterTest, NothingIsTouchedOfAControlThatItHasDestroyed)
{
    const GuardedPagesCL pages;
    dialog_.SetFactoryM<DuDraw2DCL>([](int) { return std::make_unique<GuardedCL<DuDraw2DCL>>(); });
    buildM();
    for (const bool throws : { false, true }) {
        EXPECT_TRUE(dialog_.SetPainterM(11, [this, throws](CDC&, const CSize&) {
            dialog_.DestroyM();
            if (throws) {
                throw std::runtime_error("and more");
            }
        }));
        PumpPending();
        EXPECT_EQ(windowM(), nullptr);
        EXPECT_EQ(GuardedPagesCL::TouchesM(), "");
        buildM();
    }
    dialog_.DestroyM();
}

TEST_F(PainterTest, IsKeptThroughEveryBuild)
{
    EXPECT_TRUE(dialog_.SetPainterM(11, squareM()));
    EXPECT_TRUE(isSquareM());
    dialog_.DestroyM();
    EXPECT_TRUE(dialog_.SetPainterM(99, squareM())); // Nothing is built: it could become a control's.
    EXPECT_FALSE(dialog_.RepaintM(11));
    buildM();
    EXPECT_TRUE(isSquareM());
    EXPECT_EQ(calls_, 2);
    buildM(); // Without DestroyM too.
    EXPECT_TRUE(isSquareM());
    dialog_.DestroyM();
    EXPECT_TRUE(dialog_.SetPainterM(11, nullptr));
    buildM();
    EXPECT_EQ(shownM().CountM(Ground), 60 * 40);
    EXPECT_EQ(calls_, 3);
}

TEST(Painter, MayBeSetBeforeTheDialogHasAWindow)
{
    const DescriptionFileCL file(HeaderSections + canvasSections());
    DuBasicDialogCL dialog;
    int calls = 0;
    EXPECT_TRUE(dialog.SetPainterM(11, [&calls](CDC&, const CSize&) { ++calls; }));
    EXPECT_TRUE(dialog.SetPainterM(12, [&calls](CDC&, const CSize&) { calls += 100; })); // A button's.
    EXPECT_EQ(dialog.SetConfigFileM(file.path()), 1);
    ASSERT_EQ(dialog.CreateM(), 1);
    EXPECT_TRUE(PumpUntil([&] { return calls > 0; }));
    EXPECT_EQ(calls, 1);
}

TEST(Painter, ACopyOfAControlHasNone)
{
    DuDraw2DCL control(AliveTag);
    EXPECT_EQ(control.SetPainterM([](CDC&, const CSize&) {}), 1);
    EXPECT_EQ(control.RepaintM(), 1);
    DuDraw2DCL copy(control);
    EXPECT_EQ(copy.RepaintM(), 0);
    control = copy;
    EXPECT_EQ(control.RepaintM(), 0);
}

TEST(Painter, AThousandRepaintsAndRebuildsLeaveNothingBehind)
{
    PicturedDialogCL dialog(canvasSections().substr(canvasSections().find("[二维")));
    int calls = 0;
    const auto work = [&dialog](int times) {
        for (int i = 0; i < times; ++i) {
            EXPECT_TRUE(dialog.RepaintM(11));
            ::UpdateWindow(dialog.ItemM(11));
        }
        for (int i = 0; i < times / 10; ++i) {
            EXPECT_EQ(dialog.InitDlgM(&dialog, 1), 1);
            dialog.ShowWindow(SW_SHOW);
            ::UpdateWindow(dialog.ItemM(11));
        }
        PumpPending();
    };
    EXPECT_TRUE(dialog.SetPainterM(11, [&calls](CDC& dc, const CSize&) {
        ++calls;
        dc.FillSolidRect(5, 5, 10, 10, Drawn);
    }));
    work(50);
    work(50);
    const int windows = LiveWindowsM();
    const int objects = LiveGdiObjectsM();
    const HeapUse heap = LiveHeapM();
    calls = 0;
    work(1000);
    EXPECT_EQ(calls, 1100);
    const HeapUse after = LiveHeapM();
    EXPECT_EQ(LiveWindowsM(), windows);
    EXPECT_EQ(LiveGdiObjectsM(), objects);
    EXPECT_LT(after.blocks, heap.blocks + 50); // A hundred builds.
    EXPECT_EQ(Pixels(dialog.ItemM(11)).CountM(Drawn), 100);
}
