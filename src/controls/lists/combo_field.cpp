#include "controls/lists/combo_field.h"
#include "toolkit/toolkit.h"
#include <string>

namespace {

constexpr UINT_PTR FieldGuard = 1;
constexpr int Nearly = 2; // Pixels by which the field may measure otherwise; no character is so narrow.

struct ReplacedCL
{
    DWORD begin;
    DWORD end;
};

bool isDown(int key)
{
    return ::GetKeyState(key) < 0;
}

bool mayReplace(UINT message)
{
    switch (message) {
    case WM_CHAR:
    case WM_IME_CHAR:
    case WM_KEYDOWN:
    case WM_CLEAR:
    case WM_CUT:
    case WM_PASTE:
    case WM_UNDO:
    case EM_UNDO:
    case EM_REPLACESEL:
        return true;
    default:
        return false;
    }
}

// Which characters of the field the message is to replace or delete; false: it is about none.
bool replacedBy(HWND field, UINT message, WPARAM wParam, ReplacedCL* replaced)
{
    if (!mayReplace(message)) {
        return false; // What is asked below comes here too.
    }
    ::SendMessageW(field, EM_GETSEL, reinterpret_cast<WPARAM>(&replaced->begin),
        reinterpret_cast<LPARAM>(&replaced->end));
    const bool isSelected = replaced->begin < replaced->end;
    switch (message) {
    case WM_CHAR:
        if (wParam == VK_BACK && !isSelected && replaced->begin > 0) {
            --replaced->begin;
        }
        return wParam >= VK_SPACE || (wParam == VK_BACK && replaced->begin < replaced->end);
    case WM_KEYDOWN:
        if (wParam == VK_DELETE && !isSelected && !isDown(VK_SHIFT)) {
            ++replaced->end;
        }
        return (wParam == VK_DELETE && replaced->begin < replaced->end)
            || (wParam == VK_INSERT && isDown(VK_SHIFT));
    case WM_CLEAR:
    case WM_CUT:
        return isSelected;
    case WM_UNDO:
    case EM_UNDO: // What it would put back, only the field knows.
        replaced->begin = replaced->end = 0;
        return true;
    default:
        return true;
    }
}

bool isTooWide(HWND field, const std::wstring& text)
{
    const HDC dc = ::GetDC(field);
    if (dc == nullptr) {
        return false;
    }
    const auto font = reinterpret_cast<HFONT>(::SendMessageW(field, WM_GETFONT, 0, 0));
    const HGDIOBJ before = font != nullptr ? ::SelectObject(dc, font) : nullptr;
    SIZE size {};
    ::GetTextExtentPoint32W(dc, text.c_str(), static_cast<int>(text.size()), &size);
    if (before != nullptr) {
        ::SelectObject(dc, before);
    }
    ::ReleaseDC(field, dc);
    RECT room {};
    ::SendMessageW(field, EM_GETRECT, 0, reinterpret_cast<LPARAM>(&room));
    return size.cx + Nearly > room.right - room.left;
}

// Does itself what the field can't. False: the field can.
bool replaceItself(HWND field, UINT message, WPARAM wParam)
{
    ReplacedCL replaced {};
    if (!replacedBy(field, message, wParam, &replaced) || replaced.begin != 0) {
        return false;
    }
    std::wstring text(static_cast<std::size_t>(::GetWindowTextLengthW(field)) + 1, L'\0');
    text.resize(
        static_cast<std::size_t>(::GetWindowTextW(field, text.data(), static_cast<int>(text.size()))));
    const std::wstring rest = text.substr(std::min<std::size_t>(replaced.end, text.size()));
    if (!isTooWide(field, rest)) {
        return false;
    }
    if (rest.size() < text.size()) {
        if (message == WM_CUT || (message == WM_KEYDOWN && wParam == VK_DELETE && isDown(VK_SHIFT))) {
            ::SendMessageW(field, WM_COPY, 0, 0);
        }
        ::SetWindowTextW(field, rest.c_str());
        ::SendMessageW(field, EM_SETSEL, 0, 0);
    }
    return true;
}

LRESULT CALLBACK guardedField(HWND field, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR id, DWORD_PTR)
{
    if (message == WM_NCDESTROY) {
        ::RemoveWindowSubclass(field, &guardedField, id);
    } else if (replaceItself(field, message, wParam)) {
        return 0;
    }
    return ::DefSubclassProc(field, message, wParam, lParam);
}

} // namespace

void slGuardComboField(HWND field)
{
    ::SetWindowSubclass(field, &guardedField, FieldGuard, 0);
}
