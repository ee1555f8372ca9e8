// What single edits make of a file, byte for byte.
#include "baselib/gbk.h"
#include "baselib/gbk_texts.h"
#include "editing/description_editor.h"
#include "support/description_files.h"
#include <gtest/gtest.h>

namespace {

DescriptionEditorCL editorOf(const std::string& utf8)
{
    return DescriptionEditorCL(slUtf8ToGbk(utf8));
}

std::string textOf(const DescriptionEditorCL& editor)
{
    return slGbkToUtf8(editor.BytesM().data(), editor.BytesM().size());
}

DescriptionEditorCL everyKind()
{
    return DescriptionEditorCL(wholeFile(PANELKIT_SAMPLES "/every_kind.dlg"));
}

// A text with one part of it, which must be there, replaced.
std::string with(std::string text, const std::string& old, const std::string& now)
{
    const std::size_t at = text.find(old);
    EXPECT_NE(at, std::string::npos) << old;
    return at == std::string::npos ? text : text.replace(at, old.size(), now);
}

const char* const TwoLabels = "[标题]\r\n2\r\n1\r\n序号 功能号\r\n"
                              "\t3  103 100 0\t80 20 3  \r\n转速\r\n1 255 128 0\r\n\r\n"
                              "  4 104 100 30 80 20 1\r\nnull\r\n0 -1 0 0";

} // namespace

TEST(Editor, SetsANumberAndNothingElse)
{
    DescriptionEditorCL editor = editorOf(TwoLabels);
    EXPECT_EQ(editor.SetM({ { LabelHeader, 0 }, "position", 1 }, "-17"), EditResult::Done);
    EXPECT_EQ(textOf(editor), with(TwoLabels, "100 0\t80", "100 -17\t80"));
    ASSERT_EQ(editor.ChangesM().size(), 1U);
    EXPECT_EQ(editor.ChangesM()[0].text, "-17");
    EXPECT_EQ(editor.ChangesM()[0].span.end - editor.ChangesM()[0].span.begin, 1U);
}

TEST(Editor, SetsATextAndWritesTheWordForNone)
{
    DescriptionEditorCL editor = editorOf(TwoLabels);
    const ValuePlaceCL place { { LabelHeader, 0 }, "text" };
    EXPECT_EQ(editor.SetM(place, slUtf8ToGbk("进给 量")), EditResult::Done);
    EXPECT_EQ(textOf(editor), with(TwoLabels, "转速", "进给 量"));
    EXPECT_EQ(editor.SetM(place, ""), EditResult::Done);
    EXPECT_EQ(textOf(editor), with(TwoLabels, "转速", "NULL"));
}

TEST(Editor, SetsWhatTheDialogItselfSays)
{
    DescriptionEditorCL editor = everyKind();
    const std::string before = textOf(editor);
    EXPECT_EQ(editor.SetM({ { DialogHeader, 0 }, "size", 1 }, "481"), EditResult::Done);
    EXPECT_EQ(textOf(editor), with(before, "640 480", "640 481"));
}

TEST(Editor, RefusesWhatCannotStandThere)
{
    DescriptionEditorCL editor = editorOf(TwoLabels);
    const ValuePlaceCL number { { LabelHeader, 0 }, "size" };
    for (const char* const text : { "", "x", "1 2", " 1", "1.5", "99999999999" }) {
        EXPECT_EQ(editor.SetM(number, text), EditResult::BadValue) << text;
    }
    const ValuePlaceCL caption { { LabelHeader, 0 }, "text" };
    for (const std::string& text :
        { std::string("a\nb"), std::string("a\r"), std::string(" a"), std::string(300, 'a') }) {
        EXPECT_EQ(editor.SetM(caption, text), EditResult::BadValue) << text;
    }
    EXPECT_EQ(editor.SetM({ { LabelHeader, 2 }, "size" }, "1"), EditResult::NoSuchPlace);
    EXPECT_EQ(editor.SetM({ { LabelHeader, 0 }, "sizes" }, "1"), EditResult::NoSuchPlace);
    EXPECT_EQ(editor.SetM({ { LabelHeader, 0 }, nullptr }, "1"), EditResult::NoSuchPlace);
    EXPECT_EQ(editor.SetM({ { nullptr, 0 }, "size" }, "1"), EditResult::NoSuchPlace);
    EXPECT_EQ(editor.SetM({ { TreeHeader, 0 }, "size" }, "1"), EditResult::NoSuchPlace);
    EXPECT_EQ(textOf(editor), TwoLabels);
    EXPECT_FALSE(editor.UndoM());
}

TEST(Editor, RefusesATextThatWouldBeTakenForAHeader)
{
    DescriptionEditorCL editor
        = editorOf(std::string(TwoLabels) + "\r\n[成组控件]\r\n1\r\n0\r\n5 105 0 0 9 9\r\na\r\n");
    const std::string before = textOf(editor);
    EXPECT_EQ(editor.SetM({ { LabelHeader, 0 }, "text" }, GroupBoxHeader), EditResult::Misread);
    EXPECT_EQ(textOf(editor), before);
}

TEST(Editor, AnotherDataTypeTakesOtherValuesWithIt)
{
    const std::string edits = "[单行文本]\n1\n0\n5 105 0 50 60 20 1 -5 100 0 0 2 42 0 1 255 255 255\n";
    DescriptionEditorCL editor = editorOf(edits);
    const ValuePlaceCL type { { SingleEditHeader, 0 }, "data_type" };
    EXPECT_EQ(editor.SetM(type, "2"), EditResult::Done);
    EXPECT_EQ(textOf(editor), with(edits, "20 1 -5", "20 2 -5"));
    EXPECT_EQ(editor.SetM({ { SingleEditHeader, 0 }, "range", 0 }, "-0.5"), EditResult::Done);
    EXPECT_EQ(editor.SetM(type, "1"), EditResult::Done);
    EXPECT_EQ(textOf(editor), with(edits, "-5 100", "0 100"));
    EXPECT_EQ(editor.SetM(type, "3"), EditResult::Done);
    EXPECT_EQ(textOf(editor), "[单行文本]\n1\n0\n5 105 0 50 60 20 3 0 100 0 0 2 42\n0 1 255 255 255\n");
    EXPECT_EQ(editor.SetM({ { SingleEditHeader, 0 }, "initial" }, "a b"), EditResult::Done);
    EXPECT_EQ(editor.SetM(type, "1"), EditResult::Done);
    EXPECT_EQ(textOf(editor), "[单行文本]\n1\n0\n5 105 0 50 60 20 1 0 100 0 0 2 0\n0 1 255 255 255\n");
    EXPECT_EQ(editor.SetM(type, "7"), EditResult::BadValue);
}

TEST(Editor, InsertsARecordLaidOutLikeItsNeighbour)
{
    DescriptionEditorCL editor = editorOf(TwoLabels);
    EXPECT_EQ(
        editor.InsertM({ LabelHeader, 1 }, { { "text", 0, "new" }, { "size", 0, "33" } }), EditResult::Done);
    std::string expected = with(TwoLabels, "\r\n2\r\n", "\r\n3\r\n");
    expected = with(expected, "  4 104", "\t5  1001 0 0\t33 0 1  \r\nnew\r\n0 -1 191 191\r\n  4 104");
    EXPECT_EQ(textOf(editor), expected);
    EXPECT_EQ(editor.InsertM({ LabelHeader, 3 }), EditResult::Done);
    EXPECT_EQ(textOf(editor),
        with(expected, "\r\n3\r\n", "\r\n4\r\n") + "\r\n  6 1002 0 0 0 0 1\r\nNULL\r\n0 -1 191 191");
}

TEST(Editor, InsertsIntoASectionThatIsEmptyOrNotThere)
{
    DescriptionEditorCL editor = editorOf("[标题]\n0\n2\na\nb\n\n[树形控件]\n0\n\n[二维绘图控件]\n0");
    EXPECT_EQ(editor.InsertM({ LabelHeader, 0 }), EditResult::Done);
    EXPECT_EQ(textOf(editor),
        "[标题]\n1\n2\na\nb\n1 1001 0 0 0 0 1\nNULL\n0 -1 191 191\n\n[树形控件]\n0\n\n[二维绘图控件]\n0");
    EXPECT_EQ(editor.UndoM(), true);
    EXPECT_EQ(editor.InsertM({ TreeHeader, 0 }), EditResult::Done);
    EXPECT_EQ(textOf(editor), "[标题]\n0\n2\na\nb\n\n[树形控件]\n1\n0\n1 1001 0 0 0 0\n\n[二维绘图控件]\n0");
    EXPECT_EQ(editor.UndoM(), true);
    EXPECT_EQ(editor.InsertM({ Draw2DHeader, 0 }), EditResult::Done);
    EXPECT_EQ(
        textOf(editor), "[标题]\n0\n2\na\nb\n\n[树形控件]\n0\n\n[二维绘图控件]\n1\n0\n1 1001 0 0 0 0 0 0 0");
    EXPECT_EQ(editor.InsertM({ TreeDataHeader, 0 }, { { "function_id", 0, "7" }, { "text", 0, "a" } }),
        EditResult::Done);
    EXPECT_NE(textOf(editor).find("[树形控件]\n0\n\n[树形控件数据]\n1\n1\nfunction_id parent key data text / "
                                  "normal / selected\n7 0 0 0 a\nnormal\nselected\n"),
        std::string::npos)
        << textOf(editor);
}

TEST(Editor, AddsASectionWithACommentThatNamesItsValues)
{
    DescriptionEditorCL editor
        = editorOf("[版本号]\r\n1.0\r\n\r\n[对话框]\r\n0\r\n0 0 9 9 0 NULL\r\n14 2 4\r\nNULL\r\n\r\n"
                   "[成组控件]\r\n0\r\n");
    EXPECT_EQ(editor.AddSectionM(LabelHeader), EditResult::Done);
    EXPECT_EQ(textOf(editor),
        "[版本号]\r\n1.0\r\n\r\n[对话框]\r\n0\r\n0 0 9 9 0 NULL\r\n14 2 4\r\nNULL\r\n\r\n"
        "[标题]\r\n0\r\n1\r\nwindow_index function_id x y width height alignment / text / edge "
        "background\r\n\r\n"
        "[成组控件]\r\n0\r\n");
    EXPECT_EQ(editor.AddSectionM(LabelHeader), EditResult::NoSuchPlace);
    EXPECT_EQ(editor.AddSectionM(VersionHeader), EditResult::NoSuchPlace);
    EXPECT_EQ(editor.AddSectionM(nullptr), EditResult::NoSuchPlace);
}

TEST(Editor, DeletesARecordWithItsEntriesAndRelations)
{
    DescriptionEditorCL editor = everyKind();
    const std::string before = textOf(editor);
    EXPECT_EQ(editor.DeleteM({ TextListBoxHeader, 0 }), EditResult::Done);
    std::string expected = with(before, "1\n0\n11 111 0 130 90 60 16 2 1 255 255 255 1\n", "0\n0\n");
    expected = with(expected, "2\n0\n111 一\n111 二\n", "0\n0\n");
    EXPECT_EQ(textOf(editor), expected);
    EXPECT_EQ(editor.DeleteM({ LabelHeader, 0 }), EditResult::Done);
    expected = with(expected, "2\n1\n窗口", "1\n1\n窗口");
    expected = with(expected, "3 103 100 0 80 20 3\n转速\n1 255 128 0\n", "");
    expected = with(expected, "2\n1\n控件 值\n103 1 2 3\n", "1\n1\n控件 值\n");
    EXPECT_EQ(textOf(editor), expected);
    EXPECT_TRUE(editor.UndoM());
    EXPECT_TRUE(editor.UndoM());
    EXPECT_EQ(textOf(editor), before);
    EXPECT_FALSE(editor.UndoM());
    EXPECT_TRUE(editor.RedoM());
    EXPECT_TRUE(editor.RedoM());
    EXPECT_EQ(textOf(editor), expected);
    EXPECT_FALSE(editor.RedoM());
}

TEST(Editor, ButtonsNamedByPlaceKeepTheirPictures)
{
    DescriptionEditorCL editor = everyKind();
    const std::string before = textOf(editor);
    const std::string first = "25 1 125 0 410 40 40 1 -1 0 2\n音量\n";
    EXPECT_EQ(editor.MoveM({ NewRotateBtnHeader, 0 }, 2), EditResult::Done);
    std::string expected = with(before, first, "");
    expected = with(expected, "1 3\nNULL\n", "1 3\nNULL\n" + first);
    expected = with(expected, "0 0 0 knob_0\n0 0 2 knob_2.bmp\n0 1 1 knob_1",
        "0 1 0 knob_0\n0 1 2 knob_2.bmp\n0 0 1 knob_1");
    EXPECT_EQ(textOf(editor), expected);
    EXPECT_EQ(editor.MoveM({ NewRotateBtnHeader, 1 }, 0), EditResult::Done);
    EXPECT_EQ(textOf(editor), before);
    EXPECT_EQ(editor.DeleteM({ NewRotateBtnHeader, 0 }), EditResult::Done);
    expected = with(with(before, first, ""), "-2 -2\n", "-1 -2\n");
    expected = with(expected, "3 1\n0 0 0 knob_0\n0 0 2 knob_2.bmp\n0 1 1 knob_1", "1 1\n0 0 1 knob_1");
    EXPECT_EQ(textOf(editor), expected);
}

TEST(Editor, MovesARecordWithItsBlanks)
{
    DescriptionEditorCL editor = editorOf(TwoLabels);
    EXPECT_EQ(editor.MoveM({ LabelHeader, 0 }, 2), EditResult::Done);
    EXPECT_EQ(textOf(editor),
        "[标题]\r\n2\r\n1\r\n序号 功能号\r\n\r\n  4 104 100 30 80 20 1\r\nnull\r\n0 -1 0 0\r\n"
        "\t3  103 100 0\t80 20 3  \r\n转速\r\n1 255 128 0");
    EXPECT_EQ(editor.MoveM({ LabelHeader, 0 }, 1), EditResult::Done);
    EXPECT_TRUE(editor.ChangesM().empty());
    EXPECT_EQ(editor.MoveM({ LabelHeader, 0 }, 3), EditResult::NoSuchPlace);
}

TEST(Editor, RecordsMayShareLines)
{
    DescriptionEditorCL editor
        = editorOf("[相关对象信息]\n4\n0\n1 2 3 4 5 6 7 8\n9 10 11 12  13 14 15 16 end\n");
    EXPECT_EQ(editor.DeleteM({ RelationHeader, 0 }), EditResult::Done);
    EXPECT_EQ(textOf(editor), "[相关对象信息]\n3\n0\n5 6 7 8\n9 10 11 12  13 14 15 16 end\n");
    EXPECT_EQ(editor.UndoM(), true);
    EXPECT_EQ(editor.DeleteM({ RelationHeader, 1 }), EditResult::Done);
    EXPECT_EQ(textOf(editor), "[相关对象信息]\n3\n0\n1 2 3 4\n9 10 11 12  13 14 15 16 end\n");
    EXPECT_EQ(editor.MoveM({ RelationHeader, 2 }, 0), EditResult::Done);
    EXPECT_EQ(textOf(editor), "[相关对象信息]\n3\n0\n13 14 15 16\n1 2 3 4\n9 10 11 12  end\n");
}

TEST(Editor, DuplicatesARecordWithItsEntriesAndRelations)
{
    DescriptionEditorCL editor = everyKind();
    const std::string before = textOf(editor);
    EXPECT_EQ(editor.DuplicateM({ ListCtrlHeader, 0 }, 113), EditResult::IdTaken);
    EXPECT_EQ(editor.DuplicateM({ ListCtrlHeader, 0 }, 900), EditResult::Done);
    std::string expected = with(before, "1\n0\n14 114 300 130 200 90 2 0\n",
        "2\n0\n14 114 300 130 200 90 2 0\n14 900 300 130 200 90 2 0\n");
    expected = with(expected, "2\n0\n114 0 80 名称\n114 1 120 数值\n",
        "4\n0\n114 0 80 名称\n114 1 120 数值\n900 0 80 名称\n900 1 120 数值\n");
    expected = with(expected, "2\n0\n114 0 0 转速\n114 0 1 1200\n",
        "4\n0\n114 0 0 转速\n114 0 1 1200\n900 0 0 转速\n900 0 1 1200\n");
    EXPECT_EQ(textOf(editor), expected);
    EXPECT_EQ(editor.DuplicateM({ SpinEditHeader, 0 }, 901), EditResult::Done);
    EXPECT_NE(textOf(editor).find(
                  "8 108 70 50 60 20 1 0 10 0 2 2 4 80 208 16\n8 901 70 50 60 20 1 0 10 0 2 2 4 80 902 16\n"),
        std::string::npos);
    EXPECT_EQ(editor.DuplicateM({ LabelHeader, 0 }, 903), EditResult::Done);
    EXPECT_NE(textOf(editor).find("3\n1\n控件 值\n103 1 2 3\n903 1 2 3\n105 4 5 6\n"), std::string::npos);
}

TEST(Editor, RenamesAnIdEverywhere)
{
    DescriptionEditorCL editor = everyKind();
    const std::string before = textOf(editor);
    EXPECT_EQ(editor.RenameM({ ComboBoxHeader, 0 }, 101), EditResult::IdTaken);
    EXPECT_EQ(editor.RenameM({ ComboBoxHeader, 0 }, 208), EditResult::IdTaken) << "the arrows of a spin edit";
    EXPECT_EQ(editor.RenameM({ ComboBoxHeader, 0 }, -7), EditResult::Done);
    std::string expected = with(before, "13 113 200", "13 -7 200");
    EXPECT_EQ(textOf(editor), with(with(expected, "113 A4", "-7 A4"), "113 A3", "-7 A3"));
    EXPECT_TRUE(editor.UndoM());
    EXPECT_EQ(editor.RenameM({ SingleEditHeader, 0 }, 900), EditResult::Done);
    EXPECT_EQ(textOf(editor), with(with(before, "5 105 0", "5 900 0"), "105 4 5 6", "900 4 5 6"));
    EXPECT_EQ(editor.RenameM({ RelationHeader, 0 }, 901), EditResult::NoSuchPlace);
}

TEST(Editor, EntriesAndRelationsOfAnIdThatAnotherControlHasStay)
{
    DescriptionEditorCL editor = editorOf("[下拉列表框]\n2\n0\n1 7 0 0 9 9 0\n2 7 0 0 9 9 0\n"
                                          "[下拉列表框初始值]\n1\n0\n7 a\n[相关对象信息]\n1\n0\n7 1 2 3\n");
    EXPECT_EQ(editor.DeleteM({ ComboBoxHeader, 1 }), EditResult::Done);
    EXPECT_EQ(textOf(editor),
        "[下拉列表框]\n1\n0\n1 7 0 0 9 9 0\n[下拉列表框初始值]\n1\n0\n7 a\n[相关对象信息]\n1\n0\n7 1 2 3\n");
    EXPECT_TRUE(editor.UndoM());
    EXPECT_EQ(editor.DeleteM({ ComboBoxHeader, 0 }), EditResult::Done);
    EXPECT_EQ(textOf(editor),
        "[下拉列表框]\n1\n0\n2 7 0 0 9 9 0\n[下拉列表框初始值]\n0\n0\n[相关对象信息]\n1\n0\n7 1 2 3\n");
}

TEST(Editor, LeavesASectionAloneThatDoesNotReadWhole)
{
    for (const char* const text : { "[标题]\n2\n0\n1 7 0 0 9 9 0\na\n0 -1 0 0\n",
             "[标题]\nx\n0\n1 7 0 0 9 9 0\na\n0 -1 0 0\n", "[标题]\n1\n0\n1 7 0 0 9 y 0\na\n0 -1 0 0\n",
             "[标题]\n1x\n0\n1 7 0 0 9 9 0\na\n0 -1 0 0\n", "[标题]\n-1\n0\n1 7 0 0 9 9 0\na\n0 -1 0 0\n" }) {
        DescriptionEditorCL editor = editorOf(text);
        EXPECT_EQ(editor.InsertM({ LabelHeader, 0 }), EditResult::Unsound) << text;
        const EditResult deleted = editor.DeleteM({ LabelHeader, 0 });
        EXPECT_TRUE(deleted == EditResult::Unsound || deleted == EditResult::NoSuchPlace) << text;
        EXPECT_EQ(textOf(editor), text);
    }
}

TEST(Editor, ReplacesBytesAndTakesThatBackToo)
{
    DescriptionEditorCL editor = editorOf(TwoLabels);
    const std::size_t at = editor.BytesM().find("  103");
    EXPECT_EQ(editor.ReplaceM({ { { at, at + 2 }, "\t\t\t" } }, true), EditResult::Done);
    EXPECT_EQ(textOf(editor), with(TwoLabels, "  103", "\t\t\t103"));
    EXPECT_EQ(editor.ReplaceM({ { { at, at + 4 }, "9" } }, true), EditResult::Misread);
    EXPECT_EQ(editor.ReplaceM({ { { at, at + 4 }, "9" } }, false), EditResult::Done);
    EXPECT_EQ(editor.ReplaceM({ { { 5, 4 }, "" } }, false), EditResult::NoSuchPlace);
    EXPECT_EQ(editor.ReplaceM({ { { 5, 6 }, "" }, { { 5, 6 }, "" } }, false), EditResult::NoSuchPlace);
    EXPECT_EQ(editor.ReplaceM({ { { 0, 10000 }, "" } }, false), EditResult::NoSuchPlace);
    EXPECT_TRUE(editor.UndoM());
    EXPECT_TRUE(editor.UndoM());
    EXPECT_EQ(textOf(editor), TwoLabels);
}

TEST(Editor, AnEditBehindWhatWasTakenBackTakesItsPlace)
{
    DescriptionEditorCL editor = editorOf(TwoLabels);
    const ValuePlaceCL place { { LabelHeader, 0 }, "size" };
    EXPECT_EQ(editor.SetM(place, "1"), EditResult::Done);
    EXPECT_EQ(editor.SetM(place, "2"), EditResult::Done);
    EXPECT_TRUE(editor.UndoM());
    EXPECT_EQ(editor.SetM(place, "3"), EditResult::Done);
    EXPECT_FALSE(editor.RedoM());
    EXPECT_EQ(textOf(editor), with(TwoLabels, "\t80 20", "\t3 20"));
}
