#include "controls/animation/spec_animate_record.h"
#include "support/read_records.h"

TEST(SpecAnimateRecord, TypeComesBeforeSunkMode)
{
    EXPECT_EQ(printed<DVrSpecAnimateCL>("1 11 2 3 4 5 7 1"), "type=7 sunk_mode=1 bitmaps=");
    EXPECT_EQ(printed<DVrSpecAnimateCL>("1 11 2 3 4 5"), "type=0 sunk_mode=0 bitmaps=");
}

TEST(SpecAnimateRecord, FramesComeFromTheirOwnSection)
{
    EXPECT_EQ(readFields<DVrSpecAnimateArr>("[特殊动画控件]\n1\n0\n1 11 0 0 9 9 3 0\n"
                                            "[普通动画控件位图]\n1\n0\n11 wrong.bmp\n"
                                            "[特殊动画控件位图]\n2\n0\n11 a.bmp\n11 b.bmp\n",
                  SectionStatus::Read),
        "type=3 sunk_mode=0 bitmaps=[a.bmp][b.bmp]\n");
}
