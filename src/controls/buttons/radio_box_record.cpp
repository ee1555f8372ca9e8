#include "controls/buttons/radio_box_record.h"

template class PANELKIT_API Arr<DVrRadioBoxCL>;

void DVrRadioBoxCL::EachFieldM(FieldVisitorCL& visitor)
{
    visitor.IntM("group", group_);
    visitor.FlagM("checked", check_);
    visitor.CaptionM("caption", text_, NullWord::Kept);
}
