#include "controls/base/leaving.h"

namespace {

thread_local const NotLeavingCL* innermost = nullptr;
thread_local int asking = 0;

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

void LeavingCL::SeeM(HWND field, UINT message)
{
    // A dialog may give the focus to a field before it is shown; its first painting then says that it is.
    if (message == WM_SETFOCUS || message == WM_PAINT) {
        wasShown_ = ::IsWindowVisible(field) != FALSE;
    }
}

bool LeavingCL::IsLeftM(HWND field) const
{
    const DWORD style = static_cast<DWORD>(::GetWindowLongW(field, GWL_STYLE));
    if ((style & WS_VISIBLE) == 0 || (style & WS_DISABLED) != 0) {
        return false;
    }
    const bool hasVanished = wasShown_ && !::IsWindowVisible(field);
    return !hasVanished && !NotLeavingCL::CoversM(field);
}

bool slTellAboutField(CWnd* field, const std::function<void()>& show)
{
    if (field == nullptr) {
        return false;
    }
    const HWND window = field->m_hWnd;
    const NotLeavingCL talking;
    show();
    if (CWnd::FromHandlePermanent(window) == field && ::GetFocus() != window) {
        ::SetFocus(window);
    }
    return CWnd::FromHandlePermanent(window) == field;
}
