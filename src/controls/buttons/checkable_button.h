#pragma once
#include "controls/base/control.h"
#include "records/fields.h"

// What radio buttons and check boxes share: a caption and a check from the start. Captions are GBK, cut to
// 259 bytes at a character. The setters take effect when the window is created.
class PANELKIT_API CheckableButtonCL : public ControlCL<CButton>
{
public:
    using ControlCL::ControlCL;

    using CButton::Create;
    int Create(CWnd* parent); // Creates the child window at the described place; the platform's result.

    int SetTextM(const char* text); // Always 1.
    int SetInitCheckM(int check);   // 1: checked from the start. Always 1.

protected:
    afx_msg int OnCreate(LPCREATESTRUCT create);
    DECLARE_MESSAGE_MAP()

private:
    int initCheck_ { 0 };
    char text_[TextSize] {};
};
