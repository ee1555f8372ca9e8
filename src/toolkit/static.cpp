#include "toolkit/static.h"
#include "toolkit/owner_drawn.h"

IMPLEMENT_DYNAMIC(CStatic, CWnd)

BOOL CStatic::Create(LPCSTR text, DWORD style, const RECT& rect, CWnd* parent, UINT id)
{
    return CWnd::Create("Static", text, style, rect, parent, id);
}

BOOL CStatic::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result)
{
    return AfxDrawnSingle(this, message, lParam, result)
        || CWnd::OnChildNotify(message, wParam, lParam, result);
}
