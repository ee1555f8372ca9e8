#pragma once
#include "controls/base/background.h"
#include "controls/base/control.h"
#include "controls/base/control_arr.h"
#include "controls/base/leaving.h"
#include "controls/text/typed_value.h"

// A single-line edit that holds one typed value: it lets only characters of its type be typed, and checks its
// text when the user leaves it. A bad value is told in a message box and the focus comes back; then the
// parent is sent 1624 with lParam -1. With a good value it is posted 1624 with 0. Styles are taken when the
// window is created. Texts are GBK, cut to 259 bytes at a character.
class PANELKIT_API DuSingleEditCL : public ControlCL<CEdit>
{
public:
    using ControlCL::ControlCL;

    using CEdit::Create;
    int Create(CWnd* parent); // Creates the child window at the described place; the platform's result.
    void DelItemM();          // Destroys window and brush and marks the element deleted.

    int SetDataTypeM(int type, int decimals); // A ValueType; others are inert. Always 1.
    int SetAlignModeM(int mode);              // 3 centred, 4 right, else left. Always 1.
    int SetPasswordM(int password);           // 1: masked. Always 1.
    int SetReadOnlyM(int readOnly);           // 1: read only. Always 1.
    int SetEdgeM(int edge);                   // 1: sunken edge with border. Always 1.
    int SetBkColorM(COLORREF colour);         // At the next colour request. Always 1.
    int SetRangeM(const simpleValD& range);   // Minimum and maximum by type; 0 for an unknown type.
    int SetInitValM(const simpleValD& value); // Stored by type, not shown; 0 for an unknown type.

    // Checks the text. The check code (CheckCode); the value is written by type only for ValidValue.
    int GetCurValM(simpleValD* value);
    int SetCurValM(simpleValD value); // Stores by type and shows; no range check. 0 for an unknown type.

    // These don't look at the type: the caller takes what fits. 1 and the value if the text is valid,
    // otherwise 0. text: 260 bytes.
    int GetValueM(int* value);
    int GetValueM(float* value);
    int GetValueM(char* text);
    // Store and show without any check; always 1.
    int SetValueM(int value);
    int SetValueM(float value);
    int SetValueM(const char* text);

    int UpdateDataM(int direction); // 1: reads the text, the check code; else DispEditM.
    int DispEditM();                // Shows the value: 1, or 0 for an unknown type.

protected:
    BOOL PreCreateWindow(CREATESTRUCT& create) override;
    afx_msg int OnCreate(LPCREATESTRUCT create);
    afx_msg void OnChar(UINT character, UINT repeat, UINT flags);
    afx_msg void OnKillFocus(CWnd* newFocus);
    afx_msg void OnSetFocus(CWnd* oldFocus);
    afx_msg HBRUSH CtlColor(CDC* dc, UINT kind);
    afx_msg LRESULT onCheckValM(WPARAM wParam, LPARAM lParam);
    DECLARE_MESSAGE_MAP()

private:
    CheckCode checkValueM();
    std::string leftTextM(CheckCode code) const;
    bool tellM(const std::string& text);

    TypedValueCL value_;
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
