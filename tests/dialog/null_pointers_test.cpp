// Null where the controls of every kind and the host want a pointer: refused, nothing changes.
#include "controls/buttons/new_rotate_btn.h"
#include "controls/buttons/new_rotate_btn_record.h"
#include "controls/text/text_box.h"
#include "controls/text/tool_tip.h"
#include "dialog/reading_diagnostics.h"
#include "dialog/relation.h"
#include "support/small_picture.h"
#include "support/test_dialog.h"
#include <gtest/gtest.h>

namespace {

// A control of its own, with a window.
template <class ControlTP> struct MadeCL
{
    MadeCL()
    {
        const int size[2] = { 80, 60 };
        control.SetSizeM(size);
        control.SetFunctionIDM(7);
        EXPECT_EQ(control.Create(&parent), 1);
    }
    ControlTP* operator->() { return &control; }
    PlainWindowCL parent;
    ControlTP control { AliveTag };
};

} // namespace

TEST(NullPointers, RecordsFillNoControl)
{
    slEachKind([](auto row) {
        using RowTP = decltype(row);
        using RecordsTP = typename RowTP::Records;
        SCOPED_TRACE(RecordsTP::KindName);
        RecordsTP records;
        records.AddItemM(typename RecordsTP::RecordTP(AliveTag));
        // A tree without a control is none to fill.
        EXPECT_EQ((records.*RowTP::InitM)(0, nullptr), RowTP::Code == TreeCode ? 1 : 0);
        if constexpr (!std::is_null_pointer_v<decltype(RowTP::FillM)>) {
            EXPECT_EQ((records.*RowTP::FillM)(0, nullptr), 0);
        }
    });
    DVrNewRotateBtnArr buttons;
    buttons.AddItemM(DVrNewRotateBtnCL(AliveTag));
    EXPECT_EQ(buttons.InitNewRotateBtnM(0, nullptr), 0);
    EXPECT_EQ(DVrTreeCL(AliveTag).InitTreeM(nullptr), 1);
}

TEST(NullPointers, ControlsNeedAParent)
{
    slEachKind([](auto row) {
        using ControlsTP = typename decltype(row)::Controls;
        SCOPED_TRACE(static_cast<int>(row.Code));
        ControlsTP controls;
        controls.AddItemM(typename ControlsTP::ControlTP(AliveTag));
        EXPECT_EQ(controls.Create(nullptr), 0);
        EXPECT_EQ(controls.ElementAtM(0).m_hWnd, nullptr);
    });
    DuNewRotateBtnCL button(AliveTag);
    EXPECT_EQ(button.Create(nullptr), 0);
}

TEST(NullPointers, ButtonsKeepWhatTheyHave)
{
    MadeCL<DuLabelCL> label;
    label->SetTextM("kept");
    EXPECT_EQ(label->SetTextM(nullptr), 0);
    EXPECT_EQ(label->SetInitTextM(nullptr), 0);
    EXPECT_EQ(textOf(label->m_hWnd), "kept");
    MadeCL<DuGroupBoxCL> box;
    box->SetTextM("kept");
    EXPECT_EQ(box->SetTextM(nullptr), 0);
    EXPECT_EQ(box->SetInitTextM(nullptr), 0);
    EXPECT_EQ(textOf(box->m_hWnd), "kept");
    DuStandardButtonCL button;
    EXPECT_EQ(button.SetTextM(nullptr), 0);
    DuCheckBoxCL check;
    EXPECT_EQ(check.SetTextM(nullptr), 0);
    DuRadioBoxCL radio;
    EXPECT_EQ(radio.SetTextM(nullptr), 0);
    EXPECT_EQ(radio.GetGroupNoM(nullptr), 0);
}

TEST(NullPointers, PictureButtonsKeepWhatTheyHave)
{
    DuBmpButtonCL button;
    EXPECT_EQ(button.SetBtnBmpM(nullptr, nullptr, nullptr, nullptr), 1); // None has a name: all stay.
    DuMultiStateButtonCL states;
    EXPECT_EQ(states.AddStatusM(5, nullptr), 0);
    EXPECT_EQ(states.GetCurStatusM(nullptr), 0);
    states.AddStatusM(5, "none.bmp");
    EXPECT_EQ(states.GetCurStatusM(nullptr), 0);
    DuRotateBtnCL knob;
    const float range[2] = { 90, 0 };
    const int pair[2] = { 1, 2 };
    EXPECT_EQ(knob.SetAngleM(range, 5, 30), 1);
    EXPECT_EQ(knob.SetAngleM(nullptr, 1, 2), 0);
    EXPECT_EQ(knob.GetAngleM(), 30.0F);
    EXPECT_EQ(knob.SetRotPosM(nullptr, pair), 0);
    EXPECT_EQ(knob.SetRotPosM(pair, nullptr), 0);
    EXPECT_EQ(knob.SetSignM(nullptr, pair), 0);
    EXPECT_EQ(knob.SetSignM(pair, nullptr), 0);
    EXPECT_EQ(knob.SetBmpM(nullptr, "a.bmp"), 0);
    EXPECT_EQ(knob.SetBmpM("a.bmp", nullptr), 0);
    knob.drawBkM(nullptr);
    knob.drawRotM(nullptr, 5);
    DuNewRotateBtnCL series;
    series.SetCurIndxM(3);
    EXPECT_EQ(series.InitialM(nullptr, 1, VrStringArr()), 0);
    EXPECT_EQ(series.GetCurIndxM(), 3);
    std::uint32_t pixel = 5;
    const PixelBlockCL block { &pixel, 1, 1 };
    slDrawRotated(block, block, nullptr, pair, 0);
    slDrawRotated(block, block, pair, nullptr, 0);
    slDrawRotated({ nullptr, 1, 1 }, block, pair, pair, 0);
    slDrawRotated(block, { nullptr, 1, 1 }, pair, pair, 0);
    EXPECT_EQ(pixel, 5U);
}

TEST(NullPointers, AnimationsKeepWhatTheyHave)
{
    const SmallPictureCL file(0x0000FF, 4, 4);
    DuNormalAnimateCL animation;
    EXPECT_EQ(animation.AddBmpM(nullptr), 0);
    EXPECT_EQ(animation.SetBmpM(0, nullptr), 0);
    animation.AddBmpM(file.path());
    animation.SetFirstIdxM();
    EXPECT_EQ(animation.GetCurIdxM(nullptr), 0);
    DuSpecAnimateCL special;
    EXPECT_EQ(special.AddBmpM(nullptr), 0);
}

TEST(NullPointers, ListBoxesTakeAndTellNothing)
{
    int number = 5;
    MadeCL<DuTextListBoxCL> texts;
    texts->AddItemM(1, "a");
    texts->SetCurSel(0);
    EXPECT_EQ(texts->AddItemM(2, nullptr), -1);
    EXPECT_EQ(texts->InsertItemM(0, 2, nullptr), 0);
    EXPECT_EQ(texts->GetCount(), 1);
    EXPECT_EQ(texts->GetItemM(nullptr, &number), 0);
    EXPECT_EQ(texts->GetItemM(&number, nullptr), 0);
    EXPECT_EQ(texts->GetSelNumM(nullptr), 0);
    MadeCL<DuBmpListBoxCL> bitmaps;
    const SmallPictureCL file(0x0000FF, 4, 4);
    ASSERT_EQ(bitmaps->AddItemM(1, file.path()), 0);
    bitmaps->SetSelM(0, 1);
    EXPECT_EQ(bitmaps->SetRowColNumM(nullptr), 0);
    EXPECT_EQ(bitmaps->AddItemM(1, nullptr), 0);
    EXPECT_EQ(bitmaps->InsertItemM(0, 1, nullptr), 0);
    EXPECT_EQ(bitmaps->GetSelNumM(nullptr), 0);
    EXPECT_EQ(bitmaps->GetFirstItemM(nullptr, &number), 0);
    EXPECT_EQ(bitmaps->GetFirstItemM(&number, nullptr), 0);
    EXPECT_EQ(bitmaps->GetNextItemM(-1, nullptr, nullptr), 0);
    bitmaps->MeasureItem(nullptr);
    bitmaps->DrawItem(nullptr);
    EXPECT_EQ(number, 5);
}

TEST(NullPointers, ComboBoxesTakeAndTellNothing)
{
    int number = 5;
    char text[TextSize] = "kept";
    MadeCL<DuComboBoxCL> combo;
    combo->AddItemM(1, "a");
    EXPECT_EQ(combo->AddItemM(2, nullptr), -1);
    EXPECT_EQ(combo->InsertItemM(0, 2, nullptr), 0);
    EXPECT_EQ(combo->GetCount(), 1);
    combo->SetSelM(0);
    EXPECT_EQ(combo->GetCurItemM(nullptr, &number, text), 0);
    EXPECT_EQ(combo->GetCurItemM(&number, nullptr, text), 0);
    EXPECT_EQ(combo->GetCurItemM(&number, &number, nullptr), 0);
    EXPECT_EQ(number, 5);
    EXPECT_STREQ(text, "kept");
}

TEST(NullPointers, TablesAndTreesTakeAndTellNothing)
{
    int number = 5;
    MadeCL<DuListCtrlCL> table;
    EXPECT_EQ(table->InsertColumnM(0, 50, nullptr), 0);
    ASSERT_EQ(table->InsertColumnM(0, 50, "a"), 1);
    EXPECT_EQ(table->InsertItemM(0, 1, nullptr), 0);
    ASSERT_EQ(table->InsertItemM(0, 1, "b"), 1);
    EXPECT_EQ(table->SetItemTextM(0, 0, nullptr), 0);
    table->SetSelM(0);
    EXPECT_EQ(table->GetRowNumM(nullptr), 0);
    EXPECT_EQ(table->GetSelNumM(nullptr), 0);
    EXPECT_EQ(table->GetFirstSelM(nullptr, &number), 0);
    EXPECT_EQ(table->GetFirstSelM(&number, nullptr), 0);
    EXPECT_EQ(table->GetNextSelM(-1, nullptr, &number), 0);
    EXPECT_EQ(table->GetNextSelM(-1, &number, nullptr), 0);
    EXPECT_EQ(table->GetCurSelM(nullptr, &number), 0);
    EXPECT_EQ(table->GetCurSelM(&number, nullptr), 0);
    EXPECT_EQ(number, 5);
    MadeCL<DuTreeCL> tree;
    const SmallPictureCL file(0x0000FF, 4, 4);
    EXPECT_EQ(tree->InsertItemM(TVI_ROOT, 1, nullptr, file.path(), file.path()), nullptr);
    EXPECT_EQ(tree->InsertItemM(TVI_ROOT, 1, "a", nullptr, file.path()), nullptr);
    EXPECT_EQ(tree->InsertItemM(TVI_ROOT, 1, "a", file.path(), nullptr), nullptr);
    EXPECT_EQ(tree->ImagesM().GetImageCount(), 0);
    const HTREEITEM item = tree->InsertItemM(TVI_ROOT, 1, "a", file.path(), file.path());
    ASSERT_NE(item, nullptr);
    tree->SelectItem(item);
    EXPECT_EQ(tree->GetCurSelM(nullptr), nullptr);
}

TEST(NullPointers, EditsKeepTheirValues)
{
    MadeCL<DuSingleEditCL> edit;
    edit->SetDataTypeM(TextType, 0);
    simpleValD limits;
    limits.numbers[1] = 99;
    edit->SetRangeM(limits);
    EXPECT_EQ(edit->SetValueM("kept"), 1);
    EXPECT_EQ(edit->SetValueM(static_cast<const char*>(nullptr)), 0);
    EXPECT_EQ(edit->GetValueM(static_cast<int*>(nullptr)), 0);
    EXPECT_EQ(edit->GetValueM(static_cast<float*>(nullptr)), 0);
    EXPECT_EQ(edit->GetValueM(static_cast<char*>(nullptr)), 0);
    EXPECT_EQ(edit->GetCurValM(nullptr), ValidValue);
    EXPECT_EQ(textOf(edit->m_hWnd), "kept");
    DuMultiEditCL many;
    many.SetMaxNumM(20);
    EXPECT_EQ(many.SetTextM("kept"), 1);
    EXPECT_EQ(many.SetTextM(nullptr), 0);
    EXPECT_EQ(many.SetInitTextM(nullptr), 0);
    EXPECT_EQ(many.GetTextM(nullptr), 0);
    char text[20] = "";
    many.GetTextM(text);
    EXPECT_STREQ(text, "kept");
    TypedValueCL value;
    EXPECT_EQ(value.GetValueM(nullptr), 0);
    slTripDot(nullptr, 2);
}

TEST(NullPointers, TextBoxKeepsItsLimitsAndText)
{
    PlainWindowCL parent;
    DuTextBox box;
    box.Create(WS_CHILD, CRect(0, 0, 50, 20), &parent, 5);
    const int limits[2] = { 0, 9 };
    box.SetMinMaxValM(limits);
    box.SetIntM(5, "%d");
    EXPECT_EQ(box.SetMinMaxValM(static_cast<const int*>(nullptr)), 0);
    EXPECT_EQ(box.SetMinMaxValM(static_cast<const float*>(nullptr)), 0);
    EXPECT_EQ(box.GetMinMaxValueM(nullptr), 0);
    EXPECT_EQ(box.GetMinMaxValM(nullptr), 0);
    EXPECT_EQ(box.GetIntM(nullptr), 0);
    EXPECT_EQ(box.GetRealM(nullptr), 0);
    EXPECT_EQ(box.GetStringM(nullptr), 0);
    EXPECT_EQ(box.SetIntM(6, nullptr), 0);
    EXPECT_EQ(box.SetRealM(0, nullptr), 0);
    EXPECT_EQ(box.SetStringM(nullptr, "%s"), 0);
    EXPECT_EQ(box.SetStringM("a", nullptr), 0);
    EXPECT_EQ(textOf(box.m_hWnd), "5");
}

TEST(NullPointers, ToolTipShowsNoText)
{
    uToolTipCtrl tip;
    tip.InitialM();
    EXPECT_EQ(tip.ShowHelpM(nullptr, CRect(0, 0, 50, 20), nullptr), 0);
    EXPECT_EQ(tip.m_hWnd, nullptr);
    tip.initFontM(nullptr);
}

TEST(NullPointers, HostBuildsInNoWindowAndAsksForEveryPlaceToWriteTo)
{
    const SmallPictureCL file(0x0000FF, 4, 4);
    TestDialogCL dialog(HeaderSections
        + std::string("[标题]\n1\n0\n1 11 0 0 50 20 1\na\n0 -1 0 0\n"
                      "[文本列表框]\n1\n0\n1 12 0 0 80 80 12 1 1 255 255 255 0\n"
                      "[文本列表框初始值]\n1\n0\n12 a\n"
                      "[单行文本]\n1\n0\n1 13 0 0 80 20 1 0 9 0 0 2 5 0 1 255 255 255\n"
                      "[普通动画控件]\n1\n0\n1 14 0 0 9 9 2 0 0 0\n[普通动画控件位图]\n1\n0\n14 ")
        + file.path() + "\n");
    const std::string before = dialog.StackM();
    EXPECT_EQ(dialog.InitDlgM(nullptr, 0), 0);
    EXPECT_EQ(dialog.InitDlgM(nullptr, 1), 0);
    EXPECT_EQ(dialog.StackM(), before);
    EXPECT_EQ(dialog.SetConfigFileM(nullptr), 0);
    EXPECT_EQ(dialog.DrawBkGroundM(nullptr, 0, 0), 0);
    EXPECT_EQ(dialog.GetContrlPtrM(11, nullptr), nullptr);
    int kind = 0;
    EXPECT_NE(dialog.GetContrlPtrM(11, &kind), nullptr);
    EXPECT_EQ(dialog.AddItemM(12, 0, nullptr), 0);
    EXPECT_EQ(dialog.GetNormalAnimateBmpIdxM(14, &kind), 1);
    EXPECT_EQ(dialog.GetNormalAnimateBmpIdxM(14, nullptr), 0);
    EXPECT_EQ(dialog.GetSingleEditValM(13, static_cast<int*>(nullptr)), 0);
    EXPECT_EQ(dialog.GetSingleEditValM(13, static_cast<float*>(nullptr)), 0);
    EXPECT_EQ(dialog.GetSingleEditValM(13, static_cast<char*>(nullptr)), 0);
    EXPECT_EQ(dialog.SetSingleEditValM(13, static_cast<const char*>(nullptr)), 0);
}

TEST(NullPointers, LinesOfATreeNeedATreeAndAPlace)
{
    const int numbers[3] = { 0, 1, 2 };
    DVrTreeCL record(AliveTag);
    record.AddStringM(numbers, "a", "b", "c");
    EXPECT_EQ(record.genTreeM(0, nullptr, nullptr), 0);
    TreeLinesCL lines;
    lines.AddM(nullptr, "a", "b", "c");
    EXPECT_EQ(lines.GetAvailableNumM(), 0);
    lines.AddM(numbers, "kept", "b", "c");
    lines.GenerateM(0, nullptr, nullptr);
    EXPECT_EQ(lines.GetAvailableNumM(), 1);
    EXPECT_STREQ(lines.LineM(0).text, "kept");
}

TEST(NullPointers, ArrowsNeedAParentAndNothingIsBehindNone)
{
    DuSpinButtonCL arrows;
    EXPECT_EQ(arrows.Create(CRect(0, 0, 9, 9), nullptr), 0);
    MadeCL<DuLabelCL> label;
    EXPECT_EQ(label->SetZOrderM(nullptr), 1);
    EXPECT_TRUE(::IsWindow(label->m_hWnd));
}

TEST(NullPointers, NobodyIsToldOfDiagnosticsAndRelationsThatNobodyWants)
{
    const DescriptionFileCL file("[相关对象信息]\n1\n0\n11 x 2 3\n[版本号]\n1.0\n");
    VrIOCL io;
    io.OpenM(file.path(), "r");
    ReadingDiagnosticsCL watching(nullptr, nullptr, false);
    watching.BeginBuildM();
    watching.WatchM(nullptr, io);
    EXPECT_NE(slReadRelations(io, nullptr), SectionStatus::Missing);
    DialogHeaderCL header;
    EXPECT_EQ(slReadDialogHeader(io, header), 0);
    int told = 0;
    const DiagnosticTP count = [](const DiagnosticCL&, void* context) { ++*static_cast<int*>(context); };
    ReadingDiagnosticsCL telling(count, &told, false);
    telling.WatchM(nullptr, io);
    slReadDialogHeader(io, header);
    EXPECT_GT(told, 0);
}

TEST(NullPointers, AFieldIsToldOfByNothing)
{
    MadeCL<DuSingleEditCL> edit;
    EXPECT_FALSE(slTellAboutField(nullptr, [] { FAIL(); }));
    EXPECT_FALSE(slTellAboutField(&edit.control, nullptr));
}

TEST(NullPointers, ValuesByIdTakeNone)
{
    TestDialogCL dialog(HeaderSections
        + std::string("[单行文本]\n1\n0\n1 13 0 0 80 20 3 0 9 0 0 2\nkept\n0 1 255 255 255\n"
                      "[文本列表框]\n1\n0\n1 12 0 0 80 80 12 1 1 255 255 255 0\n"
                      "[文本列表框初始值]\n1\n0\n12 a\n"));
    auto& values = dialog.ValuesM();
    EXPECT_FALSE(values.SetTextM(13, static_cast<const char*>(nullptr)));
    EXPECT_FALSE(values.SetTextM(13, static_cast<const wchar_t*>(nullptr)));
    EXPECT_FALSE(values.SetTextM(13, ValueTextCL::FromUtf8M(static_cast<const char*>(nullptr))));
    EXPECT_EQ(values.TextM(13, nullptr, 9), 5);
    EXPECT_EQ(values.Utf8TextM(13, nullptr, 9), 5);
    EXPECT_EQ(values.WideTextM(13, nullptr, 9), 5);
    EXPECT_FALSE(values.AddLineM(12, static_cast<const char*>(nullptr)));
    EXPECT_FALSE(values.InsertLineM(12, 0, static_cast<const wchar_t*>(nullptr)));
    EXPECT_EQ(values.TextM(13)->GbkM(nullptr), "kept");
    EXPECT_EQ(values.LineCountM(12), 1);
}
