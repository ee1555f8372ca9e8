#include "toolkit/creation_hook.h"
#include "toolkit/thread.h"
#include "toolkit/thread_state.h"
#include <utility>

CreationHookCL::CreationHookCL(CWnd* wnd, TakeTP take, HWND parent, UINT id, When when)
    : life_(wnd)
    , take_(take)
    , parent_(parent)
    , id_(id)
    , when_(when)
{
    ThreadStateCL& state = ThreadStateCL::ThisM();
    outer_ = state.creations;
    state.creations = this;
    if (when == AtFirst) {
        hook_ = ::SetWindowsHookExW(WH_CBT, &CreationHookCL::procM, nullptr, ::GetCurrentThreadId());
    }
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
    takeM(reinterpret_cast<HWND>(wParam));
    return 0;
}

void CreationHookCL::takeM(HWND made)
{
    hasCaught_ = true;
    try {
        take_(WndM(), made);
    } catch (...) {
        AfxAnswerException({ made, WM_NULL, 0, 0, 0, {} });
    }
}

HWND CreationHookCL::MadeM(HWND made)
{
    if (when_ == AtFirst || hasCaught_ || made == nullptr) {
        return made;
    }
    if (WndM() == nullptr) {
        ::DestroyWindow(made);
        return nullptr;
    }
    takeM(made);
    return ::IsWindow(made) ? made : nullptr;
}

bool CreationHookCL::SeeM(HWND made, Why why)
{
    CreationHookCL* const hook = ThreadStateCL::ThisM().creations;
    if (hook == nullptr || hook->when_ != WhenSeen || hook->hasCaught_ || hook->WndM() == nullptr) {
        return false;
    }
    const auto id = static_cast<UINT>(::GetDlgCtrlID(made));
    if (id != hook->id_ || ::GetAncestor(made, GA_PARENT) != hook->parent_) {
        return false;
    }
    // Of equal ids there may be an older one; only the newest is the last child.
    if (why == IsAskedFor && ::GetWindow(made, GW_HWNDNEXT) != nullptr) {
        return false;
    }
    hook->takeM(made);
    return true;
}

const CreationHookCL* CreationHookCL::FindM(HWND parent, UINT id)
{
    const CreationHookCL* at = ThreadStateCL::ThisM().creations;
    while (at != nullptr && !(at->hasCaught_ && at->parent_ == parent && at->id_ == id)) {
        at = at->outer_;
    }
    return at;
}
