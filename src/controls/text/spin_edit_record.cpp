#include "controls/text/spin_edit_record.h"

template class PANELKIT_API Arr<DVrSpinEditCL>;

void DVrSpinEditCL::EachFieldM(FieldVisitorCL& visitor)
{
    visitor.IntM("data_type", dataType_);
    if (!isTypeKnownM()) {
        visitor.StopReadingM();
    }
    const int type = dataType_ == RealType ? RealType : IntegerType; // No texts here.
    slTypedRangeField(visitor, "range", type, range_);
    visitor.IntM("decimals", decimals_);
    slTypedField(visitor, "step", type, step_);
    visitor.IntM("alignment", alignMode_);
    slTypedField(visitor, "initial", type, initial_);
    visitor.IntM("edit_window_index", editWindowIndex_);
    visitor.IntM("spin_function_id", spinFunctionId_);
    visitor.IntM("spin_width", spinWidth_);
}

int DVrSpinEditCL::FmReadInterfaceM(VrIOCL* io)
{
    return slReadRecord(*this, io) == 1 && isTypeKnownM() ? 1 : 0;
}
