// How long 20,000 initial lines of one list box take, by a description file and line by line.
#include "dialog/basic_dialog.h"
#include "support/test_dialog.h"
#include "timing.h"
#include <cstdio>
#include <string>

namespace {

constexpr int Lines = 20000;

std::string lineText(int number)
{
    return "line " + std::to_string(number);
}

std::string description()
{
    std::string text = "[文本列表框]\n1\n0\n1 12 10 10 200 200 16 1 1 255 255 255 0\n[文本列表框初始值]\n"
        + std::to_string(Lines) + "\n0\n";
    for (int i = 0; i < Lines; ++i) {
        text += "12 " + lineText(i) + "\n";
    }
    return text;
}

// What a list holds, summed up; equal lists give equal values.
unsigned long long checksum(HWND list)
{
    unsigned long long sum = 0;
    const auto count = static_cast<int>(::SendMessageW(list, LB_GETCOUNT, 0, 0));
    for (int i = 0; i < count; ++i) {
        wchar_t text[64] = L"";
        ::SendMessageW(list, LB_GETTEXT, static_cast<WPARAM>(i), reinterpret_cast<LPARAM>(text));
        for (const wchar_t* at = text; *at != L'\0'; ++at) {
            sum = sum * 31 + *at;
        }
        sum = sum * 31
            + static_cast<unsigned long long>(
                ::SendMessageW(list, LB_GETITEMDATA, static_cast<WPARAM>(i), 0));
    }
    return sum + static_cast<unsigned long long>(count);
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

// The same list, its lines added one by one to a list box made without the library.
double addRaw(const PlainWindowCL& parent, unsigned long long* sum)
{
    std::vector<std::wstring> texts;
    for (int i = 0; i < Lines; ++i) {
        texts.push_back(slGbkToWide(lineText(i).c_str()));
    }
    const HWND list = ::CreateWindowExW(WS_EX_CLIENTEDGE, L"ListBox", nullptr, 0x50210101, 10, 10, 200, 200,
        parent.m_hWnd, nullptr, nullptr, nullptr);
    const auto begin = std::chrono::steady_clock::now();
    for (int i = 0; i < Lines; ++i) {
        const LRESULT at = ::SendMessageW(
            list, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(texts[static_cast<size_t>(i)].c_str()));
        ::SendMessageW(list, LB_SETITEMDATA, static_cast<WPARAM>(at), i);
    }
    const double seconds = secondsSince(begin);
    *sum = checksum(list);
    ::DestroyWindow(list);
    return seconds;
}

} // namespace

int main(int argc, char**)
{
    const int rounds = argc > 1 ? 3 : 7;
    const DescriptionFileCL file(description());
    PlainWindowCL parent;
    parent.ShowWindow(SW_HIDE); // As a dialog is while it is built; a shown list box is slower still by hand.
    std::vector<double> loads;
    std::vector<double> raws;
    for (int round = 0; round < rounds; ++round) {
        unsigned long long loaded = 0;
        unsigned long long raw = 1;
        loads.push_back(load(parent, file.path(), &loaded));
        raws.push_back(addRaw(parent, &raw));
        if (loaded != raw) {
            std::fprintf(stderr, "the lists differ\n");
            return 1;
        }
    }
    std::fprintf(stderr, "line by line %.1f ms, loaded %.1f ms\n", median(raws) * 1000, median(loads) * 1000);
    std::printf("{\"name\":\"list_20000_over_raw\",\"value\":%.3f,\"unit\":\"x\",\"better\":\"lower\"}\n",
        median(loads) / median(raws));
    return 0;
}
