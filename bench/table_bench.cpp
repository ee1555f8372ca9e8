// How long 10,000 cells of one table take, by a description file and cell by cell.
#include "dialog/basic_dialog.h"
#include "support/test_dialog.h"
#include "timing.h"
#include <commctrl.h>
#include <cstdio>
#include <string>

namespace {

constexpr int Columns = 5;
constexpr int Rows = 2000;
constexpr int Rounds = 5;

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

// What a table holds, summed up; equal tables give equal values.
unsigned long long checksum(HWND table)
{
    unsigned long long sum = static_cast<unsigned long long>(::SendMessageW(table, LVM_GETITEMCOUNT, 0, 0));
    for (int row = 0; row < Rows; ++row) {
        for (int column = 0; column < Columns; ++column) {
            wchar_t text[64] = L"";
            LVITEMW item {};
            item.iSubItem = column;
            item.pszText = text;
            item.cchTextMax = 64;
            ::SendMessageW(
                table, LVM_GETITEMTEXTW, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&item));
            for (const wchar_t* at = text; *at != L'\0'; ++at) {
                sum = sum * 31 + *at;
            }
        }
    }
    return sum;
}

// The whole building of the dialog, reading the file included.
double load(PlainWindowCL& parent, const char* path, unsigned long long* sum)
{
    DuBasicDialogCL dialog;
    dialog.SetConfigFileM(path);
    const auto begin = std::chrono::steady_clock::now();
    dialog.InitDlgM(&parent, 0);
    const double seconds = secondsSince(begin);
    *sum = checksum(::GetDlgItem(parent.m_hWnd, 12));
    return seconds;
}

// The same table, its cells set one by one in a table made without the library.
double setRaw(const PlainWindowCL& parent, unsigned long long* sum)
{
    const HWND table = ::CreateWindowExW(WS_EX_CLIENTEDGE, WC_LISTVIEWW, nullptr, 0x5081000D, 10, 10, 360,
        250, parent.m_hWnd, nullptr, nullptr, nullptr);
    const auto begin = std::chrono::steady_clock::now();
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
    const double seconds = secondsSince(begin);
    *sum = checksum(table);
    ::DestroyWindow(table);
    return seconds;
}

} // namespace

int main()
{
    const DescriptionFileCL file(description());
    PlainWindowCL parent;
    parent.ShowWindow(SW_HIDE); // As a dialog is while it is built; a shown table is slower still by hand.
    std::vector<double> loads;
    std::vector<double> raws;
    for (int round = 0; round < Rounds; ++round) {
        unsigned long long loaded = 0;
        unsigned long long raw = 1;
        loads.push_back(load(parent, file.path(), &loaded));
        raws.push_back(setRaw(parent, &raw));
        if (loaded != raw) {
            std::fprintf(stderr, "the tables differ\n");
            return 1;
        }
    }
    std::fprintf(stderr, "cell by cell %.1f ms, loaded %.1f ms\n", median(raws) * 1000, median(loads) * 1000);
    std::printf("{\"name\":\"table_10000_over_raw\",\"value\":%.3f,\"unit\":\"x\",\"better\":\"lower\"}\n",
        median(loads) / median(raws));
    return 0;
}
