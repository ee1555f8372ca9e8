#pragma once
#include "controls/base/control_arr.h"
#include "controls/buttons/checkable_button.h"

// An automatic check box. Posts 1739 to its parent when it is clicked.
class PANELKIT_API DuCheckBoxCL : public CheckableButtonCL
{
public:
    using CheckableButtonCL::CheckableButtonCL;

    int SetCurCheckM(int state);                   // 1 checks, every other value unchecks.
    bool WriteValueM(const ControlValueCL& value); // Sets the value by id; posts nothing.

protected:
    BOOL PreCreateWindow(CREATESTRUCT& create) override;
    bool hearsCreationM() const override { return !slIsJust(*this); }
    // It was clicked.
    afx_msg void onClickedM() { postToParentM(CheckClickedMsg); }
    DECLARE_MESSAGE_MAP()
};

extern template class PANELKIT_API Arr<DuCheckBoxCL>;

class PANELKIT_API DuCheckBoxArr : public ControlArr<DuCheckBoxCL>
{
};
