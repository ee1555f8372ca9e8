#include "toolkit/app.h"
#include "toolkit/creation_hook.h"
#include "toolkit/life.h"
#include "toolkit/thread_state.h"
#include "toolkit/wnd.h"

BOOL CWnd::PreTranslateMessage(MSG*)
{
    return FALSE;
}

BOOL CWnd::WalkPreTranslateTree(HWND stop, MSG* message)
{
    for (HWND at = message->hwnd; at != nullptr; at = ::GetParent(at)) {
        CWnd* wnd = FromHandlePermanent(at);
        if (wnd != nullptr && wnd->PreTranslateMessage(message)) {
            return TRUE;
        }
        if (at == stop) {
            break;
        }
    }
    return FALSE;
}

// Here, not with the thread: the windows know it, so it must not know them.
BOOL CWinThread::PreTranslateMessage(MSG* message)
{
    if (message->hwnd == nullptr) {
        return dispatchThreadMessageM(*message);
    }
    HWND mainWnd = m_pMainWnd == nullptr ? nullptr : m_pMainWnd->m_hWnd;
    return CWnd::WalkPreTranslateTree(mainWnd, message);
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
    // Of an object that does nothing about it: a dialog of thousands goes so.
    static LRESULT EndM(ThreadStateCL& state, CWnd* wnd, const MSG& message)
    {
        const LifeCL life(wnd, state);
        const LRESULT result
            = ::CallWindowProcW(wnd->oldProc_, message.hwnd, message.message, message.wParam, message.lParam);
        if (message.message == WM_NCDESTROY && life.IsAliveM() && wnd->m_hWnd == message.hwnd) {
            wnd->windowGoneM();
        }
        return result;
    }
    static bool EndPassesByM(const CWnd* wnd, UINT message)
    {
        return wnd->endPassesBy_ && (message == WM_DESTROY || message == WM_NCDESTROY)
            && wnd->oldProc_ != nullptr;
    }
    // Of a window whose object has left while another procedure calls ours.
    static LRESULT PassM(ThreadStateCL& state, const MSG& message)
    {
        const auto place = state.left.find(message.hwnd);
        const WNDPROC next = place == state.left.end() ? ::DefWindowProcW : place->second;
        if (message.message == WM_NCDESTROY && place != state.left.end()) {
            state.left.erase(place);
        }
        return ::CallWindowProcW(next, message.hwnd, message.message, message.wParam, message.lParam);
    }
};

LRESULT CALLBACK AfxWndProc(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam)
{
    ThreadStateCL& state = ThreadStateCL::ThisM();
    const MSG handled = { hWnd, message, wParam, lParam, 0, {} };
    CWnd* wnd = state.permanent.FindM(hWnd);
    if (wnd == nullptr) {
        wnd = CWnd::FromHandlePermanent(hWnd); // One that is being created.
    }
    if (wnd == nullptr || (!state.left.empty() && state.left.count(hWnd) != 0)) {
        return WindowMessageCL::PassM(state, handled);
    }
    if (WindowMessageCL::EndPassesByM(wnd, message)) {
        return WindowMessageCL::EndM(state, wnd, handled);
    }
    if (message == WM_PARENTNOTIFY && LOWORD(wParam) == WM_CREATE) {
        const LifeCL life(wnd);
        CreationHookCL::SeeM(reinterpret_cast<HWND>(lParam), CreationHookCL::IsTold);
        if (!life.IsAliveM() || wnd->m_hWnd != hWnd) { // What the child tells it may be its end.
            return 0;
        }
    }
    MSG outerMessage = state.message;
    state.message = handled;
    ++state.depth;
    LRESULT result = 0;
    {
        LifeCL life(wnd, state);
        try {
            result = WindowMessageCL::HandleM(wnd, life, handled);
        } catch (...) {
            // The window system's frames below cannot carry an exception.
            result = AfxAnswerException(handled);
        }
    }
    --state.depth;
    state.message = outerMessage;
    return result;
}

void CWnd::beginModalM()
{
    modalResult_ = -1;
    modal_ = Modal::Running;
}

int CWnd::endModalM()
{
    modal_ = Modal::No;
    return modalResult_;
}

void CWnd::EndModalLoop(int result)
{
    modalResult_ = result;
    modal_ = Modal::Ended;
    PostMessage(WM_NULL); // the loop may be waiting
}

int CWnd::RunModalLoop(DWORD flags)
{
    const bool isOwn = !isModalM();
    if (isOwn) {
        beginModalM();
    }
    LifeCL life(this);
    LoopCL loop;
    CWinThread* thread = AfxGetThread();
    HWND hWnd = m_hWnd;
    bool isShown = (flags & MLF_SHOWONIDLE) == 0 || IsWindowVisible() != FALSE;
    while (life.IsAliveM() && ContinueModal() && m_hWnd == hWnd) {
        MSG next;
        if (!::PeekMessageW(&next, nullptr, 0, 0, PM_NOREMOVE)) {
            if (!isShown) {
                isShown = true;
                ShowWindow(SW_SHOWNORMAL);
                if (life.IsAliveM() && m_hWnd == hWnd) { // Its end may be what the application does then.
                    UpdateWindow();
                }
                continue;
            }
            thread->OnIdle(0);
        }
        if (!thread->PumpMessage()) {
            ::PostQuitMessage(thread->ExitCode()); // the loops outside must end too
            break;
        }
    }
    if (!life.IsAliveM()) {
        return -1;
    }
    return isOwn ? endModalM() : modalResult_;
}
