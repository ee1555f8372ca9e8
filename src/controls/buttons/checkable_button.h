#pragma once
#include "controls/base/captioned.h"
#include "controls/base/control_value.h"

// What radio buttons and check boxes share: a caption and a check from the start. Captions are GBK, cut to
// 259 bytes at a character. The setters take effect when the window is created.
class PANELKIT_API CheckableButtonCL : public CaptionedCL<CButton>
{
public:
    using CaptionedCL::CaptionedCL;

    // The caption: 1; 0, and no change, for null.
    int SetTextM(const char* text) { return keepTextM(text); }
    int SetInitCheckM(int check) { return slKeep(initCheck_, check); } // 1: checked from the start.

    // Checks it anew where it was to be checked from the start and isn't.
    void CheckFromStartM();

    // The value by id: checked or not; none without a window.
    unsigned ValuePartsM() const { return CheckedPart; }
    ControlValueCL ReadValueM() const;

protected:
    void catchUpM() override;
    afx_msg int OnCreate(LPCREATESTRUCT create);
    DECLARE_MESSAGE_MAP()

private:
    int initCheck_ { 0 };
};
