#include "commands.h"
#include <cstdio>
#include <windows.h>

namespace {

DWORD WINAPI waitForEnd(void* thread)
{
    while (std::getchar() != EOF) { }
    ::PostThreadMessageW(static_cast<DWORD>(reinterpret_cast<ULONG_PTR>(thread)), WM_QUIT, 0, 0);
    return 0;
}

} // namespace

int keepCommand()
{
    // Never shown: it must not take part in activation.
    if (::CreateWindowExW(WS_EX_TOOLWINDOW, L"Static", L"", WS_POPUP, 0, 0, 1, 1, nullptr, nullptr,
            ::GetModuleHandleW(nullptr), nullptr)
        == nullptr) {
        return 1;
    }
    void* const thread = reinterpret_cast<void*>(static_cast<ULONG_PTR>(::GetCurrentThreadId()));
    const HANDLE waiting = ::CreateThread(nullptr, 0, waitForEnd, thread, 0, nullptr);
    if (waiting == nullptr) {
        return 1;
    }
    ::CloseHandle(waiting);
    std::puts("ready");
    std::fflush(stdout);
    MSG message;
    while (::GetMessageW(&message, nullptr, 0, 0) > 0) {
        ::DispatchMessageW(&message);
    }
    return 0;
}
