#pragma once
#include "controls/base/background.h"
#include "controls/base/captioned.h"
#include "controls/base/control_arr.h"

// A static text with alignment, sunken edge and solid background. The setters without a window take effect
// when it is created; the colour at the next colour request. Texts are GBK, cut to 259 bytes at a character.
class PANELKIT_API DuLabelCL : public CaptionedCL<CStatic>
{
public:
    using CaptionedCL::CaptionedCL;

    // 0, and no change, for the empty text.
    int SetInitTextM(const char* text) { return text != nullptr && *text != '\0' ? keepTextM(text) : 0; }
    int SetTextM(const char* text)
    {
        return showTextM(text);
    } // Takes any text but null, and shows it at once.
    int SetAlignModeM(int mode) { return slKeep(alignMode_, mode); } // 3 centred, 4 right, else left.
    int SetEdgeM(int edge) { return slKeep(edge_, edge); }           // 1: sunken edge with border.
    // The colour of the background, shown once SetBkColorFlagM has been given 1.
    int SetBkColorM(COLORREF colour) { return background_.SetColourM(colour); }
    void SetBkColorFlagM(int flag) { bkColourFlag_ = flag; } // 1: the background is painted in its colour.
    void destroyM() { background_.DeleteBrushM(); }          // Deletes the background brush.
    void DelItemM();

protected:
    BOOL PreCreateWindow(CREATESTRUCT& create) override;
    bool hearsCreationM() const override { return !slIsJust(*this); }
    void PreSubclassWindow() override;
    afx_msg void OnSetFocus(CWnd* oldFocus) { reportFocusM(oldFocus); }
    afx_msg HBRUSH CtlColor(CDC* dc, UINT kind);
    DECLARE_MESSAGE_MAP()

private:
    int alignMode_ { 1 };
    int edge_ { 0 };
    int bkColourFlag_ { 0 };
    BackgroundCL background_ { 0xBFBFBF };
};

extern template class PANELKIT_API Arr<DuLabelCL>;

class PANELKIT_API DuLabelArr : public ControlArr<DuLabelCL>
{
};
