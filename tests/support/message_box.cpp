#include "support/message_box.h"
#include "support/pump.h"
#include <utility>

namespace testing_support {

namespace {

constexpr UINT Patience = 5000; // Milliseconds that a box has to answer a question.

std::wstring className(HWND window)
{
    wchar_t name[64] = {};
    GetClassNameW(window, name, 64);
    return name;
}

LRESULT ask(HWND window, UINT message, WPARAM wParam = 0, LPARAM lParam = 0)
{
    DWORD_PTR result = 0;
    SendMessageTimeoutW(window, message, wParam, lParam, SMTO_ABORTIFHUNG, Patience, &result);
    return static_cast<LRESULT>(result);
}

std::wstring textOf(HWND window)
{
    std::wstring text(static_cast<size_t>(ask(window, WM_GETTEXTLENGTH)) + 1, L'\0');
    ask(window, WM_GETTEXT, text.size(), reinterpret_cast<LPARAM>(text.data()));
    text.pop_back();
    return text;
}

struct Parts
{
    HWND icon { nullptr };
    HWND text { nullptr };
    std::vector<HWND> buttons;
    int others { 0 };
};

BOOL CALLBACK sortPart(HWND child, LPARAM data)
{
    auto& parts = *reinterpret_cast<Parts*>(data);
    if ((GetWindowLongW(child, GWL_STYLE) & WS_VISIBLE) == 0) {
        return TRUE;
    }
    const std::wstring name = className(child);
    const LONG type = GetWindowLongW(child, GWL_STYLE) & SS_TYPEMASK;
    if (name == L"Button") {
        parts.buttons.push_back(child);
    } else if (name == L"Static" && type == SS_ICON) {
        parts.icon = child;
    } else if (GetDlgCtrlID(child) == 0xffff && (name == L"Static" || name == L"Edit")) {
        parts.text = child;
    } else {
        ++parts.others;
    }
    return TRUE;
}

struct Search
{
    HWND found { nullptr };
    Parts parts;
};

// A message box is a shown dialog with a text, buttons, perhaps an icon and nothing else.
BOOL CALLBACK findBox(HWND window, LPARAM data)
{
    auto& search = *reinterpret_cast<Search*>(data);
    DWORD process = 0;
    GetWindowThreadProcessId(window, &process);
    if (process != GetCurrentProcessId() || !IsWindowVisible(window) || className(window) != L"#32770") {
        return TRUE;
    }
    Parts parts;
    EnumChildWindows(window, sortPart, reinterpret_cast<LPARAM>(&parts));
    if (!parts.text || parts.buttons.empty() || parts.others > 0) {
        return TRUE;
    }
    search.found = window;
    search.parts = parts;
    return FALSE;
}

UINT iconKind(HWND icon)
{
    if (!icon) {
        return 0;
    }
    const auto shown = reinterpret_cast<HICON>(ask(icon, STM_GETICON));
    const std::pair<const wchar_t*, UINT> kinds[] = { { IDI_EXCLAMATION, MB_ICONEXCLAMATION },
        { IDI_HAND, MB_ICONHAND }, { IDI_QUESTION, MB_ICONQUESTION }, { IDI_ASTERISK, MB_ICONASTERISK } };
    for (const auto& [name, kind] : kinds) {
        if (shown == LoadIconW(nullptr, name)) {
            return kind;
        }
    }
    return shown ? ~0u : 0;
}

// A box that goes before the display told its owner that it lost the focus looks like another program that
// takes the focus away. So first the display answers us, having handled what the box asked of it, then the
// box's thread.
void awaitFocus(HWND box)
{
    ask(box, WM_NULL);
    const HDC screen = GetDC(nullptr);
    GetPixel(screen, 0, 0);
    ReleaseDC(nullptr, screen);
    ask(box, WM_NULL);
    ask(box, WM_NULL);
}

} // namespace

MessageBoxWatcher::MessageBoxWatcher(int answer)
    : answer_(answer)
    , stop_(CreateEventW(nullptr, TRUE, FALSE, nullptr))
    , thread_([this] { watchM(); })
{
}

MessageBoxWatcher::~MessageBoxWatcher()
{
    SetEvent(stop_);
    thread_.join();
    CloseHandle(stop_);
}

std::vector<MessageBoxSeen> MessageBoxWatcher::SeenM() const
{
    const std::lock_guard<std::mutex> lock(mutex_);
    return seen_;
}

bool MessageBoxWatcher::WaitForM(size_t count, DWORD deadlineMs) const
{
    return PumpUntil([this, count] { return SeenM().size() >= count; }, deadlineMs);
}

void MessageBoxWatcher::watchM()
{
    while (WaitForSingleObject(stop_, 5) == WAIT_TIMEOUT) {
        Search search;
        EnumWindows(findBox, reinterpret_cast<LPARAM>(&search));
        if (search.found) {
            answerM(search.found);
        }
    }
}

void MessageBoxWatcher::answerM(HWND box)
{
    Search search;
    findBox(box, reinterpret_cast<LPARAM>(&search));
    if (!search.found) {
        return;
    }
    const Parts& parts = search.parts;
    MessageBoxSeen seen { textOf(parts.text), textOf(box), iconKind(parts.icon), GetWindow(box, GW_OWNER),
        static_cast<int>(parts.buttons.size()) };
    HWND button = GetDlgItem(box, answer_);
    if (!button) {
        button = parts.buttons.front();
    }
    {
        const std::lock_guard<std::mutex> lock(mutex_);
        seen_.push_back(std::move(seen));
    }
    awaitFocus(box);
    PostMessageW(
        box, WM_COMMAND, MAKEWPARAM(GetDlgCtrlID(button), BN_CLICKED), reinterpret_cast<LPARAM>(button));
    // Not to be noted twice: wait until it is gone.
    while (IsWindow(box) && IsWindowVisible(box) && WaitForSingleObject(stop_, 2) == WAIT_TIMEOUT) { }
}

} // namespace testing_support
