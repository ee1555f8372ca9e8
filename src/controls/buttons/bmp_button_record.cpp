#include "controls/buttons/bmp_button_record.h"

template class PANELKIT_API Arr<DVrBmpButtonCL>;

void DVrBmpButtonCL::EachFieldM(FieldVisitorCL& visitor)
{
    visitor.TextM("normal", normal_, NullWord::Empty);
    visitor.TextM("pressed", pressed_, NullWord::Empty);
    visitor.TextM("released", released_, NullWord::Empty);
    visitor.TextM("disabled", disabled_, NullWord::Empty);
    visitor.TextM("region", region_, NullWord::Empty);
}

int DVrBmpButtonCL::FmReadInterfaceM(VrIOCL* io)
{
    return slReadRecord(*this, io);
}
