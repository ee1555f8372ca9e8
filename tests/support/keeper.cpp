// A window that stays while tests run: Wine's desktop and services end with their last program, and a
// start beside no other program is slow. Ends when the session's server is stopped.
#include <cstdio>
#include <windows.h>

int main()
{
    // Never shown: it must not take part in activation.
    HWND window = CreateWindowExW(WS_EX_TOOLWINDOW, L"Static", L"keeper", WS_POPUP, 0, 0, 1, 1, nullptr,
        nullptr, GetModuleHandleW(nullptr), nullptr);
    if (!window) {
        return 1;
    }
    std::puts("ready");
    std::fflush(stdout);
    MSG message;
    while (GetMessageW(&message, nullptr, 0, 0) > 0) {
        DispatchMessageW(&message);
    }
    return 0;
}
