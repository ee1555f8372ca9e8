#include "controls/buttons/bmp_button_record.h"

template class PANELKIT_API Arr<DVrBmpButtonCL>;

void DVrBmpButtonCL::EachFieldM(FieldVisitorCL& visitor)
{
    visitor.NameM("normal", normal_, NullWord::Empty);
    visitor.NameM("pressed", pressed_, NullWord::Empty);
    visitor.NameM("released", released_, NullWord::Empty);
    visitor.NameM("disabled", disabled_, NullWord::Empty);
    visitor.NameM(RegionField, region_, NullWord::Empty);
}
