#include "controls/lists/combo_box_record.h"
#include "read_records.h"

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
