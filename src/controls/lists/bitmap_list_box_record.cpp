#include "controls/lists/bitmap_list_box_record.h"
#include "controls/lists/selection_modes.h"

template class PANELKIT_API Arr<DVrBmpListBoxCL>;

namespace {

constexpr ChoiceCL ScrollModes[] = { { 1, "horizontal" }, { 2, "vertical" }, { 4, "both" } };

} // namespace

void DVrBmpListBoxCL::EachFieldM(FieldVisitorCL& visitor)
{
    visitor.CountM("rows", rows_);
    visitor.CountM("columns", columns_);
    visitor.ChoiceM("scroll_mode", scrollMode_, ScrollModes);
    visitor.ChoiceM("selection_mode", selMode_, SelectionModes);
    slVisitTexts(visitor, "bitmaps", bitmaps_, &slPictureRow);
}

int DVrBmpListBoxCL::AddBmpNameM(const char* name)
{
    return slAddText(bitmaps_, name);
}
