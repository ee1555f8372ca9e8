#include "controls/animation/normal_animate_record.h"

template class PANELKIT_API Arr<DVrNormalAnimateCL>;

namespace {

constexpr ChoiceCL ControlModes[] = { { 1, "automatic" }, { 2, "manual" } };

} // namespace

void DVrNormalAnimateCL::EachFieldM(FieldVisitorCL& visitor)
{
    visitor.ChoiceM("control_mode", controlMode_, ControlModes);
    visitor.MillisecondsM("time_lapse", timeLapse_);
    visitor.FlagM("sunken", sunken_);
    visitor.FlagM("notify", notify_);
    slVisitTexts(visitor, "bitmaps", frames_, &slPictureRow);
}
