#include "controls/labels/label_record.h"
#include "controls/base/alignments.h"

template class PANELKIT_API Arr<DVrLabelCL>;

void DVrLabelCL::EachFieldM(FieldVisitorCL& visitor)
{
    visitor.ChoiceM("alignment", alignMode_, Alignments);
    visitor.CaptionM("text", text_, NullWord::Empty);
    visitor.FlagM("edge", edge_);
    visitor.ColourM("background", bkColour_, &bkColourFlag_);
}
