#include "toolkit/creation_hook.h"
#include "toolkit/thread.h"
#include "toolkit/thread_state.h"
#include <utility>

CreationHookCL::CreationHookCL(CWnd* wnd, TakeTP take, HWND parent, UINT id)
    : life_(wnd)
    , take_(take)
    , parent_(parent)
    , id_(id)
{
    ThreadStateCL& state = ThreadStateCL::ThisM();
    outer_ = state.creations;
    state.creations = this;
    hook_ = ::SetWindowsHookExW(WH_CBT, &CreationHookCL::procM, nullptr, ::GetCurrentThreadId());
}

CreationHookCL::~CreationHookCL()
{
    if (hook_ != nullptr) {
        ::UnhookWindowsHookEx(hook_);
    }
    ThreadStateCL::ThisM().creations = outer_;
}

LRESULT CALLBACK CreationHookCL::procM(int code, WPARAM wParam, LPARAM lParam)
{
    CreationHookCL* hook = ThreadStateCL::ThisM().creations;
    if (code == HCBT_CREATEWND && hook != nullptr && hook->hook_ != nullptr) {
        // The first window of a thread may bring the input method's helper window along.
        wchar_t className[8] = {};
        ::GetClassNameW(reinterpret_cast<HWND>(wParam), className, 8);
        if (::lstrcmpiW(className, L"IME") != 0) {
            return hook->catchM(wParam, lParam);
        }
    }
    return ::CallNextHookEx(nullptr, code, wParam, lParam);
}

LRESULT CreationHookCL::catchM(WPARAM wParam, LPARAM lParam)
{
    // Only this one window: what it or a hook of the application creates in turn is not ours.
    const HHOOK own = std::exchange(hook_, nullptr);
    const LRESULT refusal = ::CallNextHookEx(own, HCBT_CREATEWND, wParam, lParam);
    ::UnhookWindowsHookEx(own);
    if (WndM() == nullptr || refusal != 0) {
        return refusal;
    }
    hasCaught_ = true;
    try {
        take_(WndM(), reinterpret_cast<HWND>(wParam));
    } catch (...) {
        AfxAnswerException({ reinterpret_cast<HWND>(wParam), WM_NULL, 0, 0, 0, {} });
    }
    return 0;
}

const CreationHookCL* CreationHookCL::FindM(HWND parent, UINT id)
{
    const CreationHookCL* at = ThreadStateCL::ThisM().creations;
    while (at != nullptr && !(at->hasCaught_ && at->parent_ == parent && at->id_ == id)) {
        at = at->outer_;
    }
    return at;
}
