#include "controls/lists/bitmap_list_box_record.h"

template class PANELKIT_API Arr<DVrBmpListBoxCL>;

void DVrBmpListBoxCL::EachFieldM(FieldVisitorCL& visitor)
{
    visitor.IntM("rows", rows_);
    visitor.IntM("columns", columns_);
    visitor.IntM("scroll_mode", scrollMode_);
    visitor.IntM("selection_mode", selMode_);
    slVisitTexts(visitor, "bitmaps", bitmaps_);
}

int DVrBmpListBoxCL::FmReadInterfaceM(VrIOCL* io)
{
    return slReadRecord(*this, io);
}

int DVrBmpListBoxCL::AddBmpNameM(const char* name)
{
    return slAddText(bitmaps_, name);
}

int DVrBmpListBoxArr::AddBmpNameM(int index, const char* name)
{
    if (name == nullptr) {
        return 0;
    }
    return ifAliveM(index, [name](DVrBmpListBoxCL& record) { record.AddBmpNameM(name); });
}
