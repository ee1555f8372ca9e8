#pragma once
#include "toolkit/dialog.h"

// A dialog on the heap that deletes itself as soon as it is shown.
template <class DialogTP> class DeletedWhenShownCL : public DialogTP
{
public:
    static inline int living { 0 };
    DeletedWhenShownCL() { ++living; }
    ~DeletedWhenShownCL() override { --living; }

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message == WM_SHOWWINDOW) {
            delete this;
            return 0;
        }
        return DialogTP::WindowProc(message, wParam, lParam);
    }
};
