// What the callback is told of the dialog's messages.
#include "controls/base/leaving.h"
#include "form/hosted_dialog.h"
#include "form/notifications.h"

namespace {

// A message of the dialog to itself; wParam: the id of the control whose selection to tell.
UINT selectedMessage()
{
    static const UINT message = ::RegisterWindowMessageW(L"panelkit_form_selected");
    return message;
}

// What a message notifies of: which control, with what code.
struct NotificationCL
{
    int id;
    UINT code;
};

NotificationCL notificationOf(UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == WM_COMMAND && lParam != 0) {
        return { ::GetDlgCtrlID(reinterpret_cast<HWND>(lParam)), HIWORD(wParam) };
    }
    if (message == WM_NOTIFY && lParam != 0) {
        const auto* header = reinterpret_cast<const NMHDR*>(lParam);
        return { ::GetDlgCtrlID(header->hwndFrom), header->code };
    }
    return { static_cast<int>(wParam), 0 };
}

// Where the mouse was in the control when its message came.
POINT mousePlaceIn(HWND control)
{
    const DWORD place = ::GetMessagePos();
    POINT at { static_cast<short>(LOWORD(place)), static_cast<short>(HIWORD(place)) };
    ::ScreenToClient(control, &at);
    return at;
}

// Rows change in many ways; here only their selection counts.
bool isOtherSelection(UINT message, UINT code, LPARAM lParam)
{
    if (message != WM_NOTIFY || code != static_cast<UINT>(LVN_ITEMCHANGED)) {
        return true;
    }
    const auto* change = reinterpret_cast<const NMLISTVIEW*>(lParam);
    return ((change->uNewState ^ change->uOldState) & LVIS_SELECTED) != 0;
}

const NotificationRowCL* rowOf(UINT message, UINT code, int kind)
{
    for (const NotificationRowCL& row : NotificationTable) {
        if (row.message == message && row.code == code && (row.kinds & slKinds(kind)) != 0) {
            return &row;
        }
    }
    return nullptr;
}

bool canNotify(UINT message, LPARAM lParam)
{
    if (message == WM_COMMAND || message == WM_NOTIFY) {
        return lParam != 0;
    }
    for (const NotificationRowCL& row : NotificationTable) {
        if (row.message == message) {
            return true;
        }
    }
    return false;
}

} // namespace

LRESULT HostedDialogCL::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    const UseCL use(*this, UseCL::ByMessage);
    if (isDoomed_ && message == WM_CLOSE) {
        if (uses_ == 1) {
            DestroyWindow();
        }
        return 0;
    }
    if (message == WM_TIMER) {
        const auto timer = timers_.find(wParam);
        if (timer != timers_.end()) {
            tellM(PANELKIT_EVENT_TIMER, timer->second);
            return 0;
        }
    }
    if (message == selectedMessage()) {
        const int id = static_cast<int>(wParam);
        tellOfControlM(PANELKIT_EVENT_SELECT, id, ValuesM().IndexM(id).value_or(-1));
        return 0;
    }
    const bool notifies = canNotify(message, lParam);
    if (message == ValueReportMsg) {
        onCtrlLostFocusM(wParam, lParam);
    } else if (message == FocusGainedMsg) {
        onCtrlSetFocusM(wParam, lParam);
    }
    const LRESULT result = DuBasicDialogCL::WindowProc(message, wParam, lParam);
    if (message == WM_DESTROY) {
        CloseM(-1); // With its owner.
    } else if (notifies) {
        tellOfNotificationM(message, wParam, lParam);
    }
    return result;
}

void HostedDialogCL::tellOfNotificationM(UINT message, WPARAM wParam, LPARAM lParam)
{
    if (!isOpen_ || quiet_ > 0) {
        return;
    }
    const NotificationCL seen = notificationOf(message, wParam, lParam);
    const int kind = kindM(seen.id);
    const NotificationRowCL* row = rowOf(message, seen.code, kind);
    if (row == nullptr || !isOtherSelection(message, seen.code, lParam)) {
        return;
    }
    const bool isReport = message == ValueReportMsg;
    if (row->event == PANELKIT_EVENT_LEAVE && !isReport) {
        tellLeftM(seen.id, kind);
    } else if (row->event == PANELKIT_EVENT_FOCUS && message == WM_COMMAND
        && !slIsEntered(reinterpret_cast<HWND>(lParam))) {
        return; // The field was never left.
    } else if (row->time == EventTime::Once) {
        MSG waiting;
        if (!::PeekMessageW(&waiting, m_hWnd, selectedMessage(), selectedMessage(), PM_NOREMOVE)
            || static_cast<int>(waiting.wParam) != seen.id) {
            PostMessage(selectedMessage(), static_cast<WPARAM>(seen.id), 0);
        }
    } else if (isReport) {
        tellM(PANELKIT_EVENT_LEAVE, seen.id, kind, 0, lParam == 0 ? 1 : 0);
    } else {
        int number = 0;
        if (row->number == EventNumber::Given) {
            number = static_cast<int>(lParam);
        } else if (row->number == EventNumber::SelectedLine) {
            number = ValuesM().IndexM(seen.id).value_or(-1);
        }
        POINT at {};
        if (row->kinds == Pictures) {
            at = mousePlaceIn(reinterpret_cast<HWND>(lParam));
        }
        tellM(row->event, seen.id, kind, number, 0, at);
        const bool isAnswer = seen.id == IDOK || seen.id == IDCANCEL;
        if (isAnswer && message == ButtonActionMsg && kind == static_cast<int>(StandardButtonCode)) {
            askToCloseM(seen.id);
        }
    }
}

void HostedDialogCL::tellLeftM(int id, int kind)
{
    const HWND field = ::GetDlgItem(m_hWnd, id);
    if (field == nullptr || !slIsLeft(field)) {
        return;
    }
    const bool isGood = ValuesM().ValueM(id).PartsM() != NoPart;
    tellM(PANELKIT_EVENT_LEAVE, id, kind, 0, isGood ? 1 : 0);
}

void HostedDialogCL::tellOfControlM(int event, int id, int number, int good)
{
    if (isOpen_) {
        tellM(event, id, kindM(id), number, good);
    }
}

int HostedDialogCL::tellM(int event, int id, int kind, int number, int good, POINT at)
{
    if (isDoomed_ || options_.callback == nullptr) {
        return 0;
    }
    const panelkit_event told { sizeof told, event, handle_, id, kind, number, good,
        static_cast<int32_t>(at.x), static_cast<int32_t>(at.y) };
    const UseCL use(*this, UseCL::ByMessage);
    try {
        return options_.callback(&told, options_.user);
    } catch (...) {
        ::OutputDebugStringW(L"panelkit: a callback threw an exception\n");
        return 0;
    }
}

int HostedDialogCL::kindM(int id)
{
    int kind = PANELKIT_KIND_NONE;
    GetContrlPtrM(id, &kind);
    return kind;
}
