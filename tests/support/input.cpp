#include "support/input.h"
#include "support/pump.h"
#include "support/script.h"
#include "support/window.h"
#include <initializer_list>
#include <optional>
#include <vector>

namespace testing_support {

namespace {

// How far the time stamps of input run ahead of the clock: two clicks at one place are a double click only if
// the test means one, without waiting for the double click time to pass.
DWORD ahead = 0;

// Injected input stands in the thread's queue when SendInput returns; pumping it empty processes it. In a
// script the loop that the script runs under does that before the next step.
void inject(std::initializer_list<INPUT> inputs)
{
    std::vector<INPUT> all(inputs);
    for (INPUT& input : all) {
        (input.type == INPUT_MOUSE ? input.mi.time : input.ki.time) = GetTickCount() + ahead;
    }
    SendInput(static_cast<UINT>(all.size()), all.data(), sizeof all[0]);
    if (!InsideLoopCL::LivesM()) {
        PumpPending();
    }
}

INPUT keyInput(WORD virtualKey, WORD scan, DWORD flags)
{
    INPUT input = {};
    input.type = INPUT_KEYBOARD;
    input.ki.wVk = virtualKey;
    input.ki.wScan = scan;
    input.ki.dwFlags = flags;
    return input;
}

INPUT namedKey(WORD virtualKey, DWORD flags)
{
    switch (virtualKey) {
    case VK_LEFT:
    case VK_RIGHT:
    case VK_UP:
    case VK_DOWN:
    case VK_HOME:
    case VK_END:
    case VK_PRIOR:
    case VK_NEXT:
    case VK_INSERT:
    case VK_DELETE:
        flags |= KEYEVENTF_EXTENDEDKEY; // Else they are those of the number pad.
        break;
    default:
        break;
    }
    return keyInput(virtualKey, static_cast<WORD>(MapVirtualKeyW(virtualKey, MAPVK_VK_TO_VSC)), flags);
}

// Where the pointer was moved to last, on the 65536 scale; none: nowhere yet.
std::optional<POINT> place;

void mouse(DWORD flags, LONG x = 0, LONG y = 0, DWORD data = 0)
{
    INPUT input = {};
    input.type = INPUT_MOUSE;
    input.mi.dx = x;
    input.mi.dy = y;
    input.mi.mouseData = data;
    input.mi.dwFlags = flags;
    inject({ input });
}

// With its place: what the display reports of the pointer to another program, such as that it has entered a
// window, may come late and take the pointer back to where it was then.
void injectButton(DWORD flags)
{
    if (place) {
        mouse(flags | MOUSEEVENTF_MOVE | MOUSEEVENTF_ABSOLUTE, place->x, place->y);
    } else {
        mouse(flags);
    }
}

} // namespace

void KeyDownM(WORD virtualKey)
{
    inject({ namedKey(virtualKey, 0) });
}

void KeyUpM(WORD virtualKey)
{
    inject({ namedKey(virtualKey, KEYEVENTF_KEYUP) });
}

void KeyM(WORD virtualKey)
{
    KeyDownM(virtualKey);
    KeyUpM(virtualKey);
}

void ChordM(WORD modifier, WORD virtualKey)
{
    // At once: the display, which knows of no key held, may let go of the modifier whenever it reports.
    inject({ namedKey(modifier, 0), namedKey(virtualKey, 0), namedKey(virtualKey, KEYEVENTF_KEYUP),
        namedKey(modifier, KEYEVENTF_KEYUP) });
}

void TypeM(const wchar_t* text)
{
    for (; *text; ++text) {
        const SHORT key = *text < 0x80 ? VkKeyScanW(*text) : static_cast<SHORT>(-1);
        if (key != -1 && (HIBYTE(key) & 6) == 0) {
            const bool shift = (HIBYTE(key) & 1) != 0;
            shift ? ChordM(VK_SHIFT, LOBYTE(key)) : KeyM(LOBYTE(key));
        } else {
            inject({ keyInput(0, *text, KEYEVENTF_UNICODE) });
            inject({ keyInput(0, *text, KEYEVENTF_UNICODE | KEYEVENTF_KEYUP) });
        }
    }
}

bool MoveMouseToM(HWND window, int x, int y)
{
    POINT wanted = { x, y };
    ClientToScreen(window, &wanted);
    const int width = GetSystemMetrics(SM_CXSCREEN);
    const int height = GetSystemMetrics(SM_CYSCREEN);
    // The middle of the pixel on the 65536 scale, so that no rounding leaves it.
    place = POINT { MulDiv(2 * wanted.x + 1, 65536, 2 * width), MulDiv(2 * wanted.y + 1, 65536, 2 * height) };
    mouse(MOUSEEVENTF_MOVE | MOUSEEVENTF_ABSOLUTE, place->x, place->y);
    if (!InsideLoopCL::LivesM()) {
        DWORD process = 0;
        GetWindowThreadProcessId(window, &process);
        process == GetCurrentProcessId() ? SettleM() : SettleProgramM(window); // The pointer enters windows.
    }
    POINT now = {};
    return GetCursorPos(&now) && now.x == wanted.x && now.y == wanted.y;
}

void PressM(Button button)
{
    injectButton(button == Button::Left ? MOUSEEVENTF_LEFTDOWN : MOUSEEVENTF_RIGHTDOWN);
}

void ReleaseM(Button button)
{
    injectButton(button == Button::Left ? MOUSEEVENTF_LEFTUP : MOUSEEVENTF_RIGHTUP);
}

void ClickM(HWND window, int x, int y, Button button)
{
    MoveMouseToM(window, x, y);
    ahead += GetDoubleClickTime() + 1;
    PressM(button);
    ReleaseM(button);
}

void DoubleClickM(HWND window, int x, int y, Button button)
{
    ClickM(window, x, y, button);
    PressM(button);
    ReleaseM(button);
}

void WheelM(int delta)
{
    mouse(MOUSEEVENTF_WHEEL, 0, 0, static_cast<DWORD>(delta));
}

} // namespace testing_support
