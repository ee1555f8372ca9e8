#include "controls/lists/list_control_record.h"
#include "read_records.h"

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
