#include "controls/buttons/standard_button_record.h"

template class PANELKIT_API Arr<DVrStandardButtonCL>;

void DVrStandardButtonCL::EachFieldM(FieldVisitorCL& visitor)
{
    visitor.CaptionM("caption", text_, NullWord::Kept);
    visitor.FlagM("default_button", default_);
}
