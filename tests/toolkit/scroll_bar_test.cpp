#include "parent_window.h"
#include <gtest/gtest.h>

TEST(ScrollBar, KeepsItsRangePageAndPosition)
{
    ParentWindowCL parent;
    CScrollBar bar;
    ASSERT_TRUE(bar.Create(WS_VISIBLE | SBS_HORZ, CRect(10, 10, 210, 30), &parent, 1));
    bar.SetScrollRange(-5, 100);
    int low = 0;
    int high = 0;
    bar.GetScrollRange(&low, &high);
    EXPECT_EQ(low, -5);
    EXPECT_EQ(high, 100);
    bar.SetScrollPos(42);
    EXPECT_EQ(bar.GetScrollPos(), 42);
    SCROLLINFO info = {};
    info.fMask = SIF_PAGE;
    info.nPage = 11;
    EXPECT_TRUE(bar.SetScrollInfo(&info));
    SCROLLINFO seen = {};
    EXPECT_TRUE(bar.GetScrollInfo(&seen));
    EXPECT_EQ(seen.nPage, 11u);
    EXPECT_EQ(seen.nMax, 100);
    EXPECT_EQ(seen.nPos, 42);
    EXPECT_EQ(bar.GetScrollLimit(), 90);
    SCROLLBARINFO shape = {};
    EXPECT_TRUE(bar.GetScrollBarInfo(&shape));
    EXPECT_EQ(shape.rcScrollBar.right - shape.rcScrollBar.left, 200);
}

TEST(ScrollBar, HidesAndDisablesItself)
{
    ParentWindowCL parent;
    CScrollBar bar;
    ASSERT_TRUE(bar.Create(WS_VISIBLE | SBS_HORZ, CRect(10, 10, 210, 30), &parent, 1));
    bar.ShowScrollBar(FALSE);
    EXPECT_FALSE(bar.IsWindowVisible());
    bar.ShowScrollBar();
    EXPECT_TRUE(bar.IsWindowVisible());
    EXPECT_TRUE(bar.EnableScrollBar(ESB_DISABLE_BOTH));
    EXPECT_FALSE(bar.IsWindowEnabled());
    EXPECT_TRUE(bar.EnableScrollBar());
    EXPECT_TRUE(bar.IsWindowEnabled());
}
