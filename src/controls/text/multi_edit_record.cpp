#include "controls/text/multi_edit_record.h"

template class PANELKIT_API Arr<DVrMultiEditCL>;

void DVrMultiEditCL::EachFieldM(FieldVisitorCL& visitor)
{
    visitor.IntM("alignment", alignMode_);
    visitor.IntM("max_characters", maxNum_);
    visitor.TextM("text", text_, NullWord::Empty);
    visitor.IntM("read_only", readOnly_);
    visitor.IntM("edge", edge_);
    visitor.ColourM("colour", bkColor_);
}

int DVrMultiEditCL::FmReadInterfaceM(VrIOCL* io)
{
    return slReadRecord(*this, io);
}
