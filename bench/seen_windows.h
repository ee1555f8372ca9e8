#pragma once
#include <string>
#include <vector>
#include <windows.h>

// What a look at a window's children, and theirs, shows: of each, from the top down, class, text, place,
// styles, id, font, check, lines and their data.
inline std::string seenWindow(HWND window)
{
    wchar_t name[64] = L"";
    ::GetClassNameW(window, name, 64);
    wchar_t text[300] = L"";
    ::SendMessageW(window, WM_GETTEXT, 300, reinterpret_cast<LPARAM>(text));
    RECT rect {};
    ::GetWindowRect(window, &rect);
    ::MapWindowPoints(nullptr, ::GetParent(window), reinterpret_cast<POINT*>(&rect), 2);
    LOGFONTW font {};
    ::GetObjectW(reinterpret_cast<HFONT>(::SendMessageW(window, WM_GETFONT, 0, 0)),
        static_cast<int>(sizeof font), &font);
    std::wstring seen = std::wstring(name) + L'|' + text + L'|' + font.lfFaceName;
    for (const LONG number : { rect.left, rect.top, rect.right, rect.bottom, font.lfHeight, font.lfWeight,
             ::GetWindowLongW(window, GWL_STYLE), ::GetWindowLongW(window, GWL_EXSTYLE),
             static_cast<LONG>(::GetDlgCtrlID(window)) }) {
        seen += L'|' + std::to_wstring(number);
    }
    const std::wstring kind = name;
    const auto ask
        = [window](UINT message, WPARAM wParam = 0) { return ::SendMessageW(window, message, wParam, 0); };
    if (kind == L"Button") {
        seen += L'|' + std::to_wstring(ask(BM_GETCHECK));
    } else if (kind == L"Edit") {
        seen += L'|' + std::to_wstring(ask(EM_GETMODIFY)) + L'|' + std::to_wstring(ask(EM_GETLIMITTEXT));
    } else if (kind == L"ListBox" || kind == L"ComboBox" || kind == L"ComboLBox") {
        const bool isCombo = kind == L"ComboBox";
        const LRESULT count = ask(isCombo ? CB_GETCOUNT : LB_GETCOUNT);
        seen += L'|' + std::to_wstring(ask(isCombo ? CB_GETITEMHEIGHT : LB_GETITEMHEIGHT)) + L'|'
            + std::to_wstring(ask(isCombo ? CB_GETCURSEL : LB_GETCURSEL));
        for (WPARAM line = 0; static_cast<LRESULT>(line) < count; ++line) {
            ::SendMessageW(window, isCombo ? CB_GETLBTEXT : LB_GETTEXT, line, reinterpret_cast<LPARAM>(text));
            seen += L'|' + std::wstring(text) + L'='
                + std::to_wstring(ask(isCombo ? CB_GETITEMDATA : LB_GETITEMDATA, line));
        }
    }
    return std::string(seen.begin(), seen.end());
}

inline std::vector<std::string> seenChildren(HWND parent)
{
    std::vector<std::string> all;
    for (HWND child = ::GetWindow(parent, GW_CHILD); child != nullptr;
         child = ::GetWindow(child, GW_HWNDNEXT)) {
        all.push_back(seenWindow(child));
    }
    return all;
}
