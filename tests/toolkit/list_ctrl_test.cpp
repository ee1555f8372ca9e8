#include "parent_window.h"
#include "support/input.h"
#include "support/pump.h"
#include "support/window.h"
#include <gtest/gtest.h>
#include <string>
#include <vector>

using namespace testing_support;

namespace {

class ListCtrl : public testing::Test
{
protected:
    void makeM(DWORD style = LVS_REPORT)
    {
        ASSERT_TRUE(list.Create(WS_VISIBLE | style, Place, &parent, 1));
        ASSERT_EQ(list.InsertColumn(0, ChineseText, LVCFMT_LEFT, 80), 0);
        ASSERT_EQ(list.InsertColumn(1, L"b", LVCFMT_RIGHT, 60, 1), 1);
    }
    void fillM(int rows)
    {
        for (int row = 0; row < rows; ++row) {
            ASSERT_EQ(list.InsertItem(row, std::to_string(row).c_str()), row);
            list.SetItemData(row, static_cast<DWORD_PTR>(row));
        }
    }

    ParentWindowCL parent;
    CListCtrl list;
};

int CALLBACK downwardsM(LPARAM one, LPARAM two, LPARAM factor)
{
    return static_cast<int>((two - one) * factor);
}

// Rows whose texts the window asks for.
class AskedListCL : public CListCtrl
{
public:
    afx_msg void OnText(NMHDR* header, LRESULT* result)
    {
        LVITEMW& item = reinterpret_cast<NMLVDISPINFOW*>(header)->item;
        if ((item.mask & LVIF_TEXT) != 0) {
            ::lstrcpynW(item.pszText, L"\u4E2D", item.cchTextMax);
        }
        *result = 0;
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(AskedListCL, CListCtrl)
ON_NOTIFY_REFLECT(LVN_GETDISPINFOW, &AskedListCL::OnText)
END_MESSAGE_MAP()

class DrawnListCtrlCL : public CListCtrl
{
public:
    std::vector<UINT> drawn;
    void DrawItem(LPDRAWITEMSTRUCT draw) override { drawn.push_back(draw->itemID); }
};

} // namespace

TEST_F(ListCtrl, KeepsGbkTextsOfAnyLength)
{
    makeM();
    EXPECT_EQ(list.InsertItem(0, ChineseText), 0);
    EXPECT_EQ(list.InsertItem(1, ChineseWide, 3), 1);
    const std::string longText(255, 'x');
    EXPECT_TRUE(list.SetItemText(0, 1, longText.c_str()));
    EXPECT_TRUE(list.SetItemText(1, 1, L"\u6587"));
    EXPECT_EQ(list.GetItemText(0, 0), ChineseText);
    EXPECT_EQ(list.GetItemText(1, 0), ChineseText);
    EXPECT_EQ(list.GetItemText(1, 1), "\xCE\xC4");
    EXPECT_EQ(list.GetItemText(0, 1), longText.c_str());
    char text[4] = {};
    EXPECT_EQ(list.GetItemText(0, 0, text, 4), 2); // Never half a character.
    EXPECT_GT(list.GetStringWidth(ChineseText), list.GetStringWidth(L"i"));
}

TEST_F(ListCtrl, StructuresCarryGbkOrWideTexts)
{
    makeM();
    char given[] = "\xD6\xD0\xCE\xC4";
    LVITEMA item = {};
    item.mask = LVIF_TEXT | LVIF_PARAM;
    item.pszText = given;
    item.lParam = 9;
    EXPECT_EQ(list.InsertItem(&item), 0);
    EXPECT_EQ(list.InsertItem(LVIF_TEXT | LVIF_STATE, 1, "r", LVIS_SELECTED, LVIS_SELECTED, 0, 0), 1);
    EXPECT_EQ(list.GetItemState(1, LVIS_SELECTED), static_cast<UINT>(LVIS_SELECTED));
    char got[4] = {};
    LVITEMA asked = {};
    asked.mask = LVIF_TEXT | LVIF_PARAM;
    asked.pszText = got;
    asked.cchTextMax = sizeof got;
    EXPECT_TRUE(list.GetItem(&asked));
    EXPECT_STREQ(got, "\xD6\xD0");
    EXPECT_EQ(asked.pszText, got);
    EXPECT_EQ(asked.lParam, 9);
    wchar_t wide[10] = {};
    LVITEMW wideItem = {};
    wideItem.mask = LVIF_TEXT;
    wideItem.pszText = wide;
    wideItem.cchTextMax = 10;
    EXPECT_TRUE(list.GetItem(&wideItem));
    EXPECT_STREQ(wide, ChineseWide);
    asked.iItem = 7;
    EXPECT_FALSE(list.GetItem(&asked));
    EXPECT_TRUE(list.SetItem(1, 0, LVIF_TEXT | LVIF_PARAM, "s", 0, 0, 0, 5));
    EXPECT_EQ(list.GetItemText(1, 0), "s");
    EXPECT_EQ(list.GetItemData(1), 5u);
    EXPECT_TRUE(list.SetItem(1, 0, LVIF_PARAM, NULL, 0, 0, 0, 6)); // No text is meant.
    EXPECT_EQ(list.GetItemData(1), 6u);
    EXPECT_EQ(list.GetItemText(1, 0), "s");
}

TEST_F(ListCtrl, ColumnsTellWhatTheyHold)
{
    makeM();
    char heading[4] = {};
    LVCOLUMNA column = {};
    column.mask = LVCF_TEXT | LVCF_WIDTH | LVCF_FMT;
    column.pszText = heading;
    column.cchTextMax = sizeof heading;
    EXPECT_TRUE(list.GetColumn(0, &column));
    EXPECT_STREQ(heading, "\xD6\xD0");
    EXPECT_EQ(column.cx, 80);
    char other[] = "\xCE\xC4";
    column.mask = LVCF_TEXT;
    column.pszText = other;
    EXPECT_TRUE(list.SetColumn(0, &column));
    ASSERT_NE(list.GetHeaderCtrl(), nullptr);
    EXPECT_EQ(list.GetHeaderCtrl()->m_hWnd, list.GetHeaderHandle());
    EXPECT_EQ(list.GetHeaderCtrl()->GetItemCount(), 2);
    wchar_t shown[10] = {};
    HDITEMW head = {};
    head.mask = HDI_TEXT;
    head.pszText = shown;
    head.cchTextMax = 10;
    EXPECT_TRUE(list.GetHeaderCtrl()->GetItem(0, &head));
    EXPECT_STREQ(shown, L"\u6587");
    int order[] = { 1, 0 };
    EXPECT_TRUE(list.SetColumnOrderArray(2, order));
    int seen[2] = {};
    EXPECT_TRUE(list.GetColumnOrderArray(seen));
    EXPECT_EQ(seen[0], 1);
    list.SetColumnWidth(1, 33);
    EXPECT_EQ(list.GetColumnWidth(1), 33);
    EXPECT_TRUE(list.DeleteColumn(1));
    EXPECT_EQ(list.GetHeaderCtrl()->GetItemCount(), 1);
}

TEST_F(ListCtrl, GoesThroughTheSelection)
{
    makeM();
    fillM(6);
    EXPECT_EQ(list.GetFirstSelectedItemPosition(), nullptr);
    for (const int row : { 0, 3, 5 }) {
        EXPECT_TRUE(list.SetItemState(row, LVIS_SELECTED, LVIS_SELECTED));
    }
    std::vector<int> rows;
    for (POSITION at = list.GetFirstSelectedItemPosition(); at != nullptr;) {
        rows.push_back(list.GetNextSelectedItem(at));
    }
    EXPECT_EQ(rows, (std::vector<int> { 0, 3, 5 }));
    EXPECT_EQ(list.GetSelectedCount(), 3u);
    EXPECT_EQ(list.GetNextItem(3, LVNI_SELECTED), 5);
    list.SetSelectionMark(2);
    EXPECT_EQ(list.GetSelectionMark(), 2);
    LVITEMW none = {};
    none.stateMask = LVIS_SELECTED;
    EXPECT_TRUE(list.SetItemState(-1, &none));
    EXPECT_EQ(list.GetSelectedCount(), 0u);
    CListCtrl unmade;
    EXPECT_EQ(unmade.GetFirstSelectedItemPosition(), nullptr);
}

TEST_F(ListCtrl, SortsByDataAndFindsRows)
{
    makeM();
    fillM(4);
    EXPECT_TRUE(list.SortItems(&downwardsM, 1));
    EXPECT_EQ(list.GetItemText(0, 0), "3");
    EXPECT_TRUE(list.SortItemsEx(&downwardsM, 1));
    EXPECT_EQ(list.GetItemText(0, 0), "0");
    list.SetItemText(2, 0, ChineseText);
    LVFINDINFOA what = {};
    what.flags = LVFI_STRING;
    what.psz = ChineseText;
    EXPECT_EQ(list.FindItem(&what), 2);
    EXPECT_EQ(list.FindItem(&what, 2), -1);
    what.flags = LVFI_PARAM;
    what.lParam = 3;
    EXPECT_EQ(list.FindItem(&what), 3);
    EXPECT_TRUE(list.DeleteItem(3));
    EXPECT_TRUE(list.DeleteAllItems());
    EXPECT_EQ(list.GetItemCount(), 0);
}

TEST_F(ListCtrl, KnowsWhereItsRowsAre)
{
    makeM();
    fillM(50);
    CRect row;
    CRect cell;
    ASSERT_TRUE(list.GetItemRect(2, &row, LVIR_BOUNDS));
    ASSERT_TRUE(list.GetSubItemRect(2, 1, LVIR_BOUNDS, cell));
    EXPECT_EQ(cell.left, row.left + 80);
    EXPECT_EQ(cell.Width(), 60);
    UINT flags = 0;
    EXPECT_EQ(list.HitTest(CPoint(row.left + 5, row.top + 3), &flags), 2);
    EXPECT_NE(flags & LVHT_ONITEM, 0u);
    LVHITTESTINFO hit = {};
    hit.pt = CPoint(cell.left + 5, cell.top + 3);
    EXPECT_EQ(list.SubItemHitTest(&hit), 2);
    EXPECT_EQ(hit.iSubItem, 1);
    EXPECT_GT(list.GetCountPerPage(), 0);
    EXPECT_TRUE(list.EnsureVisible(40, FALSE));
    EXPECT_GT(list.GetTopIndex(), 0);
    const int top = list.GetTopIndex();
    EXPECT_TRUE(list.Scroll(CSize(0, -row.Height())));
    EXPECT_EQ(list.GetTopIndex(), top - 1);
    EXPECT_TRUE(list.RedrawItems(0, 5));
    EXPECT_TRUE(list.Update(0));
    CPoint at;
    EXPECT_TRUE(list.GetItemPosition(0, &at));
    EXPECT_GT(list.ApproximateViewRect().cx, 0);
}

TEST_F(ListCtrl, ChecksRowsAndShowsColours)
{
    makeM();
    fillM(2);
    list.SetExtendedStyle(LVS_EX_CHECKBOXES | LVS_EX_FULLROWSELECT);
    EXPECT_EQ(list.GetExtendedStyle(), static_cast<DWORD>(LVS_EX_CHECKBOXES | LVS_EX_FULLROWSELECT));
    EXPECT_FALSE(list.GetCheck(1));
    EXPECT_TRUE(list.SetCheck(1));
    EXPECT_TRUE(list.GetCheck(1));
    EXPECT_FALSE(list.GetCheck(0));
    EXPECT_TRUE(list.SetCheck(1, FALSE));
    EXPECT_FALSE(list.GetCheck(1));
    EXPECT_TRUE(list.SetBkColor(0x112233));
    EXPECT_EQ(list.GetBkColor(), 0x112233u);
    EXPECT_TRUE(list.SetTextColor(0x445566));
    EXPECT_EQ(list.GetTextColor(), 0x445566u);
    EXPECT_TRUE(list.SetTextBkColor(0x778899));
    EXPECT_EQ(list.GetTextBkColor(), 0x778899u);
    EXPECT_NE(list.SetView(LV_VIEW_LIST), ~0u);
    EXPECT_EQ(list.GetView(), static_cast<DWORD>(LV_VIEW_LIST));
    CImageList pictures;
    ASSERT_TRUE(pictures.Create(16, 16, ILC_COLOR32, 1, 1));
    EXPECT_EQ(list.SetImageList(&pictures, LVSIL_SMALL), nullptr);
    EXPECT_EQ(list.GetImageList(LVSIL_SMALL)->m_hImageList, pictures.m_hImageList);
    EXPECT_EQ(list.SetImageList(nullptr, LVSIL_SMALL)->m_hImageList, pictures.m_hImageList);
}

TEST_F(ListCtrl, LabelIsEdited)
{
    makeM(LVS_REPORT | LVS_EDITLABELS);
    fillM(2);
    ASSERT_TRUE(ActivateM(parent));
    ASSERT_TRUE(FocusM(list));
    CEdit* field = list.EditLabel(1);
    ASSERT_NE(field, nullptr);
    EXPECT_EQ(list.GetEditControl(), field);
    field->SetWindowText(ChineseText);
    field->SetSel(0, 4);
    int first = 0;
    int end = 0;
    field->GetSel(first, end);
    EXPECT_EQ(end, 4);
    list.SetFocus();
    EXPECT_EQ(list.GetEditControl(), nullptr);
}

TEST_F(ListCtrl, RowsMayBeAskedForTheirTexts)
{
    AskedListCL asked;
    ASSERT_TRUE(asked.Create(WS_VISIBLE | LVS_REPORT, Place, &parent, 2));
    asked.InsertColumn(0, "a", LVCFMT_LEFT, 80);
    EXPECT_EQ(asked.InsertItem(0, LPSTR_TEXTCALLBACKA), 0);
    EXPECT_EQ(asked.InsertItem(1, LPSTR_TEXTCALLBACK), 1);
    EXPECT_EQ(asked.GetItemText(0, 0), "\xD6\xD0");
    EXPECT_EQ(asked.GetItemText(1, 0), "\xD6\xD0");
    CListCtrl many;
    ASSERT_TRUE(many.Create(WS_VISIBLE | LVS_REPORT | LVS_OWNERDATA, Place, &parent, 3));
    many.SetItemCount(1000);
    EXPECT_EQ(many.GetItemCount(), 1000);
    EXPECT_TRUE(many.SetItemCountEx(10));
    EXPECT_EQ(many.GetItemCount(), 10);
}

TEST_F(ListCtrl, DrawsItselfWhereItsOwnerIsToDraw)
{
    DrawnListCtrlCL drawn;
    ASSERT_TRUE(drawn.Create(WS_VISIBLE | LVS_REPORT | LVS_OWNERDRAWFIXED, Place, &parent, 2));
    drawn.InsertColumn(0, "a", LVCFMT_LEFT, 80);
    drawn.InsertItem(0, "x");
    drawn.InsertItem(1, "y");
    drawn.drawn.clear();
    drawn.RedrawWindow();
    EXPECT_EQ(drawn.drawn, (std::vector<UINT> { 0, 1 }));
}

TEST_F(ListCtrl, LeavesPicturesToTheirObject)
{
    CImageList pictures;
    ASSERT_TRUE(pictures.Create(16, 16, ILC_COLOR24, 0, 4));
    ASSERT_TRUE(pictures.SetImageCount(3));
    makeM();
    list.SetImageList(&pictures, LVSIL_SMALL);
    list.DestroyWindow();
    EXPECT_EQ(pictures.GetImageCount(), 3);
    EXPECT_TRUE(pictures.DeleteImageList());
}
