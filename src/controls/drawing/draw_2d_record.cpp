#include "controls/drawing/draw_2d_record.h"

template class PANELKIT_API Arr<DVrDraw2DCL>;

void DVrDraw2DCL::EachFieldM(FieldVisitorCL& visitor)
{
    visitor.ColourM("background", bkColor_);
}

int DVrDraw2DCL::FmReadInterfaceM(VrIOCL* io)
{
    return slReadRecord(*this, io);
}
