#include "controls/text/single_edit_record.h"

template class PANELKIT_API Arr<DVrSingleEditCL>;

void DVrSingleEditCL::EachFieldM(FieldVisitorCL& visitor)
{
    visitor.IntM("data_type", dataType_);
    if (!isTypeKnownM()) {
        visitor.StopReadingM();
    }
    slTypedRangeField(visitor, "range", dataType_, range_);
    visitor.IntM("decimals", decimals_);
    visitor.IntM("password", password_);
    visitor.IntM("alignment", alignMode_);
    slTypedField(visitor, "initial", dataType_, initial_);
    visitor.IntM("read_only", readOnly_);
    visitor.IntM("edge", edge_);
    visitor.ColourM("colour", colour_);
}

int DVrSingleEditCL::FmReadInterfaceM(VrIOCL* io)
{
    return slReadRecord(*this, io) == 1 && isTypeKnownM() ? 1 : 0;
}
