#include "controls/lists/combo_box_record.h"

template class PANELKIT_API Arr<DVrComboBoxCL>;

void DVrComboBoxCL::EachFieldM(FieldVisitorCL& visitor)
{
    visitor.FlagM("edit_available", editAvailable_);
    slVisitTexts(visitor, "items", items_, &slTextRow<DVrComboBoxArr::ItemSize>);
}

int DVrComboBoxCL::AddStringM(const char* text)
{
    return slAddText(items_, text);
}
