#include "controls/text/single_edit_record.h"
#include "controls/base/alignments.h"

template class PANELKIT_API Arr<DVrSingleEditCL>;

namespace {

constexpr ChoiceCL DataTypes[] = { { IntegerType, "integer" }, { RealType, "real" }, { TextType, "text" } };

} // namespace

void DVrSingleEditCL::EachFieldM(FieldVisitorCL& visitor)
{
    visitor.ChoiceM("data_type", dataType_, DataTypes);
    if (dataType_ < IntegerType || dataType_ > TextType) {
        visitor.StopReadingM();
    }
    visitor.LimitsM("range", dataType_, range_);
    visitor.CountM("decimals", decimals_);
    visitor.FlagM("password", password_);
    visitor.ChoiceM("alignment", alignMode_, Alignments);
    visitor.NumberM("initial", dataType_, initial_);
    visitor.FlagM("read_only", readOnly_);
    visitor.FlagM("edge", edge_);
    visitor.ColourM("colour", colour_);
}
