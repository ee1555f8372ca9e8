#pragma once
#include <atomic>
#include <mutex>
#include <string>
#include <thread>
#include <vector>
#include <windows.h>

namespace testing_support {

struct MessageBoxSeen
{
    std::wstring text;
    std::wstring caption;
    UINT icon; // MB_ICONEXCLAMATION, …; 0 without an icon; ~0u with another one.
    HWND owner;
    int buttons;
};

// As long as it lives, a thread of its own finds each message box of this process, notes it and presses the
// button (OK unless told otherwise; the first one if the box has no such button).
class MessageBoxWatcher
{
public:
    explicit MessageBoxWatcher(int answer = IDOK);
    MessageBoxWatcher(const MessageBoxWatcher&) = delete;
    MessageBoxWatcher& operator=(const MessageBoxWatcher&) = delete;
    ~MessageBoxWatcher();

    std::vector<MessageBoxSeen> SeenM() const;
    bool WaitForM(size_t count, DWORD deadlineMs = 5000) const; // Pumps until that many were answered.

private:
    void watchM();
    void answerM(HWND box);

    const int answer_;
    HANDLE stop_;
    mutable std::mutex mutex_;
    std::vector<MessageBoxSeen> seen_;
    std::thread thread_;
};

} // namespace testing_support
