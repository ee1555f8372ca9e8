// How long 5,000 initial lines of one combo box take, by a description file and line by line.
#include "filling.h"

namespace {

constexpr int Lines = 5000;

double fill(HWND parent, HWND* combo)
{
    *combo = ::CreateWindowExW(0, L"ComboBox", nullptr,
        WS_CHILD | WS_VISIBLE | WS_VSCROLL | WS_TABSTOP | CBS_DROPDOWNLIST, 10, 10, 200, 200, parent, nullptr,
        nullptr, nullptr);
    return addLines(*combo, Lines, CB_ADDSTRING, CB_SETITEMDATA);
}

std::string seen(HWND combo)
{
    return seenLines(combo, CB_GETCOUNT, CB_GETLBTEXT, CB_GETITEMDATA);
}

} // namespace

int main(int argc, char**)
{
    const std::string file
        = "[下拉列表框]\n1\n0\n1 12 10 10 200 200 0\n[下拉列表框初始值]\n" + describedLines(Lines);
    return runFillingBench({ "combo_5000_over_raw", file, seen, fill }, argc > 1 ? 3 : 9);
}
