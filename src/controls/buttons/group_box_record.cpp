#include "controls/buttons/group_box_record.h"

template class PANELKIT_API Arr<DVrGroupBoxCL>;

void DVrGroupBoxCL::EachFieldM(FieldVisitorCL& visitor)
{
    visitor.TextM("text", text_, NullWord::Kept);
}

int DVrGroupBoxCL::FmReadInterfaceM(VrIOCL* io)
{
    return slReadRecord(*this, io);
}
