// How long the first dialog of a process takes, over plain calls that make the same windows: each time in a
// process of its own, the two in turn. first_bench [requests|FOLDER of plotter.dlg]: requests: no times, but
// the parts named in the trace of the window system's server, once each.
#include "measures.h"
#include "raw_dialog.h"
#include "support/test_dialog.h"
#include <commctrl.h>
#include <cstring>
#include <fstream>

using namespace mixed;

namespace {

constexpr int Rounds = 12;

struct WindowCL
{
    std::wstring name;
    std::wstring text;
    DWORD style;
    DWORD exStyle;
    RECT rect; // Left, top, width, height.
    int id;
    int buddy; // The id of the edit that the arrows of a spin control belong to; 0: none.
    std::vector<std::wstring> lines;

    bool IsLikeM(const WindowCL& other) const
    {
        return name == other.name && text == other.text && style == other.style && exStyle == other.exStyle
            && ::EqualRect(&rect, &other.rect) && id == other.id && buddy == other.buddy
            && lines == other.lines;
    }
};

std::wstring textFrom(HWND window, UINT message, WPARAM wParam)
{
    wchar_t text[300] = L"";
    ::SendMessageW(window, message, wParam, reinterpret_cast<LPARAM>(text));
    return text;
}

WindowCL look(HWND window)
{
    WindowCL seen;
    wchar_t name[64] = L"";
    ::GetClassNameW(window, name, 64);
    seen.name = name;
    wchar_t text[300] = L"";
    ::GetWindowTextW(window, text, 300);
    seen.text = text;
    seen.style = styleOf(window);
    seen.exStyle = exStyleOf(window);
    ::GetWindowRect(window, &seen.rect);
    ::MapWindowPoints(nullptr, ::GetParent(window), reinterpret_cast<POINT*>(&seen.rect), 2);
    seen.rect.right -= seen.rect.left;
    seen.rect.bottom -= seen.rect.top;
    seen.id = ::GetDlgCtrlID(window);
    seen.buddy = seen.name == UPDOWN_CLASSW
        ? ::GetDlgCtrlID(reinterpret_cast<HWND>(::SendMessageW(window, UDM_GETBUDDY, 0, 0)))
        : 0;
    const bool isList = seen.name == L"ListBox";
    const LRESULT count = isList   ? ::SendMessageW(window, LB_GETCOUNT, 0, 0)
        : seen.name == L"ComboBox" ? ::SendMessageW(window, CB_GETCOUNT, 0, 0)
                                   : 0;
    for (LRESULT line = 0; line < count; ++line) {
        seen.lines.push_back(textFrom(window, isList ? LB_GETTEXT : CB_GETLBTEXT, static_cast<WPARAM>(line)));
    }
    return seen;
}

std::vector<WindowCL> lookAtAll(HWND parent)
{
    std::vector<WindowCL> all;
    for (HWND child = ::GetWindow(parent, GW_CHILD); child != nullptr;
         child = ::GetWindow(child, GW_HWNDNEXT)) {
        all.push_back(look(child));
    }
    return all;
}

// The windows, one after another, as lines of a file for the process that makes them.
void write(const std::vector<WindowCL>& windows, const char* path)
{
    std::ofstream file(path, std::ios::binary);
    const auto text = [&file](const std::wstring& wide) {
        file << wide.size();
        for (const wchar_t unit : wide) {
            file << ' ' << static_cast<unsigned>(unit);
        }
        file << '\n';
    };
    file << windows.size() << '\n';
    for (const WindowCL& window : windows) {
        text(window.name);
        text(window.text);
        file << window.style << ' ' << window.exStyle << ' ' << window.rect.left << ' ' << window.rect.top
             << ' ' << window.rect.right << ' ' << window.rect.bottom << ' ' << window.id << ' '
             << window.buddy << ' ' << window.lines.size() << '\n';
        for (const std::wstring& line : window.lines) {
            text(line);
        }
    }
}

std::vector<WindowCL> read(const char* path)
{
    std::ifstream file(path, std::ios::binary);
    const auto text = [&file] {
        size_t size = 0;
        file >> size;
        std::wstring wide;
        for (size_t i = 0; i < size; ++i) {
            unsigned unit = 0;
            file >> unit;
            wide += static_cast<wchar_t>(unit);
        }
        return wide;
    };
    size_t count = 0;
    file >> count;
    std::vector<WindowCL> windows(count);
    for (WindowCL& window : windows) {
        window.name = text();
        window.text = text();
        size_t lines = 0;
        file >> window.style >> window.exStyle >> window.rect.left >> window.rect.top >> window.rect.right
            >> window.rect.bottom >> window.id >> window.buddy >> lines;
        for (size_t i = 0; i < lines; ++i) {
            window.lines.push_back(text());
        }
    }
    return windows;
}

double buildByLibrary(const char* file)
{
    HostCL host(file);
    double seconds = 0;
    markTrace("first_dialog", [&] { seconds = secondsOf([&host] { host.BuildM(); }); });
    return seconds;
}

// An edit with arrows is created with the room of both: joining them takes the arrows' room from it.
void giveRoomOfArrows(std::vector<WindowCL>& windows)
{
    for (const WindowCL& arrows : windows) {
        for (WindowCL& edit : windows) {
            if (arrows.buddy != 0 && edit.id == arrows.buddy) {
                edit.rect.right += arrows.rect.right; // Widths.
            }
        }
    }
}

// Negative when what it makes isn't what the file says.
double buildRaw(const char* file)
{
    const std::vector<WindowCL> wanted = read(file);
    std::vector<WindowCL> windows = wanted;
    giveRoomOfArrows(windows);
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
        std::vector<HWND> made;
        for (const WindowCL& window : windows) {
            made.push_back(::CreateWindowExW(window.exStyle, window.name.c_str(), window.text.c_str(),
                window.style, window.rect.left, window.rect.top, window.rect.right, window.rect.bottom,
                parent, reinterpret_cast<HMENU>(static_cast<INT_PTR>(window.id)), nullptr, nullptr));
            const bool isList = window.name == L"ListBox";
            for (const std::wstring& line : window.lines) {
                ::SendMessageW(made.back(), isList ? LB_ADDSTRING : CB_ADDSTRING, 0,
                    reinterpret_cast<LPARAM>(line.c_str()));
            }
        }
        for (size_t i = 0; i < made.size(); ++i) {
            if (windows[i].buddy != 0) {
                ::SendMessageW(made[i], UDM_SETBUDDY,
                    reinterpret_cast<WPARAM>(::GetDlgItem(parent, windows[i].buddy)), 0);
            }
        }
        LOGFONTW look {};
        look.lfHeight = -FontOption;
        look.lfWeight = FW_NORMAL;
        look.lfCharSet = GB2312_CHARSET;
        look.lfPitchAndFamily = FF_MODERN;
        std::wcscpy(look.lfFaceName, L"\u5B8B\u4F53");
        const HFONT font = ::CreateFontIndirectW(&look);
        for (const HWND window : made) {
            ::SendMessageW(window, WM_SETFONT, reinterpret_cast<WPARAM>(font), TRUE);
        }
        ::DeleteObject(picture);
    });
    markRequest("panelkit-end-first_dialog_raw");
    const std::vector<WindowCL> made = lookAtAll(parent);
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
    if (argc == 3) {
        const double seconds = std::strcmp(argv[1], "raw") == 0 ? buildRaw(argv[2]) : buildByLibrary(argv[2]);
        return seconds < 0 ? 0 : static_cast<int>(seconds * 1e6);
    }
    const bool isCounting = argc == 2 && std::strcmp(argv[1], "requests") == 0;
    ::SetCurrentDirectoryA(argc == 2 && !isCounting ? argv[1] : PANELKIT_PLOTTER);
    std::vector<WindowCL> windows;
    {
        HostCL host("plotter.dlg");
        host.BuildM();
        windows = lookAtAll(host.m_hWnd);
    }
    const TempFile list;
    write(windows, list.path());
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
