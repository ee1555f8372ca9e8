#include "controls/text/spin_edit_record.h"
#include "controls/base/alignments.h"

template class PANELKIT_API Arr<DVrSpinEditCL>;

namespace {

constexpr ChoiceCL SpinDataTypes[] = { { IntegerType, "integer" }, { RealType, "real" } };

} // namespace

void DVrSpinEditCL::EachFieldM(FieldVisitorCL& visitor)
{
    visitor.ChoiceM("data_type", dataType_, SpinDataTypes);
    if (dataType_ != IntegerType && dataType_ != RealType) {
        visitor.StopReadingM();
    }
    const int type = dataType_ == RealType ? RealType : IntegerType; // No texts here.
    visitor.LimitsM("range", type, range_);
    visitor.CountM("decimals", decimals_);
    visitor.NumberM("step", type, step_);
    visitor.ChoiceM("alignment", alignMode_, Alignments);
    visitor.NumberM("initial", type, initial_);
    visitor.IndexM("edit_window_index", editWindowIndex_);
    visitor.IdM("spin_function_id", spinFunctionId_);
    visitor.LengthM("spin_width", spinWidth_, Along::X);
}
