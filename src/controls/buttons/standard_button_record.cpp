#include "controls/buttons/standard_button_record.h"

template class PANELKIT_API Arr<DVrStandardButtonCL>;

void DVrStandardButtonCL::EachFieldM(FieldVisitorCL& visitor)
{
    visitor.TextM("caption", text_, NullWord::Kept);
    visitor.IntM("default_button", default_);
}

int DVrStandardButtonCL::FmReadInterfaceM(VrIOCL* io)
{
    return slReadRecord(*this, io);
}
