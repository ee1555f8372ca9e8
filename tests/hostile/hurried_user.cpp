#include "hostile/hurried_user.h"
#include "hostile/mutations.h"
#include "support/input.h"
#include "support/script.h"
#include <algorithm>
#include <iterator>
#include <vector>

using namespace testing_support;

namespace {

constexpr UINT_PTR Breath = 1;
constexpr int StepsABreath = 10; // Timers come only when nobody has anything to paint.
constexpr DWORD Patience = 30;   // Milliseconds that he holds the mouse where nothing else is taken.

struct BoxSearchCL
{
    HWND dialog;
    HWND found;
};

BOOL CALLBACK findBox(HWND window, LPARAM data)
{
    auto& search = *reinterpret_cast<BoxSearchCL*>(data);
    wchar_t name[16] = L"";
    GetClassNameW(window, name, 16);
    if (window != search.dialog && IsWindowVisible(window) && IsWindowEnabled(window)
        && std::wstring(name) == L"#32770") {
        search.found = window;
        return FALSE;
    }
    return TRUE;
}

BOOL CALLBACK collect(HWND window, LPARAM data)
{
    if (IsWindowVisible(window)) {
        reinterpret_cast<std::vector<HWND>*>(data)->push_back(window);
    }
    return TRUE;
}

RECT onScreen(HWND window)
{
    // Without the corner of our own window.
    const RECT screen { 0, 0, GetSystemMetrics(SM_CXSCREEN), GetSystemMetrics(SM_CYSCREEN) - 1 };
    RECT rect {};
    RECT common {};
    GetWindowRect(window, &rect);
    return IntersectRect(&common, &rect, &screen) ? common : screen;
}

} // namespace

HurriedUserCL::HurriedUserCL(std::mt19937& random, std::function<void(const std::string&)> onStep)
    : random_(random)
    , onStep_(std::move(onStep))
{
    WNDCLASSW type = {};
    type.lpfnWndProc = procedure;
    type.hInstance = GetModuleHandleW(nullptr);
    type.lpszClassName = L"PanelkitTestHurriedUser";
    RegisterClassW(&type); // Fails from the second time on, as it is there.
    window_ = CreateWindowExW(WS_EX_TOPMOST | WS_EX_NOACTIVATE | WS_EX_TOOLWINDOW | WS_EX_TRANSPARENT,
        type.lpszClassName, L"", WS_POPUP | WS_VISIBLE, GetSystemMetrics(SM_CXSCREEN) - 1,
        GetSystemMetrics(SM_CYSCREEN) - 1, 1, 1, nullptr, nullptr, type.hInstance, nullptr);
    SetWindowLongPtrW(window_, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
    finger_ = std::thread([this] { liftFingerM(); });
}

HurriedUserCL::~HurriedUserCL()
{
    SetEvent(stop_);
    finger_.join();
    CloseHandle(stop_);
    DestroyWindow(window_);
}

// Some loops, such as that of a close button held down, take nothing but the mouse: there no step is made.
void HurriedUserCL::liftFingerM()
{
    for (int last = steps_; WaitForSingleObject(stop_, Patience) == WAIT_TIMEOUT; last = steps_) {
        if (steps_ == last && isHeld_.exchange(false)) {
            INPUT input = {};
            input.type = INPUT_MOUSE;
            input.mi.dwFlags = MOUSEEVENTF_LEFTUP;
            SendInput(1, &input, sizeof input);
        }
    }
}

void HurriedUserCL::BeginM(int inputs, CallsCL calls)
{
    calls_ = std::move(calls);
    left_ = inputs;
    isLeaving_ = false;
}

void HurriedUserCL::UseM(HWND dialog)
{
    dialog_ = dialog;
    isRunning_ = true;
    scheduleM();
}

void HurriedUserCL::EndM()
{
    isRunning_ = false;
    KillTimer(window_, Breath);
}

size_t HurriedUserCL::belowM(size_t limit)
{
    return below(random_, limit);
}

// A window is asked to paint, and a timer ticks, only when no input waits.
void HurriedUserCL::scheduleM()
{
    if (++steps_ % StepsABreath == 0) {
        SetTimer(window_, Breath, USER_TIMER_MINIMUM, nullptr);
    } else {
        RedrawWindow(window_, nullptr, nullptr, RDW_INVALIDATE | RDW_INTERNALPAINT);
    }
}

LRESULT CALLBACK HurriedUserCL::procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    auto* user = reinterpret_cast<HurriedUserCL*>(GetWindowLongPtrW(window, GWLP_USERDATA));
    if (message == WM_NCHITTEST) {
        return HTTRANSPARENT;
    }
    if (message == WM_CLOSE) {
        return 0; // His Alt and F4, where no dialog has the activation any more.
    }
    if (message != WM_PAINT && message != WM_TIMER) {
        return DefWindowProcW(window, message, wParam, lParam);
    }
    ValidateRect(window, nullptr);
    KillTimer(window, Breath);
    if (user != nullptr && user->isRunning_ && !user->isActing_) {
        user->isActing_ = true;
        user->stepM();
        user->isActing_ = false;
        if (user->isRunning_) {
            user->scheduleM();
        }
    }
    return 0;
}

void HurriedUserCL::stepM()
{
    const InsideLoopCL inside;
    if (answerBoxM()) {
        return;
    }
    if (left_ == 0) {
        leaveLoopsM();
        return;
    }
    --left_;
    if (!IsWindowVisible(dialog_) || IsIconic(dialog_)) {
        tellM("shows it again");
        releaseM();
        calls_.show();
        return;
    }
    const HWND front = GetForegroundWindow();
    if (front == nullptr || GetWindowThreadProcessId(front, nullptr) != GetCurrentThreadId()) {
        SetForegroundWindow(dialog_);
    }
    inputM();
}

// Whether he has answered one now.
bool HurriedUserCL::answerBoxM()
{
    BoxSearchCL search { dialog_, nullptr };
    EnumThreadWindows(GetCurrentThreadId(), findBox, reinterpret_cast<LPARAM>(&search));
    if (search.found != box_) {
        box_ = search.found;
        patience_ = static_cast<int>(belowM(4));
    }
    if (box_ == nullptr) {
        return false;
    }
    if (left_ > 0 && patience_-- > 0) {
        if (isHeld_ && belowM(2) == 0) {
            tellM("lets go of the mouse while the message stands");
            releaseM();
            return true;
        }
        return false; // He goes on, perhaps in the box.
    }
    tellM("answers the message");
    ++boxes_;
    PostMessageW(box_, WM_COMMAND, IDOK, 0);
    return true;
}

void HurriedUserCL::leaveLoopsM()
{
    if (!isLeaving_) {
        isLeaving_ = true;
        tellM("leaves what is open"); // Once: if that goes on for ever, somebody shall see it.
    }
    if (isHeld_) {
        releaseM();
        return;
    }
    if (const HWND captor = GetCapture()) {
        PostMessageW(captor, WM_CANCELMODE, 0, 0);
    }
    KeyM(VK_ESCAPE); // Menus, and windows that are moved.
    calls_.done();
}

void HurriedUserCL::inputM()
{
    if (belowM(5) < 3) {
        keyM();
    } else {
        mouseM();
    }
}

void HurriedUserCL::keyM()
{
    static const WORD Keys[] = { VK_TAB, VK_TAB, VK_TAB, VK_TAB, VK_LEFT, VK_RIGHT, VK_UP, VK_DOWN, VK_HOME,
        VK_END, VK_PRIOR, VK_NEXT, VK_SPACE, VK_SPACE, VK_RETURN, VK_ESCAPE, VK_DELETE, VK_BACK, VK_INSERT,
        VK_F4, VK_F2, VK_APPS };
    static const wchar_t Characters[] = L"0123456789-+.eEaxZ&~\x4E2D\x20AC\x03A9";
    const size_t kind = belowM(10);
    if (kind < 5) {
        const WORD key = Keys[belowM(std::size(Keys))];
        tellM("key " + std::to_string(key));
        KeyM(key);
    } else if (kind < 8) {
        const wchar_t text[2] = { Characters[belowM(std::size(Characters) - 1)], L'\0' };
        tellM("character " + std::to_string(static_cast<int>(text[0])));
        TypeM(text);
    } else if (kind < 9) {
        const auto letter = static_cast<WORD>('A' + belowM(26));
        tellM("Alt and " + std::string(1, static_cast<char>(letter)));
        ChordM(VK_MENU, letter);
    } else {
        static const WORD Chords[][2] = { { VK_SHIFT, VK_TAB }, { VK_SHIFT, VK_HOME }, { VK_SHIFT, VK_END },
            { VK_SHIFT, VK_DOWN }, { VK_CONTROL, 'A' }, { VK_CONTROL, 'C' }, { VK_CONTROL, 'V' },
            { VK_CONTROL, 'X' }, { VK_CONTROL, 'Z' }, { VK_CONTROL, VK_HOME }, { VK_CONTROL, VK_RIGHT },
            { VK_CONTROL, VK_SPACE }, { VK_CONTROL, VK_TAB }, { VK_MENU, VK_DOWN }, { VK_MENU, VK_F4 },
            { VK_MENU, VK_SPACE }, { VK_SHIFT, VK_F10 } };
        const auto& chord = Chords[belowM(std::size(Chords))];
        tellM("keys " + std::to_string(chord[0]) + " and " + std::to_string(chord[1]));
        ChordM(chord[0], chord[1]);
    }
}

void HurriedUserCL::mouseM()
{
    if (isHeld_ && --moves_ < 0) {
        tellM("lets go of the mouse");
        releaseM();
        return;
    }
    const POINT place = placeM();
    const std::string at = " at " + std::to_string(place.x) + " " + std::to_string(place.y);
    const size_t kind = isHeld_ ? 0 : belowM(12);
    const HWND screen = GetDesktopWindow();
    if (kind == 0) {
        tellM("moves" + at);
        MoveMouseToM(screen, place.x, place.y);
    } else if (kind == 1) {
        const int delta = static_cast<int>(belowM(2)) * 240 - 120;
        tellM("wheel " + std::to_string(delta) + at);
        MoveMouseToM(screen, place.x, place.y);
        WheelM(delta);
    } else if (kind == 2) {
        tellM("right click" + at);
        ClickM(screen, place.x, place.y, Button::Right);
    } else if (kind <= 4) {
        tellM("double click" + at);
        DoubleClickM(screen, place.x, place.y);
    } else if (kind <= 7) {
        tellM("presses" + at);
        MoveMouseToM(screen, place.x, place.y);
        PressM();
        isHeld_ = true;
        moves_ = static_cast<int>(belowM(4));
    } else {
        tellM("click" + at);
        ClickM(screen, place.x, place.y);
    }
}

void HurriedUserCL::releaseM()
{
    if (isHeld_.exchange(false)) {
        ReleaseM();
    }
}

// On the screen: mostly in a control of the dialog or in what is open before it.
POINT HurriedUserCL::placeM()
{
    HWND window = box_ != nullptr ? box_ : dialog_;
    if (box_ == nullptr && belowM(4) != 0) {
        std::vector<HWND> children;
        EnumChildWindows(dialog_, collect, reinterpret_cast<LPARAM>(&children));
        window = children.empty() ? dialog_ : children[belowM(children.size())];
    }
    const RECT rect = onScreen(window);
    return { rect.left + static_cast<LONG>(belowM(static_cast<size_t>(rect.right - rect.left))),
        rect.top + static_cast<LONG>(belowM(static_cast<size_t>(rect.bottom - rect.top))) };
}
