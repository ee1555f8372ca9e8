#include "support/script.h"
#include <gtest/gtest.h>

namespace testing_support {

namespace {
int depth = 0;
}

InsideLoopCL::InsideLoopCL()
{
    ++depth;
}

InsideLoopCL::~InsideLoopCL()
{
    --depth;
}

bool InsideLoopCL::LivesM()
{
    return depth > 0;
}

Script::Script(std::function<void()> onFailure)
    : onFailure_(std::move(onFailure))
{
    WNDCLASSW type = {};
    type.lpfnWndProc = procedure;
    type.hInstance = GetModuleHandleW(nullptr);
    type.lpszClassName = L"PanelkitTestScript";
    RegisterClassW(&type); // Fails from the second time on, as it is there.
    window_ = CreateWindowExW(
        0, type.lpszClassName, L"", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, type.hInstance, nullptr);
    SetWindowLongPtrW(window_, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
    // Timer messages come only when nothing else is in the queue: all input before has been processed.
    SetTimer(window_, 1, USER_TIMER_MINIMUM, nullptr);
}

Script::~Script()
{
    DestroyWindow(window_);
    if (!steps_.empty()) {
        ADD_FAILURE() << steps_.size() << " steps of the script never ran";
    }
}

Script& Script::DoM(std::function<void()> action)
{
    steps_.push_back({ std::move(action), {}, {}, 0 });
    return *this;
}

Script& Script::WaitM(std::function<bool()> condition, const char* what, DWORD deadlineMs)
{
    steps_.push_back({ {}, std::move(condition), what, deadlineMs });
    return *this;
}

LRESULT CALLBACK Script::procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    auto* script = reinterpret_cast<Script*>(GetWindowLongPtrW(window, GWLP_USERDATA));
    if (message == WM_TIMER && script && !script->running_) {
        script->runM();
        return 0;
    }
    return DefWindowProcW(window, message, wParam, lParam);
}

void Script::runM()
{
    if (steps_.empty()) {
        return;
    }
    if (since_ == 0) {
        since_ = GetTickCount64();
    }
    const Step step = steps_.front();
    if (step.condition && !step.condition()) {
        if (GetTickCount64() - since_ > step.deadlineMs) {
            ADD_FAILURE() << "the script waited in vain for: " << step.what;
            steps_.clear();
            if (onFailure_) {
                onFailure_();
            }
        }
        return;
    }
    steps_.pop_front();
    since_ = 0;
    if (step.action) {
        running_ = true;
        const InsideLoopCL inside;
        step.action(); // May run a loop of its own; the next step waits until it returns.
        running_ = false;
    }
}

} // namespace testing_support
