#pragma once
#include "controls/base/control_arr.h"
#include "controls/base/painted.h"

// An empty canvas for the application to draw on, best by a painter. It only fills its background.
class PANELKIT_API DuDraw2DCL : public PaintedCL<PictureStaticCL>
{
public:
    using PaintedCL::PaintedCL;

    int SetBkColorM(COLORREF colour) { return slKeep(bkColour_, colour); } // From the next erasing on.

protected:
    afx_msg BOOL OnEraseBkgnd(CDC* dc);
    afx_msg void OnPaint() { const CPaintDC validated(this); } // The application draws.
    void drawUnderM(CDC& dc, const CSize& size) override;
    DECLARE_MESSAGE_MAP()

private:
    COLORREF bkColour_ { 0 };
};

extern template class PANELKIT_API Arr<DuDraw2DCL>;

class PANELKIT_API DuDraw2DArr : public ControlArr<DuDraw2DCL>
{
};
