#include "support/pump.h"
#include <algorithm>

namespace testing_support {

std::function<bool(MSG*)> pumpFilter;

namespace {

bool dispatchOne()
{
    MSG message;
    if (!PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
        return false;
    }
    if (message.message == WM_QUIT) {
        PostQuitMessage(static_cast<int>(message.wParam)); // For the loop that it is meant for.
        return false;
    }
    if (!pumpFilter || !pumpFilter(&message)) {
        TranslateMessage(&message);
        DispatchMessageW(&message);
    }
    return true;
}

} // namespace

void PumpPending()
{
    while (dispatchOne()) { }
}

bool PumpUntil(const std::function<bool()>& condition, DWORD deadlineMs)
{
    const ULONGLONG end = GetTickCount64() + deadlineMs;
    while (!condition()) {
        if (dispatchOne()) {
            continue;
        }
        const ULONGLONG now = GetTickCount64();
        if (now >= end) {
            return false;
        }
        // A condition that another thread fulfils wakes nobody: look again now and then.
        const DWORD wait = static_cast<DWORD>(std::min<ULONGLONG>(end - now, 10));
        MsgWaitForMultipleObjectsEx(0, nullptr, wait, QS_ALLINPUT, MWMO_INPUTAVAILABLE);
    }
    return true;
}

} // namespace testing_support
