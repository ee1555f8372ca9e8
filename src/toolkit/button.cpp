#include "toolkit/button.h"
#include "toolkit/owner_drawn.h"

IMPLEMENT_DYNAMIC(CButton, CWnd)

BOOL CButton::Create(LPCSTR caption, DWORD style, const RECT& rect, CWnd* parent, UINT id)
{
    return CWnd::Create("Button", caption, style, rect, parent, id);
}

BOOL CButton::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result)
{
    return AfxDrawnSingle(this, message, lParam, result)
        || CWnd::OnChildNotify(message, wParam, lParam, result);
}
