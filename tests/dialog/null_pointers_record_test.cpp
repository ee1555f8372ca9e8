// Null where the records of every kind want a pointer: refused, nothing changes.
#include "controls/buttons/new_rotate_btn_record.h"
#include "dialog/kinds.h"
#include "support/printed.h"
#include <gtest/gtest.h>

TEST(NullPointers, RecordsNeedAReader)
{
    slEachKind([](auto row) {
        using RecordsTP = typename decltype(row)::Records;
        SCOPED_TRACE(RecordsTP::KindName);
        typename RecordsTP::RecordTP record(AliveTag);
        record.SetWindowIndexM(5);
        EXPECT_EQ(record.FmReadInterfaceM(nullptr), 0);
        EXPECT_EQ(record.GetWindowIndexM(), 5);
    });
    DVrNewRotateBtnCL button;
    EXPECT_EQ(button.FmReadInterfaceM(nullptr, 1, 1), 0);
    EXPECT_FALSE(button.IsAliveM());
    DVrNewRotateBtnArr buttons;
    EXPECT_EQ(buttons.FmReadInterfaceM(nullptr), 0);
}

TEST(NullPointers, RecordsTakeNoTextThatIsNone)
{
    DVrNormalAnimateArr normal;
    normal.AddItemM(DVrNormalAnimateCL(AliveTag));
    EXPECT_EQ(normal.AddBmpNameM(0, nullptr), 0);
    EXPECT_EQ(normal[0].AddBmpNameM(nullptr), -1);
    DVrSpecAnimateArr special;
    special.AddItemM(DVrSpecAnimateCL(AliveTag));
    EXPECT_EQ(special.AddBmpNameM(0, nullptr), 0);
    EXPECT_EQ(special[0].AddBmpNameM(nullptr), -1);
    DVrMultiStateButtonArr states;
    states.AddItemM(DVrMultiStateButtonCL(AliveTag));
    EXPECT_EQ(states.AddStringM(0, 1, nullptr), 0);
    EXPECT_EQ(states[0].AddStringM(1, nullptr), -1);
    DVrTextListBoxArr texts;
    texts.AddItemM(DVrTextListBoxCL(AliveTag));
    EXPECT_EQ(texts.AddStringM(0, nullptr), 0);
    EXPECT_EQ(texts[0].AddStringM(nullptr), 0);
    DVrBmpListBoxArr bitmaps;
    bitmaps.AddItemM(DVrBmpListBoxCL(AliveTag));
    EXPECT_EQ(bitmaps.AddBmpNameM(0, nullptr), 0);
    EXPECT_EQ(bitmaps[0].AddBmpNameM(nullptr), 0);
    DVrComboBoxArr combos;
    combos.AddItemM(DVrComboBoxCL(AliveTag));
    EXPECT_EQ(combos.AddStringM(0, nullptr), 0);
    EXPECT_EQ(combos[0].AddStringM(nullptr), 0);
    DVrNewRotateBtnCL button(AliveTag);
    EXPECT_EQ(button.SetPictureM(0, nullptr), 0);
    EXPECT_EQ(button.SlotCountM(), 0);
    for (const std::string& fields :
        { printedFields(normal[0]), printedFields(special[0]), printedFields(states[0]),
            printedFields(texts[0]), printedFields(bitmaps[0]), printedFields(combos[0]) }) {
        EXPECT_EQ(fields.find('['), std::string::npos) << fields;
    }
}

TEST(NullPointers, TablesAndTreesTakeNumbersAndTextsTogether)
{
    const int numbers[3] = { 1, 2, 3 };
    DVrListCtrlArr tables;
    tables.AddItemM(DVrListCtrlCL(AliveTag));
    EXPECT_EQ(tables.AddTitleStringM(0, nullptr, "a"), 0);
    EXPECT_EQ(tables.AddTitleStringM(0, numbers, nullptr), 0);
    EXPECT_EQ(tables.AddItemStringM(0, nullptr, "a"), 0);
    EXPECT_EQ(tables.AddItemStringM(0, numbers, nullptr), 0);
    EXPECT_EQ(tables[0].AddTitleStringM(nullptr, "a"), 0);
    EXPECT_EQ(tables[0].AddItemStringM(numbers, nullptr), 0);
    tables[0].AddItemStringM(numbers, "b");
    EXPECT_NE(printedFields(tables[0]).find("titles= cells=[row=1 column=2 text=b]"), std::string::npos);
    DVrTreeArr trees;
    trees.AddItemM(DVrTreeCL(AliveTag));
    EXPECT_EQ(trees.AddStringM(0, nullptr, "a", "b", "c"), 0);
    EXPECT_EQ(trees.AddStringM(0, numbers, nullptr, "b", "c"), 0);
    EXPECT_EQ(trees[0].AddStringM(numbers, "a", nullptr, "c"), 0);
    EXPECT_EQ(trees[0].AddStringM(numbers, "a", "b", nullptr), 0);
    EXPECT_EQ(printedFields(trees[0]), "items=");
}
