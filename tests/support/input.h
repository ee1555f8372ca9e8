#pragma once
#include <windows.h>

// Real input, as from keyboard and mouse: it goes to the foreground window's thread, mouse input to what lies
// under the pointer. Positions are client pixels of the window. Each call returns when this thread has
// processed the input. Within a modal loop that must see the input itself use Script (script.h).
namespace testing_support {

enum class Button
{
    Left,
    Right
};

void KeyM(WORD virtualKey); // Press and release.
void KeyDownM(WORD virtualKey);
void KeyUpM(WORD virtualKey);
void ChordM(WORD modifier, WORD virtualKey); // E.g. VK_SHIFT with VK_TAB, VK_CONTROL with 'A'.
void TypeM(const wchar_t* text);             // Characters without a key arrive as from an input method.

bool MoveMouseToM(HWND window, int x, int y); // Result: whether the pointer is there.
void PressM(Button button = Button::Left);
void ReleaseM(Button button = Button::Left);
void ClickM(HWND window, int x, int y, Button button = Button::Left);
void DoubleClickM(HWND window, int x, int y, Button button = Button::Left);
void WheelM(int delta); // Where the pointer is; 120 is one notch up.

} // namespace testing_support
