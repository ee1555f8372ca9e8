#include "support/window.h"
#include "support/pump.h"

namespace testing_support {

PlainWindow::PlainWindow(int width, int height, int x, int y)
{
    WNDCLASSW type = {};
    type.lpfnWndProc = DefWindowProcW;
    type.hInstance = GetModuleHandleW(nullptr);
    type.hCursor = LoadCursorW(nullptr, IDC_ARROW);
    type.hbrBackground = reinterpret_cast<HBRUSH>(COLOR_BTNFACE + 1);
    type.lpszClassName = L"PanelkitTestPlainWindow";
    RegisterClassW(&type); // Fails from the second time on, as it is there.
    window_ = CreateWindowExW(0, type.lpszClassName, L"plain", WS_POPUP | WS_VISIBLE | WS_CLIPCHILDREN, x, y,
        width, height, nullptr, nullptr, type.hInstance, nullptr);
    SettleM();
}

PlainWindow::~PlainWindow()
{
    DestroyWindow(window_);
    PumpPending();
}

HWND PlainWindow::AddM(
    const wchar_t* className, const wchar_t* text, DWORD style, const RECT& rect, int id) const
{
    return CreateWindowExW(0, className, text, WS_CHILD | WS_VISIBLE | style, rect.left, rect.top,
        rect.right - rect.left, rect.bottom - rect.top, window_,
        reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)), GetModuleHandleW(nullptr), nullptr);
}

void SettleM()
{
    HDC screen = GetDC(nullptr);
    for (int i = 0; i < 2; ++i) {
        PumpPending(); // Hands out our requests.
        // An answer of the display: it has read them, and its reports are on the way before the answer.
        GetPixel(screen, 0, 0);
    }
    ReleaseDC(nullptr, screen);
    PumpPending();
}

void SettleProgramM(HWND window)
{
    for (int i = 0; i < 3; ++i) {
        SettleM(); // What either program has asked of the display is done, and the reports are on their way.
        SendMessageTimeoutW(window, WM_NULL, 0, 0, SMTO_NORMAL, 1000, nullptr); // It comes by its loop.
    }
}

bool ActivateM(HWND window)
{
    SetForegroundWindow(window);
    const bool active
        = PumpUntil([window] { return GetForegroundWindow() == window && GetActiveWindow() == window; });
    SettleM();
    return active;
}

bool FocusM(HWND window)
{
    SetFocus(window);
    return PumpUntil([window] { return GetFocus() == window; });
}

} // namespace testing_support
