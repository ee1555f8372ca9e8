#include "toolkit/toolkit.h"
#include <gtest/gtest.h>
#include <memory>

namespace {

const char ChineseText[] = "\xD6\xD0\xCE\xC4"; // 中文
const RECT Place = { 10, 10, 210, 160 };

// Refuses every second step of its arrows and notes what it is told.
class SpinCL : public CSpinButtonCtrl
{
public:
    int steps = 0;
    afx_msg void OnDelta(NMHDR* header, LRESULT* result)
    {
        EXPECT_EQ(header->hwndFrom, m_hWnd);
        *result = ++steps % 2 == 0;
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(SpinCL, CSpinButtonCtrl)
ON_NOTIFY_REFLECT(UDN_DELTAPOS, &SpinCL::OnDelta)
END_MESSAGE_MAP()

class ParentCL : public CWnd
{
public:
    int notified = 0;
    ParentCL() { CreateEx(0, nullptr, "parent", WS_POPUP, 0, 0, 300, 300, nullptr, nullptr); }
    afx_msg void OnDelta(NMHDR*, LRESULT* result)
    {
        ++notified;
        *result = 5;
    }
    afx_msg LRESULT OnOwn(WPARAM wParam, LPARAM lParam) { return static_cast<LRESULT>(wParam) - lParam; }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(ParentCL, CWnd)
ON_NOTIFY(UDN_DELTAPOS, 3, &ParentCL::OnDelta)
ON_MESSAGE(WM_USER + 600, &ParentCL::OnOwn)
END_MESSAGE_MAP()

class MadeCL : public CWnd
{
    DECLARE_DYNCREATE(MadeCL)
};

IMPLEMENT_DYNCREATE(MadeCL, CWnd)

} // namespace

TEST(Controls, NotificationGoesToTheChildElseToTheParent)
{
    ParentCL parent;
    SpinCL spin;
    CSpinButtonCtrl plain;
    ASSERT_TRUE(spin.Create(WS_VISIBLE, Place, &parent, 3));
    ASSERT_TRUE(plain.Create(WS_VISIBLE, Place, &parent, 3));
    NMUPDOWN step = {};
    step.hdr = { spin, 3, static_cast<UINT>(UDN_DELTAPOS) };
    EXPECT_EQ(parent.SendMessage(WM_NOTIFY, 3, reinterpret_cast<LPARAM>(&step)), 0);
    EXPECT_EQ(parent.SendMessage(WM_NOTIFY, 3, reinterpret_cast<LPARAM>(&step)), 1);
    EXPECT_EQ(spin.steps, 2);
    EXPECT_EQ(parent.notified, 0);
    step.hdr.hwndFrom = plain;
    EXPECT_EQ(parent.SendMessage(WM_NOTIFY, 3, reinterpret_cast<LPARAM>(&step)), 5);
    EXPECT_EQ(parent.notified, 1);
}

TEST(Controls, OwnMessagesCarryAllOfTheirParameters)
{
    ParentCL parent;
    WPARAM big = static_cast<WPARAM>(1) << (sizeof(WPARAM) * 8 - 24); // Beyond 32 bits where there are more.
    EXPECT_EQ(parent.SendMessage(WM_USER + 600, big, 2), static_cast<LRESULT>(big) - 2);
}

TEST(Controls, SpinButtonKnowsItsBuddy)
{
    ParentCL parent;
    CEdit edit;
    CSpinButtonCtrl spin;
    ASSERT_TRUE(edit.Create(WS_VISIBLE, Place, &parent, 1));
    ASSERT_TRUE(spin.Create(WS_VISIBLE, Place, &parent, 2));
    spin.SetBuddy(&edit);
    EXPECT_EQ(spin.GetBuddy(), &edit);
    int low = 0;
    int high = 0;
    spin.SetRange(-3, 9);
    spin.GetRange(low, high);
    EXPECT_EQ(low, -3);
    EXPECT_EQ(high, 9);
}

TEST(Controls, ListTextsAreGbk)
{
    ParentCL parent;
    CListBox list;
    CComboBox combo;
    ASSERT_TRUE(list.Create(WS_VISIBLE, Place, &parent, 1));
    ASSERT_TRUE(combo.Create(WS_VISIBLE | CBS_DROPDOWNLIST, Place, &parent, 2));
    EXPECT_EQ(list.AddString(ChineseText), 0);
    EXPECT_EQ(combo.AddString(ChineseText), 0);
    wchar_t wide[10] = {};
    list.SendMessage(LB_GETTEXT, 0, reinterpret_cast<LPARAM>(wide));
    EXPECT_STREQ(wide, L"\u4E2D\u6587");
    EXPECT_EQ(list.GetTextLen(0), 4);
    EXPECT_EQ(list.GetTextLen(1), LB_ERR);
    char text[5] = {};
    EXPECT_EQ(list.GetText(0, text), 4);
    EXPECT_STREQ(text, ChineseText);
    CString line;
    combo.GetLBText(0, line);
    EXPECT_EQ(line, ChineseText);
    EXPECT_EQ(list.FindStringExact(-1, ChineseText), 0);
    list.SetItemData(0, 99);
    EXPECT_EQ(list.GetItemData(0), 99u);
    EXPECT_EQ(list.SetCurSel(0), 0);
    EXPECT_EQ(list.GetCurSel(), 0);
}

TEST(Controls, ListViewKeepsGbkTextsOfAnyLength)
{
    ParentCL parent;
    CListCtrl list;
    ASSERT_TRUE(list.Create(WS_VISIBLE | LVS_REPORT, Place, &parent, 1));
    EXPECT_EQ(list.InsertColumn(0, ChineseText, LVCFMT_LEFT, 80), 0);
    EXPECT_EQ(list.InsertColumn(1, "b", LVCFMT_LEFT, 80, 1), 1);
    EXPECT_EQ(list.GetColumnWidth(0), 80);
    EXPECT_EQ(list.InsertItem(0, ChineseText), 0);
    std::string longText(255, 'x');
    EXPECT_TRUE(list.SetItemText(0, 1, longText.c_str()));
    EXPECT_EQ(list.GetItemText(0, 0), ChineseText);
    EXPECT_EQ(list.GetItemText(0, 1), longText.c_str());
    char text[4] = {};
    EXPECT_EQ(list.GetItemText(0, 0, text, 4), 2);
    EXPECT_TRUE(list.SetItemData(0, 77));
    EXPECT_EQ(list.GetItemData(0), 77u);
    EXPECT_EQ(list.GetItemCount(), 1);
}

TEST(Controls, ItemsMayBeAskedForTheirTexts)
{
    ParentCL parent;
    CListCtrl list;
    ASSERT_TRUE(list.Create(WS_VISIBLE | LVS_REPORT, Place, &parent, 1));
    list.InsertColumn(0, "a", LVCFMT_LEFT, 80);
    list.InsertColumn(1, "b", LVCFMT_LEFT, 80, 1);
    EXPECT_EQ(list.InsertItem(0, LPSTR_TEXTCALLBACKA), 0);
    EXPECT_TRUE(list.SetItemText(0, 1, LPSTR_TEXTCALLBACKA));
    CTreeCtrl tree;
    ASSERT_TRUE(tree.Create(WS_VISIBLE, Place, &parent, 2));
    const HTREEITEM asked = tree.InsertItem(LPSTR_TEXTCALLBACKA, TVI_ROOT, TVI_LAST);
    EXPECT_NE(asked, nullptr);
    EXPECT_TRUE(tree.SetItemText(asked, LPSTR_TEXTCALLBACKA));
}

TEST(Controls, TreeTakesStructuresWithoutATextAndWithChildrenToCome)
{
    ParentCL parent;
    CTreeCtrl tree;
    ASSERT_TRUE(tree.Create(WS_VISIBLE, Place, &parent, 2));
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
    ::SendMessageW(tree.m_hWnd, TVM_GETITEMW, 0, reinterpret_cast<LPARAM>(&seen));
    EXPECT_EQ(seen.cChildren, 1);
    EXPECT_EQ(seen.lParam, 7);
}

TEST(Controls, TreeShowsItsItemsWithPictures)
{
    ParentCL parent;
    CTreeCtrl tree;
    CImageList pictures;
    ASSERT_TRUE(tree.Create(WS_VISIBLE, Place, &parent, 1));
    ASSERT_TRUE(pictures.Create(20, 20, ILC_COLOR24, 0, 30));
    EXPECT_EQ(tree.SetImageList(&pictures, TVSIL_NORMAL), nullptr);
    EXPECT_EQ(tree.GetImageList(TVSIL_NORMAL)->m_hImageList, pictures.m_hImageList);
    UINT mask = TVIF_TEXT | TVIF_IMAGE | TVIF_SELECTEDIMAGE;
    HTREEITEM top = tree.InsertItem(mask, ChineseText, 3, 4, 0, 0, 0, TVI_ROOT, TVI_LAST);
    ASSERT_NE(top, nullptr);
    HTREEITEM child = tree.InsertItem("child", top);
    EXPECT_EQ(tree.GetItemText(top), ChineseText);
    int image = 0;
    int selected = 0;
    EXPECT_TRUE(tree.GetItemImage(top, image, selected));
    EXPECT_EQ(image, 3);
    EXPECT_EQ(selected, 4);
    EXPECT_EQ(tree.GetParentItem(child), top);
    EXPECT_EQ(tree.GetCount(), 2u);
}

TEST(Object, ClassKnowsItsBaseAndMakesObjects)
{
    std::unique_ptr<CObject> made(RUNTIME_CLASS(MadeCL)->CreateObject());
    ASSERT_NE(made, nullptr);
    EXPECT_TRUE(made->IsKindOf(RUNTIME_CLASS(CWnd)));
    EXPECT_FALSE(made->IsKindOf(RUNTIME_CLASS(CButton)));
    EXPECT_STREQ(made->GetRuntimeClass()->m_lpszClassName, "MadeCL");
    EXPECT_EQ(RUNTIME_CLASS(CWnd)->CreateObject(), nullptr);
}
