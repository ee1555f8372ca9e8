#include "controls/labels/group_box.h"
#include "controls/labels/label.h"
#include "controls/labels/label_record.h"
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

TEST(Label, CommandsEnableDisableShowAndHide)
{
    PlainWindowCL parent;
    DuLabelCL label;
    label.Create(&parent);
    const DWORD before = styleOf(label.m_hWnd);
    EXPECT_EQ(label.SetItemCmdM(0), 1);
    EXPECT_EQ(label.SetItemCmdM(5), 1);
    EXPECT_EQ(label.SetItemCmdM(6), 0);
    EXPECT_EQ(label.SetItemCmdM(-1), 0);
    EXPECT_EQ(styleOf(label.m_hWnd), before);
    EXPECT_EQ(label.SetItemCmdM(2), 1);
    EXPECT_EQ(styleOf(label.m_hWnd) & WS_DISABLED, static_cast<DWORD>(WS_DISABLED));
    EXPECT_EQ(label.SetItemCmdM(1), 1);
    EXPECT_EQ(label.SetItemCmdM(4), 1);
    EXPECT_EQ(styleOf(label.m_hWnd) & (WS_DISABLED | WS_VISIBLE), 0U);
    EXPECT_EQ(label.SetItemCmdM(3), 1);
    EXPECT_EQ(styleOf(label.m_hWnd), before);
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

TEST(Label, CopyHasTheDescriptionButNoWindow)
{
    PlainWindowCL parent;
    DuLabelCL label(AliveTag);
    label.SetFunctionIDM(7);
    label.Create(&parent);
    DuLabelCL copy(label);
    EXPECT_EQ(copy.GetFunctionIDM(), 7);
    copy.SetLeftM(90); // Would move the label if the copy took it for its own.
    EXPECT_EQ(label.GetLeftM(), 0);
    const HWND window = label.m_hWnd;
    label = DuLabelCL(AliveTag);
    EXPECT_FALSE(::IsWindow(window)); // It showed what the label was before.
}

TEST(Label, DeletingDestroysTheWindowAndMarksTheElement)
{
    PlainWindowCL parent;
    DuLabelCL label(AliveTag);
    label.Create(&parent);
    const HWND window = label.m_hWnd;
    label.DelItemM();
    EXPECT_FALSE(::IsWindow(window));
    EXPECT_EQ(label.GetDeleteTagM(), 32);
}

namespace {

// Three labels with ids 1, 2, 2 in an array of their own.
struct LabelsCL
{
    LabelsCL()
    {
        labels.InitialSizeM(3);
        for (int i = 0; i < 3; ++i) {
            labels.SetItemM(DuLabelCL(AliveTag), i);
            labels[i].SetFunctionIDM(i == 0 ? 1 : 2);
        }
    }
    bool VisibleM(int i) { return (styleOf(labels[i].m_hWnd) & WS_VISIBLE) != 0; }
    PlainWindowCL parent;
    DuLabelArr labels;
};

} // namespace

TEST(LabelArray, EmptyArrayReportsZero)
{
    DuLabelArr labels;
    EXPECT_EQ(labels.Create(nullptr), 0);
    EXPECT_EQ(labels.SetItemCmdM(-1, 4), 0);
    EXPECT_EQ(labels.GetControlPtrM(1), nullptr);
}

TEST(LabelArray, CommandForMinusOneReachesAllAndForAnIdTheFirst)
{
    LabelsCL all;
    EXPECT_EQ(all.labels.Create(&all.parent), 1);
    EXPECT_EQ(all.labels.SetItemCmdM(-1, 4), 1);
    EXPECT_FALSE(all.VisibleM(0) || all.VisibleM(1) || all.VisibleM(2));
    EXPECT_EQ(all.labels.SetItemCmdM(2, 3), 1);
    EXPECT_TRUE(all.VisibleM(1));
    EXPECT_FALSE(all.VisibleM(0) || all.VisibleM(2));
    EXPECT_EQ(all.labels.SetItemCmdM(2, 9), 1);
    EXPECT_EQ(all.labels.SetItemCmdM(99, 3), 1);
    EXPECT_FALSE(all.VisibleM(0) || all.VisibleM(2));
}

TEST(LabelArray, LooksUpTheFirstControlWithAnId)
{
    LabelsCL all;
    EXPECT_EQ(all.labels.GetControlPtrM(2), &all.labels[1]);
    EXPECT_EQ(all.labels.GetControlPtrM(3), nullptr);
}

TEST(LabelArray, CreationStopsAtTheFirstFailure)
{
    LabelsCL all;
    CWnd nowhere; // A parent without a window: no child can be created.
    EXPECT_EQ(all.labels.Create(&nowhere), 0);
    EXPECT_EQ(all.labels[0].m_hWnd, nullptr);
}

TEST(LabelRecords, OnlyAliveRecordsAreApplied)
{
    const DescriptionFileCL file("1 11 2 3 4 5 1\nx\n0 -1 0 0");
    VrIOCL io;
    io.OpenM(file.path(), "r");
    DVrLabelCL record(AliveTag);
    record.FmReadInterfaceM(&io);
    DVrLabelArr records;
    records.AddItemM(record);
    records.AddItemM(record);
    records.AddItemM(record);
    records.DelItemM(1);
    DuLabelCL control;
    EXPECT_EQ(records.InitLabelM(1, &control), 1);
    EXPECT_EQ(records.InitLabelM(99, &control), 1);
    EXPECT_EQ(control.GetFunctionIDM(), 0);
    EXPECT_EQ(records.InitLabelM(2, &control), 1);
    EXPECT_EQ(control.GetFunctionIDM(), 11);
}

TEST(GroupBox, WindowHasStyleTextAndPlaceOfItsRecord)
{
    const TestDialogCL dialog(HeaderSections + std::string("[成组控件]\n1\n0\n1 11 20 30 120 40\nNULL\n"));
    const HWND window = dialog.ItemM(11);
    ASSERT_NE(window, nullptr);
    EXPECT_EQ(styleOf(window), 0x50010007U);
    EXPECT_EQ(textOf(window), "NULL"); // Not a word for no text here.
    EXPECT_EQ(placeOf(window), "20 30 120 40");
}

TEST(GroupBox, TextsAreAcceptedAlsoEmpty)
{
    PlainWindowCL parent;
    DuGroupBoxCL box;
    EXPECT_EQ(box.SetInitTextM("a"), 1);
    EXPECT_EQ(box.SetInitTextM(""), 1);
    box.Create(&parent);
    EXPECT_EQ(textOf(box.m_hWnd), "");
    EXPECT_EQ(box.SetTextM(slUtf8ToGbk("速度").c_str()), 1);
    EXPECT_EQ(textOf(box.m_hWnd), "速度");
    EXPECT_EQ(box.SetItemCmdM(9), 0);
    EXPECT_EQ(box.SetItemCmdM(2), 1);
    EXPECT_FALSE(box.IsWindowEnabled());
}
