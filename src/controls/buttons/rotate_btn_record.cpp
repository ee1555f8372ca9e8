#include "controls/buttons/rotate_btn_record.h"

template class PANELKIT_API Arr<DVrRotateBtnCL>;

void DVrRotateBtnCL::EachFieldM(FieldVisitorCL& visitor)
{
    visitor.LengthPairM("picture_position", picturePosition_);
    visitor.LengthPairM("centre", centre_);
    visitor.IntsM("step_signs", stepSigns_, 2);
    visitor.IntsM("counter_increments", counterIncrements_, 2);
    visitor.DegreesM("step_angle", stepAngle_);
    visitor.FlagM("enabled", enabled_);
    visitor.DegreesPairM("angle_range", angleRange_);
    visitor.DegreesM("initial_angle", initialAngle_);
    visitor.IntM("initial_counter", initialCounter_);
    visitor.NameM("background", background_, NullWord::Empty);
    visitor.NameM("rotating", rotating_, NullWord::Empty);
    visitor.NameM(RegionField, region_, NullWord::Empty);
}
