// What the records of every kind do.
#include "support/kind_sample.h"
#include "support/kind_types.h"
#include "support/printed.h"

namespace {

template <class RowTP> class EveryKindRecordTest : public testing::Test
{
protected:
    using RecordsTP = typename RowTP::Records;
    using RecordTP = typename RecordsTP::RecordTP;

    static std::string commonOf(RecordTP& record)
    {
        FieldTextCL common;
        record.EachCommonFieldM(common);
        return common.text;
    }
};

} // namespace

TYPED_TEST_SUITE(EveryKindRecordTest, EveryRowTP, KindNamesCL);

TYPED_TEST(EveryKindRecordTest, CommonFieldsStandFirstAndTheRestHasItsDefaults)
{
    const DescriptionFileCL file("5 11 20 30 60 40");
    VrIOCL io;
    io.OpenM(file.path(), "r");
    typename TestFixture::RecordTP record(AliveTag);
    record.FmReadInterfaceM(&io);
    EXPECT_EQ(TestFixture::commonOf(record), "window_index=5 function_id=11 position=20,30 size=60,40");
    EXPECT_EQ(record.GetShowConditionM(), -1);
    typename TestFixture::RecordTP fresh;
    EXPECT_EQ(printedFields(record), printedFields(fresh));
}

TYPED_TEST(EveryKindRecordTest, CopiesHaveAllValuesAsTheirOwn)
{
    typename TestFixture::RecordsTP records;
    readSample(records);
    for (int i = 0; i < records.GetBoundM(); ++i) {
        auto& record = records[i];
        const std::string before = TestFixture::commonOf(record) + " " + printedFields(record);
        typename TestFixture::RecordTP fresh;
        typename TestFixture::RecordTP copy(record);
        typename TestFixture::RecordTP assigned;
        assigned = record;
        record = fresh;
        EXPECT_EQ(TestFixture::commonOf(copy) + " " + printedFields(copy), before);
        EXPECT_EQ(TestFixture::commonOf(assigned) + " " + printedFields(assigned), before);
        EXPECT_NE(TestFixture::commonOf(record) + " " + printedFields(record), before);
        EXPECT_TRUE(copy.IsAliveM());
    }
}

TYPED_TEST(EveryKindRecordTest, DeletingMarksTheRecordAndNoOther)
{
    typename TestFixture::RecordsTP records;
    for (int i = 0; i < 3; ++i) {
        records.AddItemM(typename TestFixture::RecordTP(AliveTag));
    }
    records.DelItemM(1);
    EXPECT_EQ(records.GetAvailableNumM(), 2);
    EXPECT_EQ(records[1].GetDeleteTagM(), DeletedTag);
    EXPECT_EQ(records.CheckAvailableM(0) + records.CheckAvailableM(2), 2);
    EXPECT_EQ(records.CheckAvailableM(1), 0);
}
