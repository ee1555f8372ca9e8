#include "dialog/monitor_scale.h"

namespace {

// What systems before Windows 10 don't have.
template <class FunctionTP> FunctionTP userFunction(const char* name)
{
    const HMODULE user = ::GetModuleHandleW(L"user32.dll");
    return user != nullptr
        ? reinterpret_cast<FunctionTP>(reinterpret_cast<void*>(::GetProcAddress(user, name)))
        : nullptr;
}

int systemDpi()
{
    const HDC screen = ::GetDC(nullptr);
    const int dpi = ::GetDeviceCaps(screen, LOGPIXELSX);
    ::ReleaseDC(nullptr, screen);
    return dpi;
}

} // namespace

int slDpiOf(HWND window)
{
    static const auto dpiOfWindow = userFunction<UINT(WINAPI*)(HWND)>("GetDpiForWindow");
    const int dpi = dpiOfWindow != nullptr && window != nullptr ? static_cast<int>(dpiOfWindow(window)) : 0;
    return dpi > 0 ? dpi : systemDpi();
}

CSize slFrameOf(HWND window)
{
    RECT all {};
    RECT client {};
    ::GetWindowRect(window, &all);
    ::GetClientRect(window, &client);
    return { all.right - all.left - client.right, all.bottom - all.top - client.bottom };
}

CSize slFrameOf(HWND window, int dpi)
{
    if (dpi == slDpiOf(window)) {
        return slFrameOf(window);
    }
    static const auto adjust
        = userFunction<BOOL(WINAPI*)(RECT*, DWORD, BOOL, DWORD, UINT)>("AdjustWindowRectExForDpi");
    const auto style = static_cast<DWORD>(::GetWindowLongW(window, GWL_STYLE));
    const auto extended = static_cast<DWORD>(::GetWindowLongW(window, GWL_EXSTYLE));
    const BOOL hasMenu = (style & WS_CHILD) == 0 && ::GetMenu(window) != nullptr;
    RECT frame {};
    if (adjust != nullptr && adjust(&frame, style, hasMenu, extended, static_cast<UINT>(dpi))) {
        return { frame.right - frame.left, frame.bottom - frame.top };
    }
    const CSize now = slFrameOf(window);
    return { ::MulDiv(now.cx, dpi, slDpiOf(window)), ::MulDiv(now.cy, dpi, slDpiOf(window)) };
}
