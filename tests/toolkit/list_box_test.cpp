#include "parent_window.h"
#include "support/input.h"
#include "support/window.h"
#include <cstring>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <string>
#include <vector>

using namespace testing_support;

namespace {

class ListBox : public testing::Test
{
protected:
    void makeM(DWORD style = 0) { ASSERT_TRUE(list.Create(WS_VISIBLE | style, Place, &parent, 1)); }
    std::string textM(int index) const
    {
        CString text;
        list.GetText(index, text);
        return std::string(text);
    }

    ParentWindowCL parent;
    CListBox list;
};

// Sorts by item data, downwards; counts what it is asked for; answers keys.
class OwnListCL : public CListBox
{
public:
    std::vector<UINT> drawn;
    int deleted = 0;
    int measured = 0;
    UINT key = 0;
    void DrawItem(LPDRAWITEMSTRUCT draw) override { drawn.push_back(draw->itemID); }
    void MeasureItem(LPMEASUREITEMSTRUCT measure) override
    {
        ++measured;
        measure->itemHeight = 31;
    }
    int CompareItem(LPCOMPAREITEMSTRUCT compare) override
    {
        const ULONG_PTR one = compare->itemData1;
        const ULONG_PTR two = compare->itemData2;
        return one < two ? 1 : one > two ? -1 : 0;
    }
    void DeleteItem(LPDELETEITEMSTRUCT) override { ++deleted; }
    int VKeyToItem(UINT pressed, UINT) override
    {
        key = pressed;
        return pressed == VK_F2 ? 2 : pressed == VK_DOWN ? -2 : -1;
    }
};

} // namespace

TEST_F(ListBox, TextsAreGbk)
{
    makeM();
    EXPECT_EQ(list.AddString(ChineseText), 0);
    EXPECT_EQ(list.InsertString(0, L"\u6587z"), 0);
    EXPECT_EQ(list.GetTextLen(1), 4);
    EXPECT_EQ(list.GetTextLen(0), 3);
    EXPECT_EQ(list.GetTextLen(2), LB_ERR);
    char text[5] = {};
    EXPECT_EQ(list.GetText(1, text), 4);
    EXPECT_STREQ(text, ChineseText);
    EXPECT_EQ(list.GetText(9, text), LB_ERR);
    EXPECT_EQ(textM(0), "\xCE\xC4z");
    EXPECT_EQ(list.FindString(-1, "\xCE\xC4"), 0);
    EXPECT_EQ(list.FindString(-1, L"\u4E2D"), 1);
    EXPECT_EQ(list.FindStringExact(-1, "\xCE\xC4"), LB_ERR);
    EXPECT_EQ(list.FindStringExact(-1, ChineseWide), 1);
    EXPECT_EQ(list.SelectString(-1, "\xD6\xD0"), 1);
    EXPECT_EQ(list.GetCurSel(), 1);
    EXPECT_EQ(list.SelectString(-1, L"\u6587"), 0);
    EXPECT_EQ(list.DeleteString(0), 1);
    list.ResetContent();
    EXPECT_EQ(list.GetCount(), 0);
}

TEST_F(ListBox, SortsAndKeepsDataWithItsLine)
{
    makeM(LBS_SORT);
    int data = 5;
    EXPECT_EQ(list.InitStorage(100, 1000) >= 100, true);
    EXPECT_EQ(list.AddString("b"), 0);
    list.SetItemDataPtr(0, &data);
    EXPECT_EQ(list.AddString("a"), 0);
    list.SetItemData(0, 7);
    EXPECT_EQ(textM(1), "b");
    EXPECT_EQ(list.GetItemDataPtr(1), &data);
    EXPECT_EQ(list.GetItemData(0), 7u);
}

TEST_F(ListBox, SelectsManyLines)
{
    makeM(LBS_EXTENDEDSEL);
    for (const char* text : { "0", "1", "2", "3", "4" }) {
        list.AddString(text);
    }
    EXPECT_NE(list.SelItemRange(TRUE, 1, 3), LB_ERR);
    EXPECT_EQ(list.GetSelCount(), 3);
    EXPECT_NE(list.SelItemRange(FALSE, 2, 2), LB_ERR);
    int selected[5] = {};
    EXPECT_EQ(list.GetSelItems(5, selected), 2);
    EXPECT_EQ(selected[1], 3);
    EXPECT_NE(list.SelItemRange(FALSE, 0, 4), LB_ERR);
    EXPECT_EQ(list.GetSelCount(), 0);
    EXPECT_NE(list.SetSel(-1), LB_ERR);
    EXPECT_EQ(list.GetSelCount(), 5);
    list.SetAnchorIndex(2);
    EXPECT_EQ(list.GetAnchorIndex(), 2);
    list.SetCaretIndex(3);
    EXPECT_EQ(list.GetCaretIndex(), 3);
}

TEST_F(ListBox, KnowsWhereItsLinesAre)
{
    makeM(WS_HSCROLL | WS_VSCROLL | LBS_USETABSTOPS | LBS_NOINTEGRALHEIGHT);
    for (int i = 0; i < 30; ++i) {
        list.AddString("a\tb");
    }
    list.SetItemHeight(0, 20);
    EXPECT_EQ(list.GetItemHeight(0), 20);
    CRect line;
    list.GetItemRect(2, &line);
    BOOL isOutside = TRUE;
    EXPECT_EQ(list.ItemFromPoint(CPoint(5, line.top + 1), isOutside), 2u);
    EXPECT_FALSE(isOutside);
    list.ItemFromPoint(CPoint(5, 5000), isOutside);
    EXPECT_TRUE(isOutside);
    list.SetTopIndex(4);
    EXPECT_EQ(list.GetTopIndex(), 4);
    list.SetHorizontalExtent(700);
    EXPECT_EQ(list.GetHorizontalExtent(), 700);
    int stops[] = { 20, 60 };
    EXPECT_TRUE(list.SetTabStops(2, stops));
    EXPECT_TRUE(list.SetTabStops(16));
    list.SetTabStops();
    EXPECT_EQ(LANGIDFROMLCID(list.SetLocale(MAKELCID(0x0804, SORT_DEFAULT))) != 0, true);
    EXPECT_EQ(list.GetLocale(), 0x0804u);
}

TEST_F(ListBox, ListsFilesOfChineseNames)
{
    makeM();
    wchar_t folder[MAX_PATH] = {};
    ::GetTempPathW(MAX_PATH, folder);
    const std::wstring path = std::wstring(folder) + L"\u4E2D\u6587.list_box_test";
    const HANDLE file = ::CreateFileW(
        path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, FILE_FLAG_DELETE_ON_CLOSE, nullptr);
    ASSERT_NE(file, INVALID_HANDLE_VALUE);
    const std::string pattern = WideToGbk(folder) + "*.list_box_test";
    EXPECT_EQ(list.Dir(DDL_READWRITE, pattern.c_str()), 0);
    EXPECT_EQ(textM(0), std::string(ChineseText) + ".list_box_test");
    ::CloseHandle(file);
}

TEST_F(ListBox, OwnerDrawnAsksItsVirtualFunctions)
{
    OwnListCL own;
    const DWORD style = WS_VISIBLE | LBS_OWNERDRAWFIXED | LBS_SORT | LBS_WANTKEYBOARDINPUT;
    ASSERT_TRUE(own.Create(style, Place, &parent, 2));
    EXPECT_EQ(own.measured, 1);
    EXPECT_EQ(own.GetItemHeight(0), 31);
    const auto add = [&](LPARAM data) { return own.SendMessage(LB_ADDSTRING, 0, data); };
    EXPECT_EQ(add(10), 0);
    EXPECT_EQ(add(30), 0); // The larger first.
    EXPECT_EQ(add(20), 1);
    own.RedrawWindow();
    EXPECT_FALSE(own.drawn.empty());
    ASSERT_TRUE(ActivateM(parent));
    ASSERT_TRUE(FocusM(own));
    own.SetCurSel(0);
    KeyM(VK_F2);
    EXPECT_EQ(own.key, static_cast<UINT>(VK_F2));
    EXPECT_EQ(own.GetCurSel(), 2);
    KeyM(VK_DOWN);
    KeyM(VK_UP); // Left to the list.
    EXPECT_EQ(own.GetCurSel(), 1);
    own.DeleteString(0);
    EXPECT_EQ(own.deleted, 1);
}
