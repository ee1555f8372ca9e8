#include "message_log.h"
#include "controls/base/control_common.h"
#include "controls/base/messages.h"
#include <commctrl.h>
#include <cstdio>
#include <string>

namespace {

// What the queue gave out last: it is dispatched next, so a message with the same values was posted.
MSG lastRetrieved {};

struct NotificationCL
{
    const wchar_t* windowClass; // Null: of any.
    int code;
    const char* name;
    const char* meaning;
};

#define PANELKIT_CODE(code) static_cast<int>(code), #code
const NotificationCL Commands[] {
    { L"Button", PANELKIT_CODE(BN_CLICKED), "clicked" },
    { L"Button", PANELKIT_CODE(BN_DBLCLK), "double-clicked" },
    { L"Button", PANELKIT_CODE(BN_SETFOCUS), "gained the focus" },
    { L"Button", PANELKIT_CODE(BN_KILLFOCUS), "lost the focus" },
    { L"Static", PANELKIT_CODE(STN_CLICKED), "clicked" },
    { L"Static", PANELKIT_CODE(STN_DBLCLK), "double-clicked" },
    { L"Static", PANELKIT_CODE(STN_ENABLE), "enabled" },
    { L"Static", PANELKIT_CODE(STN_DISABLE), "disabled" },
    { L"Edit", PANELKIT_CODE(EN_SETFOCUS), "gained the focus" },
    { L"Edit", PANELKIT_CODE(EN_KILLFOCUS), "lost the focus" },
    { L"Edit", PANELKIT_CODE(EN_CHANGE), "text changed" },
    { L"Edit", PANELKIT_CODE(EN_UPDATE), "text about to be shown" },
    { L"Edit", PANELKIT_CODE(EN_ERRSPACE), "no memory" },
    { L"Edit", PANELKIT_CODE(EN_MAXTEXT), "text too long" },
    { L"Edit", PANELKIT_CODE(EN_HSCROLL), "scrolled across" },
    { L"Edit", PANELKIT_CODE(EN_VSCROLL), "scrolled" },
    { L"ListBox", PANELKIT_CODE(LBN_SELCHANGE), "selection changed" },
    { L"ListBox", PANELKIT_CODE(LBN_DBLCLK), "double-clicked" },
    { L"ListBox", PANELKIT_CODE(LBN_SELCANCEL), "selection cancelled" },
    { L"ListBox", PANELKIT_CODE(LBN_SETFOCUS), "gained the focus" },
    { L"ListBox", PANELKIT_CODE(LBN_KILLFOCUS), "lost the focus" },
    { L"ComboBox", PANELKIT_CODE(CBN_SELCHANGE), "selection changed" },
    { L"ComboBox", PANELKIT_CODE(CBN_DBLCLK), "double-clicked" },
    { L"ComboBox", PANELKIT_CODE(CBN_SETFOCUS), "gained the focus" },
    { L"ComboBox", PANELKIT_CODE(CBN_KILLFOCUS), "lost the focus" },
    { L"ComboBox", PANELKIT_CODE(CBN_EDITCHANGE), "text changed" },
    { L"ComboBox", PANELKIT_CODE(CBN_EDITUPDATE), "text about to be shown" },
    { L"ComboBox", PANELKIT_CODE(CBN_DROPDOWN), "list opens" },
    { L"ComboBox", PANELKIT_CODE(CBN_CLOSEUP), "list closed" },
    { L"ComboBox", PANELKIT_CODE(CBN_SELENDOK), "line chosen" },
    { L"ComboBox", PANELKIT_CODE(CBN_SELENDCANCEL), "choice cancelled" },
};

const NotificationCL Notifications[] {
    { nullptr, PANELKIT_CODE(NM_CLICK), "clicked" },
    { nullptr, PANELKIT_CODE(NM_DBLCLK), "double-clicked" },
    { nullptr, PANELKIT_CODE(NM_RETURN), "Enter pressed" },
    { nullptr, PANELKIT_CODE(NM_RCLICK), "clicked with the right button" },
    { nullptr, PANELKIT_CODE(NM_RDBLCLK), "double-clicked with the right button" },
    { nullptr, PANELKIT_CODE(NM_SETFOCUS), "gained the focus" },
    { nullptr, PANELKIT_CODE(NM_KILLFOCUS), "lost the focus" },
    { nullptr, PANELKIT_CODE(NM_HOVER), "pointer rests" },
    { nullptr, PANELKIT_CODE(NM_RELEASEDCAPTURE), "mouse released" },
    { nullptr, PANELKIT_CODE(LVN_ITEMCHANGING), "row about to change" },
    { nullptr, PANELKIT_CODE(LVN_ITEMCHANGED), "row changed" },
    { nullptr, PANELKIT_CODE(LVN_INSERTITEM), "row inserted" },
    { nullptr, PANELKIT_CODE(LVN_DELETEITEM), "row deleted" },
    { nullptr, PANELKIT_CODE(LVN_DELETEALLITEMS), "all rows deleted" },
    { nullptr, PANELKIT_CODE(LVN_COLUMNCLICK), "heading clicked" },
    { nullptr, PANELKIT_CODE(LVN_ITEMACTIVATE), "row activated" },
    { nullptr, PANELKIT_CODE(LVN_BEGINDRAG), "row dragged" },
    { nullptr, PANELKIT_CODE(LVN_HOTTRACK), "pointer over a row" },
    { nullptr, PANELKIT_CODE(LVN_KEYDOWN), "key pressed" },
    { nullptr, PANELKIT_CODE(TVN_SELCHANGINGW), "selection about to change" },
    { nullptr, PANELKIT_CODE(TVN_SELCHANGEDW), "selection changed" },
    { nullptr, PANELKIT_CODE(TVN_ITEMEXPANDINGW), "branch about to open or close" },
    { nullptr, PANELKIT_CODE(TVN_ITEMEXPANDEDW), "branch opened or closed" },
    { nullptr, PANELKIT_CODE(TVN_DELETEITEMW), "item deleted" },
    { nullptr, PANELKIT_CODE(TVN_BEGINDRAGW), "item dragged" },
    { nullptr, PANELKIT_CODE(TVN_KEYDOWN), "key pressed" },
    { nullptr, PANELKIT_CODE(TTN_GETDISPINFOW), "tip asks for its text" },
    { nullptr, PANELKIT_CODE(TTN_SHOW), "tip about to be shown" },
    { nullptr, PANELKIT_CODE(TTN_POP), "tip about to be hidden" },
    { nullptr, PANELKIT_CODE(UDN_DELTAPOS), "arrow pressed" },
};
#undef PANELKIT_CODE

template <std::size_t countN>
const NotificationCL* findNotification(const NotificationCL (&table)[countN], HWND control, int code)
{
    wchar_t windowClass[64] = L"";
    ::GetClassNameW(control, windowClass, 64);
    for (const NotificationCL& row : table) {
        if (row.code == code
            && (row.windowClass == nullptr || ::lstrcmpiW(row.windowClass, windowClass) == 0)) {
            return &row;
        }
    }
    return nullptr;
}

void print(
    const std::string& name, int number, const std::string& id, const std::string& meaning, bool isPosted)
{
    std::printf("%s %d id=%s %s (%s)\n", name.c_str(), number, id.c_str(), meaning.c_str(),
        isPosted ? "posted" : "sent");
    std::fflush(stdout); // Whoever reads it wants it as it happens.
}

std::string meaningOf(const MessageWordsCL& words, LPARAM lParam)
{
    std::string text = lParam < 0 && words.negative != nullptr ? words.negative : words.meaning;
    const std::size_t at = text.find("{}");
    return at == std::string::npos ? text : text.replace(at, 2, std::to_string(lParam));
}

std::string senderOf(UINT message, WPARAM wParam)
{
    if (message == QueryPermissionMsg) {
        return "-"; // It doesn't say.
    }
    if (message == PointerReportMsg) {
        const CWnd* const control = reinterpret_cast<const PointerReportCL*>(wParam)->control;
        return control != nullptr ? std::to_string(::GetDlgCtrlID(control->m_hWnd)) : "-";
    }
    return std::to_string(static_cast<int>(wParam));
}

} // namespace

const std::vector<MessageWordsCL>& messageWords()
{
#define PANELKIT_MESSAGE(name, meaning, negative)                                                            \
    {                                                                                                        \
        name, #name, meaning, negative                                                                       \
    }
    static const std::vector<MessageWordsCL> words {
        PANELKIT_MESSAGE(ButtonDownMsg, "button held down, turn {}", nullptr),
        PANELKIT_MESSAGE(RotateReleasedMsg, "knob released, turned {}", nullptr),
        PANELKIT_MESSAGE(QueryPermissionMsg, "asks whether it may act", nullptr),
        PANELKIT_MESSAGE(ButtonActionMsg, "button pressed", nullptr),
        PANELKIT_MESSAGE(ValueReportMsg, "field left, its value is good", "field left, its value is bad"),
        PANELKIT_MESSAGE(FocusGainedMsg, "gained the focus", nullptr),
        PANELKIT_MESSAGE(CheckValueMsg, "field asked to check its value", nullptr),
        PANELKIT_MESSAGE(SpinClickMsg, "arrow pressed", nullptr),
        PANELKIT_MESSAGE(RadioClickedMsg, "radio button clicked", nullptr),
        PANELKIT_MESSAGE(CheckClickedMsg, "check box clicked", nullptr),
        PANELKIT_MESSAGE(AnimationClickedMsg, "animation clicked", nullptr),
        PANELKIT_MESSAGE(SelectionChangedMsg, "line {} selected", nullptr),
        PANELKIT_MESSAGE(PointerReportMsg, "pointer moved over it", nullptr),
    };
#undef PANELKIT_MESSAGE
    return words;
}

MessageLogCL::MessageLogCL()
    : hook_(::SetWindowsHookExW(WH_GETMESSAGE, &MessageLogCL::retrieved, nullptr, ::GetCurrentThreadId()))
{
}

MessageLogCL::~MessageLogCL()
{
    ::UnhookWindowsHookEx(hook_);
    lastRetrieved = {};
}

LRESULT CALLBACK MessageLogCL::retrieved(int code, WPARAM wParam, LPARAM lParam)
{
    if (code == HC_ACTION && wParam == PM_REMOVE) {
        lastRetrieved = *reinterpret_cast<const MSG*>(lParam);
    }
    return ::CallNextHookEx(nullptr, code, wParam, lParam);
}

void MessageLogCL::SeeM(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam)
{
    const bool isPosted = lastRetrieved.hwnd == dialog && lastRetrieved.message == message
        && lastRetrieved.wParam == wParam && lastRetrieved.lParam == lParam;
    if (isPosted) {
        lastRetrieved = {};
    }
    const HWND control = reinterpret_cast<HWND>(lParam);
    switch (message) {
    case WM_COMMAND:
        if (control != nullptr) {
            const int code = static_cast<short>(HIWORD(wParam));
            const NotificationCL* const row = findNotification(Commands, control, code);
            print(row != nullptr ? row->name : "WM_COMMAND", code, std::to_string(::GetDlgCtrlID(control)),
                row != nullptr ? row->meaning : "notification", isPosted);
        }
        break;
    case WM_NOTIFY: {
        const NMHDR& notice = *reinterpret_cast<const NMHDR*>(lParam);
        const int code = static_cast<int>(notice.code);
        if (code != static_cast<int>(NM_CUSTOMDRAW)) {
            const NotificationCL* const row = findNotification(Notifications, notice.hwndFrom, code);
            print(row != nullptr ? row->name : "WM_NOTIFY", code, std::to_string(static_cast<int>(wParam)),
                row != nullptr ? row->meaning : "notification", isPosted);
        }
        break;
    }
    case WM_HSCROLL:
    case WM_VSCROLL:
        if (control != nullptr) {
            print(message == WM_HSCROLL ? "WM_HSCROLL" : "WM_VSCROLL", static_cast<int>(message),
                std::to_string(::GetDlgCtrlID(control)), "scrolled, code " + std::to_string(LOWORD(wParam)),
                isPosted);
        }
        break;
    case WM_KILLFOCUS:
        if (isPosted) { // By a spin edit; the window system sends its own.
            print("WM_KILLFOCUS", WM_KILLFOCUS, std::to_string(wParam), "field left", true);
        }
        break;
    default:
        for (const MessageWordsCL& words : messageWords()) {
            if (words.number == message) {
                print(words.name, static_cast<int>(message), senderOf(message, wParam),
                    meaningOf(words, lParam), isPosted);
            }
        }
        break;
    }
}
