#pragma once
#include "toolkit/toolkit.h"

// Keeps a shown control from redrawing itself for as long as this lives, then has it drawn once. Null:
// nothing.
class FillingCL
{
public:
    // Stops the drawing. The control must live as long.
    explicit FillingCL(CWnd* control)
        : control_(
            control != nullptr && control->GetSafeHwnd() != nullptr && (control->GetStyle() & WS_VISIBLE) != 0
                ? control
                : nullptr)
    {
        // A hidden one is left alone: switching its drawing on again would show it.
        if (control_ != nullptr) {
            control_->SetRedraw(FALSE);
        }
    }
    FillingCL(const FillingCL&) = delete;
    FillingCL& operator=(const FillingCL&) = delete;
    ~FillingCL()
    {
        if (control_ != nullptr) {
            control_->SetRedraw(TRUE);
            if (control_->IsWindowVisible()) {
                control_->Invalidate();
            }
        }
    }

private:
    CWnd* control_;
};

// Makes room for so many lines in a list box or combo box; true where they are many. Else the platform would
// copy all of them into more room every few lines.
template <class ControlTP> bool slMakeRoom(ControlTP* control, int lines)
{
    constexpr int manyLines = 100;
    constexpr int bytesOfOne = 32; // A guess; the platform makes more room where it needs it.
    if (lines < manyLines) {
        return false;
    }
    control->InitStorage(lines, static_cast<UINT>(lines) * bytesOfOne);
    return true;
}
