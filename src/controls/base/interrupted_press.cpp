#include "controls/base/interrupted_press.h"
#include "toolkit/toolkit.h"

namespace {

// A message was shown, and what it interrupted has not been ended yet; who held the mouse when it opened.
thread_local bool hasInterrupted = false;
thread_local HWND interrupted = nullptr;

constexpr UINT EndPressMsg = WM_APP;

// Whether the platform's procedure of that window ends a press at the release only, mouse or not.
bool remembersPress(HWND window)
{
    wchar_t name[16] = L"";
    ::RealGetWindowClassW(window, name, 16);
    for (const wchar_t* const one : { L"ComboBox", L"ComboLBox", L"Edit", L"ListBox" }) {
        if (::lstrcmpiW(name, one) == 0) {
            return true;
        }
    }
    return false;
}

// Whoever holds the mouse lets go of it and of what it does with it, without a click.
HWND endPress()
{
    const HWND holder = ::GetCapture();
    if (holder == nullptr) {
        return nullptr;
    }
    ::SendMessageW(holder, WM_CANCELMODE, 0, 0);
    ::ReleaseCapture();
    if (::IsWindow(holder) && remembersPress(holder)) {
        ::SendMessageW(holder, WM_LBUTTONUP, 0, MAKELPARAM(-1, -1));
        ::ReleaseCapture(); // A combo box hands the mouse to its list.
    }
    return holder;
}

LRESULT CALLBACK endPressProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message != EndPressMsg) {
        return ::DefWindowProcW(window, message, wParam, lParam);
    }
    ::DestroyWindow(window);
    if (reinterpret_cast<bool (*)()>(lParam)() && hasInterrupted) {
        hasInterrupted = false;
        // A control may take the mouse first and look pressed only when it has the focus.
        if (::GetCapture() == nullptr && ::IsWindow(interrupted)) {
            ::SetCapture(interrupted);
        }
        endPress();
    }
    return 0;
}

} // namespace

void slInterruptPress()
{
    interrupted = endPress();
    hasInterrupted = true;
}

// A control that is pressed takes the focus first and the mouse only when the message about the field left is
// over: its press ends as soon as it has handled it, before any further input.
void slEndInterruptedPress(bool (*mayEnd)())
{
    if (!hasInterrupted) {
        return;
    }
    const HWND window
        = ::CreateWindowExW(0, L"Static", L"", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, nullptr, nullptr);
    ::SetWindowLongPtrW(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&endPressProcedure));
    ::PostMessageW(window, EndPressMsg, 0, reinterpret_cast<LPARAM>(mayEnd));
}
