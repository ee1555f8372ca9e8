#include "toolkit/animate_ctrl.h"
#include "toolkit/module.h"

IMPLEMENT_DYNAMIC(CAnimateCtrl, CWnd)

BOOL CAnimateCtrl::Create(DWORD style, const RECT& rect, CWnd* parent, UINT id)
{
    NeedCommonControls();
    return CWnd::Create("SysAnimate32", nullptr, style, rect, parent, id);
}

BOOL CAnimateCtrl::Open(UINT id)
{
    return SendMessage(ACM_OPENW, reinterpret_cast<WPARAM>(AfxGetResourceHandle()),
               reinterpret_cast<LPARAM>(MAKEINTRESOURCEW(id)))
        != 0;
}
