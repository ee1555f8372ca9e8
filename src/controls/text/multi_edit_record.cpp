#include "controls/text/multi_edit_record.h"
#include "controls/base/alignments.h"

template class PANELKIT_API Arr<DVrMultiEditCL>;

void DVrMultiEditCL::EachFieldM(FieldVisitorCL& visitor)
{
    visitor.ChoiceM("alignment", alignMode_, Alignments);
    visitor.CountM("max_characters", maxNum_);
    visitor.CaptionM("text", text_, NullWord::Empty);
    visitor.FlagM("read_only", readOnly_);
    visitor.FlagM("edge", edge_);
    visitor.ColourM("colour", bkColour_);
}
