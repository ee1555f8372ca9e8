#pragma once
#include "controls/base/background.h"
#include "controls/base/control.h"
#include "controls/base/control_arr.h"
#include "records/fields.h"

// A static text with alignment, sunken edge and solid background. The setters without a window take effect
// when it is created; the colour at the next colour request. Texts are GBK, cut to 259 bytes at a character.
class PANELKIT_API DuLabelCL : public ControlCL<CStatic>
{
public:
    using ControlCL::ControlCL;

    using CStatic::Create;
    int Create(CWnd* parent); // Creates the child window at the described place; the platform's result.

    int SetInitTextM(const char* text); // 0, and no change, for the empty text; else 1.
    int SetTextM(const char* text);     // Also shows the text; always 1.
    int SetAlignModeM(int mode);        // 3 centred, 4 right, else left. Always 1.
    int SetEdgeM(int edge);             // 1: sunken edge with border. Always 1.
    int SetBkColorM(COLORREF colour);   // Always 1.
    void SetBkColorFlagM(int flag);     // 1: the background is painted in its colour.
    void destroyM();                    // Deletes the background brush.
    void DelItemM();                    // Destroys window and brush and marks the element deleted.

protected:
    BOOL PreCreateWindow(CREATESTRUCT& create) override;
    void PreSubclassWindow() override;
    afx_msg void OnSetFocus(CWnd* oldFocus);
    afx_msg HBRUSH CtlColor(CDC* dc, UINT kind);
    DECLARE_MESSAGE_MAP()

private:
    int alignMode_ { 1 };
    int edge_ { 0 };
    char text_[TextSize] {};
    int bkColorFlag_ { 0 };
    BackgroundCL background_ { 0xBFBFBF };
};

extern template class PANELKIT_API Arr<DuLabelCL>;

class PANELKIT_API DuLabelArr : public ControlArr<DuLabelCL>
{
};
