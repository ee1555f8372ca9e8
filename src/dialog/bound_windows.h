#pragma once
#include "dialog/binding.h"
#include "toolkit/platform.h"
#include <vector>

// A window of a control that follows the size of its dialog. The control is found anew each time: an
// application may have destroyed it, or created its window again.
struct BoundWindowCL
{
    int row;       // Of the kind table, from 0.
    int slot;      // Of that kind's array, from 0.
    bool isArrows; // The arrows at the control's right edge, not its own window.
    bool isOpaque; // It paints every pixel.
    BindingCL binding;
    KeptSizeCL kept;
    EdgesCL control; // Where the file has the control; of what keeps its height only what shows,
    EdgesCL window;  // and where this window of it stood then.
    EdgesCL now;     // Where it was put last.
};

// The windows of a built dialog that follow its size.
struct BoundWindowsCL
{
    bool isBound { false };             // The file has the section.
    bool isOwn { false };               // The dialog's own window is what is resized.
    int plainSize[2] {};                // Of the client area, in pixels, as the file has it,
    int fileSize[2] {};                 // and at the dialog's scale.
    int least[2] {};                    // Of the dialog's window, frame included; 0: any.
    std::vector<BindingCL> bindings;    // As the file has them.
    std::vector<BoundWindowCL> windows; // As they stand in the table.
};

// How large a dialog is that follows its size, beside what the file says: what a rebuild must keep.
struct DialogStretchCL
{
    int fileSize[2] {}; // Of the client area, in pixels.
    int size[2] {};
    bool isZoomed { false };
    RECT zoomed {}; // The window then.

    // Whether it is larger than the file's size.
    bool IsLargerM() const { return size[0] > fileSize[0] || size[1] > fileSize[1]; }
    // A width (i 0) or height (1) at the file's size made larger in proportion.
    int OfM(int i, int length) const { return IsLargerM() ? ::MulDiv(length, size[i], fileSize[i]) : length; }
    // The same with what the window is now.
    DialogStretchCL OfM(HWND window) const
    {
        DialogStretchCL stretch = *this;
        stretch.isZoomed = IsLargerM() && ::IsZoomed(window) && ::GetWindowRect(window, &stretch.zoomed);
        return stretch;
    }
};
