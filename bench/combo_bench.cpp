// How long 5,000 initial lines of one combo box take, by a description file and line by line.
#include "measures.h"
#include "support/test_dialog.h"

namespace {

constexpr int Lines = 5000;

std::string lineText(int number)
{
    return "line " + std::to_string(number);
}

std::string description()
{
    std::string text
        = "[下拉列表框]\n1\n0\n1 12 10 10 200 200 0\n[下拉列表框初始值]\n" + std::to_string(Lines) + "\n0\n";
    for (int i = 0; i < Lines; ++i) {
        text += "12 " + lineText(i) + "\n";
    }
    return text;
}

// What a combo box holds, summed up; equal ones give equal values.
unsigned long long checksum(HWND combo)
{
    unsigned long long sum = 0;
    const auto count = static_cast<int>(::SendMessageW(combo, CB_GETCOUNT, 0, 0));
    for (int i = 0; i < count; ++i) {
        wchar_t text[64] = L"";
        ::SendMessageW(combo, CB_GETLBTEXT, static_cast<WPARAM>(i), reinterpret_cast<LPARAM>(text));
        for (const wchar_t* at = text; *at != L'\0'; ++at) {
            sum = sum * 31 + *at;
        }
        sum = sum * 31
            + static_cast<unsigned long long>(
                ::SendMessageW(combo, CB_GETITEMDATA, static_cast<WPARAM>(i), 0));
    }
    return sum + static_cast<unsigned long long>(count);
}

// The whole building of the dialog, reading the file included.
double load(PlainWindowCL& parent, const char* path, unsigned long long* sum)
{
    DuBasicDialogCL dialog;
    dialog.SetConfigFileM(path);
    const double seconds = secondsOf([&] { dialog.InitDlgM(&parent, 0); });
    *sum = checksum(::GetDlgItem(parent.m_hWnd, 12));
    return seconds;
}

// The same lines, added one by one to a combo box made without the library.
double addRaw(const PlainWindowCL& parent, unsigned long long* sum)
{
    std::vector<std::wstring> texts;
    for (int i = 0; i < Lines; ++i) {
        texts.push_back(slGbkToWide(lineText(i).c_str()));
    }
    const HWND combo = ::CreateWindowExW(0, L"ComboBox", nullptr,
        WS_CHILD | WS_VISIBLE | WS_VSCROLL | WS_TABSTOP | CBS_DROPDOWNLIST, 10, 10, 200, 200, parent.m_hWnd,
        nullptr, nullptr, nullptr);
    const double seconds = secondsOf([&] {
        for (size_t i = 0; i < texts.size(); ++i) {
            const LRESULT at
                = ::SendMessageW(combo, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(texts[i].c_str()));
            ::SendMessageW(combo, CB_SETITEMDATA, static_cast<WPARAM>(at), static_cast<LPARAM>(i));
        }
    });
    *sum = checksum(combo);
    ::DestroyWindow(combo);
    return seconds;
}

} // namespace

int main(int argc, char**)
{
    const int rounds = argc > 1 ? 3 : 7;
    const DescriptionFileCL file(description());
    PlainWindowCL parent;
    parent.ShowWindow(SW_HIDE); // As a dialog is while it is built.
    std::vector<double> loads;
    std::vector<double> raws;
    for (int round = 0; round < rounds; ++round) {
        unsigned long long loaded = 0;
        unsigned long long raw = 1;
        loads.push_back(load(parent, file.path(), &loaded));
        raws.push_back(addRaw(parent, &raw));
        if (loaded != raw) {
            std::fprintf(stderr, "the combo boxes differ\n");
            return 1;
        }
    }
    tellRatio("combo_5000_over_raw", loads, raws);
    return 0;
}
