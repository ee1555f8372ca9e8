#pragma once
#include <functional>
#include <windows.h>

namespace testing_support {

// Offered each message before it is dispatched (IsDialogMessage, PreTranslateMessage); true: it is done with.
extern std::function<bool(MSG*)> pumpFilter;

// Dispatches what is in this thread's queue, and waits for more until the condition holds or the deadline (in
// milliseconds) is over. Result: whether the condition holds.
bool PumpUntil(const std::function<bool()>& condition, DWORD deadlineMs = 5000);

// Dispatches until the queue is empty, paint messages and timers due included.
void PumpPending();

} // namespace testing_support
