#include "toolkit/progress_ctrl.h"

IMPLEMENT_DYNAMIC(CProgressCtrl, CWnd)

BOOL CProgressCtrl::Create(DWORD style, const RECT& rect, CWnd* parent, UINT id)
{
    NeedCommonControls();
    return CWnd::Create("msctls_progress32", nullptr, style, rect, parent, id);
}

void CProgressCtrl::GetRange(int& low, int& high) const
{
    PBRANGE range = {};
    SendMessage(PBM_GETRANGE, FALSE, reinterpret_cast<LPARAM>(&range));
    low = range.iLow;
    high = range.iHigh;
}
