#include "controls/lists/bitmap_list_box_record.h"
#include "controls/lists/combo_box_record.h"
#include "controls/lists/list_control_record.h"
#include "controls/lists/tree_record.h"
#include "support/printed.h"
#include <gtest/gtest.h>

namespace {

// Each record of a file (UTF-8) as its function id and fields.
template <class RecordArrTP> std::string read(const std::string& utf8, SectionStatus* status = nullptr)
{
    const DescriptionFileCL file(utf8);
    VrIOCL io;
    io.OpenM(file.path(), "r");
    RecordArrTP records;
    int count = 0;
    const SectionStatus result = slReadSection(io, records, &count);
    if (status != nullptr) {
        *status = result;
    }
    std::string all;
    for (int i = records.GetFirstIdxM(); i >= 0; i = records.GetNextIdxM(i)) {
        all += std::to_string(records.ElementAtM(i).GetFuncIDM()) + ": "
            + printedFields(records.ElementAtM(i)) + "\n";
    }
    return all;
}

std::string repeated(const std::string& what, int times)
{
    std::string all;
    for (int i = 0; i < times; ++i) {
        all += what;
    }
    return all;
}

} // namespace

TEST(ComboBoxRecord, FieldsAndDefaults)
{
    EXPECT_EQ(printed<DVrComboBoxCL>("1 12 2 3 4 5 1"), "edit_available=1 items=");
    EXPECT_EQ(printed<DVrComboBoxCL>("1 12 2 3 4 5"), "edit_available=0 items=");
}

TEST(ComboBoxRecord, ItemsGoToTheFirstRecordWithTheirIdNullWordsAndUnknownIdsToNone)
{
    EXPECT_EQ(
        read<DVrComboBoxArr>("[下拉列表框]\n3\n0\n1 12 2 3 4 5 0\n1 13 2 3 4 5 1\n1 12 2 3 4 5 1\n"
                             "[下拉列表框初始值]\n6\n0\n12 甲 乙\n13 null\n12 NULL\n99 x\n13 Null\n12 丙\n"),
        "12: edit_available=0 items=[甲 乙][丙]\n13: edit_available=1 items=[Null]\n"
        "12: edit_available=1 items=\n");
}

TEST(ComboBoxRecord, ItemsHold254BytesCutBetweenCharacters)
{
    EXPECT_EQ(read<DVrComboBoxArr>("[下拉列表框]\n1\n0\n1 12 2 3 4 5 0\n[下拉列表框初始值]\n2\n0\n12 "
                  + repeated("中", 200) + "\n12 x" + repeated("中", 200) + "\n"),
        "12: edit_available=0 items=[" + repeated("中", 127) + "][x" + repeated("中", 126) + "]\n");
}

TEST(ComboBoxRecord, WithoutItemSectionTheRecordsStayIncomplete)
{
    SectionStatus status = SectionStatus::Read;
    EXPECT_EQ(read<DVrComboBoxArr>("[下拉列表框]\n1\n0\n1 12 2 3 4 5 0\n", &status),
        "12: edit_available=0 items=\n");
    EXPECT_EQ(status, SectionStatus::Incomplete);
}

TEST(ComboBoxRecord, CopyingCopiesTheItemsAndDestroyEmptiesThem)
{
    DVrComboBoxCL record(AliveTag);
    for (const char* text : { "a", "b", "c", "d", "e", "f" }) {
        EXPECT_EQ(record.AddStringM(text), 1);
    }
    EXPECT_EQ(record.AddStringM(nullptr), 0);
    DVrComboBoxCL copy(record);
    DVrComboBoxCL assigned;
    assigned = record;
    copy.AddStringM("g");
    record.destroyM();
    EXPECT_EQ(printedFields(record), "edit_available=0 items=");
    EXPECT_EQ(printedFields(copy), "edit_available=0 items=[a][b][c][d][e][f][g]");
    EXPECT_EQ(printedFields(assigned), "edit_available=0 items=[a][b][c][d][e][f]");
}

TEST(ComboBoxRecord, ArrayAddsItemsToTheRecordAtAnIndex)
{
    DVrComboBoxArr records;
    records.AddItemM(DVrComboBoxCL(AliveTag));
    records.AddItemM(DVrComboBoxCL(AliveTag));
    EXPECT_EQ(records.AddStringM(1, "x"), 1);
    EXPECT_EQ(records.AddStringM(7, "y"), 1);
    EXPECT_EQ(records.AddStringM(-1, "y"), 1);
    EXPECT_EQ(printedFields(records[0]), "edit_available=0 items=");
    EXPECT_EQ(printedFields(records[1]), "edit_available=0 items=[x]");
}

TEST(ListControlRecord, HeadingsAndCellsWithTheirNumbers)
{
    EXPECT_EQ(read<DVrListCtrlArr>("[列表控件]\n1\n0\n1 14 2 3 4 5 2 0\n"
                                   "[列表控件列标题]\n3\n0\n14 0 80 名称\n14 1 60 null\n14 1 50 数值\n"
                                   "[列表控件初始值]\n3\n0\n14 0 0 转速\n14 0 1 1200\n14 1 0 NULL\n"),
        "14: column_count=2 single_selection=0 "
        "titles=[column=0 width=80 text=名称][column=1 width=50 text=数值] "
        "cells=[row=0 column=0 text=转速][row=0 column=1 text=1200]\n");
    EXPECT_EQ(printed<DVrListCtrlCL>("1 14 2 3 4 5"), "column_count=0 single_selection=1 titles= cells=");
}

TEST(ListControlRecord, EitherSecondarySectionMissingLeavesItIncomplete)
{
    const std::string main = "[列表控件]\n1\n0\n1 14 2 3 4 5 2 0\n";
    SectionStatus status = SectionStatus::Read;
    read<DVrListCtrlArr>(main + "[列表控件列标题]\n0\n", &status);
    EXPECT_EQ(status, SectionStatus::Incomplete);
    read<DVrListCtrlArr>(main + "[列表控件初始值]\n0\n", &status);
    EXPECT_EQ(status, SectionStatus::Incomplete);
    read<DVrListCtrlArr>(main + "[列表控件列标题]\n0\n[列表控件初始值]\n0\n", &status);
    EXPECT_EQ(status, SectionStatus::Read);
}

TEST(ListControlRecord, NullTextAppendsNothingAndCopiesAreIndependent)
{
    DVrListCtrlCL record(AliveTag);
    const int pair[2] = { 1, 2 };
    EXPECT_EQ(record.AddTitleStringM(pair, nullptr), 0);
    EXPECT_EQ(record.AddItemStringM(pair, nullptr), 0);
    EXPECT_EQ(record.AddItemStringM(pair, "x"), 1);
    EXPECT_EQ(record.CellsM().pairs.GetAvailableNumM(), 1);
    EXPECT_EQ(record.TitlesM().pairs.GetAvailableNumM(), 0);
    DVrListCtrlCL copy(record);
    record.destroyM();
    EXPECT_EQ(printedFields(record), "column_count=0 single_selection=1 titles= cells=");
    EXPECT_EQ(printedFields(copy), "column_count=0 single_selection=1 titles= cells=[row=1 column=2 text=x]");
}

TEST(ListControlRecord, ShowsThePairsAndTextsThatFillATable)
{
    DVrListCtrlCL record(AliveTag);
    const char* const texts[3] = { "a", "b", "c" };
    for (int i = 0; i < 3; ++i) {
        const int pair[2] = { i, 10 * i };
        record.AddTitleStringM(pair, texts[i]);
        record.AddItemStringM(pair, texts[i]);
    }
    // Pairs are taken by their place, texts by the order of the alive ones.
    record.TitlesM().pairs.DelItemM(0);
    record.CellsM().texts.DelItemM(0);
    EXPECT_EQ(printedFields(record),
        "column_count=0 single_selection=1 titles=[column=0 width=0 text=a][column=1 width=10 text=b] "
        "cells=[row=0 column=0 text=b][row=1 column=10 text=c]");
}

TEST(BitmapListBoxRecord, FieldsDefaultsAndPictures)
{
    EXPECT_EQ(printed<DVrBmpListBoxCL>("1 15 2 3 4 5 2 3 4 3"),
        "rows=2 columns=3 scroll_mode=4 selection_mode=3 bitmaps=");
    EXPECT_EQ(
        printed<DVrBmpListBoxCL>("1 15 2 3 4 5"), "rows=0 columns=0 scroll_mode=2 selection_mode=1 bitmaps=");
    EXPECT_EQ(read<DVrBmpListBoxArr>("[图片列表框]\n1\n0\n1 15 2 3 4 5 2 3 2 1\n"
                                     "[图片列表框位图]\n3\n0\n15 a.bmp\n15 null\n15 b\n"),
        "15: rows=2 columns=3 scroll_mode=2 selection_mode=1 bitmaps=[a.bmp][b]\n");
}

TEST(TreeRecord, LinesWithKeysTextsAndPictures)
{
    EXPECT_EQ(read<DVrTreeArr>("[树形控件]\n1\n0\n1 16 2 3 4 5\n[树形控件数据]\n2\n0\n"
                               "16 0 1 100 根 节点\nn.bmp\ns.bmp\n16 1 2 200 叶\nnull\nNULL\n"),
        "16: items=[parent=0 key=1 data=100 text=根 节点 normal=n.bmp selected=s.bmp]"
        "[parent=1 key=2 data=200 text=叶 normal=null selected=NULL]\n");
}

TEST(TreeRecord, NullTextSkipsTheWholeLine)
{
    EXPECT_EQ(read<DVrTreeArr>("[树形控件]\n1\n0\n1 16 2 3 4 5\n[树形控件数据]\n2\n0\n"
                               "16 0 1 100 null\nn.bmp\ns.bmp\n16 0 2 200 b\nn\ns\n"),
        "16: items=[parent=0 key=2 data=200 text=b normal=n selected=s]\n");
}

TEST(TreeRecord, CopyingCopiesTheLinesAndDestroyEmptiesThem)
{
    DVrTreeArr records;
    records.AddItemM(DVrTreeCL(AliveTag));
    const int triple[3] = { 1, 2, 3 };
    EXPECT_EQ(records.AddStringM(0, triple, "t", "s", "n"), 1);
    EXPECT_EQ(records.AddStringM(5, triple, "t", "s", "n"), 1);
    DVrTreeCL copy(records[0]);
    records[0].destroyM();
    EXPECT_EQ(printedFields(records[0]), "items=");
    EXPECT_EQ(printedFields(copy), "items=[parent=1 key=2 data=3 text=t normal=n selected=s]");
}
