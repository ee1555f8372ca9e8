#pragma once
#include "dialog/basic_dialog.h"
#include "measures.h"
#include "support/test_dialog.h"

// What a bench of one control with much in it compares: built and filled by a description file, and by plain
// calls. The control has the id that the file gives it.
struct FillingBenchCL
{
    static constexpr int Id = 12;

    const char* name;                  // Of the measure.
    std::string description;           // With one control, of that id.
    std::string (*seen)(HWND control); // What the control holds; equal ones give equal texts.
    // Makes the same control in the parent and fills it; the seconds that filling took.
    double (*fill)(HWND parent, HWND* control);
};

// The whole building of the dialog, reading the file included.
inline double secondsByFile(
    const FillingBenchCL& bench, PlainWindowCL& parent, const char* path, std::string* seen)
{
    DuBasicDialogCL dialog;
    dialog.SetConfigFileM(path);
    const double seconds = secondsOf([&] { dialog.InitDlgM(&parent, 0); });
    *seen = bench.seen(::GetDlgItem(parent.m_hWnd, FillingBenchCL::Id));
    return seconds;
}

inline double secondsByHand(const FillingBenchCL& bench, const PlainWindowCL& parent, std::string* seen)
{
    HWND control = nullptr;
    const double seconds = bench.fill(parent.m_hWnd, &control);
    *seen = bench.seen(control);
    ::DestroyWindow(control);
    return seconds;
}

// Prints the ratio of both: each is first every other time, after a round that counts for nothing. What main
// returns.
inline int runFillingBench(const FillingBenchCL& bench, int rounds)
{
    const DescriptionFileCL file(bench.description);
    PlainWindowCL parent;
    parent.ShowWindow(SW_HIDE); // As a dialog is while it is built; a shown control is slower still by hand.
    std::vector<double> byFile;
    std::vector<double> byHand;
    for (int round = 0; round <= rounds; ++round) {
        double times[2] = { 0, 0 };
        std::string seen[2];
        for (const int which : { round % 2, 1 - round % 2 }) {
            times[which] = which == 0 ? secondsByFile(bench, parent, file.path(), &seen[0])
                                      : secondsByHand(bench, parent, &seen[1]);
        }
        if (seen[0] != seen[1] || seen[0].empty()) {
            std::fprintf(stderr, "%s: the controls differ\n", bench.name);
            return 1;
        }
        if (round > 0) {
            byFile.push_back(times[0]);
            byHand.push_back(times[1]);
        }
    }
    tellRatio(bench.name, byFile, byHand);
    return 0;
}

// The lines of a list box or combo box and their data, each asked for by a message.
inline std::string seenLines(HWND list, UINT count, UINT text, UINT data)
{
    std::wstring seen;
    const auto lines = static_cast<WPARAM>(::SendMessageW(list, count, 0, 0));
    for (WPARAM line = 0; line < lines; ++line) {
        wchar_t at[64] = L"";
        ::SendMessageW(list, text, line, reinterpret_cast<LPARAM>(at));
        seen += std::wstring(at) + L'=' + std::to_wstring(::SendMessageW(list, data, line, 0)) + L'|';
    }
    return std::string(seen.begin(), seen.end());
}

// Adds lines one by one with their numbers as data, each by a message; the seconds that it took.
inline double addLines(HWND list, int count, UINT add, UINT setData)
{
    std::vector<std::wstring> texts;
    for (int i = 0; i < count; ++i) {
        texts.push_back(L"line " + std::to_wstring(i));
    }
    return secondsOf([&] {
        for (int i = 0; i < count; ++i) {
            const LRESULT at = ::SendMessageW(
                list, add, 0, reinterpret_cast<LPARAM>(texts[static_cast<std::size_t>(i)].c_str()));
            ::SendMessageW(list, setData, static_cast<WPARAM>(at), i);
        }
    });
}

// As a description file has such lines, below the section's title.
inline std::string describedLines(int count)
{
    std::string text = std::to_string(count) + "\n0\n";
    for (int i = 0; i < count; ++i) {
        text += std::to_string(FillingBenchCL::Id) + " line " + std::to_string(i) + "\n";
    }
    return text;
}
