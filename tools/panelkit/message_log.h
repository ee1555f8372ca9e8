#pragma once
#include <string>
#include <vector>
#include <windows.h>

// A message of controls/base/messages.h, in words.
struct MessageWordsCL
{
    unsigned number;
    const char* name;     // Of the constant.
    const char* meaning;  // {} stands for lParam.
    const char* negative; // With a negative lParam; null: the same.
};
const std::vector<MessageWordsCL>& messageWords();

// Prints what a dialog of this thread gets from its controls, a line each, on standard output at once:
// "ButtonActionMsg 1424 id=1001 button pressed (sent)". Questions about drawing are left out.
class MessageLogCL
{
public:
    MessageLogCL();
    MessageLogCL(const MessageLogCL&) = delete;
    MessageLogCL& operator=(const MessageLogCL&) = delete;
    ~MessageLogCL();

    void SeeM(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam); // Before the dialog deals with it.

private:
    static LRESULT CALLBACK retrieved(int code, WPARAM wParam, LPARAM lParam);

    HHOOK hook_;
};
