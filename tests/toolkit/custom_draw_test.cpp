// Controls that draw their items with the colours that their own class says, by reflected NM_CUSTOMDRAW.
#include "parent_window.h"
#include "support/pixels.h"
#include <gtest/gtest.h>

namespace {

constexpr COLORREF Ground = RGB(10, 200, 30);

// Of any class: counts the stages, and asks for those of the items.
template <class ControlTP> class ColouredCL : public ControlTP
{
public:
    int prepaints = 0;
    int items = 0;
    afx_msg void OnCustomDraw(NMHDR* header, LRESULT* result)
    {
        auto* draw = reinterpret_cast<NMCUSTOMDRAW*>(header);
        EXPECT_EQ(header->hwndFrom, this->m_hWnd);
        if (draw->dwDrawStage == CDDS_PREPAINT) {
            ++prepaints;
            *result = CDRF_NOTIFYITEMDRAW;
        } else {
            items += draw->dwDrawStage == CDDS_ITEMPREPAINT;
            *result = this->colourM(draw);
        }
    }
    virtual LRESULT colourM(NMCUSTOMDRAW*) { return CDRF_DODEFAULT; }

protected:
    static const AFX_MSGMAP* GetThisMessageMap()
    {
        static const AFX_MSGMAP_ENTRY entries[] = { entryM(), { 0, 0, 0, 0, nullptr } };
        static const AFX_MSGMAP map = { &ColouredCL::baseMapM, entries };
        return &map;
    }
    const AFX_MSGMAP* GetMessageMap() const override { return GetThisMessageMap(); }

private:
    typedef ColouredCL ThisClass;
    static const AFX_MSGMAP* baseMapM() { return ControlTP::GetThisMessageMap(); }
    static AFX_MSGMAP_ENTRY entryM()
    {
        const AFX_MSGMAP_ENTRY entries[] = { ON_NOTIFY_REFLECT(NM_CUSTOMDRAW, &ColouredCL::OnCustomDraw) };
        return entries[0];
    }
};

class ColouredListCL : public ColouredCL<CListCtrl>
{
    LRESULT colourM(NMCUSTOMDRAW* draw) override
    {
        if (draw->dwItemSpec == 1) {
            reinterpret_cast<NMLVCUSTOMDRAW*>(draw)->clrTextBk = Ground;
        }
        return CDRF_NEWFONT;
    }
};

class ColouredTreeCL : public ColouredCL<CTreeCtrl>
{
    LRESULT colourM(NMCUSTOMDRAW* draw) override
    {
        reinterpret_cast<NMTVCUSTOMDRAW*>(draw)->clrTextBk = Ground;
        return CDRF_NEWFONT;
    }
};

class FilledHeaderCL : public ColouredCL<CHeaderCtrl>
{
    LRESULT colourM(NMCUSTOMDRAW* draw) override
    {
        CBrush brush(Ground);
        ::FillRect(draw->hdc, &draw->rc, brush);
        return CDRF_SKIPDEFAULT;
    }
};

COLORREF pixelM(CWnd* wnd, int x, int y)
{
    wnd->RedrawWindow();
    CClientDC dc(wnd);
    return ::GetPixel(dc, x, y);
}

} // namespace

TEST(CustomDraw, ListColoursOneOfItsRows)
{
    ParentWindowCL parent;
    ColouredListCL list;
    ASSERT_TRUE(list.Create(WS_VISIBLE | LVS_REPORT, Place, &parent, 1));
    list.InsertColumn(0, "a", LVCFMT_LEFT, 100);
    list.InsertItem(0, "");
    list.InsertItem(1, "");
    CRect row;
    list.GetItemRect(1, &row, LVIR_LABEL);
    EXPECT_EQ(pixelM(&list, row.left + 40, row.top + row.Height() / 2), Ground);
    list.GetItemRect(0, &row, LVIR_LABEL);
    EXPECT_NE(pixelM(&list, row.left + 40, row.top + row.Height() / 2), Ground);
    EXPECT_GT(list.prepaints, 0);
}

TEST(CustomDraw, TreeColoursItsItems)
{
    ParentWindowCL parent;
    ColouredTreeCL tree;
    ASSERT_TRUE(tree.Create(WS_VISIBLE, Place, &parent, 1));
    const HTREEITEM item = tree.InsertItem("      ");
    CRect text;
    ASSERT_TRUE(tree.GetItemRect(item, &text, TRUE));
    EXPECT_EQ(pixelM(&tree, text.left + text.Width() / 2, text.top + text.Height() / 2), Ground);
}

TEST(CustomDraw, HeaderDrawsItsItems)
{
    ParentWindowCL parent;
    FilledHeaderCL header;
    ASSERT_TRUE(header.Create(WS_VISIBLE | HDS_HORZ, CRect(0, 0, 300, 24), &parent, 1));
    HDITEMW item = {};
    item.mask = HDI_WIDTH;
    item.cxy = 80;
    header.InsertItem(0, &item);
    EXPECT_EQ(pixelM(&header, 40, 12), Ground);
}

TEST(CustomDraw, HeaderOfAListDrawsItsItems)
{
    ParentWindowCL parent;
    CListCtrl list;
    FilledHeaderCL header;
    ASSERT_TRUE(list.Create(WS_VISIBLE | LVS_REPORT, Place, &parent, 1));
    list.InsertColumn(0, "", LVCFMT_LEFT, 100);
    ASSERT_TRUE(header.SubclassWindow(list.GetHeaderHandle()));
    EXPECT_EQ(list.GetHeaderCtrl(), &header);
    EXPECT_EQ(pixelM(&header, 40, 8), Ground);
    EXPECT_GT(header.items, 0);
}

TEST(CustomDraw, SliderAndButtonAskTheirClass)
{
    ParentWindowCL parent;
    ColouredCL<CSliderCtrl> slider;
    ASSERT_TRUE(slider.Create(WS_VISIBLE, CRect(10, 10, 310, 50), &parent, 1));
    slider.RedrawWindow();
    EXPECT_GT(slider.prepaints, 0);
    EXPECT_GT(slider.items, 0);
    // Only buttons of the newer library ask by themselves.
    ColouredCL<CButton> button;
    ASSERT_TRUE(button.Create("b", WS_VISIBLE, CRect(10, 60, 110, 90), &parent, 2));
    NMCUSTOMDRAW draw = {};
    draw.hdr = { button, 2, static_cast<UINT>(NM_CUSTOMDRAW) };
    draw.dwDrawStage = CDDS_PREPAINT;
    EXPECT_EQ(parent.SendMessage(WM_NOTIFY, 2, reinterpret_cast<LPARAM>(&draw)), CDRF_NOTIFYITEMDRAW);
    EXPECT_EQ(button.prepaints, 1);
}
