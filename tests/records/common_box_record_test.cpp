#include "baselib/io.h"
#include "records/common_box_record.h"
#include "support/description.h"
#include <gtest/gtest.h>

namespace {

struct ReaderCL
{
    explicit ReaderCL(const std::string& bytes)
        : file(bytes)
    {
        io.OpenM(file.path(), "r");
    }
    TempFile file;
    VrIOCL io;
};

} // namespace

TEST(CommonBoxRecord, FreshRecordHasTheStatedDefaults)
{
    const DVrCommonBoxCL record;
    EXPECT_EQ(record.GetExtraValueM(), 0);
    EXPECT_EQ(record.GetRegionKindM(), 0);
    EXPECT_EQ(record.GetShowConditionM(), -1);
    EXPECT_EQ(record.GetDeleteTagM(), DeletedTag);
    EXPECT_TRUE(DVrCommonBoxCL(AliveTag).IsAliveM());
}

TEST(CommonBoxRecord, ReadWithoutItemIndexTakesSixNumbers)
{
    ReaderCL reader("7 9 10 20 40 30 5");
    DVrCommonBoxCL record;
    EXPECT_EQ(record.FmReadInterfaceM(&reader.io, 0), 1);
    EXPECT_EQ(record.GetWindowIndexM(), 7);
    EXPECT_EQ(record.GetFuncIDM(), 9);
    EXPECT_EQ(record.GetPositionM()[0], 10);
    EXPECT_EQ(record.GetPositionM()[1], 20);
    EXPECT_EQ(record.GetSizeM()[0], 40);
    EXPECT_EQ(record.GetSizeM()[1], 30);
    EXPECT_EQ(record.GetShowConditionM(), -1);
    EXPECT_EQ(record.GetRegionKindM(), 0);
    EXPECT_EQ(record.GetExtraValueM(), 0);
}

TEST(CommonBoxRecord, ReadWithItemIndexTakesItAfterTheWindowIndex)
{
    ReaderCL reader("7 3 9 10 20 40 30");
    DVrCommonBoxCL record;
    record.FmReadInterfaceM(&reader.io, 1);
    EXPECT_EQ(record.GetItemIndexM(), 3);
    EXPECT_EQ(record.GetFuncIDM(), 9);
    EXPECT_EQ(record.GetSizeM()[1], 30);
}

TEST(CommonBoxRecord, SecondReadNeverDependsOnTheFirst)
{
    ReaderCL reader("7 9 10 20 40 30 8 x");
    DVrCommonBoxCL record;
    record.FmReadInterfaceM(&reader.io, 0);
    record.FmReadInterfaceM(&reader.io, 0);
    EXPECT_EQ(record.GetWindowIndexM(), 8);
    EXPECT_EQ(record.GetFuncIDM(), 0);
    EXPECT_EQ(record.GetSizeM()[1], 0);
}

TEST(CommonBoxRecord, InputInterfaceTakesTheWindowIndexAsGivenAndReturnsTheItemIndex)
{
    ReaderCL reader("3 9 0 0 10 20 40 20 -1");
    DVrCommonBoxCL record;
    EXPECT_EQ(record.FmInputInterfaceM(7, &reader.io), 3);
    EXPECT_EQ(record.GetWindowIndexM(), 7);
    EXPECT_EQ(record.GetItemIndexM(), 3);
    EXPECT_EQ(record.GetFuncIDM(), 9);
    EXPECT_EQ(record.GetPositionM()[1], 20);
    EXPECT_EQ(record.GetSizeM()[0], 40);
    EXPECT_EQ(record.GetShowConditionM(), -1);
}

TEST(CommonBoxRecord, InputInterfaceReadsExtraValueRegionKindAndShowCondition)
{
    ReaderCL reader("3 9 5 6 10 20 40 20 2");
    DVrCommonBoxCL record;
    record.FmInputInterfaceM(7, &reader.io);
    EXPECT_EQ(record.GetExtraValueM(), 5);
    EXPECT_EQ(record.GetRegionKindM(), 6);
    EXPECT_EQ(record.GetShowConditionM(), 2);
    const DVrCommonBoxCL copy = record;
    EXPECT_EQ(copy.GetRegionKindM(), 6);
    EXPECT_EQ(copy.GetItemIndexM(), 3);
}
