#pragma once
#include "baselib/char_arr.h"
#include "controls/base/background.h"
#include "controls/base/control.h"
#include "controls/base/control_arr.h"
#include "controls/base/control_value.h"
#include "controls/base/line_originals.h"
#include "controls/base/translator.h"

// A text of many lines, with a copy that follows every change on the screen, whoever makes it. Texts are GBK,
// lengths count bytes. The limit holds for texts that the program sets, not for typing. Setters without a
// window take effect when it is created; the colour at the next colour request.
class PANELKIT_API DuMultiEditCL : public ControlCL<CEdit>
{
public:
    using ControlCL::ControlCL;

    using CEdit::Create;
    int Create(CWnd* parent);
    void DelItemM();

    int SetMaxNumM(int bytes); // The limit: texts must be shorter. 0, and no change, below 1; else 1.
    int SetAlignModeM(int mode) { return slKeep(alignMode_, mode); }       // 3 centred, 4 right, else left.
    int SetReadOnlyM(int readOnly) { return slKeep(readOnly_, readOnly); } // 1: can't be edited.
    int SetEdgeM(int edge) { return slKeep(edge_, edge); }                 // 1: sunken edge with border.
    // The background of the text.
    int SetBkColorM(COLORREF colour) { return background_.SetColourM(colour); }
    // 0, and no change, for the empty text or one not below the limit; else 1.
    int SetInitTextM(const char* text) { return storeM(text, 1); }
    // Also shows the text. 0, and no change, for one not below the limit; else 1.
    int SetTextM(const char* text);
    // The value by id: the text on the screen, also what GBK cannot say. The limit holds as for SetTextM.
    unsigned ValuePartsM() const { return TextPart; }
    ControlValueCL ReadValueM() const;
    bool WriteValueM(const ControlValueCL& value);
    int GetTextM(char* text) const; // Copies what is on the screen; the buffer must hold it.
    // Has a text that can't be edited show its translation. Until it changes it is still read as in the file.
    void TranslateM(const TranslatorTP& translate);

protected:
    BOOL PreCreateWindow(CREATESTRUCT& create) override;
    bool hearsCreationM() const override { return !slIsJust(*this); }
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
    afx_msg void OnChange();
    afx_msg void OnSetFocus(CWnd* oldFocus) { reportFocusM(oldFocus); }
    afx_msg HBRUSH CtlColor(CDC* dc, UINT) { return background_.AnswerM(dc); }
    DECLARE_MESSAGE_MAP()

private:
    int storeM(const char* text, size_t atLeast); // 1 if the length is at least that and below the limit.

    int maxNum_ { 0 };
    int alignMode_ { 1 };
    int readOnly_ { 0 };
    int edge_ { 1 };
    BackgroundCL background_ { 0xFFFFFF };
    CharArr text_;
    LineOriginalsCL originals_; // Of the text, as line 0.
};

extern template class PANELKIT_API Arr<DuMultiEditCL>;

class PANELKIT_API DuMultiEditArr : public ControlArr<DuMultiEditCL>
{
};
