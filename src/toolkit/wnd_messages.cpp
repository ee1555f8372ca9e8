#include "toolkit/creation_hook.h"
#include "toolkit/life.h"
#include "toolkit/thread_state.h"
#include "toolkit/wnd.h"

BEGIN_MESSAGE_MAP(CWnd, CCmdTarget)
ON_WM_NCDESTROY()
END_MESSAGE_MAP()

const MSG* WndCallsCL::GetCurrentMessage()
{
    return &ThreadStateCL::ThisM().message;
}

LRESULT WndHandlersCL::Default()
{
    MSG current = ThreadStateCL::ThisM().message;
    return static_cast<CWnd*>(this)->DefWindowProc(current.message, current.wParam, current.lParam);
}

LRESULT WndHandlersCL::askChildM()
{
    const MSG current = ThreadStateCL::ThisM().message;
    CWnd* self = static_cast<CWnd*>(this);
    if ((current.message == WM_DRAWITEM || current.message == WM_MEASUREITEM)
        && self->drawMenuM(current.message, current.lParam)) {
        return TRUE;
    }
    const HWND child = self->askingChildM(current.message, current.wParam, current.lParam);
    LifeCL life(self);
    LRESULT answer = 0;
    if (self->reflectM(child, current.message, current.wParam, current.lParam, &answer) || !life.IsAliveM()) {
        return answer;
    }
    return self->DefWindowProc(current.message, current.wParam, current.lParam);
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
    switch (message) {
    case WM_COMMAND:
        *result = 0;
        return OnCommand(wParam, lParam);
    case WM_NOTIFY:
        return lParam != 0 && OnNotify(wParam, lParam, result);
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
    bool isDone = dispatchM(m);
    if (!isDone && life.IsAliveM() && message >= WM_CTLCOLORMSGBOX && message <= WM_CTLCOLORSTATIC) {
        m.message = WM_CTLCOLOR;
        m.id = message - WM_CTLCOLORMSGBOX;
        isDone = dispatchM(m);
    }
    if (isDone) {
        *result = m.result;
        return TRUE;
    }
    if (life.IsAliveM() && message == WM_INITMENUPOPUP && HIWORD(lParam) == 0) {
        updateMenuM(CMenu::FromHandle(reinterpret_cast<HMENU>(wParam)));
    }
    if (life.IsAliveM() && (message == WM_DRAWITEM || message == WM_MEASUREITEM)
        && drawMenuM(message, lParam)) {
        *result = TRUE;
        return TRUE;
    }
    // What this window has no answer to, the control that asks may have.
    return !life.IsAliveM()
        || reflectM(askingChildM(message, wParam, lParam), message, wParam, lParam, result)
        || !life.IsAliveM();
}

// The control that asks its parent by this message; null: none does.
HWND CWnd::askingChildM(UINT message, WPARAM wParam, LPARAM lParam) const
{
    switch (message) {
    case WM_CTLCOLORMSGBOX:
    case WM_CTLCOLOREDIT:
    case WM_CTLCOLORLISTBOX:
    case WM_CTLCOLORBTN:
    case WM_CTLCOLORDLG:
    case WM_CTLCOLORSCROLLBAR:
    case WM_CTLCOLORSTATIC:
    case WM_HSCROLL:
    case WM_VSCROLL:
    case WM_CHARTOITEM:
    case WM_VKEYTOITEM:
        return reinterpret_cast<HWND>(lParam);
    case WM_DRAWITEM: {
        const auto* item = reinterpret_cast<const DRAWITEMSTRUCT*>(lParam);
        return item->CtlType == ODT_MENU ? nullptr : item->hwndItem;
    }
    case WM_MEASUREITEM: {
        const auto* item = reinterpret_cast<const MEASUREITEMSTRUCT*>(lParam);
        return item->CtlType == ODT_MENU ? nullptr : measuredChildM(item->CtlID);
    }
    case WM_COMPAREITEM:
        return reinterpret_cast<const COMPAREITEMSTRUCT*>(lParam)->hwndItem;
    case WM_DELETEITEM:
        return reinterpret_cast<const DELETEITEMSTRUCT*>(lParam)->hwndItem;
    case WM_PARENTNOTIFY:
        return LOWORD(wParam) == WM_CREATE || LOWORD(wParam) == WM_DESTROY ? reinterpret_cast<HWND>(lParam)
                                                                           : nullptr;
    default:
        return nullptr;
    }
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
    // What UpdateData itself changes is no news.
    if (!life.IsAliveM() || (child != nullptr && ThreadStateCL::ThisM().exchanging == m_hWnd)) {
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
    // Of a tip for a window that number is the window; in a map the tip has the id of its control, 0 as a
    // rule.
    if (header->code == TTN_NEEDTEXTW || header->code == TTN_NEEDTEXTA) {
        const UINT tips = static_cast<UINT>(::GetDlgCtrlID(header->hwndFrom));
        if (OnCmdMsg(tips, code, &notify, nullptr) || !life.IsAliveM()) {
            return TRUE;
        }
    }
    return OnCmdMsg(static_cast<UINT>(header->idFrom), code, &notify, nullptr);
}

BOOL CWnd::reflectM(HWND child, UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result)
{
    CWnd* wnd = child == nullptr ? nullptr : FromHandlePermanent(child);
    const bool passesBy = wnd != nullptr && wnd->endPassesBy_ && message == WM_PARENTNOTIFY;
    return wnd != nullptr && wnd != this && !passesBy && wnd->OnChildNotify(message, wParam, lParam, result);
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
