#include "controls/labels/group_box_record.h"

template class PANELKIT_API Arr<DVrGroupBoxCL>;

void DVrGroupBoxCL::EachFieldM(FieldVisitorCL& visitor)
{
    visitor.CaptionM("text", text_, NullWord::Kept);
}
