#include "controls/buttons/new_rotate_btn.h"
#include "controls/buttons/new_rotate_btn_record.h"
#include "controls/buttons/rotate_btn.h"
#include "support/pictured_dialog.h"
#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <memory>
#include <random>

using namespace testing_support;

namespace {

// A knob with id 11 of 40 by 40 pixels, its picture of 20 by 20 at (10, 10), range 0..90, steps of 30.
struct KnobCL
{
    explicit KnobCL(const std::string& numbers = "10 10 20 20 1 -1 1 -1 30 1 90 0 0 0",
        const std::string& region = "NULL")
        : dialog(std::string("[旋转按钮]\n1\n0\n1 11 20 30 40 40 ") + numbers + "\n" + background.path()
            + "\n" + pointer.path() + "\n" + region + "\n")
    {
        ::SetFocus(nullptr);
        PumpPending();
    }
    static std::vector<std::vector<std::uint32_t>> pointerRows()
    {
        std::vector<std::vector<std::uint32_t>> rows(20, std::vector<std::uint32_t>(20, 0xFFFFFF));
        for (size_t x = 10; x < 19; ++x) {
            rows[10][x] = Red; // From the middle to the right.
        }
        return rows;
    }
    HWND WindowM() const { return dialog.ItemM(11); }
    DuRotateBtnCL* ControlM() const { return dialog.ControlM<DuRotateBtnCL>(11); }
    SmallPictureCL background { Blue, 40, 40 };
    SmallPictureCL pointer { pointerRows() };
    PicturedDialogCL dialog;
};

} // namespace

TEST(RotateBtn, WindowHasStyleAndTextOfOneSpace)
{
    const KnobCL knob;
    EXPECT_EQ(styleOf(knob.WindowM()), 0x50010100U);
    EXPECT_EQ(textOf(knob.WindowM()), " ");
    const KnobCL disabled("10 10 20 20 1 -1 1 -1 30 2 90 0 0 0");
    EXPECT_FALSE(::IsWindowEnabled(disabled.WindowM()));
    EXPECT_EQ(disabled.ControlM()->SetEnableM(1), 1);
    EXPECT_FALSE(::IsWindowEnabled(disabled.WindowM()));
    EXPECT_EQ(disabled.ControlM()->EnableButtonM(1), 1);
    EXPECT_TRUE(::IsWindowEnabled(disabled.WindowM()));
}

TEST(RotateBtn, ClicksTurnWithinTheRangeAndPostTheCounter)
{
    const KnobCL knob;
    const MessageRecorder messages(knob.dialog.m_hWnd);
    for (const float angle : { 30.0F, 60.0F, 90.0F, 90.0F }) {
        ClickM(knob.WindowM(), 20, 20);
        EXPECT_EQ(knob.ControlM()->GetAngleM(), angle);
    }
    ClickM(knob.WindowM(), 20, 20, Button::Right);
    EXPECT_EQ(knob.ControlM()->GetAngleM(), 60.0F);
    FocusM(knob.WindowM());
    PumpPending();
    EXPECT_EQ(messages.ListM(),
        (MessageListTP { "posted 1424 w=11 l=1", "posted 1424 w=11 l=2", "posted 1424 w=11 l=3",
            "posted 1424 w=11 l=2", "posted 1625 w=11 l=0" }));
}

TEST(RotateBtn, SecondOfTwoFastClicksIsAClickToo)
{
    const KnobCL knob;
    const MessageRecorder messages(knob.dialog.m_hWnd);
    DoubleClickM(knob.WindowM(), 20, 20);
    EXPECT_EQ(knob.ControlM()->GetAngleM(), 60.0F);
    DoubleClickM(knob.WindowM(), 20, 20, Button::Right);
    EXPECT_EQ(knob.ControlM()->GetAngleM(), 0.0F);
    EXPECT_EQ(messages.ListM(),
        (MessageListTP { "posted 1424 w=11 l=1", "posted 1424 w=11 l=2", "posted 1424 w=11 l=1",
            "posted 1424 w=11 l=0" }));
}

TEST(RotateBtn, StepsAreCutToWholeDegrees)
{
    const KnobCL knob("10 10 20 20 1 -1 5 -7 7.5 1 90 -90 0 100");
    const MessageRecorder messages(knob.dialog.m_hWnd);
    ClickM(knob.WindowM(), 20, 20);
    EXPECT_EQ(knob.ControlM()->GetAngleM(), 7.0F);
    ClickM(knob.WindowM(), 20, 20);
    EXPECT_EQ(knob.ControlM()->GetAngleM(), 14.0F);
    ClickM(knob.WindowM(), 20, 20, Button::Right);
    EXPECT_EQ(knob.ControlM()->GetAngleM(), 6.0F);
    EXPECT_EQ(messages.ListM(),
        (MessageListTP { "posted 1424 w=11 l=105", "posted 1424 w=11 l=110", "posted 1424 w=11 l=103" }));
}

TEST(RotateBtn, AngleOutsideTheRangeBlocksEveryStep)
{
    const KnobCL knob("10 10 20 20 1 -1 1 -1 30 1 90 0 100 0");
    const MessageRecorder messages(knob.dialog.m_hWnd);
    ClickM(knob.WindowM(), 20, 20);
    ClickM(knob.WindowM(), 20, 20, Button::Right);
    EXPECT_EQ(knob.ControlM()->GetAngleM(), 100.0F);
    EXPECT_EQ(messages.ListM(), MessageListTP {});
}

TEST(RotateBtn, HitRegionIsTheInscribedEllipse)
{
    const KnobCL knob;
    const MessageRecorder messages(knob.dialog.m_hWnd);
    MoveMouseToM(knob.WindowM(), 2, 2); // A corner: no press begins there.
    PressM();
    EXPECT_EQ(::GetCapture(), nullptr);
    ReleaseM();
    MoveMouseToM(knob.WindowM(), 20, 20);
    PressM(Button::Right);
    EXPECT_EQ(::GetCapture(), knob.WindowM());
    MoveMouseToM(knob.WindowM(), 2, 2);
    ReleaseM(Button::Right);
    EXPECT_EQ(::GetCapture(), nullptr);
    EXPECT_EQ(knob.ControlM()->GetAngleM(), 0.0F);
    EXPECT_EQ(messages.ListM(), MessageListTP {});
}

TEST(RotateBtn, ClickThatEndsOutsideTheHitRegionOnlyGivesTheMouseBack)
{
    const KnobCL knob;
    const MessageRecorder messages(knob.dialog.m_hWnd);
    MoveMouseToM(knob.WindowM(), 20, 20);
    PressM();
    EXPECT_EQ(::GetCapture(), knob.WindowM());
    MoveMouseToM(knob.WindowM(), 2, 2);
    ReleaseM();
    EXPECT_EQ(::GetCapture(), nullptr);
    MoveMouseToM(knob.WindowM(), 100, 90); // Begins elsewhere: nobody's click.
    PressM();
    MoveMouseToM(knob.WindowM(), 20, 20);
    ReleaseM();
    EXPECT_EQ(knob.ControlM()->GetAngleM(), 0.0F);
    EXPECT_EQ(messages.ListM(), MessageListTP {});
}

TEST(RotateBtn, TracedRegionDecidesWhereClicksCount)
{
    const SmallPictureCL shape(0x000000, 11, 11);
    const KnobCL knob("10 10 20 20 1 -1 1 -1 30 1 90 0 0 0", shape.path());
    ClickM(knob.WindowM(), 20, 20);
    EXPECT_EQ(knob.ControlM()->GetAngleM(), 0.0F);
    ClickM(knob.WindowM(), 3, 3);
    EXPECT_EQ(knob.ControlM()->GetAngleM(), 30.0F);
}

TEST(RotateBtn, PointerTurnsCounterClockwiseOverTheBackground)
{
    const KnobCL knob("10 10 20 20 1 -1 1 -1 90 1 90 0 0 0");
    EXPECT_EQ(knob.dialog.PixelM(11, 26, 20), asShown(Red));
    EXPECT_EQ(knob.dialog.PixelM(11, 20, 13), asShown(Blue));
    EXPECT_EQ(knob.dialog.PixelM(11, 3, 3), asShown(Blue));
    ClickM(knob.WindowM(), 20, 20);
    EXPECT_EQ(knob.dialog.PixelM(11, 26, 20), asShown(Blue));
    EXPECT_EQ(knob.dialog.PixelM(11, 20, 13), asShown(Red));
}

TEST(RotateBtn, RepaintingWithoutAChangeOnlyCopies)
{
    const KnobCL knob;
    EXPECT_EQ(knob.dialog.PixelM(11, 26, 20), asShown(Red));
    // What is composed anew would use these.
    knob.ControlM()->SetBmpM("", "");
    knob.ControlM()->Invalidate(FALSE);
    CClientDC(knob.ControlM()).FillSolidRect(10, 10, 20, 20, RGB(1, 2, 3));
    EXPECT_EQ(knob.dialog.PixelM(11, 26, 20), asShown(Red));
    EXPECT_EQ(knob.dialog.PixelM(11, 12, 12), asShown(Blue));
    ClickM(knob.WindowM(), 20, 20);
    EXPECT_EQ(knob.dialog.PixelM(11, 26, 20), ::GetSysColor(COLOR_BTNFACE));
}

TEST(RotateBtn, PicturesAndPlacesSetLaterShowAfterTheNextStep)
{
    const KnobCL knob("10 10 20 20 1 -1 1 -1 90 1 360 0 0 0");
    EXPECT_EQ(knob.dialog.PixelM(11, 26, 20), asShown(Red));
    ClickM(knob.WindowM(), 20, 20);
    EXPECT_EQ(knob.dialog.PixelM(11, 20, 13), asShown(Red));
    const int position[2] = { 15, 10 };
    const int centre[2] = { 25, 20 };
    knob.ControlM()->SetRotPosM(position, centre);
    ClickM(knob.WindowM(), 20, 20);
    EXPECT_EQ(knob.dialog.PixelM(11, 18, 20), asShown(Red));
    const SmallPictureCL ground(Green, 25, 40);
    knob.ControlM()->SetBmpM(ground.path(), knob.pointer.path());
    ClickM(knob.WindowM(), 20, 20);
    EXPECT_EQ(knob.dialog.PixelM(11, 25, 26), asShown(Red));
    EXPECT_EQ(knob.dialog.PixelM(11, 18, 20), asShown(Green));
    EXPECT_EQ(knob.dialog.PixelM(11, 33, 15), ::GetSysColor(COLOR_BTNFACE)); // The background ends before.
    const int back[2] = { 10, 10 };
    const int middle[2] = { 20, 20 };
    knob.ControlM()->SetRotPosM(back, middle);
    ClickM(knob.WindowM(), 20, 20);
    EXPECT_EQ(knob.dialog.PixelM(11, 26, 20), asShown(Red));
    EXPECT_EQ(knob.dialog.PixelM(11, 22, 12), asShown(Green));
}

TEST(RotateBtn, DrawingEqualsTheStepsDonePixelByPixelOnDeviceContexts)
{
    std::mt19937 random(5);
    for (const int h : { 16, 23 }) {
        std::vector<std::vector<std::uint32_t>> ground(30, std::vector<std::uint32_t>(30));
        std::vector<std::vector<std::uint32_t>> rows(static_cast<size_t>(h), std::vector<std::uint32_t>(16));
        for (auto& row : ground) {
            std::generate(row.begin(), row.end(), [&] { return random() & 0xFFFFFF; });
        }
        for (auto& row : rows) {
            std::generate(
                row.begin(), row.end(), [&] { return random() % 3 == 0 ? 0xFFFFFF : random() & 0xFFFFFF; });
        }
        const SmallPictureCL background(ground);
        const SmallPictureCL pointer(rows);
        PlainWindowCL parent;
        CClientDC screen(&parent);
        CBitmap picture;
        picture.Attach(::LoadImageA(nullptr, pointer.path(), IMAGE_BITMAP, 0, 0, LR_LOADFROMFILE));
        CDC from;
        from.CreateCompatibleDC(&screen);
        const HGDIOBJ oldFrom = ::SelectObject(from.m_hDC, picture.m_hObject);
        for (const float angle : { 0.0F, 37.5F, -200.0F }) {
            DuRotateBtnCL knob;
            const int size[2] = { 40, 40 };
            const int position[2] = { 5, 6 };
            const int centre[2] = { 12, 15 };
            const float range[2] = { 1000, -1000 };
            knob.SetSizeM(size);
            knob.SetRotPosM(position, centre);
            knob.SetAngleM(range, 1, angle);
            knob.SetBmpM(background.path(), pointer.path());
            ASSERT_EQ(knob.Create(&parent), 1);
            CBitmap drawn;
            drawn.CreateCompatibleBitmap(&screen, 40, 40);
            CDC to;
            to.CreateCompatibleDC(&screen);
            const HGDIOBJ oldTo = ::SelectObject(to.m_hDC, drawn.m_hObject);
            knob.drawRotM(&to, angle);
            // The same with calls of the window system.
            std::vector<COLORREF> wanted(static_cast<size_t>(16 * h));
            for (int y = 0; y < h; ++y) {
                for (int x = 0; x < 16; ++x) {
                    wanted[static_cast<size_t>(y * 16 + x)]
                        = asShown(ground[static_cast<size_t>(y + 6)][static_cast<size_t>(x + 5)]);
                }
            }
            const float r = angle * 3.1415925F / 180;
            const auto s = static_cast<float>(std::sin(double { r }));
            const auto c = static_cast<float>(std::cos(double { r }));
            const auto rounded = [](float value) {
                const int whole = static_cast<int>(value);
                return value - static_cast<float>(whole) > 0.4F ? whole + 1 : whole;
            };
            for (int j = 0; j < h; ++j) {
                for (int i = 0; i < 16; ++i) {
                    const COLORREF p = from.GetPixel(i, j);
                    const auto x = static_cast<float>(i - 7);
                    const auto y = static_cast<float>(9 - j);
                    const int px = rounded(c * x - s * y + 7);
                    const int row = 16 - rounded(s * x + c * y + 9);
                    for (int column = px; p != 0xFFFFFF && row >= 0 && row < h && column <= px + 1;
                         ++column) {
                        if (column >= 0 && column < 16) {
                            wanted[static_cast<size_t>(row * 16 + column)] = p;
                        }
                    }
                }
            }
            int differences = 0;
            for (int y = 0; y < h; ++y) {
                for (int x = 0; x < 16; ++x) {
                    differences
                        += to.GetPixel(5 + x, 6 + y) != wanted[static_cast<size_t>(y * 16 + x)] ? 1 : 0;
                }
            }
            EXPECT_EQ(differences, 0) << h << " at " << angle;
            ::SelectObject(to.m_hDC, oldTo);
        }
        ::SelectObject(from.m_hDC, oldFrom);
    }
}

TEST(RotateBtn, ExtremePositionsAndMissingPicturesDrawNothingAndDoNoHarm)
{
    const KnobCL distant("2147483647 -2147483648 -2147483648 2147483647 1 -1 1 -1 30 1 90 0 45 0");
    EXPECT_EQ(distant.dialog.PixelM(11, 20, 20), asShown(Blue));
    const KnobCL away("-15 -15 2000000000 7 1 -1 2147483647 -1 30 1 90 0 0 1");
    const MessageRecorder messages(away.dialog.m_hWnd);
    ClickM(away.WindowM(), 20, 20);
    EXPECT_EQ(messages.ListM(), (MessageListTP { "posted 1424 w=11 l=-2147483648" }));
    PicturedDialogCL bare(
        "[旋转按钮]\n1\n0\n1 11 20 30 40 40 0 0 20 20 1 -1 1 -1 30 1 90 0 0 0\nNULL\nNULL\nNULL\n");
    ClickM(bare.ItemM(11), 20, 20);
    EXPECT_EQ(bare.ControlM<DuRotateBtnCL>(11)->GetAngleM(), 30.0F);
}

namespace {

// The application's main window: allows what `allows` says and counts the queries.
class MainWindowCL : public PlainWindowCL
{
public:
    MainWindowCL()
    {
        app_.m_pMainWnd = this;
        ActivateM(m_hWnd);
    }
    ~MainWindowCL() override { app_.m_pMainWnd = nullptr; }
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message == 1361) {
            ++queries;
            *reinterpret_cast<int*>(wParam) = allows;
        }
        return PlainWindowCL::WindowProc(message, wParam, lParam);
    }
    int allows { 1 };
    int queries { 0 };

private:
    CWinApp app_;
};

// A new rotate button with id 11 in the main window, with pictures of grey shades 0..count-1.
struct SeriesCL
{
    explicit SeriesCL(int count, int index, int left = 1, int right = -1, bool cycled = false)
    {
        VrStringArr names;
        for (int i = 0; i < count; ++i) {
            files.push_back(
                std::make_unique<SmallPictureCL>(0x101010U * static_cast<unsigned>(i + 1), 30, 30));
            VrStringCL name(AliveTag);
            name.AddStringM(files.back()->path());
            names.AddItemM(name);
        }
        const int position[2] = { 20, 20 };
        const int size[2] = { 30, 30 };
        const int steps[2] = { left, right };
        button.SetFunctionIDM(11);
        button.SetPositionM(position);
        button.SetSizeM(size);
        button.InitialM(steps, index, names);
        button.SetIsCycledM(cycled ? 1 : 0);
        button.Create(&window);
        SettleM();
    }
    int ShownM()
    {
        PumpPending();
        return static_cast<int>(Pixels(button.m_hWnd).AtM(5, 5) & 0xFF) / 16 - 1;
    }
    MainWindowCL window;
    std::vector<std::unique_ptr<SmallPictureCL>> files;
    DuNewRotateBtnCL button;
};

const std::set<UINT> ButtonMessages { 1224, 1225, 1424, 1625 };

} // namespace

TEST(NewRotateBtn, ClickPostsThePressAndSendsTheRelease)
{
    SeriesCL series(8, 3);
    const MessageRecorder messages(series.window.m_hWnd, ButtonMessages);
    ClickM(series.button.m_hWnd, 5, 5);
    EXPECT_EQ(series.button.GetCurIndxM(), 4);
    EXPECT_EQ(series.ShownM(), 4);
    ClickM(series.button.m_hWnd, 5, 5, Button::Right);
    EXPECT_EQ(series.ShownM(), 3);
    series.button.SetTouchWinClickAsMouseKeyM(3);
    ClickM(series.button.m_hWnd, 5, 5);
    EXPECT_EQ(series.ShownM(), 6);
    EXPECT_EQ(messages.ListM(),
        (MessageListTP { "posted 1224 w=11 l=1", "sent 1225 w=11 l=1", "posted 1224 w=11 l=-1",
            "sent 1225 w=11 l=-1", "posted 1224 w=11 l=3", "sent 1225 w=11 l=3" }));
}

TEST(NewRotateBtn, SecondOfTwoFastClicksIsAClickToo)
{
    SeriesCL series(8, 3, 2, -1);
    const MessageRecorder messages(series.window.m_hWnd, ButtonMessages);
    DoubleClickM(series.button.m_hWnd, 5, 5);
    EXPECT_EQ(series.ShownM(), 7);
    DoubleClickM(series.button.m_hWnd, 5, 5, Button::Right);
    EXPECT_EQ(series.ShownM(), 5);
    EXPECT_EQ(series.window.queries, 4);
    EXPECT_EQ(messages.ListM(),
        (MessageListTP { "posted 1224 w=11 l=2", "sent 1225 w=11 l=2", "posted 1224 w=11 l=2",
            "sent 1225 w=11 l=2", "posted 1224 w=11 l=-1", "sent 1225 w=11 l=-1", "posted 1224 w=11 l=-1",
            "sent 1225 w=11 l=-1" }));
}

TEST(NewRotateBtn, LastPictureIsFollowedByTheFirstOnlyWhenCycled)
{
    {
        SeriesCL cycled(8, 7, 1, -1, true);
        const MessageRecorder messages(cycled.window.m_hWnd, { 1225 });
        ClickM(cycled.button.m_hWnd, 5, 5);
        EXPECT_EQ(cycled.ShownM(), 0);
        EXPECT_EQ(messages.ListM(), (MessageListTP { "sent 1225 w=11 l=1" }));
    }
    SeriesCL plain(8, 7);
    const MessageRecorder messages(plain.window.m_hWnd, { 1225 });
    ClickM(plain.button.m_hWnd, 5, 5);
    EXPECT_EQ(plain.ShownM(), 7);
    EXPECT_EQ(messages.ListM(), MessageListTP {});
}

TEST(NewRotateBtn, BelowTheFirstPictureCycledGoesToTheLastWhateverTheStep)
{
    SeriesCL series(8, 0, -3, 20, true);
    ClickM(series.button.m_hWnd, 5, 5);
    EXPECT_EQ(series.ShownM(), 7);
    ClickM(series.button.m_hWnd, 5, 5, Button::Right);
    EXPECT_EQ(series.ShownM(), 3); // 27 mod 8.
}

TEST(NewRotateBtn, WhileHeldEachTimerStepMovesOneStepWithoutAMessage)
{
    SeriesCL series(8, 0, 1, 2);
    series.button.SetTouchWinClickAsMouseKeyM(2);
    const MessageRecorder messages(series.window.m_hWnd, ButtonMessages);
    series.button.OnTimerM(); // Nothing is held.
    EXPECT_EQ(series.ShownM(), 0);
    MoveMouseToM(series.button.m_hWnd, 5, 5);
    PressM(Button::Right);
    EXPECT_EQ(::GetCapture(), series.button.m_hWnd);
    series.button.OnTimerM();
    EXPECT_EQ(series.ShownM(), 2);
    series.button.OnTimerM();
    EXPECT_EQ(series.ShownM(), 4);
    MoveMouseToM(series.button.m_hWnd, 100, 100); // Where it is released does not matter.
    ReleaseM(Button::Right);
    EXPECT_EQ(series.button.GetCurIndxM(), 4); // 4 + 2 * 2 is behind the last.
    series.button.OnTimerM();
    EXPECT_EQ(series.button.GetCurIndxM(), 4);
    EXPECT_EQ(::GetCapture(), nullptr);
    series.button.SetTouchWinClickAsMouseKeyM(1);
    ClickM(series.button.m_hWnd, 5, 5, Button::Right);
    EXPECT_EQ(series.ShownM(), 6);
    EXPECT_EQ(messages.ListM(),
        (MessageListTP { "posted 1224 w=11 l=4", "posted 1224 w=11 l=2", "sent 1225 w=11 l=2" }));
}

TEST(NewRotateBtn, ReleaseAddsAStepTimesTheMultiplierToTheHeldOnes)
{
    SeriesCL series(12, 0, -1, 2);
    series.button.SetTouchWinClickAsMouseKeyM(3);
    const MessageRecorder messages(series.window.m_hWnd, ButtonMessages);
    MoveMouseToM(series.button.m_hWnd, 5, 5);
    PressM(Button::Right);
    series.button.OnTimerM();
    series.button.OnTimerM();
    EXPECT_EQ(series.ShownM(), 4);
    ReleaseM(Button::Right);
    EXPECT_EQ(series.ShownM(), 10);
    EXPECT_EQ(messages.ListM(), (MessageListTP { "posted 1224 w=11 l=6", "sent 1225 w=11 l=6" }));
}

TEST(NewRotateBtn, StopsTurningWhenTheMouseIsTakenAway)
{
    SeriesCL series(8, 0);
    const MessageRecorder messages(series.window.m_hWnd, ButtonMessages);
    MoveMouseToM(series.button.m_hWnd, 5, 5);
    PressM();
    series.button.OnTimerM();
    EXPECT_EQ(series.ShownM(), 1);
    ::SetCapture(series.window.m_hWnd); // As a message box does: the release goes there.
    series.button.OnTimerM();
    EXPECT_EQ(series.ShownM(), 1);
    ::ReleaseCapture();
    ReleaseM();
    series.button.OnTimerM();
    EXPECT_EQ(series.ShownM(), 1);
    ClickM(series.button.m_hWnd, 5, 5);
    EXPECT_EQ(series.ShownM(), 2);
    EXPECT_EQ(messages.ListM(),
        (MessageListTP { "posted 1224 w=11 l=1", "posted 1224 w=11 l=1", "sent 1225 w=11 l=1" }));
}

TEST(NewRotateBtn, WithoutPermissionNothingHappens)
{
    SeriesCL series(8, 3);
    series.window.allows = 0;
    const MessageRecorder messages(series.window.m_hWnd, ButtonMessages);
    ClickM(series.button.m_hWnd, 5, 5);
    series.button.OnTimerM();
    EXPECT_EQ(series.window.queries, 1); // Asked at the press only.
    EXPECT_EQ(series.button.GetCurIndxM(), 3);
    EXPECT_EQ(messages.ListM(), MessageListTP {});
}

TEST(NewRotateBtn, SecondButtonPressedWhileTheFirstIsHeldTakesOverWithoutAReport)
{
    SeriesCL series(8, 0, 1, 2);
    const MessageRecorder messages(series.window.m_hWnd, ButtonMessages);
    MoveMouseToM(series.button.m_hWnd, 5, 5);
    PressM();
    PressM(Button::Right);
    series.button.OnTimerM();
    EXPECT_EQ(series.ShownM(), 2);
    ReleaseM(Button::Right);
    EXPECT_EQ(series.ShownM(), 4);
    EXPECT_EQ(::GetCapture(), nullptr);
    ReleaseM(); // The click is over.
    EXPECT_EQ(series.ShownM(), 4);
    EXPECT_EQ(messages.ListM(), (MessageListTP { "posted 1224 w=11 l=1", "sent 1225 w=11 l=2" }));
}

TEST(NewRotateBtn, ReleaseAfterPermissionWasWithdrawnMovesNothing)
{
    SeriesCL series(8, 3);
    const MessageRecorder messages(series.window.m_hWnd, ButtonMessages);
    MoveMouseToM(series.button.m_hWnd, 5, 5);
    PressM();
    series.window.allows = 0;
    PressM(Button::Right); // Asks anew.
    ReleaseM(Button::Right);
    EXPECT_EQ(::GetCapture(), nullptr);
    series.button.OnTimerM(); // Not turned on for ever.
    ReleaseM();
    EXPECT_EQ(series.ShownM(), 3);
    EXPECT_EQ(series.window.queries, 2);
    series.window.allows = 1;
    ClickM(series.button.m_hWnd, 5, 5);
    EXPECT_EQ(series.ShownM(), 4);
    EXPECT_EQ(::GetCapture(), nullptr);
    EXPECT_EQ(messages.ListM(),
        (MessageListTP { "posted 1224 w=11 l=1", "posted 1224 w=11 l=1", "sent 1225 w=11 l=1" }));
}

namespace {

// A main window that destroys its new rotate button at one of the messages it gets from it.
class DestroyingWindowCL : public MainWindowCL
{
public:
    explicit DestroyingWindowCL(UINT message)
        : message_(message)
    {
        const int size[2] = { 30, 30 };
        const int steps[2] = { 1, 1 };
        const SmallPictureCL picture(Red, 30, 30);
        VrStringCL name(AliveTag);
        VrStringArr names;
        name.AddStringM(picture.path());
        names.AddItemM(name);
        button_ = new (memory_) DuNewRotateBtnCL;
        button_->SetSizeM(size);
        button_->InitialM(steps, 0, names);
        button_->SetIsCycledM(1);
        button_->Create(this);
        SettleM();
    }
    ~DestroyingWindowCL() override { destroyM(); }
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        const LRESULT result = MainWindowCL::WindowProc(message, wParam, lParam);
        if (message == message_) {
            destroyM();
        }
        return result;
    }
    HWND ButtonM() const { return button_->m_hWnd; }
    bool IsLeftAloneM() const
    {
        return button_ == nullptr
            && std::all_of(std::begin(memory_), std::end(memory_), [](auto byte) { return byte == Gone; });
    }

private:
    void destroyM()
    {
        if (button_ != nullptr) {
            button_->~DuNewRotateBtnCL();
            button_ = nullptr;
            std::fill(std::begin(memory_), std::end(memory_), Gone);
        }
    }

    static constexpr unsigned char Gone = 0xDD;
    alignas(DuNewRotateBtnCL) unsigned char memory_[sizeof(DuNewRotateBtnCL)];
    DuNewRotateBtnCL* button_;
    UINT message_;
};

} // namespace

TEST(NewRotateBtn, ButtonDestroyedByWhatItTellsIsNotTouchedAgain)
{
    DestroyingWindowCL released(1225);
    ClickM(released.ButtonM(), 5, 5);
    EXPECT_TRUE(released.IsLeftAloneM());
    EXPECT_EQ(::GetCapture(), nullptr);
}

TEST(NewRotateBtn, ButtonDestroyedWhenItAsksForPermissionIsNotTouchedAgain)
{
    DestroyingWindowCL asked(1361);
    MoveMouseToM(asked.ButtonM(), 5, 5);
    PressM();
    ReleaseM();
    EXPECT_TRUE(asked.IsLeftAloneM());
    EXPECT_EQ(::GetCapture(), nullptr);
}

TEST(NewRotateBtn, PointerIsReportedToTheParentWithTheDescription)
{
    class ReportedCL : public MainWindowCL
    {
    public:
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
        {
            if (message == 3044) {
                const auto* report = reinterpret_cast<PointerReportCL*>(wParam);
                CPoint at(report->x, report->y);
                report->control->ScreenToClient(&at);
                last = std::to_string(at.x) + " " + std::to_string(at.y) + " "
                    + reinterpret_cast<const char*>(lParam);
            }
            return MainWindowCL::WindowProc(message, wParam, lParam);
        }
        std::string last;
    };
    ReportedCL window;
    DuNewRotateBtnCL button;
    const int size[2] = { 30, 30 };
    button.SetSizeM(size);
    button.SetDescriptM("volume");
    ASSERT_EQ(button.Create(&window), 1);
    SettleM();
    MoveMouseToM(button.m_hWnd, 12, 13);
    EXPECT_EQ(window.last, "12 13 volume");
}

TEST(NewRotateBtn, IndexWithoutAPictureDrawsNothingAndNoPictureMeansNoStep)
{
    SeriesCL empty(0, 0, 1, -1, true);
    const MessageRecorder messages(empty.window.m_hWnd, { 1225 });
    ClickM(empty.button.m_hWnd, 5, 5);
    EXPECT_EQ(empty.button.GetCurIndxM(), 0);
    EXPECT_EQ(messages.ListM(), MessageListTP {});
    DuNewRotateBtnCL fresh;
    EXPECT_EQ(fresh.GetCurIndxM(), -1);
}

TEST(NewRotateBtn, RecordFillsTheControl)
{
    const SmallPictureCL picture(Green, 30, 30);
    const std::string path = picture.path();
    const std::string name = path.substr(path.find_last_of("/\\") + 1);
    const DescriptionFileCL file("[窗口中新旋转按钮数据]\n-1 -1\n1 0 77 5 6 30 30 1 -1 1 4 音量\n"
                                 "[新旋转按钮对应的图片]\n1 1\n0 0 1 "
        + name.substr(0, name.size() - 4) + "\n");
    VrIOCL io;
    io.OpenM(file.path(), "r");
    DVrNewRotateBtnArr records;
    ASSERT_EQ(records.FmReadInterfaceM(&io), 1);
    MainWindowCL window;
    DuNewRotateBtnCL button;
    EXPECT_EQ(records.InitNewRotateBtnM(1, &button), 0);
    EXPECT_EQ(records.InitNewRotateBtnM(-1, &button), 0);
    EXPECT_EQ(records.InitNewRotateBtnM(0, &button), 1);
    ASSERT_EQ(button.Create(&window), 1);
    EXPECT_EQ(placeOf(button.m_hWnd), "5 6 30 30");
    EXPECT_EQ(::GetDlgCtrlID(button.m_hWnd), 77);
    EXPECT_EQ(button.GetShowConditionM(), 4);
    EXPECT_EQ(slGbkToUtf8(button.GetDescriptM()), "音量");
    EXPECT_EQ(button.GetCurIndxM(), 1);
    PumpPending();
    EXPECT_EQ(Pixels(button.m_hWnd).AtM(5, 5), asShown(Green));
}
