#pragma once
#include <set>
#include <string>
#include <vector>
#include <windows.h>

namespace testing_support {

// Records the messages that reach a window of this thread, as "sent 1424 w=7 l=0" or "posted …"; a message
// counts as posted when it came out of the queue. The window handles them as before.
class MessageRecorder
{
public:
    // Without numbers: all from WM_USER to 0xBFFF, the applications' own.
    explicit MessageRecorder(HWND window, std::set<UINT> numbers = {});
    MessageRecorder(const MessageRecorder&) = delete;
    MessageRecorder& operator=(const MessageRecorder&) = delete;
    ~MessageRecorder();

    const std::vector<std::string>& ListM() const { return list_; }
    void ClearM() { list_.clear(); }

private:
    static LRESULT CALLBACK procedure(
        HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR id, DWORD_PTR data);
    static LRESULT CALLBACK retrieved(int code, WPARAM wParam, LPARAM lParam);

    HWND window_;
    std::set<UINT> numbers_;
    std::vector<std::string> list_;
};

} // namespace testing_support
