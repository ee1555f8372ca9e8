#include "parent_window.h"
#include "support/window.h"
#include <gtest/gtest.h>

using namespace testing_support;

namespace {

class TreeCtrl : public testing::Test
{
protected:
    void SetUp() override
    {
        const DWORD style = WS_VISIBLE | TVS_HASBUTTONS | TVS_HASLINES | TVS_LINESATROOT | TVS_EDITLABELS;
        ASSERT_TRUE(tree.Create(style, Place, &parent, 1));
    }

    ParentWindowCL parent;
    CTreeCtrl tree;
};

int CALLBACK downwardsM(LPARAM one, LPARAM two, LPARAM factor)
{
    return static_cast<int>((two - one) * factor);
}

} // namespace

TEST_F(TreeCtrl, TextsAreGbk)
{
    const HTREEITEM top = tree.InsertItem(ChineseText);
    const HTREEITEM wide = tree.InsertItem(L"\u6587", top);
    EXPECT_EQ(tree.GetItemText(top), ChineseText);
    EXPECT_EQ(tree.GetItemText(wide), "\xCE\xC4");
    EXPECT_TRUE(tree.SetItemText(wide, "\xD6\xD0"));
    EXPECT_EQ(tree.GetItemText(wide), "\xD6\xD0");
    EXPECT_TRUE(tree.SetItemText(wide, L"w"));
    EXPECT_EQ(tree.GetItemText(wide), "w");
    char text[4] = {};
    TVITEMA item = {};
    item.mask = TVIF_TEXT | TVIF_HANDLE;
    item.hItem = top;
    item.pszText = text;
    item.cchTextMax = sizeof text;
    EXPECT_TRUE(tree.GetItem(&item));
    EXPECT_STREQ(text, "\xD6\xD0"); // Never half a character.
    const HTREEITEM asked = tree.InsertItem(LPSTR_TEXTCALLBACKA, TVI_ROOT, TVI_LAST);
    EXPECT_NE(asked, nullptr);
    EXPECT_TRUE(tree.SetItemText(asked, LPSTR_TEXTCALLBACK));
}

TEST_F(TreeCtrl, TakesStructuresWithoutATextAndWithChildrenToCome)
{
    TVINSERTSTRUCTA what = {};
    what.hParent = TVI_ROOT;
    what.item.mask = TVIF_CHILDREN | TVIF_PARAM;
    what.item.pszText = reinterpret_cast<char*>(16); // Not asked for.
    what.item.cChildren = 1;
    what.item.lParam = 7;
    const HTREEITEM item = tree.InsertItem(&what);
    ASSERT_NE(item, nullptr);
    TVITEMW seen = {};
    seen.mask = TVIF_CHILDREN | TVIF_PARAM | TVIF_HANDLE;
    seen.hItem = item;
    EXPECT_TRUE(tree.GetItem(&seen));
    EXPECT_EQ(seen.cChildren, 1);
    EXPECT_EQ(seen.lParam, 7);
}

TEST_F(TreeCtrl, ShowsItsItemsWithPictures)
{
    CImageList pictures;
    ASSERT_TRUE(pictures.Create(20, 20, ILC_COLOR24, 0, 30));
    EXPECT_EQ(tree.SetImageList(&pictures, TVSIL_NORMAL), nullptr);
    EXPECT_EQ(tree.GetImageList(TVSIL_NORMAL)->m_hImageList, pictures.m_hImageList);
    const HTREEITEM top = tree.InsertItem(ChineseText, 3, 4);
    int image = 0;
    int selected = 0;
    EXPECT_TRUE(tree.GetItemImage(top, image, selected));
    EXPECT_EQ(image, 3);
    EXPECT_EQ(selected, 4);
    EXPECT_TRUE(tree.SetItemImage(top, 1, 2));
    EXPECT_TRUE(tree.GetItemImage(top, image, selected));
    EXPECT_EQ(selected, 2);
}

TEST_F(TreeCtrl, WalksItsItems)
{
    const HTREEITEM one = tree.InsertItem("1");
    const HTREEITEM two = tree.InsertItem("2");
    const HTREEITEM first = tree.InsertItem("1.1", one);
    const HTREEITEM second = tree.InsertItem("1.2", one);
    EXPECT_EQ(tree.GetCount(), 4u);
    EXPECT_EQ(tree.GetRootItem(), one);
    EXPECT_EQ(tree.GetChildItem(one), first);
    EXPECT_EQ(tree.GetNextSiblingItem(first), second);
    EXPECT_EQ(tree.GetPrevSiblingItem(second), first);
    EXPECT_EQ(tree.GetParentItem(second), one);
    EXPECT_TRUE(tree.ItemHasChildren(one));
    EXPECT_FALSE(tree.ItemHasChildren(two));
    EXPECT_EQ(tree.GetNextVisibleItem(one), two);
    EXPECT_TRUE(tree.Expand(one, TVE_EXPAND));
    EXPECT_NE(tree.GetItemState(one, TVIS_EXPANDED), 0u);
    EXPECT_EQ(tree.GetNextVisibleItem(one), first);
    EXPECT_EQ(tree.GetPrevVisibleItem(two), second);
    EXPECT_EQ(tree.GetFirstVisibleItem(), one);
    EXPECT_GT(tree.GetVisibleCount(), 3u);
    EXPECT_TRUE(tree.SelectItem(second));
    EXPECT_EQ(tree.GetSelectedItem(), second);
    EXPECT_TRUE(tree.SelectDropTarget(two));
    EXPECT_EQ(tree.GetDropHilightItem(), two);
    EXPECT_TRUE(tree.DeleteItem(one));
    EXPECT_EQ(tree.GetCount(), 1u);
    EXPECT_TRUE(tree.DeleteAllItems());
    EXPECT_EQ(tree.GetRootItem(), nullptr);
}

TEST_F(TreeCtrl, SortsByTextOrData)
{
    const HTREEITEM b = tree.InsertItem("b");
    const HTREEITEM a = tree.InsertItem("a");
    tree.SetItemData(b, 1);
    tree.SetItemData(a, 2);
    EXPECT_EQ(tree.GetItemData(a), 2u);
    EXPECT_TRUE(tree.SortChildren(TVI_ROOT));
    EXPECT_EQ(tree.GetRootItem(), a);
    TVSORTCB how = { TVI_ROOT, &downwardsM, -1 };
    EXPECT_TRUE(tree.SortChildrenCB(&how));
    EXPECT_EQ(tree.GetRootItem(), b);
}

TEST_F(TreeCtrl, KnowsStatesAndPlaces)
{
    const HTREEITEM item = tree.InsertItem("item");
    EXPECT_TRUE(tree.SetItemState(item, TVIS_BOLD, TVIS_BOLD));
    EXPECT_EQ(tree.GetItemState(item, TVIS_BOLD | TVIS_CUT), static_cast<UINT>(TVIS_BOLD));
    tree.ModifyStyle(0, TVS_CHECKBOXES);
    EXPECT_TRUE(tree.SetCheck(item));
    EXPECT_TRUE(tree.GetCheck(item));
    EXPECT_TRUE(tree.SetCheck(item, FALSE));
    EXPECT_FALSE(tree.GetCheck(item));
    EXPECT_TRUE(tree.SetItem(item, TVIF_TEXT | TVIF_PARAM, "other", 0, 0, 0, 0, 5));
    EXPECT_EQ(tree.GetItemText(item), "other");
    EXPECT_TRUE(tree.SetItem(item, TVIF_PARAM, NULL, 0, 0, 0, 0, 6)); // No text is meant.
    EXPECT_EQ(tree.GetItemData(item), 6u);
    EXPECT_EQ(tree.GetItemText(item), "other");
    CRect text;
    ASSERT_TRUE(tree.GetItemRect(item, &text, TRUE));
    UINT flags = 0;
    EXPECT_EQ(tree.HitTest(CPoint(text.left + 2, text.top + 2), &flags), item);
    EXPECT_NE(flags & TVHT_ONITEMLABEL, 0u);
    tree.SetIndent(40);
    EXPECT_EQ(tree.GetIndent(), 40u);
    tree.SetItemHeight(32);
    EXPECT_EQ(tree.GetItemHeight(), 32);
    tree.SetBkColor(0x112233);
    EXPECT_EQ(tree.GetBkColor(), 0x112233u);
    tree.SetTextColor(0x445566);
    EXPECT_EQ(tree.GetTextColor(), 0x445566u);
    tree.SetLineColor(0x778899);
    EXPECT_EQ(tree.GetLineColor(), 0x778899u);
    const CToolTipCtrl* tips = tree.GetToolTips();
    ASSERT_NE(tips, nullptr);
    EXPECT_EQ(tree.SetToolTips(nullptr), tips);
    EXPECT_EQ(tree.GetToolTips(), nullptr);
}

TEST_F(TreeCtrl, LabelIsEdited)
{
    const HTREEITEM item = tree.InsertItem("item");
    ASSERT_TRUE(ActivateM(parent));
    ASSERT_TRUE(FocusM(tree));
    CEdit* field = tree.EditLabel(item);
    ASSERT_NE(field, nullptr);
    EXPECT_EQ(tree.GetEditControl(), field);
    EXPECT_TRUE(tree.EndEditLabelNow(TRUE));
    EXPECT_EQ(tree.GetEditControl(), nullptr);
}
