#pragma once
#include "controls/base/control.h"
#include "controls/base/control_arr.h"
#include "controls/base/leaving.h"
#include "controls/text/refusal.h"
#include "controls/text/spin_button.h"
#include "controls/text/typed_value.h"

// A number with a pair of arrows. A click on an arrow steps the number; a step out of the range is refused
// with a warning. What is typed is filtered and, when the user leaves the field, checked; a bad value is told
// and stays as typed. Then WM_KILLFOCUS is posted to the parent, with the control's id. Styles are taken when
// the window is created.
class PANELKIT_API DuSpinEditCL : public ControlCL<CEdit>
{
public:
    using ControlCL::ControlCL;

    using CEdit::Create;
    // Creates the edit at the described place and the arrows at its right edge; the result for the arrows.
    int Create(CWnd* parent);
    void DelItemM();
    void RescaledM(int from, int to);
    int SetItemCmdM(int command); // As with every control; the arrows follow.

    int SetDataTypeM(int type, int decimals); // IntegerType or RealType; others are inert.
    int SetAlignModeM(int mode) { return slKeep(alignMode_, mode); } // 3 centred, 4 right, else left.
    int SetSpinLenM(int width) { return slKeep(spinWidth_, width); } // Of the arrows, in pixels.
    // Stored by type, not shown: 1; 0 for an unknown type.
    int SetRangeM(const simpleValD& range) { return value_.SetRangeM(range); }
    int SetStepM(const simpleValD& step); // By how much one click changes it. The same results.
    // The value to begin with. The same results.
    int SetInitValM(const simpleValD& value) { return value_.SetValueM(value); }

    // Reads the text into the current value; the check code (CheckCode). *value is never written.
    int GetCurValM(simpleValD* value);
    int DispEditM(); // Shows the current value: 1, or 0 for an unknown type.
    // The value by id (ControlValueCL), as the text would be judged on leaving; none unless that is valid.
    // Reading changes and tells nothing; a value that would be refused then is refused: false.
    unsigned ValuePartsM() const { return value_.PartsM(); }
    ControlValueCL ReadValueM() const;
    bool WriteValueM(const ControlValueCL& value);

    void SetRefusalM(const RefusalCL& refusal) { refusal_ = refusal; } // How a bad value is told.

    // The arrows; the control keeps them.
    DuSpinButtonCL& SpinButtonM() { return spinButton_; }

protected:
    BOOL PreCreateWindow(CREATESTRUCT& create) override;
    bool hearsCreationM() const override { return !slIsJust(*this); }
    void catchUpM() override { ModifyStyleEx(0, WS_EX_CLIENTEDGE); }
    // 1: reads the text, the check code; else DispEditM.
    int updateDataM(int direction) { return direction == 1 ? GetCurValM(nullptr) : DispEditM(); }
    afx_msg void OnChar(UINT character, UINT repeats, UINT flags);
    afx_msg void OnSetFocus(CWnd* oldFocus) { reportFocusM(oldFocus); }
    afx_msg void OnKillFocus(CWnd* newFocus);
    afx_msg int OnCreate(LPCREATESTRUCT create);
    // A click on the arrows (1725); the host asks for a check (1626).
    afx_msg LRESULT onSpinClickM(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT onCheckValM(WPARAM wParam, LPARAM lParam);
    DECLARE_MESSAGE_MAP()

private:
    CheckCode steppedM(int delta, simpleValD* value) const;
    MessageTextId stepMessageM(CheckCode code) const;
    void noteJointM(const CRect& place);
    void joinM(const CRect& place);
    bool tellM(MessageTextId message);
    bool tellCheckedM();

    DuSpinButtonCL spinButton_;
    TypedValueCL value_;
    RefusalCL refusal_;
    int alignMode_ { 2 };
    int spinWidth_ { 0 };
    // How far the edges of the arrows are from those of the field, the right one from that of both.
    CRect joint_;
    int platformWidth_ { 0 }; // Of the arrows, where the platform takes no other; else 0.
    KeptValueCL step_;
};

extern template class PANELKIT_API Arr<DuSpinEditCL>;

class PANELKIT_API DuSpinEditArr : public ControlArr<DuSpinEditCL>
{
public:
    int Create(CWnd* parent); // As with every kind; each control shows its value once it is created.
};
