#include "controls/drawing/draw_2d_record.h"

template class PANELKIT_API Arr<DVrDraw2DCL>;

void DVrDraw2DCL::EachFieldM(FieldVisitorCL& visitor)
{
    visitor.ColourM("background", bkColour_);
}
