#pragma once
#include "controls/base/control.h"
#include "controls/base/control_arr.h"
#include "records/fields.h"

// A push button. Sends 1424 to its parent when it is clicked, posts 1625 when it gains the focus.
// The setters take effect when the window is created; the caption is GBK, cut to 259 bytes at a character.
class PANELKIT_API DuStandardButtonCL : public ControlCL<CButton>
{
public:
    using ControlCL::ControlCL;

    using CButton::Create;
    int Create(CWnd* parent); // Creates the child window at the described place; the platform's result.

    int SetDefaultM(int flag);      // 1: the dialog's default push button, pressed by Enter. Always 1.
    int SetTextM(const char* text); // Always 1.

protected:
    BOOL PreCreateWindow(CREATESTRUCT& create) override;
    afx_msg void onClickedM();
    afx_msg void OnSetFocus(CWnd* oldFocus);
    DECLARE_MESSAGE_MAP()

private:
    void answerEnterM(HWND dialog) const;

    int default_ { 0 };
    char text_[TextSize] {};
};

extern template class PANELKIT_API Arr<DuStandardButtonCL>;

class PANELKIT_API DuStandardButtonArr : public ControlArr<DuStandardButtonCL>
{
};
