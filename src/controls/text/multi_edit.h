#pragma once
#include "baselib/char_arr.h"
#include "controls/base/background.h"
#include "controls/base/control.h"
#include "controls/base/control_arr.h"

// A text of many lines, with a copy that follows every change on the screen, whoever makes it. Texts are GBK,
// lengths count bytes. The limit holds for texts that the program sets, not for typing. Setters without a
// window take effect when it is created; the colour at the next colour request.
class PANELKIT_API DuMultiEditCL : public ControlCL<CEdit>
{
public:
    using ControlCL::ControlCL;

    using CEdit::Create;
    int Create(CWnd* parent); // Creates the child window at the described place; the platform's result.
    void DelItemM();          // Destroys window and brush and marks the element deleted.

    int SetMaxNumM(int bytes);        // The limit: texts must be shorter. 0, and no change, below 1; else 1.
    int SetAlignModeM(int mode);      // 3 centred, 4 right, else left. Always 1.
    int SetReadOnlyM(int readOnly);   // 1: can't be edited. Always 1.
    int SetEdgeM(int edge);           // 1: sunken edge with border. Always 1.
    int SetBkColorM(COLORREF colour); // Always 1.
    int SetInitTextM(
        const char* text); // 0, and no change, for the empty text or one not below the limit; else 1.
    int SetTextM(
        const char* text); // Also shows the text. 0, and no change, for one not below the limit; else 1.
    int GetTextM(char* text) const; // Copies what is on the screen; the buffer must hold it. Always 1.

protected:
    BOOL PreCreateWindow(CREATESTRUCT& create) override;
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
    afx_msg void OnChange();
    afx_msg void OnSetFocus(CWnd* oldFocus);
    afx_msg HBRUSH CtlColor(CDC* dc, UINT kind);
    DECLARE_MESSAGE_MAP()

private:
    int storeM(const char* text, size_t atLeast); // 1 if the length is at least that and below the limit.

    int maxNum_ { 0 };
    int alignMode_ { 1 };
    int readOnly_ { 0 };
    int edge_ { 1 };
    BackgroundCL background_ { 0xFFFFFF };
    CharArr text_;
};

extern template class PANELKIT_API Arr<DuMultiEditCL>;

class PANELKIT_API DuMultiEditArr : public ControlArr<DuMultiEditCL>
{
};
