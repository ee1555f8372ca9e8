#include "support/message_recorder.h"
#include <windows.h>

#include <commctrl.h>

namespace testing_support {

namespace {

// What the queue gave out last: it is dispatched next, so a call with the same values is that message.
MSG lastRetrieved = {};
HHOOK hook = nullptr;
int users = 0;

bool takeRetrieved(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    const bool same = lastRetrieved.hwnd == window && lastRetrieved.message == message
        && lastRetrieved.wParam == wParam && lastRetrieved.lParam == lParam;
    if (same) {
        lastRetrieved = {};
    }
    return same;
}

} // namespace

MessageRecorder::MessageRecorder(HWND window, std::set<UINT> numbers)
    : window_(window)
    , numbers_(std::move(numbers))
{
    if (users++ == 0) {
        hook = SetWindowsHookExW(WH_GETMESSAGE, retrieved, nullptr, GetCurrentThreadId());
    }
    SetWindowSubclass(
        window_, procedure, reinterpret_cast<UINT_PTR>(this), reinterpret_cast<DWORD_PTR>(this));
}

MessageRecorder::~MessageRecorder()
{
    if (IsWindow(window_)) {
        RemoveWindowSubclass(window_, procedure, reinterpret_cast<UINT_PTR>(this));
    }
    if (--users == 0) {
        UnhookWindowsHookEx(hook);
        lastRetrieved = {};
    }
}

LRESULT CALLBACK MessageRecorder::retrieved(int code, WPARAM wParam, LPARAM lParam)
{
    if (code == HC_ACTION && wParam == PM_REMOVE) {
        lastRetrieved = *reinterpret_cast<const MSG*>(lParam);
    }
    return CallNextHookEx(nullptr, code, wParam, lParam);
}

LRESULT CALLBACK MessageRecorder::procedure(
    HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR id, DWORD_PTR data)
{
    auto& recorder = *reinterpret_cast<MessageRecorder*>(data);
    const bool posted = takeRetrieved(window, message, wParam, lParam);
    const bool wanted = recorder.numbers_.empty() ? message >= WM_USER && message <= 0xbfff
                                                  : recorder.numbers_.count(message) > 0;
    if (wanted) {
        recorder.list_.push_back(std::string(posted ? "posted " : "sent ") + std::to_string(message)
            + " w=" + std::to_string(wParam) + " l=" + std::to_string(lParam));
    }
    if (message == WM_NCDESTROY) {
        RemoveWindowSubclass(window, procedure, id);
    }
    return DefSubclassProc(window, message, wParam, lParam);
}

} // namespace testing_support
