#pragma once
#include "controls/base/captioned.h"
#include "controls/base/control_arr.h"

// A captioned frame. Texts are GBK, cut to 259 bytes at a character.
class PANELKIT_API DuGroupBoxCL : public CaptionedCL<CButton>
{
public:
    using CaptionedCL::CaptionedCL;

    int SetInitTextM(const char* text) { return keepTextM(text); } // Takes effect when the window is created.
    int SetTextM(const char* text) { return showTextM(text); }     // The same, and shows it at once.

protected:
    BOOL PreCreateWindow(CREATESTRUCT& create) override;
    bool hearsCreationM() const override { return !slIsJust(*this); }
    afx_msg int OnCreate(LPCREATESTRUCT create);
    DECLARE_MESSAGE_MAP()
};

extern template class PANELKIT_API Arr<DuGroupBoxCL>;

class PANELKIT_API DuGroupBoxArr : public ControlArr<DuGroupBoxCL>
{
};
