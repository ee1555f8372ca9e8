#pragma once
#include <cwchar>
#include <fstream>
#include <string>
#include <vector>
#include <windows.h>

#include <commctrl.h>

// The windows of a dialog as a list in a file, and made from it by plain calls: for programs that know
// nothing of the library.
namespace plain {

struct WindowCL
{
    std::wstring name;
    std::wstring text;
    DWORD style;
    DWORD exStyle;
    RECT rect; // Left, top, width, height.
    int id;
    int buddy;      // The id of the edit that the arrows of a spin control belong to; 0: none.
    int check;      // Of a button.
    int lineHeight; // Of a list box, in pixels; else 0.
    std::vector<std::wstring> lines;
    std::vector<int> data; // A number for each line.

    bool IsLikeM(const WindowCL& other) const
    {
        return name == other.name && text == other.text && style == other.style && exStyle == other.exStyle
            && ::EqualRect(&rect, &other.rect) && id == other.id && buddy == other.buddy
            && check == other.check && lineHeight == other.lineHeight && lines == other.lines
            && data == other.data;
    }
};

inline std::wstring textFrom(HWND window, UINT message, WPARAM wParam)
{
    wchar_t text[300] = L"";
    ::SendMessageW(window, message, wParam, reinterpret_cast<LPARAM>(text));
    return text;
}

inline WindowCL look(HWND window)
{
    WindowCL seen;
    wchar_t name[64] = L"";
    ::GetClassNameW(window, name, 64);
    seen.name = name;
    wchar_t text[300] = L"";
    ::GetWindowTextW(window, text, 300);
    seen.text = text;
    seen.style = static_cast<DWORD>(::GetWindowLongW(window, GWL_STYLE));
    seen.exStyle = static_cast<DWORD>(::GetWindowLongW(window, GWL_EXSTYLE));
    ::GetWindowRect(window, &seen.rect);
    ::MapWindowPoints(nullptr, ::GetParent(window), reinterpret_cast<POINT*>(&seen.rect), 2);
    seen.rect.right -= seen.rect.left;
    seen.rect.bottom -= seen.rect.top;
    seen.id = ::GetDlgCtrlID(window);
    seen.buddy = seen.name == UPDOWN_CLASSW
        ? ::GetDlgCtrlID(reinterpret_cast<HWND>(::SendMessageW(window, UDM_GETBUDDY, 0, 0)))
        : 0;
    const bool isList = seen.name == L"ListBox";
    seen.check = seen.name == L"Button" ? static_cast<int>(::SendMessageW(window, BM_GETCHECK, 0, 0)) : 0;
    seen.lineHeight = isList ? static_cast<int>(::SendMessageW(window, LB_GETITEMHEIGHT, 0, 0)) : 0;
    const LRESULT count = isList   ? ::SendMessageW(window, LB_GETCOUNT, 0, 0)
        : seen.name == L"ComboBox" ? ::SendMessageW(window, CB_GETCOUNT, 0, 0)
                                   : 0;
    for (LRESULT line = 0; line < count; ++line) {
        const auto at = static_cast<WPARAM>(line);
        seen.lines.push_back(textFrom(window, isList ? LB_GETTEXT : CB_GETLBTEXT, at));
        seen.data.push_back(
            static_cast<int>(::SendMessageW(window, isList ? LB_GETITEMDATA : CB_GETITEMDATA, at, 0)));
    }
    return seen;
}

inline std::vector<WindowCL> lookAtAll(HWND parent)
{
    std::vector<WindowCL> all;
    for (HWND child = ::GetWindow(parent, GW_CHILD); child != nullptr;
         child = ::GetWindow(child, GW_HWNDNEXT)) {
        all.push_back(look(child));
    }
    return all;
}

// The windows, one after another, as lines of a file for the process that makes them.
inline void write(const std::vector<WindowCL>& windows, const char* path)
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
             << window.buddy << ' ' << window.check << ' ' << window.lineHeight << ' ' << window.lines.size()
             << '\n';
        for (size_t line = 0; line < window.lines.size(); ++line) {
            text(window.lines[line]);
            file << window.data[line] << '\n';
        }
    }
}

inline std::vector<WindowCL> read(const char* path)
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
            >> window.rect.bottom >> window.id >> window.buddy >> window.check >> window.lineHeight >> lines;
        for (size_t i = 0; i < lines; ++i) {
            window.lines.push_back(text());
            file >> window.data.emplace_back();
        }
    }
    return windows;
}

// An edit with arrows is created with the room of both: joining them takes the arrows' room from it.
inline void giveRoomOfArrows(std::vector<WindowCL>& windows)
{
    for (const WindowCL& arrows : windows) {
        for (WindowCL& edit : windows) {
            if (arrows.buddy != 0 && edit.id == arrows.buddy) {
                edit.rect.right += arrows.rect.right; // Widths.
            }
        }
    }
}

// Creates the windows in that order, fills lists, marks buttons, joins arrows with their edits, and gives all
// the font of dialogs with that height in pixels, and list boxes the height of their lines.
inline void makeAll(HWND parent, const std::vector<WindowCL>& windows, int fontHeight)
{
    std::vector<HWND> made;
    for (const WindowCL& window : windows) {
        made.push_back(::CreateWindowExW(window.exStyle, window.name.c_str(), window.text.c_str(),
            window.style, window.rect.left, window.rect.top, window.rect.right, window.rect.bottom, parent,
            reinterpret_cast<HMENU>(static_cast<INT_PTR>(window.id)), nullptr, nullptr));
        const bool isList = window.name == L"ListBox";
        for (size_t line = 0; line < window.lines.size(); ++line) {
            const LRESULT at = ::SendMessageW(made.back(), isList ? LB_ADDSTRING : CB_ADDSTRING, 0,
                reinterpret_cast<LPARAM>(window.lines[line].c_str()));
            ::SendMessageW(made.back(), isList ? LB_SETITEMDATA : CB_SETITEMDATA, static_cast<WPARAM>(at),
                window.data[line]);
        }
        if (window.check != 0) {
            ::SendMessageW(made.back(), BM_SETCHECK, static_cast<WPARAM>(window.check), 0);
        }
    }
    for (size_t i = 0; i < made.size(); ++i) {
        if (windows[i].buddy != 0) {
            ::SendMessageW(
                made[i], UDM_SETBUDDY, reinterpret_cast<WPARAM>(::GetDlgItem(parent, windows[i].buddy)), 0);
        }
    }
    LOGFONTW look {};
    look.lfHeight = -fontHeight;
    look.lfWeight = FW_NORMAL;
    look.lfCharSet = GB2312_CHARSET;
    look.lfPitchAndFamily = FF_MODERN;
    std::wcscpy(look.lfFaceName, L"\u5B8B\u4F53");
    const HFONT font = ::CreateFontIndirectW(&look);
    for (const HWND window : made) {
        ::SendMessageW(window, WM_SETFONT, reinterpret_cast<WPARAM>(font), TRUE);
    }
    for (size_t i = 0; i < made.size(); ++i) { // The font has changed it.
        if (windows[i].lineHeight != 0) {
            ::SendMessageW(made[i], LB_SETITEMHEIGHT, 0, windows[i].lineHeight);
        }
    }
}

} // namespace plain
