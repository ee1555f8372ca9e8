#include "controls/animation/normal_animate_record.h"

template class PANELKIT_API Arr<DVrNormalAnimateCL>;

void DVrNormalAnimateCL::EachFieldM(FieldVisitorCL& visitor)
{
    visitor.IntM("control_mode", controlMode_);
    visitor.IntM("time_lapse", timeLapse_);
    visitor.IntM("sunken", sunken_);
    visitor.IntM("notify", notify_);
    frames_.EachNameM(visitor);
}

int DVrNormalAnimateCL::FmReadInterfaceM(VrIOCL* io)
{
    return slReadRecord(*this, io);
}

int DVrNormalAnimateArr::AddBmpNameM(int index, const char* file)
{
    if (file == nullptr) {
        return 0;
    }
    return ifAliveM(index, [file](DVrNormalAnimateCL& record) { record.AddBmpNameM(file); });
}
