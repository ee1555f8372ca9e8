#pragma once
#include "controls/base/captioned.h"
#include "controls/base/control_arr.h"

// A push button. Sends 1424 to its parent when it is clicked, posts 1625 when it gains the focus.
// The setters take effect when the window is created; the caption is GBK, cut to 259 bytes at a character.
class PANELKIT_API DuStandardButtonCL : public CaptionedCL<CButton>
{
public:
    using CaptionedCL::CaptionedCL;

    using CButton::Create;
    int Create(CWnd* parent);

    // 1: the dialog's default push button, pressed by Enter.
    int SetDefaultM(int flag) { return slKeep(default_, flag); }
    // The caption: 1; 0, and no change, for null.
    int SetTextM(const char* text) { return keepTextM(text); }

protected:
    BOOL PreCreateWindow(CREATESTRUCT& create) override;
    bool hearsCreationM() const override { return !slIsJust(*this); }
    // It was clicked.
    afx_msg void onClickedM() { sendToParentM(ButtonActionMsg); }
    afx_msg void OnSetFocus(CWnd* oldFocus) { reportFocusM(oldFocus); }
    DECLARE_MESSAGE_MAP()

private:
    void answerEnterM(HWND dialog) const;

    int default_ { 0 };
};

extern template class PANELKIT_API Arr<DuStandardButtonCL>;

class PANELKIT_API DuStandardButtonArr : public ControlArr<DuStandardButtonCL>
{
};
