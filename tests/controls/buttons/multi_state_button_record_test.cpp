#include "controls/buttons/multi_state_button_record.h"
#include "support/read_records.h"
#include <gtest/gtest.h>

namespace {

std::string multiState(const std::string& utf8, SectionStatus wanted)
{
    return readFields<DVrMultiStateButtonArr>(utf8, wanted);
}

} // namespace

TEST(MultiStateButtonRecord, RowsGoToTheFirstButtonWithTheirIdAndNullRowsToNone)
{
    EXPECT_EQ(
        multiState(
            "[多态按钮]\n3\n0\n1 11 0 0 9 9 20\nNULL\n1 12 0 0 9 9 5\nr.bmp\n1 12 0 0 9 9 6\nnull\n"
            "[多态按钮数据]\n6\n1\n编号 状态 图片\n11 10 a.bmp\n12 5 x y.bmp\n11 -20 b.bmp\n11 30 NULL\n"
            "77 1 c.bmp\n11 10 d.bmp\n",
            SectionStatus::Read),
        "initial_status=20 region=NULL states=[status=10 bitmap=a.bmp][status=-20 bitmap=b.bmp]"
        "[status=10 bitmap=d.bmp]\n"
        "initial_status=5 region=r.bmp states=[status=5 bitmap=x y.bmp]\n"
        "initial_status=6 region=null states=\n");
}

TEST(MultiStateButtonRecord, WithoutDataSectionTheKindIsIncomplete)
{
    EXPECT_EQ(multiState("[多态按钮]\n1\n0\n1 11 0 0 9 9 20\nNULL\n", SectionStatus::Incomplete),
        "initial_status=20 region=NULL states=\n");
}

TEST(MultiStateButtonRecord, StringsAreAddedToAliveRecordsOnly)
{
    DVrMultiStateButtonArr records;
    records.AddItemM(DVrMultiStateButtonCL(AliveTag));
    EXPECT_EQ(records.AddStringM(0, 7, "a.bmp"), 1);
    EXPECT_EQ(records.AddStringM(4, 8, "b.bmp"), 1);
    EXPECT_EQ(printedFields(records[0]), "initial_status=0 region= states=[status=7 bitmap=a.bmp]");
}

TEST(MultiStateButtonRecord, CopyHasStatesOfItsOwn)
{
    DVrMultiStateButtonCL first(AliveTag);
    first.AddStringM(10, "a.bmp");
    DVrMultiStateButtonCL second(first);
    second.AddStringM(20, "b.bmp");
    first.AddStringM(30, "c.bmp");
    EXPECT_EQ(printedFields(first),
        "initial_status=0 region= states=[status=10 bitmap=a.bmp][status=30 bitmap=c.bmp]");
    EXPECT_EQ(printedFields(second),
        "initial_status=0 region= states=[status=10 bitmap=a.bmp][status=20 bitmap=b.bmp]");
}
