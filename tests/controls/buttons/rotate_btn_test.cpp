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
