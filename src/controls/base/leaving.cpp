#include "controls/base/leaving.h"
#include "controls/base/interrupted_press.h"

namespace {

thread_local const ValidationPauseCL* innermost = nullptr;
thread_local int requested = 0;

} // namespace

ValidationPauseCL::ValidationPauseCL(HWND within, Requests requests)
    : within_(within)
    , requests_(requests)
    , outer_(innermost)
{
    innermost = this;
}

ValidationPauseCL::~ValidationPauseCL()
{
    innermost = outer_;
    if (innermost == nullptr) {
        slEndInterruptedPress([] { return innermost == nullptr; });
    }
}

bool ValidationPauseCL::CoversM(HWND field)
{
    for (const ValidationPauseCL* at = innermost; at != nullptr; at = at->outer_) {
        const bool holds = at->requests_ == RefuseRequests || requested == 0;
        if (holds && (at->within_ == nullptr || at->within_ == field || ::IsChild(at->within_, field))) {
            return true;
        }
    }
    return false;
}

ValidationRequestCL::ValidationRequestCL()
{
    ++requested;
}

ValidationRequestCL::~ValidationRequestCL()
{
    --requested;
}

bool slIsLeft(HWND field)
{
    const DWORD style = static_cast<DWORD>(::GetWindowLongW(field, GWL_STYLE));
    if ((style & (WS_VISIBLE | WS_DISABLED)) != WS_VISIBLE || ValidationPauseCL::CoversM(field)) {
        return false;
    }
    return requested > 0 || ::IsWindowVisible(field);
}

bool slIsEntered(HWND control)
{
    return !ValidationPauseCL::CoversM(control);
}

bool slTellAboutField(CWnd* field, const std::function<void()>& show)
{
    if (field == nullptr || show == nullptr) {
        return false;
    }
    const HWND window = field->m_hWnd;
    const ValidationPauseCL talking;
    slInterruptPress();
    show();
    if (CWnd::FromHandlePermanent(window) == field && ::GetFocus() != window) {
        ::SetFocus(window);
    }
    return CWnd::FromHandlePermanent(window) == field;
}
