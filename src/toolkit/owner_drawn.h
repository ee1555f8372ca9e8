#pragma once
#include "toolkit/control_message.h"

// Hands a reflected owner-draw message to the virtual functions of a control with one picture.
template <class ControlTP>
BOOL AfxDrawnSingle(ControlTP* control, UINT message, LPARAM lParam, LRESULT* result)
{
    if (message != WM_DRAWITEM) {
        return FALSE;
    }
    control->DrawItem(reinterpret_cast<LPDRAWITEMSTRUCT>(lParam));
    *result = TRUE;
    return TRUE;
}

// The same for a control with items.
template <class ListTP> BOOL AfxDrawnList(ListTP* list, UINT message, LPARAM lParam, LRESULT* result)
{
    switch (message) {
    case WM_MEASUREITEM:
        list->MeasureItem(reinterpret_cast<LPMEASUREITEMSTRUCT>(lParam));
        *result = TRUE;
        return TRUE;
    case WM_COMPAREITEM:
        *result = list->CompareItem(reinterpret_cast<LPCOMPAREITEMSTRUCT>(lParam));
        return TRUE;
    case WM_DELETEITEM:
        list->DeleteItem(reinterpret_cast<LPDELETEITEMSTRUCT>(lParam));
        *result = TRUE;
        return TRUE;
    default:
        return AfxDrawnSingle(list, message, lParam, result);
    }
}
