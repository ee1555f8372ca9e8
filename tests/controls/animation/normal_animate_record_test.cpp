#include "controls/animation/normal_animate_record.h"
#include "support/read_records.h"

TEST(NormalAnimateRecord, FieldsStandInFileOrderWithDefaultsForTheRest)
{
    EXPECT_EQ(printed<DVrNormalAnimateCL>("1 11 2 3 4 5 2 200 1 1"),
        "control_mode=2 time_lapse=200 sunken=1 notify=1 bitmaps=");
    EXPECT_EQ(printed<DVrNormalAnimateCL>("1 11 2 3 4 5"),
        "control_mode=1 time_lapse=0 sunken=0 notify=0 bitmaps=");
}

TEST(NormalAnimateRecord, FramesGoToTheFirstRecordWithTheirIdInTheOrderOfTheFile)
{
    EXPECT_EQ(readFields<DVrNormalAnimateArr>(
                  "[普通动画控件]\n3\n0\n"
                  "1 11 0 0 9 9 1 0 0 0\n1 12 0 0 9 9 1 0 0 0\n1 12 0 0 9 9 2 0 0 0\n"
                  "[普通动画控件位图]\n7\n0\n"
                  "12 b.bmp\n11 a.bmp\n99 x.bmp\n11 NULL\n11 null\n12 火焰.bmp\n11\tc\n",
                  SectionStatus::Read),
        "control_mode=1 time_lapse=0 sunken=0 notify=0 bitmaps=[a.bmp][c]\n"
        "control_mode=1 time_lapse=0 sunken=0 notify=0 bitmaps=[b.bmp][火焰.bmp]\n"
        "control_mode=2 time_lapse=0 sunken=0 notify=0 bitmaps=\n");
}

TEST(NormalAnimateRecord, WithoutFrameSectionTheKindIsIncomplete)
{
    EXPECT_EQ(readFields<DVrNormalAnimateArr>(
                  "[普通动画控件]\n1\n0\n1 11 0 0 9 9 2 5 1 1\n", SectionStatus::Incomplete),
        "control_mode=2 time_lapse=5 sunken=1 notify=1 bitmaps=\n");
    EXPECT_EQ(readFields<DVrNormalAnimateArr>("[普通动画控件]\n0\n0\n", SectionStatus::Empty), "");
    EXPECT_EQ(readFields<DVrNormalAnimateArr>("nothing", SectionStatus::Missing), "");
}

TEST(NormalAnimateRecord, NamesAreAddedToAliveRecordsOnly)
{
    DVrNormalAnimateArr records;
    records.AddItemM(DVrNormalAnimateCL(AliveTag));
    EXPECT_EQ(records.AddBmpNameM(0, "a.bmp"), 1);
    EXPECT_EQ(records.AddBmpNameM(5, "b.bmp"), 1);
    EXPECT_EQ(printedFields(records[0]), "control_mode=1 time_lapse=0 sunken=0 notify=0 bitmaps=[a.bmp]");
}
