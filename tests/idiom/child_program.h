#pragma once
#include "support/input.h"
#include "support/pixels.h"
#include "support/pump.h"
#include <functional>
#include <gtest/gtest.h>
#include <string>
#include <vector>
#include <windows.h>

#include <commctrl.h>

// One of the programs of examples/idiom in a process of its own, driven by keyboard and mouse and read by
// what its windows tell anyone who asks. Ended with the object.
class ChildProgram
{
public:
    explicit ChildProgram(const std::string& name, const std::string& arguments = "");
    ChildProgram(const ChildProgram&) = delete;
    ChildProgram& operator=(const ChildProgram&) = delete;
    ~ChildProgram();

    // The program's window of that title, once it shows, in the foreground; null after a while.
    HWND WindowM(const wchar_t* title);
    // The program's visible window of that class (a menu, a tool tip, a message box), once it is there.
    HWND WindowOfClassM(const wchar_t* className);
    bool HasWindowOfClassM(const wchar_t* className) const;
    HWND FocusM() const; // Of the program's thread.
    int ExitCodeM();     // Waits for the program's end; -1 when it doesn't come.

private:
    HWND findM(const std::function<bool(HWND)>& wanted) const;

    PROCESS_INFORMATION process_ {};
};

// What a condition has to become, within the support's usual deadline.
bool Becomes(const std::function<bool()>& condition);

std::wstring TextOf(HWND dialog, int id);
bool TextBecomes(HWND dialog, int id, const wchar_t* text);
bool FocusBecomes(const ChildProgram& program, HWND window);
std::vector<std::wstring> LinesOf(HWND listBox);
// Pixels of a window of another program, or of a part of its client area, as they show.
int CountOnScreen(HWND window, COLORREF color, const RECT* part = nullptr);
void ClickMiddle(HWND window);
void SelectAll();                                // By the keyboard, in the edit that has the focus.
COLORREF ScreenPixel(HWND window, int x, int y); // In client pixels of the window.
