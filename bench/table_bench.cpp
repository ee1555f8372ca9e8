// How long 10,000 cells of one table take, by a description file and cell by cell.
#include "filling.h"
#include <commctrl.h>

namespace {

constexpr int Columns = 5;
constexpr int Rows = 2000;

std::string cellText(int row, int column)
{
    return "cell " + std::to_string(row) + " " + std::to_string(column);
}

std::string description()
{
    std::string text
        = "[列表控件]\n1\n0\n1 12 10 10 360 250 5 1\n[列表控件列标题]\n" + std::to_string(Columns) + "\n0\n";
    for (int column = 0; column < Columns; ++column) {
        text += "12 " + std::to_string(column) + " 70 title\n";
    }
    text += "[列表控件初始值]\n" + std::to_string(Rows * Columns) + "\n0\n";
    for (int row = 0; row < Rows; ++row) {
        for (int column = 0; column < Columns; ++column) {
            text += "12 " + std::to_string(row) + " " + std::to_string(column) + " " + cellText(row, column)
                + "\n";
        }
    }
    return text;
}

std::string seen(HWND table)
{
    std::wstring all = std::to_wstring(::SendMessageW(table, LVM_GETITEMCOUNT, 0, 0));
    for (int row = 0; row < Rows; ++row) {
        for (int column = 0; column < Columns; ++column) {
            wchar_t text[64] = L"";
            LVITEMW item {};
            item.iSubItem = column;
            item.pszText = text;
            item.cchTextMax = 64;
            ::SendMessageW(
                table, LVM_GETITEMTEXTW, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&item));
            all += L'|' + std::wstring(text);
        }
    }
    return std::string(all.begin(), all.end());
}

// Cell by cell.
void setCells(HWND table)
{
    for (int column = 0; column < Columns; ++column) {
        wchar_t title[] = L"title";
        LVCOLUMNW heading {};
        heading.mask = LVCF_FMT | LVCF_WIDTH | LVCF_TEXT | LVCF_SUBITEM;
        heading.cx = 70;
        heading.pszText = title;
        heading.iSubItem = column;
        ::SendMessageW(
            table, LVM_INSERTCOLUMNW, static_cast<WPARAM>(column), reinterpret_cast<LPARAM>(&heading));
    }
    for (int row = 0; row < Rows; ++row) {
        for (int column = 0; column < Columns; ++column) {
            std::wstring text = slGbkToWide(cellText(row, column).c_str());
            LVITEMW item {};
            item.mask = LVIF_TEXT;
            item.iItem = row;
            item.iSubItem = column;
            item.pszText = text.data();
            if (column == 0) {
                ::SendMessageW(table, LVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&item));
            } else {
                ::SendMessageW(
                    table, LVM_SETITEMTEXTW, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&item));
            }
        }
    }
}

double fill(HWND parent, HWND* table)
{
    *table = ::CreateWindowExW(WS_EX_CLIENTEDGE, WC_LISTVIEWW, nullptr, 0x5081000D, 10, 10, 360, 250, parent,
        nullptr, nullptr, nullptr);
    return secondsOf([table] { setCells(*table); });
}

} // namespace

int main()
{
    return runFillingBench({ "table_10000_over_raw", description(), seen, fill }, 7);
}
