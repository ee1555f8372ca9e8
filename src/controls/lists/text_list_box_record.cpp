#include "controls/lists/text_list_box_record.h"

template class PANELKIT_API Arr<DVrTextListBoxCL>;

void DVrTextListBoxCL::EachFieldM(FieldVisitorCL& visitor)
{
    visitor.IntM("item_height", itemHeight_);
    visitor.IntM("selection_mode", selMode_);
    visitor.IntM("edge", edge_);
    visitor.ColourM("background", bkColor_);
    visitor.IntM("scroll", scroll_);
    slVisitTexts(visitor, "items", items_);
}

int DVrTextListBoxCL::FmReadInterfaceM(VrIOCL* io)
{
    return slReadRecord(*this, io);
}

int DVrTextListBoxCL::AddStringM(const char* text)
{
    return slAddText(items_, text);
}

void DVrTextListBoxCL::destroyM()
{
    items_.DelAllM();
}

int DVrTextListBoxArr::AddStringM(int index, const char* text)
{
    if (text == nullptr) {
        return 0;
    }
    return ifAliveM(index, [text](DVrTextListBoxCL& record) { record.AddStringM(text); });
}
