#pragma once
#include "controls/base/control_arr.h"
#include "controls/buttons/checkable_button.h"

// An automatic radio button. Posts 1734 to its parent when it is clicked, 1625 when it gains the focus.
class PANELKIT_API DuRadioBoxCL : public CheckableButtonCL
{
public:
    using CheckableButtonCL::CheckableButtonCL;

    int SetCurCheckM(int state); // Hands the state to the platform as it is.
    // Checking it unchecks the others of its group, as a click does. Posts nothing.
    bool WriteValueM(const ControlValueCL& value);
    // The id of the checked button of its group, the first of several. The group is what the window system
    // takes for it: the radio buttons from one that begins a group to the next in the stacking order.
    std::optional<int> CheckedInGroupM() const;
    // Neighbours with equal numbers form a group, once DuRadioBoxArr::MakeGroupM is called.
    int SetGroupNoM(int group) { return slKeep(group_, group); }
    int GetGroupNoM(int* out) const;
    // 1: the window begins a group. Any other value clears the whole style of the window.
    int SetGroupM(int flag);

protected:
    BOOL PreCreateWindow(CREATESTRUCT& create) override;
    bool hearsCreationM() const override { return !slIsJust(*this); }
    // It was clicked.
    afx_msg void onClickedM() { postToParentM(RadioClickedMsg); }
    afx_msg void OnSetFocus(CWnd* oldFocus) { reportFocusM(oldFocus); }
    DECLARE_MESSAGE_MAP()

private:
    std::vector<HWND> groupWindowsM() const;

    int group_ { 0 };
};

extern template class PANELKIT_API Arr<DuRadioBoxCL>;

// An array of DuRadioBoxCL, whose order makes the groups.
class PANELKIT_API DuRadioBoxArr : public ControlArr<DuRadioBoxCL>
{
public:
    // Lets each run of equal group numbers begin a group. The windows must exist. 0 for an empty array.
    int MakeGroupM();
    // Called by the host once it has created the windows.
    int AfterCreateM();
    void ShowObjectM(int index, bool show); // The radio button at a place of the array; else nothing.
};
