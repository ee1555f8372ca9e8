#pragma once
#include <windows.h>

namespace testing_support {

// A bare top-level window to hold children under test; destroyed with the object.
class PlainWindow
{
public:
    // Shows a popup without frame at x, y of the screen: client pixels are window pixels.
    explicit PlainWindow(int width = 400, int height = 300, int x = 100, int y = 100);
    PlainWindow(const PlainWindow&) = delete;
    PlainWindow& operator=(const PlainWindow&) = delete;
    ~PlainWindow();

    HWND HandleM() const { return window_; }
    HWND AddM(const wchar_t* className, const wchar_t* text, DWORD style, const RECT& rect, int id) const;

private:
    HWND window_ { nullptr };
};

// Pumps until what the display itself reports of windows, focus and pointer has arrived. Such a report also
// says which keys a real keyboard holds, and would let go of a Shift key that a test presses meanwhile.
void SettleM();

// The same for a window of another program, which hears such reports itself. One that does not answer for a
// second is busy, and is not waited for.
void SettleProgramM(HWND window);

// Brings the top-level window to the foreground and waits until it has the activation.
bool ActivateM(HWND window);

// Gives the focus and waits until the window has it.
bool FocusM(HWND window);

} // namespace testing_support
