#include "parent_window.h"
#include <gtest/gtest.h>

namespace {

class DrawnHeaderCL : public CHeaderCtrl
{
public:
    int drawn = 0;
    void DrawItem(LPDRAWITEMSTRUCT) override { ++drawn; }
};

int addM(CHeaderCtrl* header, const char* text, int width, int format = HDF_LEFT)
{
    HDITEMA item = {};
    item.mask = HDI_TEXT | HDI_WIDTH | HDI_FORMAT;
    item.pszText = const_cast<char*>(text);
    item.cxy = width;
    item.fmt = format | HDF_STRING;
    return header->InsertItem(header->GetItemCount(), &item);
}

} // namespace

TEST(HeaderCtrl, KeepsItsItems)
{
    ParentWindowCL parent;
    CHeaderCtrl header;
    ASSERT_TRUE(header.Create(WS_VISIBLE | HDS_HORZ | HDS_DRAGDROP, CRect(0, 0, 300, 24), &parent, 1));
    EXPECT_EQ(addM(&header, ChineseText, 70), 0);
    EXPECT_EQ(addM(&header, "b", 50), 1);
    EXPECT_EQ(header.GetItemCount(), 2);
    char text[4] = {};
    HDITEMA item = {};
    item.mask = HDI_TEXT | HDI_WIDTH;
    item.pszText = text;
    item.cchTextMax = sizeof text;
    EXPECT_TRUE(header.GetItem(0, &item));
    EXPECT_STREQ(text, "\xD6\xD0");
    EXPECT_EQ(item.cxy, 70);
    item.mask = HDI_WIDTH;
    item.cxy = 90;
    EXPECT_TRUE(header.SetItem(0, &item));
    CRect rect;
    EXPECT_TRUE(header.GetItemRect(1, &rect));
    EXPECT_EQ(rect.left, 90);
    HDHITTESTINFO hit = {};
    hit.pt = CPoint(115, 5);
    header.HitTest(&hit);
    EXPECT_EQ(hit.iItem, 1);
    int order[] = { 1, 0 };
    EXPECT_TRUE(header.SetOrderArray(2, order));
    int seen[2] = {};
    EXPECT_TRUE(header.GetOrderArray(seen));
    EXPECT_EQ(seen[0], 1);
    EXPECT_EQ(header.OrderToIndex(0), 1);
    CRect room(0, 0, 300, 200);
    WINDOWPOS place = {};
    HDLAYOUT layout = { &room, &place };
    EXPECT_TRUE(header.Layout(&layout));
    EXPECT_EQ(place.cx, 300);
    CImageList pictures;
    ASSERT_TRUE(pictures.Create(16, 16, ILC_COLOR32, 1, 1));
    header.SetImageList(&pictures);
    EXPECT_EQ(header.GetImageList()->m_hImageList, pictures.m_hImageList);
    EXPECT_TRUE(header.DeleteItem(0));
    EXPECT_EQ(header.GetItemCount(), 1);
}

TEST(HeaderCtrl, DrawsItselfWhereItsOwnerIsToDraw)
{
    ParentWindowCL parent;
    DrawnHeaderCL header;
    ASSERT_TRUE(header.Create(WS_VISIBLE | HDS_HORZ, CRect(0, 0, 300, 24), &parent, 1));
    addM(&header, "a", 70, HDF_OWNERDRAW);
    header.drawn = 0;
    header.RedrawWindow();
    EXPECT_EQ(header.drawn, 1);
}
