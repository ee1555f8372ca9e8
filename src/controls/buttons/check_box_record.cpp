#include "controls/buttons/check_box_record.h"

template class PANELKIT_API Arr<DVrCheckBoxCL>;

void DVrCheckBoxCL::EachFieldM(FieldVisitorCL& visitor)
{
    visitor.IntM("checked", check_);
    visitor.TextM("caption", text_, NullWord::Kept);
}

int DVrCheckBoxCL::FmReadInterfaceM(VrIOCL* io)
{
    return slReadRecord(*this, io);
}
