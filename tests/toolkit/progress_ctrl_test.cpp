#include "parent_window.h"
#include <gtest/gtest.h>

TEST(ProgressCtrl, FillsItsRange)
{
    ParentWindowCL parent;
    CProgressCtrl bar;
    ASSERT_TRUE(bar.Create(WS_VISIBLE, CRect(10, 10, 210, 30), &parent, 1));
    int low = 0;
    int high = 0;
    bar.SetRange32(-10, 100000);
    bar.GetRange(low, high);
    EXPECT_EQ(low, -10);
    EXPECT_EQ(high, 100000);
    bar.SetRange(0, 100);
    EXPECT_EQ(bar.SetPos(40), 0);
    EXPECT_EQ(bar.OffsetPos(5), 40);
    EXPECT_EQ(bar.SetStep(60), 10);
    EXPECT_EQ(bar.GetStep(), 60);
    EXPECT_EQ(bar.StepIt(), 45);
    EXPECT_LT(bar.GetPos(), 45); // Round the end.
    bar.SetBarColor(0x112233);
    EXPECT_EQ(bar.SetBarColor(0x445566), 0x112233u);
    EXPECT_EQ(bar.GetBarColor(), 0x445566u);
    bar.SetBkColor(0x223344);
    EXPECT_EQ(bar.GetBkColor(), 0x223344u);
}

TEST(ProgressCtrl, MovesWhereTheEndIsUnknown)
{
    ParentWindowCL parent;
    CProgressCtrl bar;
    ASSERT_TRUE(bar.Create(WS_VISIBLE | PBS_MARQUEE, CRect(10, 10, 210, 30), &parent, 1));
    EXPECT_TRUE(bar.SetMarquee(TRUE, 20));
}
