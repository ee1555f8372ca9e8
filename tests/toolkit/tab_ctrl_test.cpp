#include "parent_window.h"
#include "support/input.h"
#include "support/window.h"
#include <gtest/gtest.h>
#include <vector>

using namespace testing_support;

namespace {

class DrawnTabsCL : public CTabCtrl
{
public:
    int drawn = 0;
    int changed = 0;
    void DrawItem(LPDRAWITEMSTRUCT) override { ++drawn; }
    afx_msg void OnChange(NMHDR*, LRESULT* result)
    {
        ++changed;
        *result = 0;
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(DrawnTabsCL, CTabCtrl)
ON_NOTIFY_REFLECT(TCN_SELCHANGE, &DrawnTabsCL::OnChange)
END_MESSAGE_MAP()

} // namespace

TEST(TabCtrl, KeepsItsTabs)
{
    ParentWindowCL parent;
    CTabCtrl tabs;
    ASSERT_TRUE(tabs.Create(WS_VISIBLE, Place, &parent, 1));
    EXPECT_EQ(tabs.InsertItem(0, ChineseText), 0);
    EXPECT_EQ(tabs.InsertItem(1, L"\u6587", 2), 1);
    EXPECT_EQ(tabs.InsertItem(TCIF_TEXT | TCIF_PARAM, 2, "c", 0, 77), 2);
    EXPECT_EQ(tabs.GetItemCount(), 3);
    char text[4] = {};
    TCITEMA item = {};
    item.mask = TCIF_TEXT;
    item.pszText = text;
    item.cchTextMax = sizeof text;
    EXPECT_TRUE(tabs.GetItem(0, &item));
    EXPECT_STREQ(text, "\xD6\xD0"); // Never half a character.
    item.mask = TCIF_PARAM;
    EXPECT_TRUE(tabs.GetItem(2, &item));
    EXPECT_EQ(item.lParam, 77);
    char other[] = "other";
    item.mask = TCIF_TEXT;
    item.pszText = other;
    EXPECT_TRUE(tabs.SetItem(1, &item));
    wchar_t wide[10] = {};
    TCITEMW seen = {};
    seen.mask = TCIF_TEXT | TCIF_IMAGE;
    seen.pszText = wide;
    seen.cchTextMax = 10;
    EXPECT_TRUE(tabs.GetItem(1, &seen));
    EXPECT_STREQ(wide, L"other");
    EXPECT_EQ(seen.iImage, 2);
    EXPECT_EQ(tabs.SetCurSel(1), 0);
    EXPECT_EQ(tabs.GetCurSel(), 1);
    EXPECT_EQ(tabs.GetRowCount(), 1);
    CRect first;
    EXPECT_TRUE(tabs.GetItemRect(0, &first));
    TCHITTESTINFO hit = {};
    hit.pt = CPoint(first.left + 3, first.top + 3);
    EXPECT_EQ(tabs.HitTest(&hit), 0);
    CRect inside(0, 0, 200, 150);
    tabs.AdjustRect(FALSE, &inside);
    EXPECT_GT(inside.top, first.Height());
    EXPECT_TRUE(tabs.HighlightItem(2));
    EXPECT_EQ(tabs.GetItemState(2, TCIS_HIGHLIGHTED), static_cast<DWORD>(TCIS_HIGHLIGHTED));
    EXPECT_TRUE(tabs.SetItemState(2, TCIS_HIGHLIGHTED, 0));
    EXPECT_EQ(tabs.GetItemState(2, TCIS_HIGHLIGHTED), 0u);
    EXPECT_TRUE(tabs.DeleteItem(0));
    EXPECT_TRUE(tabs.DeleteAllItems());
    EXPECT_EQ(tabs.GetItemCount(), 0);
}

TEST(TabCtrl, ClickSelectsAndTellsTheControlItself)
{
    ParentWindowCL parent;
    DrawnTabsCL tabs;
    ASSERT_TRUE(tabs.Create(WS_VISIBLE | TCS_OWNERDRAWFIXED, Place, &parent, 1));
    tabs.InsertItem(0, "one");
    tabs.InsertItem(1, "two");
    tabs.RedrawWindow();
    EXPECT_GT(tabs.drawn, 1);
    ASSERT_TRUE(ActivateM(parent));
    CRect second;
    tabs.GetItemRect(1, &second);
    ClickM(tabs, second.left + 5, second.top + 5);
    EXPECT_EQ(tabs.GetCurSel(), 1);
    EXPECT_EQ(tabs.changed, 1);
}
