#include "controls/lists/combo_box_record.h"

template class PANELKIT_API Arr<DVrComboBoxCL>;

void DVrComboBoxCL::EachFieldM(FieldVisitorCL& visitor)
{
    visitor.IntM("edit_available", editAvailable_);
    slVisitTexts(visitor, "items", items_);
}

int DVrComboBoxCL::FmReadInterfaceM(VrIOCL* io)
{
    return slReadRecord(*this, io);
}

int DVrComboBoxCL::AddStringM(const char* text)
{
    return slAddText(items_, text);
}

int DVrComboBoxArr::AddStringM(int index, const char* text)
{
    if (text == nullptr) {
        return 0;
    }
    return ifAliveM(index, [text](DVrComboBoxCL& record) { record.AddStringM(text); });
}
