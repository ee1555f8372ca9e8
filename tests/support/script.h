#pragma once
#include <deque>
#include <functional>
#include <string>
#include <windows.h>

namespace testing_support {

// While it lives, input.h leaves its input to the loop that runs.
class InsideLoopCL
{
public:
    InsideLoopCL();
    InsideLoopCL(const InsideLoopCL&) = delete;
    InsideLoopCL& operator=(const InsideLoopCL&) = delete;
    ~InsideLoopCL();

    static bool LivesM();
};

// Steps that run one after another inside whatever message loop runs on this thread, such as that of a modal
// dialog: a step runs only when the loop has processed all input before it, so it may use input.h and look at
// the outcome. A step that waits too long is reported as a failure of the test, and the end action then frees
// the test from its loop.
class Script
{
public:
    explicit Script(std::function<void()> onFailure = {}); // E.g. EndDialog.
    Script(const Script&) = delete;
    Script& operator=(const Script&) = delete;
    ~Script(); // Reports steps that never ran.

    Script& DoM(std::function<void()> action);
    Script& WaitM(std::function<bool()> condition, const char* what, DWORD deadlineMs = 5000);
    bool DoneM() const { return steps_.empty(); }

private:
    struct Step
    {
        std::function<void()> action;
        std::function<bool()> condition;
        std::string what;
        DWORD deadlineMs;
    };
    static LRESULT CALLBACK procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    void runM();

    std::deque<Step> steps_;
    std::function<void()> onFailure_;
    HWND window_ { nullptr };
    ULONGLONG since_ { 0 };
    bool running_ { false };
};

} // namespace testing_support
