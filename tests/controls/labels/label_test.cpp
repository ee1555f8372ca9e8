#include "controls/labels/label.h"
#include "support/message_recorder.h"
#include "support/pixels.h"
#include "support/pump.h"
#include "support/test_dialog.h"
#include <gtest/gtest.h>

using namespace testing_support;

namespace {

// One label of a description with the given own fields.
struct LabelCL
{
    explicit LabelCL(const std::string& own)
        : dialog(HeaderSections + ("[标题]\n1\n0\n1 11 20 30 120 40 " + own))
    {
    }
    HWND WindowM() const { return dialog.ItemM(11); }
    TestDialogCL dialog;
};

} // namespace

TEST(Label, WindowHasPlaceTextAndIdOfItsRecord)
{
    const LabelCL label("1\n最大转速\n0 -1 0 0\n");
    ASSERT_NE(label.WindowM(), nullptr);
    EXPECT_EQ(placeOf(label.WindowM()), "20 30 120 40");
    EXPECT_EQ(textOf(label.WindowM()), "最大转速");
    wchar_t name[32] = L"";
    ::GetClassNameW(label.WindowM(), name, 32);
    EXPECT_STREQ(name, L"Static");
}

TEST(Label, StyleFollowsAlignment)
{
    constexpr DWORD Base = 0x50020100; // Child, visible, group, notify.
    for (const int left : { 1, 2, 0, -1, 5 }) {
        EXPECT_EQ(styleOf(LabelCL(std::to_string(left) + "\nx\n0 -1 0 0\n").WindowM()), Base) << left;
    }
    EXPECT_EQ(styleOf(LabelCL("3\nx\n0 -1 0 0\n").WindowM()), Base | SS_CENTER);
    EXPECT_EQ(styleOf(LabelCL("4\nx\n0 -1 0 0\n").WindowM()), Base | SS_RIGHT);
}

TEST(Label, EdgeOneIsASunkenBorderAndAnyOtherNone)
{
    const LabelCL sunken("1\nx\n1 -1 0 0\n");
    EXPECT_EQ(styleOf(sunken.WindowM()) & WS_BORDER, static_cast<DWORD>(WS_BORDER));
    EXPECT_EQ(exStyleOf(sunken.WindowM()) & WS_EX_CLIENTEDGE, static_cast<DWORD>(WS_EX_CLIENTEDGE));
    const LabelCL flat("1\nx\n2 -1 0 0\n");
    EXPECT_EQ(styleOf(flat.WindowM()) & WS_BORDER, 0U);
    EXPECT_EQ(exStyleOf(flat.WindowM()) & WS_EX_CLIENTEDGE, 0U);
}

TEST(Label, BackgroundColourFillsTheLabelAndNoneTakesTheDialogs)
{
    LabelCL red("1\nnull\n0 255 0 0\n");
    red.dialog.ShowWindow(SW_SHOW);
    PumpPending();
    EXPECT_EQ(Pixels(red.WindowM()).AtM(60, 20), RGB(255, 0, 0));
    LabelCL plain("1\nnull\n0 -1 0 0\n");
    plain.dialog.ShowWindow(SW_SHOW);
    PumpPending();
    EXPECT_EQ(Pixels(plain.WindowM()).AtM(60, 20), ::GetSysColor(COLOR_BTNFACE));
}

TEST(Label, EachColourRequestReplacesTheBrushAndNoneLeaks)
{
    PlainWindowCL parent;
    DuLabelCL label;
    label.SetBkColorM(RGB(0, 255, 0));
    label.SetBkColorFlagM(1);
    label.Create(&parent);
    const HDC dc = ::GetDC(label.m_hWnd);
    // More requests than a process can hold GDI objects.
    for (int i = 0; i < 70000; ++i) {
        const auto brush = reinterpret_cast<HBRUSH>(::SendMessageW(parent.m_hWnd, WM_CTLCOLORSTATIC,
            reinterpret_cast<WPARAM>(dc), reinterpret_cast<LPARAM>(label.m_hWnd)));
        LOGBRUSH description {};
        ASSERT_NE(::GetObjectW(brush, sizeof description, &description), 0) << i;
        ASSERT_EQ(description.lbColor, RGB(0, 255, 0));
    }
    EXPECT_EQ(::GetBkColor(dc), RGB(0, 255, 0));
    ::ReleaseDC(label.m_hWnd, dc);
    label.destroyM();
}

TEST(Label, InitialTextRefusesTheEmptyTextAndTouchesNoWindow)
{
    PlainWindowCL parent;
    DuLabelCL label;
    EXPECT_EQ(label.SetInitTextM("first"), 1);
    EXPECT_EQ(label.SetInitTextM(""), 0);
    EXPECT_EQ(label.SetInitTextM(nullptr), 0);
    label.Create(&parent);
    EXPECT_EQ(textOf(label.m_hWnd), "first");
    EXPECT_EQ(label.SetInitTextM("second"), 1);
    EXPECT_EQ(textOf(label.m_hWnd), "first");
}

TEST(Label, SetTextShowsAtOnceAlsoTheEmptyText)
{
    LabelCL label("1\nx\n0 -1 0 0\n");
    auto* control = dynamic_cast<DuLabelCL*>(CWnd::FromHandlePermanent(label.WindowM()));
    ASSERT_NE(control, nullptr);
    EXPECT_EQ(control->SetTextM(slUtf8ToGbk("转速").c_str()), 1);
    EXPECT_EQ(textOf(label.WindowM()), "转速");
    EXPECT_EQ(control->SetTextM(""), 1);
    EXPECT_EQ(textOf(label.WindowM()), "");
}

TEST(Label, TextTooLongForItsBufferIsCutAtACharacter)
{
    PlainWindowCL parent;
    DuLabelCL label;
    label.Create(&parent);
    label.SetTextM((std::string(258, 'x') + "\xD6\xD0" + std::string(5000, 'y')).c_str());
    EXPECT_EQ(textOf(label.m_hWnd), std::string(258, 'x'));
}

TEST(Label, FocusIsReportedToTheParentByPost)
{
    PlainWindowCL parent;
    DuLabelCL label;
    label.SetFunctionIDM(77);
    label.Create(&parent);
    MessageRecorder recorder(parent.m_hWnd, { 1625 });
    ::SetFocus(label.m_hWnd);
    PumpPending();
    EXPECT_EQ(recorder.ListM(), std::vector<std::string> { "posted 1625 w=77 l=0" });
}

TEST(Label, SetZOrderStacksBehindAnotherAndShows)
{
    PlainWindowCL parent;
    DuLabelCL first;
    DuLabelCL second;
    first.Create(&parent);
    second.Create(&parent);
    second.ShowWindow(SW_HIDE);
    first.SetZOrderM(&second);
    EXPECT_EQ(::GetWindow(second.m_hWnd, GW_HWNDNEXT), first.m_hWnd);
    EXPECT_EQ(second.SetZOrderM(&first), 1);
    EXPECT_EQ(::GetWindow(first.m_hWnd, GW_HWNDNEXT), second.m_hWnd);
    EXPECT_TRUE(styleOf(second.m_hWnd) & WS_VISIBLE);
}
