#pragma once
#include "controls/base/control.h"

// The arrows of a spin edit. A click is sent to the edit as message 1725; 1625 is posted to the parent when
// they gain the focus. Copying copies the description, never the window.
class PANELKIT_API DuSpinButtonCL : public CSpinButtonCtrl, public DControlCommonCL
{
public:
    DuSpinButtonCL() = default;
    DuSpinButtonCL(const DuSpinButtonCL& other)
        : CSpinButtonCtrl()
        , DControlCommonCL(other)
    {
        InitialCommonM(nullptr);
    }
    DuSpinButtonCL& operator=(const DuSpinButtonCL& other); // Destroys a window that the target still has.

    using CSpinButtonCtrl::Create;
    int Create(const RECT& rect, CWnd* parent); // Creates the child window; the platform's result.
    using DControlCommonCL::OnMouseMove;

protected:
    BOOL PreCreateWindow(CREATESTRUCT& create) override;
    bool hearsCreationM() const override { return !slIsJust(*this); }
    afx_msg void OnSetFocus(CWnd* oldFocus);
    afx_msg void OnLButtonDown(UINT flags, CPoint point);
    afx_msg void OnLButtonDblClk(UINT flags, CPoint point);
    afx_msg void OnDeltapos(NMHDR* notification, LRESULT* result);
    DECLARE_MESSAGE_MAP()

private:
    bool reachesEditM(); // Whether a press may go on: false when another field keeps the focus.
};
