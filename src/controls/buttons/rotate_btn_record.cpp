#include "controls/buttons/rotate_btn_record.h"

template class PANELKIT_API Arr<DVrRotateBtnCL>;

void DVrRotateBtnCL::EachFieldM(FieldVisitorCL& visitor)
{
    visitor.IntPairM("picture_position", picturePosition_);
    visitor.IntPairM("centre", centre_);
    visitor.IntPairM("step_signs", stepSigns_);
    visitor.IntPairM("counter_increments", counterIncrements_);
    visitor.RealM("step_angle", stepAngle_);
    visitor.IntM("enabled", enabled_);
    visitor.RealPairM("angle_range", angleRange_);
    visitor.RealM("initial_angle", initialAngle_);
    visitor.IntM("initial_counter", initialCounter_);
    visitor.TextM("background", background_, NullWord::Empty);
    visitor.TextM("rotating", rotating_, NullWord::Empty);
    visitor.TextM("region", region_, NullWord::Empty);
}

int DVrRotateBtnCL::FmReadInterfaceM(VrIOCL* io)
{
    return slReadRecord(*this, io);
}
