#include "click_with.h"
#include "controls/lists/list_control.h"
#include "controls/lists/list_control_record.h"
#include "support/all.h"
#include "support/test_dialog.h"
#include <gtest/gtest.h>

using namespace testing_support;

namespace {

std::string rowsOf(CListCtrl& table, int columns)
{
    std::string all;
    for (int row = 0; row < table.GetItemCount(); ++row) {
        all += all.empty() ? "" : "/";
        for (int column = 0; column < columns; ++column) {
            all += (column == 0 ? "" : ",") + std::string(table.GetItemText(row, column));
        }
    }
    return slGbkToUtf8(all.c_str());
}

std::string columnsOf(HWND table)
{
    std::string all;
    wchar_t text[100] = L"";
    LVCOLUMNW column {};
    column.mask = LVCF_TEXT | LVCF_WIDTH | LVCF_FMT;
    column.pszText = text;
    column.cchTextMax = 100;
    for (WPARAM i = 0; ::SendMessageW(table, LVM_GETCOLUMNW, i, reinterpret_cast<LPARAM>(&column)); ++i) {
        all += slGbkToUtf8(slWideToGbk(text).c_str()) + ":" + std::to_string(column.cx) + " ";
    }
    return all;
}

std::string selectedOf(DuListCtrlCL& table)
{
    std::string all;
    int row = -1;
    int data = 0;
    for (int found = table.GetFirstSelM(&row, &data); found == 1;
         found = table.GetNextSelM(row, &row, &data)) {
        all += std::to_string(row) + "=" + std::to_string(data) + " ";
    }
    return all;
}

std::string description(int single, const std::string& titles, const std::string& cells)
{
    const auto lines
        = [](const std::string& text) { return std::to_string(std::count(text.begin(), text.end(), '\n')); };
    return HeaderSections + ("[列表控件]\n1\n0\n1 14 10 10 240 160 2 " + std::to_string(single))
        + "\n[列表控件列标题]\n" + lines(titles) + "\n0\n" + titles + "[列表控件初始值]\n" + lines(cells)
        + "\n0\n" + cells;
}

struct TableCL
{
    TableCL(int single, const std::string& titles, const std::string& cells)
        : dialog(description(single, titles, cells))
        , table(*dynamic_cast<DuListCtrlCL*>(CWnd::FromHandlePermanent(dialog.ItemM(14))))
    {
    }
    TestDialogCL dialog;
    DuListCtrlCL& table;
};

const char* const TwoTitles = "14 0 80 名称\n14 1 60 数值\n";
const char* const FiveRows = "14 0 0 a\n14 1 0 b\n14 2 0 c\n14 3 0 d\n14 4 0 e\n";

} // namespace

TEST(ListControl, StyleFollowsSingleSelection)
{
    const TableCL single(1, TwoTitles, "");
    EXPECT_EQ(styleOf(single.table.m_hWnd), 0x5081000DU);
    EXPECT_EQ(exStyleOf(single.table.m_hWnd) & WS_EX_CLIENTEDGE, static_cast<DWORD>(WS_EX_CLIENTEDGE));
    EXPECT_EQ(single.table.GetExtendedStyle(), static_cast<DWORD>(LVS_EX_FULLROWSELECT));
    EXPECT_EQ(single.table.GetColNumM(), 2);
    EXPECT_EQ(styleOf(TableCL(2, TwoTitles, "").table.m_hWnd), 0x50810009U);
}

TEST(ListControl, ShowsHeadingsAndCells)
{
    const TableCL own(1, TwoTitles, "14 0 0 转速\n14 0 1 1200\n14 1 0 压力\n14 1 1 null\n9 0 0 x\n");
    EXPECT_EQ(columnsOf(own.table.m_hWnd), "名称:80 数值:60 ");
    EXPECT_EQ(rowsOf(own.table, 2), "转速,1200/压力,");
    EXPECT_EQ(own.table.GetItemData(1), 0U);
}

TEST(ListControl, CellBeforeItsRowIsLost)
{
    const TableCL own(1, TwoTitles, "14 0 1 early\n14 0 0 first\n");
    EXPECT_EQ(rowsOf(own.table, 2), "first,");
}

TEST(ListControl, RowIsInsertedWhereItsNumberSays)
{
    const TableCL own(1, TwoTitles, "14 0 0 a\n14 0 0 b\n14 9 0 c\n14 9 1 lost\n14 -1 0 lost\n");
    EXPECT_EQ(rowsOf(own.table, 2), "b,/a,/c,");
}

TEST(ListControl, ThreeHeadingPairsButTwoTextsAreTwoColumns)
{
    PlainWindowCL parent;
    DuListCtrlCL table;
    table.Create(&parent);
    DVrListCtrlCL record(AliveTag);
    for (int i = 0; i < 3; ++i) {
        const int pair[2] = { i, 30 + i };
        record.AddTitleStringM(pair, std::string(1, static_cast<char>('a' + i)).c_str());
        record.AddItemStringM(pair, "x");
    }
    record.TitlesM().texts.DelItemM(1);
    record.CellsM().DelAllM();
    EXPECT_EQ(record.InitListCtrlStrM(&table), 1);
    EXPECT_EQ(columnsOf(table.m_hWnd), "a:30 c:31 ");
}

TEST(ListControl, RowsAreInsertedChangedAndDeleted)
{
    TableCL own(1, TwoTitles, "");
    EXPECT_EQ(own.table.InsertItemM(0, 77, "a"), 1);
    EXPECT_EQ(own.table.InsertItemM(-1, 7, "b"), 0);
    EXPECT_EQ(own.table.SetItemTextM(0, 1, "v"), 1);
    EXPECT_EQ(own.table.SetItemTextM(3, 1, "v"), 0);
    EXPECT_EQ(rowsOf(own.table, 2), "a,v");
    EXPECT_EQ(own.table.GetItemData(0), 77U);
    int rows = 0;
    EXPECT_EQ(own.table.GetRowNumM(&rows), 1);
    EXPECT_EQ(rows, 1);
    EXPECT_EQ(own.table.DeleteItemM(-1), 0);
    EXPECT_EQ(own.table.DeleteItemM(1), 0);
    EXPECT_EQ(own.table.DeleteItemM(0), 1);
    own.table.InsertItemM(0, 1, "a");
    EXPECT_EQ(own.table.DelAllM(), 1);
    EXPECT_EQ(own.table.GetItemCount(), 0);
}

TEST(ListControl, DeletingRowMinusOneSendsNothing)
{
    TableCL own(1, TwoTitles, FiveRows);
    const MessageRecorder messages(own.table.m_hWnd, { LVM_DELETEITEM });
    EXPECT_EQ(own.table.DeleteItemM(-1), 0);
    EXPECT_TRUE(messages.ListM().empty());
}

TEST(ListControl, InsertingColumnsGivesTheirPlace)
{
    TableCL own(1, TwoTitles, "");
    EXPECT_EQ(own.table.InsertColumnM(1, 33, "mid"), 1);
    EXPECT_EQ(columnsOf(own.table.m_hWnd), "名称:80 mid:33 数值:60 ");
    EXPECT_EQ(own.table.InsertColumnM(-1, 33, "bad"), 0);
}

TEST(ListControl, SelectionIsMovedInASingleSelectionTable)
{
    TableCL own(1, TwoTitles, FiveRows);
    int row = 9;
    int data = 9;
    EXPECT_EQ(own.table.GetFirstSelM(&row, &data), 0);
    EXPECT_EQ(own.table.GetCurSelM(&row, &data), 1);
    EXPECT_EQ(std::to_string(row) + " " + std::to_string(data), "-1 9");
    row = 9;
    EXPECT_EQ(own.table.GetNextSelM(0, &row, &data), 0);
    EXPECT_EQ(row, -1);
    EXPECT_EQ(own.table.SetSelM(1), 1);
    EXPECT_EQ(own.table.SetSelM(3), 1);
    EXPECT_EQ(selectedOf(own.table), "3=0 ");
    EXPECT_EQ(own.table.GetCurSelM(&row, &data), 1);
    EXPECT_EQ(row, 3);
}

TEST(ListControl, SettingTheSelectionLeavesExactlyOneRow)
{
    TableCL own(0, TwoTitles, FiveRows);
    for (const int row : { 0, 2, 4 }) {
        own.table.SetItemState(row, LVIS_SELECTED, LVIS_SELECTED);
    }
    int count = 0;
    EXPECT_EQ(own.table.GetSelNumM(&count), 1);
    EXPECT_EQ(count, 3);
    EXPECT_EQ(own.table.SetSelM(3), 1);
    EXPECT_EQ(selectedOf(own.table), "3=0 ");
}

TEST(ListControl, SelectingNoRowClearsTheSelection)
{
    TableCL own(0, TwoTitles, FiveRows);
    own.table.SetSelM(2);
    EXPECT_EQ(own.table.SetSelM(-1), 1);
    EXPECT_EQ(selectedOf(own.table), "");
}

TEST(ListControl, WithoutAWindowThereIsNoRow)
{
    DuListCtrlCL table;
    EXPECT_EQ(selectedOf(table), "");
    EXPECT_EQ(table.SetSelM(1), 1);
    int row = 5;
    int data = 5;
    EXPECT_EQ(table.GetFirstSelM(&row, &data), 0);
}

TEST(ListControl, ClicksWithCtrlAndShiftSelectMore)
{
    TableCL own(0, TwoTitles, FiveRows);
    for (int i = 0; i < 5; ++i) {
        own.table.SetItemData(i, static_cast<DWORD_PTR>(10 + i));
    }
    own.dialog.ShowWindow(SW_SHOW);
    ASSERT_TRUE(ActivateM(own.dialog.m_hWnd));
    SettleM();
    const auto click = [&own](int row, WORD modifier) {
        RECT rect {};
        own.table.GetItemRect(row, &rect, LVIR_LABEL);
        clickWith(modifier, own.table.m_hWnd, rect.left + 10, (rect.top + rect.bottom) / 2);
    };
    click(1, 0);
    EXPECT_EQ(selectedOf(own.table), "1=11 ");
    click(4, VK_CONTROL);
    EXPECT_EQ(selectedOf(own.table), "1=11 4=14 ");
    click(1, 0);
    click(3, VK_SHIFT);
    EXPECT_EQ(selectedOf(own.table), "1=11 2=12 3=13 ");
}

TEST(ListControl, FocusIsReportedToTheParent)
{
    PlainWindowCL parent;
    DuListCtrlCL table;
    table.SetFunctionIDM(14);
    table.Create(&parent);
    const MessageRecorder messages(parent.m_hWnd, { 1625 });
    ASSERT_TRUE(ActivateM(parent.m_hWnd));
    ASSERT_TRUE(FocusM(table.m_hWnd));
    PumpPending();
    EXPECT_EQ(messages.ListM(), std::vector<std::string> { "posted 1625 w=14 l=0" });
}

TEST(ListControl, HiddenTableStaysHiddenWhileItIsFilled)
{
    PlainWindowCL parent;
    DuListCtrlCL table;
    table.Create(&parent);
    table.ShowWindow(SW_HIDE);
    DVrListCtrlCL record(AliveTag);
    const int pair[2] = { 0, 30 };
    record.AddTitleStringM(pair, "a");
    record.AddItemStringM(pair, "x");
    record.InitListCtrlStrM(&table);
    EXPECT_EQ(styleOf(table.m_hWnd) & WS_VISIBLE, 0U);
}
