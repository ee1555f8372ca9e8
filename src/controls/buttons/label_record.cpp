#include "controls/buttons/label_record.h"

template class PANELKIT_API Arr<DVrLabelCL>;

void DVrLabelCL::EachFieldM(FieldVisitorCL& visitor)
{
    visitor.IntM("alignment", alignMode_);
    visitor.TextM("text", text_, NullWord::Empty);
    visitor.IntM("edge", edge_);
    visitor.ColourM("background", bkColor_, &bkColorFlag_);
}

int DVrLabelCL::FmReadInterfaceM(VrIOCL* io)
{
    return slReadRecord(*this, io);
}
