#include "toolkit/thread_state.h"

namespace {

bool isGdiObject(HGDIOBJ object)
{
    return ::GetObjectType(object) != 0;
}
bool isImageList(HIMAGELIST list)
{
    int width = 0;
    int height = 0;
    return ::ImageList_GetIconSize(list, &width, &height) != FALSE;
}
bool isDc(HDC dc)
{
    return ::GetObjectType(dc) != 0;
}
bool isWindow(HWND hWnd)
{
    return ::IsWindow(hWnd) != FALSE;
}

struct HolderCL
{
    ThreadStateCL* state = nullptr;
    ~HolderCL()
    {
        if (state != nullptr) {
            // Objects that go ask for the state once more.
            state->loopDepth = state->depth;
            state->loopSerial = 0;
            state->CleanTemporariesM();
            state->ownThread.reset();
            delete std::exchange(state, nullptr);
        }
    }
};

HolderCL& holderM()
{
    static thread_local HolderCL holder;
    return holder;
}

} // namespace

ThreadStateCL::ThreadStateCL()
    : wnds(&isWindow)
    , gdi(&isGdiObject)
    , dcs(&isDc)
    , imageLists(&isImageList)
{
    imageLists.UseSerialM(&serial);
    wnds.UseSerialM(&serial);
    gdi.UseSerialM(&serial);
    dcs.UseSerialM(&serial);
}

ThreadStateCL& ThreadStateCL::ThisM()
{
    HolderCL& holder = holderM();
    if (holder.state == nullptr) {
        holder.state = new ThreadStateCL;
    }
    return *holder.state;
}

void ThreadStateCL::ForgetM(CWnd* wnd)
{
    ThreadStateCL* state = holderM().state;
    if (state == nullptr) {
        return;
    }
    for (LifeCL* at = state->lives; at != nullptr; at = at->outer_) {
        if (at->wnd_ == wnd) {
            at->wnd_ = nullptr;
        }
    }
    for (CreationHookCL* at = state->creations; at != nullptr; at = at->outer_) {
        if (at->wnd_ == wnd) {
            at->wnd_ = nullptr;
        }
    }
    if (state->thread != nullptr && state->thread->m_pMainWnd == wnd) {
        state->thread->m_pMainWnd = nullptr;
    }
}

void ThreadStateCL::CleanTemporariesM()
{
    // Called by a handler, not by the loop: the objects may be in use further up.
    if (depth != loopDepth) {
        return;
    }
    wnds.CleanM(loopSerial);
    gdi.CleanM(loopSerial);
    dcs.CleanM(loopSerial);
    imageLists.CleanM(loopSerial);
}

LifeCL::LifeCL(CWnd* wnd)
    : wnd_(wnd)
{
    ThreadStateCL& state = ThreadStateCL::ThisM();
    outer_ = state.lives;
    state.lives = this;
}

LifeCL::~LifeCL()
{
    ThreadStateCL::ThisM().lives = outer_;
}

LoopCL::LoopCL(bool isOutermost)
{
    ThreadStateCL& state = ThreadStateCL::ThisM();
    depth_ = std::exchange(state.loopDepth, state.depth);
    serial_ = std::exchange(state.loopSerial, isOutermost ? 0 : state.serial);
}

LoopCL::~LoopCL()
{
    ThreadStateCL& state = ThreadStateCL::ThisM();
    state.loopDepth = depth_;
    state.loopSerial = serial_;
}

CreationHookCL::CreationHookCL(CWnd* wnd, HWND parent, UINT id)
    : wnd_(wnd)
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
    if (wnd_ == nullptr || refusal != 0) {
        return refusal;
    }
    hasCaught_ = true;
    try {
        wnd_->SubclassWindow(reinterpret_cast<HWND>(wParam));
    } catch (...) {
        AfxLogFailure("PreSubclassWindow", nullptr);
    }
    return 0;
}

// What the window procedure does with the members of a window's object. As a function it could not be their
// friend without losing its import.
struct WindowMessageCL
{
    static LRESULT HandleM(CWnd* wnd, const LifeCL& life, const MSG& message)
    {
        const HWND hWnd = message.hwnd;
        const LRESULT result = wnd->WindowProc(message.message, message.wParam, message.lParam);
        if (message.message == WM_NCDESTROY && life.IsAliveM() && wnd->m_hWnd == hWnd) {
            wnd->CWnd::OnNcDestroy(); // its own handler didn't pass the message on
        }
        return result;
    }
};

LRESULT CALLBACK AfxWndProc(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam)
{
    ThreadStateCL& state = ThreadStateCL::ThisM();
    CWnd* wnd = CWnd::FromHandlePermanent(hWnd);
    if (wnd == nullptr) {
        return ::DefWindowProcW(hWnd, message, wParam, lParam);
    }
    MSG outerMessage = state.message;
    state.message = { hWnd, message, wParam, lParam, 0, {} };
    ++state.depth;
    LRESULT result = 0;
    {
        LifeCL life(wnd);
        try {
            result = WindowMessageCL::HandleM(wnd, life, { hWnd, message, wParam, lParam, 0, {} });
        } catch (...) {
            // The window system's frames below cannot carry an exception.
            AfxLogFailure("a message handler threw an exception", nullptr);
            result = message == WM_CREATE ? -1 : 0;
            if (message == WM_PAINT) {
                ::ValidateRect(hWnd, nullptr); // else it would come again at once
            }
        }
    }
    --state.depth;
    state.message = outerMessage;
    return result;
}
