#include "toolkit/scroll_bar.h"

// Here, not with the others of its class: the controls know windows, so those must not know controls.
HWND WndRelationsCL::scrollBarHandleM(int bar) const
{
    const CScrollBar* control = GetScrollBarCtrl(bar);
    return control == nullptr ? nullptr : control->m_hWnd;
}
