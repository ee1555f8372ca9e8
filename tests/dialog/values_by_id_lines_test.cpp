// Lines by function id, and what every control has.
#include "dialog/valued_dialog.h"

using namespace testing_support;

namespace {

// The texts of all lines.
std::string linesOf(DialogValuesCL& values, int id)
{
    std::string all;
    for (int line = 0; line < values.LineCountM(id).value_or(0); ++line) {
        const auto text = values.LineM(id, line);
        all += (line > 0 ? " " : "") + (text ? text->Utf8M() : "(none)");
    }
    return all;
}

} // namespace

TEST(LinesById, AreAddedInsertedDeletedAndCleared)
{
    ValuedDialogCL dialog;
    auto& values = dialog.ValuesM();
    for (const int id : { 17, 22, 23, 24, 25 }) {
        SCOPED_TRACE(id);
        EXPECT_EQ(values.LineCountM(id), 3);
        EXPECT_TRUE(values.ClearLinesM(id));
        EXPECT_EQ(values.LineCountM(id), 0);
        EXPECT_TRUE(values.AddLineM(id, L"转速", 5));
        EXPECT_TRUE(values.AddLineM(id, "z"));
        EXPECT_TRUE(values.InsertLineM(id, 1, "m"));
        EXPECT_TRUE(values.InsertLineM(id, 0, "first"));
        EXPECT_TRUE(values.InsertLineM(id, 4, "last"));
        EXPECT_EQ(linesOf(values, id), "first 转速 m z last");
        EXPECT_FALSE(values.InsertLineM(id, 6, "x"));
        EXPECT_FALSE(values.InsertLineM(id, -1, "x"));
        EXPECT_FALSE(values.AddLineM(id, nullptr));
        EXPECT_FALSE(values.AddLineM(id, L"\x0E01")); // GBK has no Thai.
        EXPECT_TRUE(values.DeleteLineM(id, 0));
        EXPECT_TRUE(values.DeleteLineM(id, 3));
        EXPECT_FALSE(values.DeleteLineM(id, 3));
        EXPECT_FALSE(values.DeleteLineM(id, -1));
        EXPECT_FALSE(values.LineM(id, 3));
        EXPECT_FALSE(values.LineM(id, -1));
        EXPECT_EQ(linesOf(values, id), "转速 m z");
    }
}

TEST(LinesById, HaveTheNumbersThatTheyWereGiven)
{
    ValuedDialogCL dialog;
    auto& values = dialog.ValuesM();
    values.AddLineM(17, "x", -7);
    values.AddLineM(22, "x", -7);
    values.AddLineM(24, "x", -7);
    EXPECT_EQ(static_cast<int>(dialog.ControlM<DuTextListBoxCL>(17).GetItemData(3)), -7);
    EXPECT_EQ(static_cast<int>(dialog.ControlM<DuComboBoxCL>(22).GetItemData(3)), -7);
    EXPECT_EQ(static_cast<int>(dialog.ControlM<DuListCtrlCL>(24).GetItemData(3)), -7);
}

TEST(LinesById, OfABoxOfPicturesAreFiles)
{
    ValuedDialogCL dialog;
    auto& values = dialog.ValuesM();
    const SmallPictureCL picture(0x00FF00, 9, 9);
    EXPECT_EQ(values.LineCountM(21), 2);
    EXPECT_FALSE(values.LineM(21, 0)); // It has no text to tell.
    EXPECT_TRUE(values.AddLineM(21, picture.path(), 8));
    EXPECT_TRUE(values.InsertLineM(21, 1, picture.path(), 9));
    EXPECT_FALSE(values.AddLineM(21, "no such file.bmp"));
    EXPECT_FALSE(values.AddLineM(21, ""));
    EXPECT_EQ(values.LineCountM(21), 4);
    auto& box = dialog.ControlM<DuBmpListBoxCL>(21);
    EXPECT_EQ(static_cast<int>(box.GetItemData(1)), 9);
    EXPECT_EQ(static_cast<int>(box.GetItemData(3)), 8);
    EXPECT_TRUE(values.DeleteLineM(21, 1));
    EXPECT_TRUE(values.ClearLinesM(21));
    EXPECT_EQ(values.LineCountM(21), 0);
}

TEST(LinesById, AreNoneOfOtherKinds)
{
    ValuedDialogCL dialog;
    auto& values = dialog.ValuesM();
    for (const int id : { 11, 41, 46, ValuedDialogCL::ButtonId, ValuedDialogCL::UnknownId, -1 }) {
        SCOPED_TRACE(id);
        EXPECT_FALSE(values.LineCountM(id));
        EXPECT_FALSE(values.LineM(id, 0));
        EXPECT_FALSE(values.AddLineM(id, "x"));
        EXPECT_FALSE(values.InsertLineM(id, 0, "x"));
        EXPECT_FALSE(values.DeleteLineM(id, 0));
        EXPECT_FALSE(values.ClearLinesM(id));
    }
}

TEST(ControlsById, AreEnabledAndShown)
{
    ValuedDialogCL dialog;
    auto& values = dialog.ValuesM();
    for (const int id : { 11, 14, 17, 22, 24, 31, 43, 44, 46 }) {
        SCOPED_TRACE(id);
        EXPECT_EQ(values.IsEnabledM(id), true);
        EXPECT_EQ(values.IsShownM(id), true);
        EXPECT_TRUE(values.EnableM(id, false));
        EXPECT_TRUE(values.ShowM(id, false));
        EXPECT_EQ(values.IsEnabledM(id), false);
        EXPECT_EQ(values.IsShownM(id), false);
        EXPECT_FALSE(::IsWindowEnabled(dialog.ItemM(id)));
        EXPECT_FALSE(::IsWindowVisible(dialog.ItemM(id)));
        EXPECT_TRUE(values.EnableM(id, true));
        EXPECT_TRUE(values.ShowM(id, true));
        EXPECT_TRUE(::IsWindowEnabled(dialog.ItemM(id)));
        EXPECT_TRUE(::IsWindowVisible(dialog.ItemM(id)));
    }
    EXPECT_TRUE(values.ShowM(14, false));
    EXPECT_FALSE(::IsWindowVisible(dialog.ItemM(1014))); // The arrows follow.
    EXPECT_FALSE(values.EnableM(999, true));
    EXPECT_FALSE(values.ShowM(999, true));
    EXPECT_FALSE(values.IsEnabledM(999));
    EXPECT_FALSE(values.IsShownM(999));
}
