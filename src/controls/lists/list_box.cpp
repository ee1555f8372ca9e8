#include "controls/lists/list_box.h"

DWORD ListBoxCL::selectionStyleM() const
{
    switch (selMode_) {
    case SelectMany:
        return LBS_MULTIPLESEL;
    case SelectExtended:
        return LBS_EXTENDEDSEL;
    case SelectNone:
        return LBS_NOSEL;
    default:
        return 0;
    }
}

int ListBoxCL::selectM(int line, BOOL select)
{
    // Wine 8 answers the message of multiple selections with success in other lists too.
    const bool many = (GetStyle() & (LBS_MULTIPLESEL | LBS_EXTENDEDSEL)) != 0;
    return many && SetSel(line, select) != LB_ERR ? 1 : 0;
}

int ListBoxCL::GetSelNumM(int* count)
{
    if (count == nullptr) {
        return 0;
    }
    if (selMode_ == SelectOne) {
        *count = GetCurSel() != LB_ERR ? 1 : 0;
        return 1;
    }
    const int selected = GetSelCount();
    if (selected == LB_ERR) {
        return 0;
    }
    *count = selected;
    return 1;
}
