#include "parent_window.h"
#include "support/input.h"
#include "support/window.h"
#include <gtest/gtest.h>

using namespace testing_support;

namespace {

class ScrolledParentCL : public ParentWindowCL
{
public:
    CScrollBar* scrolled = nullptr;
    UINT lastCode = ~0u;
    afx_msg void OnHScroll(UINT code, UINT, CScrollBar* bar)
    {
        lastCode = code;
        scrolled = bar;
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(ScrolledParentCL, ParentWindowCL)
ON_WM_HSCROLL()
END_MESSAGE_MAP()

} // namespace

TEST(SliderCtrl, KeepsRangeMarksAndSelection)
{
    ParentWindowCL parent;
    CSliderCtrl slider;
    const DWORD style = WS_VISIBLE | TBS_ENABLESELRANGE | TBS_FIXEDLENGTH | TBS_TOOLTIPS;
    ASSERT_TRUE(slider.Create(style, CRect(10, 10, 310, 50), &parent, 1));
    slider.SetRange(-100000, 100000);
    int low = 0;
    int high = 0;
    slider.GetRange(low, high);
    EXPECT_EQ(low, -100000);
    EXPECT_EQ(high, 100000);
    slider.SetPos(70000);
    EXPECT_EQ(slider.GetPos(), 70000);
    slider.SetRange(0, 10, TRUE);
    slider.VerifyPos();
    EXPECT_EQ(slider.GetPos(), 10);
    slider.SetSelection(2, 6);
    slider.GetSelection(low, high);
    EXPECT_EQ(low, 2);
    EXPECT_EQ(high, 6);
    slider.ClearSel();
    slider.GetSelection(low, high);
    EXPECT_EQ(high - low, 0);
    EXPECT_TRUE(slider.SetTic(3));
    EXPECT_EQ(slider.GetNumTics(), 3u); // With both ends.
    EXPECT_EQ(slider.GetTic(0), 3);
    EXPECT_GT(slider.GetTicPos(0), 10);
    EXPECT_NE(slider.GetTicArray(), nullptr);
    slider.ClearTics();
    EXPECT_EQ(slider.GetNumTics(), 2u);
    CRect thumb;
    CRect channel;
    slider.SetThumbLength(30);
    EXPECT_EQ(slider.GetThumbLength(), 30);
    slider.GetThumbRect(&thumb);
    slider.GetChannelRect(&channel);
    EXPECT_GT(thumb.Height(), 0);
    EXPECT_GT(channel.Width(), 200);
    EXPECT_NE(slider.GetToolTips(), nullptr);
    CStatic label;
    ASSERT_TRUE(label.Create("label", WS_VISIBLE, CRect(0, 0, 40, 20), &parent));
    EXPECT_EQ(slider.SetBuddy(&label), nullptr);
    EXPECT_EQ(slider.GetBuddy(), &label);
    EXPECT_EQ(slider.GetBuddy(FALSE), nullptr);
}

TEST(SliderCtrl, KeysMoveTheThumbAndTellTheParent)
{
    ScrolledParentCL parent;
    CSliderCtrl slider;
    ASSERT_TRUE(slider.Create(WS_VISIBLE, CRect(10, 10, 310, 50), &parent, 1));
    slider.SetRange(0, 100);
    slider.SetLineSize(3);
    EXPECT_EQ(slider.GetLineSize(), 3);
    slider.SetPageSize(25);
    EXPECT_EQ(slider.GetPageSize(), 25);
    ASSERT_TRUE(ActivateM(parent));
    ASSERT_TRUE(FocusM(slider));
    KeyM(VK_RIGHT);
    EXPECT_EQ(slider.GetPos(), 3);
    KeyM(VK_NEXT);
    EXPECT_EQ(slider.GetPos(), 28);
    EXPECT_EQ(static_cast<CWnd*>(parent.scrolled), &slider);
    EXPECT_EQ(parent.lastCode, static_cast<UINT>(TB_ENDTRACK));
}
