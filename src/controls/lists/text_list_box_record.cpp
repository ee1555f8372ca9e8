#include "controls/lists/text_list_box_record.h"
#include "controls/lists/selection_modes.h"

template class PANELKIT_API Arr<DVrTextListBoxCL>;

void DVrTextListBoxCL::EachFieldM(FieldVisitorCL& visitor)
{
    visitor.LengthM("item_height", itemHeight_, Along::Y);
    visitor.ChoiceM("selection_mode", selMode_, SelectionModes);
    visitor.FlagM("edge", edge_);
    visitor.ColourM("background", bkColour_);
    visitor.FlagM("scroll", scroll_);
    slVisitTexts(visitor, "items", items_, &slTextRow<>);
}

int DVrTextListBoxCL::AddStringM(const char* text)
{
    return slAddText(items_, text);
}

void DVrTextListBoxCL::destroyM()
{
    items_.DelAllM();
}
