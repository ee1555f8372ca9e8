// How long 20,000 initial lines of one list box take, by a description file and line by line.
#include "filling.h"

namespace {

constexpr int Lines = 20000;

double fill(HWND parent, HWND* list)
{
    *list = ::CreateWindowExW(WS_EX_CLIENTEDGE, L"ListBox", nullptr, 0x50210101, 10, 10, 200, 200, parent,
        nullptr, nullptr, nullptr);
    return addLines(*list, Lines, LB_ADDSTRING, LB_SETITEMDATA);
}

std::string seen(HWND list)
{
    return seenLines(list, LB_GETCOUNT, LB_GETTEXT, LB_GETITEMDATA);
}

} // namespace

int main(int argc, char**)
{
    const std::string file
        = "[文本列表框]\n1\n0\n1 12 10 10 200 200 16 1 1 255 255 255 0\n[文本列表框初始值]\n"
        + describedLines(Lines);
    return runFillingBench({ "list_20000_over_raw", file, seen, fill }, argc > 1 ? 3 : 7);
}
