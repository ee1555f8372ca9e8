#include "controls/base/leaving.h"

namespace {

thread_local const NotLeavingCL* innermost = nullptr;
thread_local int asking = 0;

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
    if (innermost == nullptr && hasInterrupted) { // Else the last scope posts anew.
        hasInterrupted = false;
        // A control may take the mouse first and look pressed only when it has the focus.
        if (::GetCapture() == nullptr && ::IsWindow(interrupted)) {
            ::SetCapture(interrupted);
        }
        endPress();
    }
    return 0;
}

// A control that is pressed takes the focus first and the mouse only when the message about the field left is
// over: its press ends as soon as it has handled it, before any further input.
void endPressSoon()
{
    const HWND window
        = ::CreateWindowExW(0, L"Static", L"", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, nullptr, nullptr);
    ::SetWindowLongPtrW(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&endPressProcedure));
    ::PostMessageW(window, EndPressMsg, 0, 0);
}

} // namespace

NotLeavingCL::NotLeavingCL(HWND within, Strength strength)
    : within_(within)
    , strength_(strength)
    , outer_(innermost)
{
    innermost = this;
}

NotLeavingCL::~NotLeavingCL()
{
    innermost = outer_;
    if (innermost == nullptr && hasInterrupted) {
        endPressSoon();
    }
}

bool NotLeavingCL::CoversM(HWND field)
{
    for (const NotLeavingCL* at = innermost; at != nullptr; at = at->outer_) {
        const bool holds = at->strength_ == Always || asking == 0;
        if (holds && (at->within_ == nullptr || at->within_ == field || ::IsChild(at->within_, field))) {
            return true;
        }
    }
    return false;
}

AskingCL::AskingCL()
{
    ++asking;
}

AskingCL::~AskingCL()
{
    --asking;
}

bool slIsLeft(HWND field)
{
    const DWORD style = static_cast<DWORD>(::GetWindowLongW(field, GWL_STYLE));
    if ((style & (WS_VISIBLE | WS_DISABLED)) != WS_VISIBLE || NotLeavingCL::CoversM(field)) {
        return false;
    }
    return asking > 0 || ::IsWindowVisible(field);
}

bool slIsEntered(HWND control)
{
    return !NotLeavingCL::CoversM(control);
}

bool slTellAboutField(CWnd* field, const std::function<void()>& show)
{
    if (field == nullptr) {
        return false;
    }
    const HWND window = field->m_hWnd;
    const NotLeavingCL talking;
    interrupted = endPress();
    hasInterrupted = true;
    show();
    if (CWnd::FromHandlePermanent(window) == field && ::GetFocus() != window) {
        ::SetFocus(window);
    }
    return CWnd::FromHandlePermanent(window) == field;
}
