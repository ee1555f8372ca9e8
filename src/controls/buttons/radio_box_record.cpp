#include "controls/buttons/radio_box_record.h"

template class PANELKIT_API Arr<DVrRadioBoxCL>;

void DVrRadioBoxCL::EachFieldM(FieldVisitorCL& visitor)
{
    visitor.IntM("group", group_);
    visitor.IntM("checked", check_);
    visitor.TextM("caption", text_, NullWord::Kept);
}

int DVrRadioBoxCL::FmReadInterfaceM(VrIOCL* io)
{
    return slReadRecord(*this, io);
}
