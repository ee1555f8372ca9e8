#include "controls/animation/spec_animate_record.h"

template class PANELKIT_API Arr<DVrSpecAnimateCL>;

void DVrSpecAnimateCL::EachFieldM(FieldVisitorCL& visitor)
{
    visitor.IntM("type", type_);
    visitor.IntM("sunk_mode", sunkMode_);
    frames_.EachNameM(visitor);
}

int DVrSpecAnimateCL::FmReadInterfaceM(VrIOCL* io)
{
    return slReadRecord(*this, io);
}

int DVrSpecAnimateArr::AddBmpNameM(int index, const char* file)
{
    if (file == nullptr) {
        return 0;
    }
    return ifAliveM(index, [file](DVrSpecAnimateCL& record) { record.AddBmpNameM(file); });
}
