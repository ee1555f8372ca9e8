#pragma once
#include <string>
#include <vector>
#include <windows.h>

// A line of a list: its place, and what it shows.
struct StateLineCL
{
    int index;
    std::wstring text;
    bool operator==(const StateLineCL& other) const { return index == other.index && text == other.text; }
};

// What the user can change of a control.
struct ControlStateCL
{
    std::wstring text;
    int status { 0 }; // A check, or the status of a picture button.
    int lines { 0 };
    std::vector<StateLineCL> selected;
    std::vector<std::wstring> open; // The open branches of a tree.
    // Not a value, but where the user is in it.
    DWORD selectionStart { 0 };
    DWORD selectionEnd { 0 };
    int firstLine { 0 };

    bool IsSameValueM(const ControlStateCL& other) const
    {
        return text == other.text && status == other.status && selected == other.selected
            && open == other.open;
    }
};

// Of a control of a description file.
ControlStateCL stateOf(HWND control);
// Gives a control of the same kind that value: a line is found by its text, else by its place in a list of as
// many; what is not there is left out.
void giveValue(HWND control, const ControlStateCL& state);
void givePlace(HWND control, const ControlStateCL& state); // Caret, selected text and scrolling.
