#include "controls/drawing/draw_2d.h"
#include "controls/drawing/draw_2d_record.h"

template class PANELKIT_API Arr<DuDraw2DCL>;

BEGIN_MESSAGE_MAP(DuDraw2DCL, CStatic)
ON_WM_ERASEBKGND()
ON_WM_PAINT()
END_MESSAGE_MAP()

int DVrDraw2DCL::InitDraw2DM(DuDraw2DCL* control) const
{
    if (InitCommonCtrlM(control) == 0) {
        return 0;
    }
    control->SetBkColorM(bkColour_);
    return 1;
}

BOOL DuDraw2DCL::OnEraseBkgnd(CDC* dc)
{
    if (dc != nullptr) {
        CRect client;
        GetClientRect(&client);
        drawUnderM(*dc, client.Size());
    }
    return CStatic::OnEraseBkgnd(dc);
}

void DuDraw2DCL::drawUnderM(CDC& dc, const CSize& size)
{
    const CRect all(CPoint(0, 0), size);
    CBrush brush(bkColour_);
    if (brush.GetSafeHandle() != nullptr) {
        dc.FillRect(&all, &brush);
    }
}
