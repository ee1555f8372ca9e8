#include "controls/animation/normal_animate_record.h"
#include "controls/animation/spec_animate_record.h"
#include "controls/buttons/multi_state_button_record.h"
#include "controls/lists/bitmap_list_box_record.h"
#include "controls/lists/combo_box_record.h"
#include "controls/lists/list_control_record.h"
#include "controls/lists/text_list_box_record.h"
#include "controls/lists/tree_record.h"
#include "support/printed.h"
#include <gtest/gtest.h>

namespace {

const int triple[3] = { 1, 2, 3 };

// Adds an entry of every section that the kind has to the record at index.
int addTo(DVrNormalAnimateArr& records, int index)
{
    return records.AddBmpNameM(index, "a.bmp");
}
int addTo(DVrSpecAnimateArr& records, int index)
{
    return records.AddBmpNameM(index, "a.bmp");
}
int addTo(DVrMultiStateButtonArr& records, int index)
{
    return records.AddStringM(index, 4, "a.bmp");
}
int addTo(DVrTextListBoxArr& records, int index)
{
    return records.AddStringM(index, "x");
}
int addTo(DVrBmpListBoxArr& records, int index)
{
    return records.AddBmpNameM(index, "a.bmp");
}
int addTo(DVrComboBoxArr& records, int index)
{
    return records.AddStringM(index, "x");
}
int addTo(DVrListCtrlArr& records, int index)
{
    const int added = records.AddTitleStringM(index, triple, "x");
    return added == 1 ? records.AddItemStringM(index, triple, "x") : added;
}
int addTo(DVrTreeArr& records, int index)
{
    return records.AddStringM(index, triple, "t", "s.bmp", "n.bmp");
}

template <class RecordArrTP> class EntriesTest : public testing::Test
{
};
using ArraysTP = testing::Types<DVrNormalAnimateArr, DVrSpecAnimateArr, DVrMultiStateButtonArr,
    DVrTextListBoxArr, DVrBmpListBoxArr, DVrComboBoxArr, DVrListCtrlArr, DVrTreeArr>;

} // namespace

TYPED_TEST_SUITE(EntriesTest, ArraysTP, ); // Without the comma clang misses an argument.

TYPED_TEST(EntriesTest, GoToAliveRecordsOnly)
{
    using RecordTP = typename TypeParam::RecordTP;
    TypeParam records;
    for (int i = 0; i < 3; ++i) {
        records.AddItemM(RecordTP(AliveTag));
    }
    RecordTP fresh(AliveTag);
    const std::string before = printedFields(fresh);
    records.DelItemM(1);
    for (const int index : { 0, 1, 7, -1 }) {
        EXPECT_EQ(addTo(records, index), 1) << index;
    }
    EXPECT_NE(printedFields(records[0]), before);
    EXPECT_EQ(printedFields(records[1]), before);
    EXPECT_EQ(printedFields(records[2]), before);
    EXPECT_EQ(records.GetBoundM(), 3);
}
