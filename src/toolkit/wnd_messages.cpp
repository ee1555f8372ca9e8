#include "toolkit/app.h"
#include "toolkit/creation_hook.h"
#include "toolkit/life.h"
#include "toolkit/module.h"
#include "toolkit/thread_state.h"
#include "toolkit/wnd.h"
#include <utility>

BEGIN_MESSAGE_MAP(CWnd, CCmdTarget)
ON_WM_NCDESTROY()
END_MESSAGE_MAP()

const MSG* CWnd::GetCurrentMessage()
{
    return &ThreadStateCL::ThisM().message;
}

LRESULT CWnd::Default()
{
    MSG current = ThreadStateCL::ThisM().message;
    return DefWindowProc(current.message, current.wParam, current.lParam);
}

LRESULT CWnd::DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    return ::CallWindowProcW(
        oldProc_ == nullptr ? ::DefWindowProcW : oldProc_, m_hWnd, message, wParam, lParam);
}

LRESULT CWnd::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    LifeCL life(this);
    LRESULT result = 0;
    if (!OnWndMsg(message, wParam, lParam, &result) && life.IsAliveM()) {
        result = DefWindowProc(message, wParam, lParam);
    }
    return result;
}

BOOL CWnd::OnWndMsg(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result)
{
    LifeCL life(this);
    AFX_MESSAGE m = { message, wParam, lParam, 0, 0, 0, nullptr };
    BOOL isTaken = FALSE;
    switch (message) {
    case WM_COMMAND:
        *result = 0;
        return OnCommand(wParam, lParam);
    case WM_NOTIFY:
        return lParam != 0 && OnNotify(wParam, lParam, result);
    case WM_CTLCOLORMSGBOX:
    case WM_CTLCOLOREDIT:
    case WM_CTLCOLORLISTBOX:
    case WM_CTLCOLORBTN:
    case WM_CTLCOLORDLG:
    case WM_CTLCOLORSCROLLBAR:
    case WM_CTLCOLORSTATIC:
        isTaken = reflectM(reinterpret_cast<HWND>(lParam), message, wParam, lParam, result);
        m.message = WM_CTLCOLOR;
        m.id = message - WM_CTLCOLORMSGBOX;
        break;
    case WM_DRAWITEM:
        isTaken
            = reflectM(reinterpret_cast<DRAWITEMSTRUCT*>(lParam)->hwndItem, message, wParam, lParam, result);
        break;
    case WM_COMPAREITEM:
        isTaken = reflectM(
            reinterpret_cast<COMPAREITEMSTRUCT*>(lParam)->hwndItem, message, wParam, lParam, result);
        break;
    case WM_DELETEITEM:
        isTaken = reflectM(
            reinterpret_cast<DELETEITEMSTRUCT*>(lParam)->hwndItem, message, wParam, lParam, result);
        break;
    case WM_MEASUREITEM:
        isTaken = reflectM(measuredChildM(reinterpret_cast<MEASUREITEMSTRUCT*>(lParam)->CtlID), message,
            wParam, lParam, result);
        break;
    case WM_HSCROLL:
    case WM_VSCROLL:
        isTaken = reflectM(reinterpret_cast<HWND>(lParam), message, wParam, lParam, result);
        break;
    case WM_PARENTNOTIFY:
        if (LOWORD(wParam) == WM_CREATE || LOWORD(wParam) == WM_DESTROY) {
            isTaken = reflectM(reinterpret_cast<HWND>(lParam), message, wParam, lParam, result);
        }
        break;
    case WM_REFLECT_BASE + WM_COMMAND:
        m.code = static_cast<short>(HIWORD(wParam));
        break;
    case WM_REFLECT_BASE + WM_NOTIFY:
        m.code = static_cast<int>(reinterpret_cast<NMHDR*>(lParam)->code);
        break;
    case WM_REFLECT_BASE + WM_CTLCOLOR: {
        UINT kind = GetCurrentMessage()->message - WM_CTLCOLORMSGBOX;
        m.id = kind <= CTLCOLOR_STATIC ? kind : CTLCOLOR_STATIC;
        break;
    }
    default:
        break;
    }
    if (isTaken || !life.IsAliveM()) {
        return TRUE;
    }
    if (!dispatchM(m)) {
        return FALSE;
    }
    *result = m.result;
    return TRUE;
}

bool CWnd::dispatchM(AFX_MESSAGE& m)
{
    // Of these the code says which handler is meant; the number of a window message is enough.
    UINT id = 0;
    const AFX_MSGMAP_ENTRY* entry = findEntryM(m.message, m.code, id);
    return entry != nullptr && entry->pfn(this, m);
}

BOOL CWnd::OnCommand(WPARAM wParam, LPARAM lParam)
{
    LifeCL life(this);
    LRESULT ignored = 0;
    HWND child = reinterpret_cast<HWND>(lParam);
    if (child != nullptr && reflectM(child, WM_COMMAND, wParam, lParam, &ignored)) {
        return TRUE;
    }
    if (!life.IsAliveM()) {
        return TRUE;
    }
    // From a menu or an accelerator the code is no notification.
    int code = child == nullptr ? 0 : HIWORD(wParam);
    return OnCmdMsg(LOWORD(wParam), code, nullptr, nullptr);
}

BOOL CWnd::OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* result)
{
    LifeCL life(this);
    NMHDR* header = reinterpret_cast<NMHDR*>(lParam);
    if (reflectM(header->hwndFrom, WM_NOTIFY, wParam, lParam, result) || !life.IsAliveM()) {
        return TRUE;
    }
    AFX_NOTIFY notify = { result, header };
    int code = static_cast<int>(MAKELONG(static_cast<WORD>(header->code), WM_NOTIFY));
    return OnCmdMsg(static_cast<UINT>(header->idFrom), code, &notify, nullptr);
}

BOOL CWnd::reflectM(HWND child, UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result)
{
    CWnd* wnd = child == nullptr ? nullptr : FromHandlePermanent(child);
    return wnd != nullptr && wnd != this && wnd->OnChildNotify(message, wParam, lParam, result);
}

BOOL CWnd::SendChildNotifyLastMsg(LRESULT* result)
{
    MSG current = ThreadStateCL::ThisM().message;
    LRESULT own = 0;
    return OnChildNotify(current.message, current.wParam, current.lParam, result == nullptr ? &own : result);
}

// A control asks for its item size while it is being created, when only its id is known.
HWND CWnd::measuredChildM(UINT id) const
{
    if (const CreationHookCL* making = CreationHookCL::FindM(m_hWnd, id)) {
        return making->WndM() == nullptr ? nullptr : making->WndM()->m_hWnd;
    }
    return ::GetDlgItem(m_hWnd, static_cast<int>(id));
}

BOOL CWnd::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result)
{
    UINT kind = message >= WM_CTLCOLORMSGBOX && message <= WM_CTLCOLORSTATIC ? WM_CTLCOLOR : message;
    return OnWndMsg(WM_REFLECT_BASE + kind, wParam, lParam, result);
}

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
        return FALSE;
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
