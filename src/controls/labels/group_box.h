#pragma once
#include "controls/base/control.h"
#include "controls/base/control_arr.h"
#include "records/fields.h"

// A captioned frame. Texts are GBK, cut to 259 bytes at a character.
class PANELKIT_API DuGroupBoxCL : public ControlCL<CButton>
{
public:
    using ControlCL::ControlCL;

    using CButton::Create;
    int Create(CWnd* parent); // Creates the child window at the described place; the platform's result.

    int SetInitTextM(const char* text); // Takes effect when the window is created; always 1.
    int SetTextM(const char* text);     // Also shows the text; always 1.

protected:
    BOOL PreCreateWindow(CREATESTRUCT& create) override;
    afx_msg int OnCreate(LPCREATESTRUCT create);
    DECLARE_MESSAGE_MAP()

private:
    char text_[TextSize] {};
};

extern template class PANELKIT_API Arr<DuGroupBoxCL>;

class PANELKIT_API DuGroupBoxArr : public ControlArr<DuGroupBoxCL>
{
};
