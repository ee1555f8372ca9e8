#pragma once
#include "controls/base/control_arr.h"
#include "controls/base/picture_static.h"

// An empty canvas for the application to draw on. It only fills its background.
class PANELKIT_API DuDraw2DCL : public PictureStaticCL
{
public:
    using PictureStaticCL::PictureStaticCL;

    int SetBkColorM(COLORREF colour) { return slKeep(bkColour_, colour); } // From the next erasing on.

protected:
    afx_msg BOOL OnEraseBkgnd(CDC* dc);
    afx_msg void OnPaint() { const CPaintDC validated(this); } // The application draws.
    DECLARE_MESSAGE_MAP()

private:
    COLORREF bkColour_ { 0 };
};

extern template class PANELKIT_API Arr<DuDraw2DCL>;

class PANELKIT_API DuDraw2DArr : public ControlArr<DuDraw2DCL>
{
};
