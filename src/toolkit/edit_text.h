#pragma once
#include "toolkit/control_message.h"
#include <functional>

// The text of an edit window at one moment, to turn its own positions into those of the GBK text and back.
class EditTextCL
{
public:
    explicit EditTextCL(HWND edit);
    explicit EditTextCL(const wchar_t* text);
    int BytesM(int units) const; // Negative stays negative.
    int UnitsM(int bytes) const; // The largest position that is not behind it; negative stays negative.
    int LengthM() const { return static_cast<int>(gbk_.size()); } // In bytes.

private:
    std::string gbk_;
};

// A limit in bytes to what the user enters into an edit window; the window keeps it. 0 takes it away.
void LimitEditText(HWND edit, UINT bytes);
UINT EditTextLimit(HWND edit); // 0: none in bytes

// Hands a message on to the procedure behind; so that the limit holds.
typedef std::function<LRESULT(UINT message, WPARAM wParam, LPARAM lParam)> EditProcTP;
LRESULT LimitedEditMessage(HWND edit, UINT message, WPARAM wParam, LPARAM lParam, const EditProcTP& behind);
