#include "controls/buttons/check_box_record.h"

template class PANELKIT_API Arr<DVrCheckBoxCL>;

void DVrCheckBoxCL::EachFieldM(FieldVisitorCL& visitor)
{
    visitor.FlagM("checked", check_);
    visitor.CaptionM("caption", text_, NullWord::Kept);
}
