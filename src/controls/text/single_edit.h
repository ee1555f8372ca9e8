#pragma once
#include "controls/base/background.h"
#include "controls/base/control.h"
#include "controls/base/control_arr.h"
#include "controls/base/leaving.h"
#include "controls/text/refusal.h"
#include "controls/text/typed_value.h"

// A single-line edit that holds one typed value: it lets only characters of its type be typed, and checks its
// text when the user leaves it. A bad value is told in a message box and the focus comes back; then the
// parent is sent 1624 with lParam -1. With a good value it is posted 1624 with 0. Styles are taken when the
// window is created. Texts are GBK, cut to 259 bytes at a character.
class PANELKIT_API DuSingleEditCL : public ControlCL<CEdit>
{
public:
    using ControlCL::ControlCL;

    void DelItemM();

    int SetDataTypeM(int type, int decimals);                              // A ValueType; others are inert.
    int SetAlignModeM(int mode) { return slKeep(alignMode_, mode); }       // 3 centred, 4 right, else left.
    int SetPasswordM(int password) { return slKeep(password_, password); } // 1: masked.
    int SetReadOnlyM(int readOnly) { return slKeep(readOnly_, readOnly); } // 1: read only.
    int SetEdgeM(int edge) { return slKeep(edge_, edge); }                 // 1: sunken edge with border.
    int SetBkColorM(COLORREF colour) { return background_.SetColourM(colour); } // At the next colour request.
    // Minimum and maximum by type; 0 for an unknown type.
    int SetRangeM(const simpleValD& range) { return value_.SetRangeM(range); }
    // Stored by type, not shown; 0 for an unknown type.
    int SetInitValM(const simpleValD& value) { return value_.SetValueM(value); }

    // Checks the text. The check code (CheckCode); the value is written by type only for ValidValue.
    int GetCurValM(simpleValD* value);
    int SetCurValM(simpleValD value); // Stores by type and shows; no range check. 0 for an unknown type.

    // These don't look at the type: the caller takes what fits. 1 and the value if the text is valid,
    // otherwise 0. text: 260 bytes.
    int GetValueM(int* value);
    int GetValueM(float* value);
    int GetValueM(char* text);
    // Store and show without any check.
    int SetValueM(int value);
    int SetValueM(float value);
    int SetValueM(const char* text);

    // The value by id (ControlValueCL), as the text would be judged on leaving; none unless that is valid.
    // Reading changes and tells nothing; a value that would be refused then is refused: false.
    unsigned ValuePartsM() const { return value_.PartsM(); }
    ControlValueCL ReadValueM() const;
    bool WriteValueM(const ControlValueCL& value);

    void SetRefusalM(const RefusalCL& refusal) { refusal_ = refusal; } // How a bad value is told.

    // 1: reads the text, the check code; else DispEditM.
    int UpdateDataM(int direction) { return direction == 1 ? checkValueM() : DispEditM(); }
    int DispEditM(); // Shows the value: 1, or 0 for an unknown type.

protected:
    BOOL PreCreateWindow(CREATESTRUCT& create) override;
    bool hearsCreationM() const override { return !slIsJust(*this); }
    void catchUpM() override { DispEditM(); }
    afx_msg int OnCreate(LPCREATESTRUCT create);
    afx_msg void OnChar(UINT character, UINT repeat, UINT flags);
    afx_msg void OnKillFocus(CWnd* newFocus);
    afx_msg void OnSetFocus(CWnd* oldFocus);
    afx_msg HBRUSH CtlColor(CDC* dc, UINT) { return background_.AnswerM(dc); }
    // The host asks for a check, as if the field were left (1626).
    afx_msg LRESULT onCheckValM(WPARAM wParam, LPARAM lParam);
    DECLARE_MESSAGE_MAP()

private:
    CheckCode checkValueM();
    MessageTextId leftMessageM(CheckCode code) const;
    bool tellM(MessageTextId message);

    TypedValueCL value_;
    RefusalCL refusal_;
    int alignMode_ { 2 };
    int password_ { 0 };
    int readOnly_ { 0 };
    int edge_ { 1 };
    BackgroundCL background_ { 0xFFFFFF };
};

extern template class PANELKIT_API Arr<DuSingleEditCL>;

class PANELKIT_API DuSingleEditArr : public ControlArr<DuSingleEditCL>
{
};
