// How long the first dialog of a process takes, over plain calls that make the same windows: each time in a
// process of its own, the two in turn. first_bench [FOLDER of plotter.dlg]
// first_bench requests: no times, but the parts named in the trace of the window system's server, once each.
// first_bench list OUT: writes the list of its windows for other programs.
#include "measures.h"
#include "plain_windows.h"
#include "raw_dialog.h"
#include "support/test_dialog.h"
#include <cstring>
#include <filesystem>

using namespace mixed;

namespace {

constexpr int Rounds = 12;

double buildByLibrary(const char* file)
{
    HostCL host(file);
    double seconds = 0;
    markTrace("first_dialog", [&] { seconds = secondsOf([&host] { host.BuildM(); }); });
    return seconds;
}

// Negative when what it makes isn't what the file says.
double buildRaw(const char* file)
{
    const std::vector<plain::WindowCL> wanted = plain::read(file);
    std::vector<plain::WindowCL> windows = wanted;
    plain::giveRoomOfArrows(windows);
    const RawDialogCL dialog(0);
    const HWND parent = dialog.HandleM();
    markRequest("panelkit-begin-first_dialog_raw");
    const double seconds = secondsOf([&windows, parent] {
        const auto picture = static_cast<HBITMAP>(::LoadImageW(
            nullptr, L"plotter_background.bmp", IMAGE_BITMAP, 0, 0, LR_LOADFROMFILE | LR_CREATEDIBSECTION));
        ::SetWindowLongW(
            parent, GWL_STYLE, static_cast<LONG>(WS_POPUP | WS_CAPTION | WS_SYSMENU | WS_DLGFRAME));
        ::SetWindowTextW(parent, L"plotter");
        ::SetWindowPos(parent, nullptr, 120, 80, 560, 424, SWP_NOZORDER | SWP_NOACTIVATE | SWP_FRAMECHANGED);
        plain::makeAll(parent, windows, FontOption);
        ::DeleteObject(picture);
    });
    markRequest("panelkit-end-first_dialog_raw");
    const std::vector<plain::WindowCL> made = plain::lookAtAll(parent);
    for (size_t i = 0; i < wanted.size(); ++i) {
        if (made.size() != wanted.size() || !made[i].IsLikeM(wanted[i])) {
            std::fprintf(stderr, "window %u differs\n", static_cast<unsigned>(i));
            return -1;
        }
    }
    return seconds;
}

// What a process of this program that does just that measures; below 0 when it fails.
double secondsIn(const wchar_t* how, const std::string& file)
{
    wchar_t program[MAX_PATH];
    ::GetModuleFileNameW(nullptr, program, MAX_PATH);
    std::wstring line = L"\"" + std::wstring(program) + L"\" " + how + L" \""
        + std::wstring(file.begin(), file.end()) + L"\"";
    PROCESS_INFORMATION process {};
    STARTUPINFOW start {};
    start.cb = sizeof start;
    if (!::CreateProcessW(
            nullptr, line.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &start, &process)) {
        return -1;
    }
    ::WaitForSingleObject(process.hProcess, INFINITE);
    DWORD microseconds = 0;
    ::GetExitCodeProcess(process.hProcess, &microseconds);
    ::CloseHandle(process.hThread);
    ::CloseHandle(process.hProcess);
    return microseconds > 0 ? microseconds / 1e6 : -1;
}

} // namespace

int main(int argc, char** argv)
{
    const bool isList = argc == 3 && std::strcmp(argv[1], "list") == 0;
    const std::string out = isList ? std::filesystem::absolute(argv[2]).string() : "";
    if (argc == 3 && !isList) {
        const double seconds = std::strcmp(argv[1], "raw") == 0 ? buildRaw(argv[2]) : buildByLibrary(argv[2]);
        return seconds < 0 ? 0 : static_cast<int>(seconds * 1e6);
    }
    const bool isCounting = argc == 2 && std::strcmp(argv[1], "requests") == 0;
    ::SetCurrentDirectoryA(argc == 2 && !isCounting ? argv[1] : PANELKIT_PLOTTER);
    std::vector<plain::WindowCL> windows;
    {
        HostCL host("plotter.dlg");
        host.BuildM();
        windows = plain::lookAtAll(host.m_hWnd);
    }
    if (isList) {
        plain::write(windows, out.c_str());
        return windows.empty() ? 1 : 0;
    }
    const TempFile list;
    plain::write(windows, list.path());
    std::vector<double> mine;
    std::vector<double> raw;
    for (int round = 0; round <= (isCounting ? 0 : Rounds); ++round) {
        double first = 0;
        double second = 0;
        for (const int which : { round % 2, 1 - round % 2 }) {
            (which == 0 ? first : second)
                = which == 0 ? secondsIn(L"library", "plotter.dlg") : secondsIn(L"raw", list.path());
        }
        if (windows.size() < 20 || first < 0 || second < 0) {
            std::fprintf(stderr, "the dialog is not there\n");
            return 1;
        }
        if (round > 0) {
            mine.push_back(first);
            raw.push_back(second);
        }
    }
    if (!isCounting) {
        tellRatio("first_dialog_over_raw", mine, raw);
    }
    return 0;
}
