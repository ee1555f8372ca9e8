#include "controls/animation/spec_animate_record.h"

template class PANELKIT_API Arr<DVrSpecAnimateCL>;

void DVrSpecAnimateCL::EachFieldM(FieldVisitorCL& visitor)
{
    visitor.IntM("type", type_);
    visitor.FlagM("sunk_mode", sunkMode_);
    slVisitTexts(visitor, "bitmaps", frames_, &slPictureRow);
}
