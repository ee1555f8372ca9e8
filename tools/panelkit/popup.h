#pragma once
#include <windows.h>

// A window of the tool's own beside or over a dialog: it never takes the focus, and goes with the dialog.
class PopupCL
{
public:
    PopupCL() = default;
    PopupCL(const PopupCL&) = delete;
    PopupCL& operator=(const PopupCL&) = delete;
    virtual ~PopupCL();

    HWND HandleM() const { return window_; } // Null before the first showing.
    void HideM();
    // To the top. Owned windows stay above their owner by themselves, but on a display without a window
    // manager Wine brings the owner to the top whenever the focus moves.
    void RaiseM();

protected:
    bool createM(HWND dialog, DWORD style); // Once, hidden; whether it is there.
    virtual void paintM(HDC dc, const RECT& client) = 0;
    virtual bool isHit() const { return true; } // False: clicks go to what is below.

private:
    static LRESULT CALLBACK procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

    HWND window_ { nullptr };
};
