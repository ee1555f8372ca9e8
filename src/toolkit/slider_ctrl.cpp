#include "toolkit/slider_ctrl.h"
#include "toolkit/tool_tip_ctrl.h"

IMPLEMENT_DYNAMIC(CSliderCtrl, CWnd)

BOOL CSliderCtrl::Create(DWORD style, const RECT& rect, CWnd* parent, UINT id)
{
    NeedCommonControls();
    return CWnd::Create("msctls_trackbar32", nullptr, style, rect, parent, id);
}

void CSliderCtrl::GetRange(int& low, int& high) const
{
    low = GetRangeMin();
    high = GetRangeMax();
}

void CSliderCtrl::SetRange(int low, int high, BOOL redraw)
{
    SetRangeMin(low, FALSE); // One message for both would take but 16 bits of each.
    SetRangeMax(high, redraw);
}

void CSliderCtrl::GetSelection(int& first, int& end) const
{
    first = sentM(TBM_GETSELSTART);
    end = sentM(TBM_GETSELEND);
}

void CSliderCtrl::SetSelection(int first, int end)
{
    SendMessage(TBM_SETSELSTART, FALSE, first);
    SendMessage(TBM_SETSELEND, TRUE, end);
}

CWnd* CSliderCtrl::GetBuddy(BOOL before) const
{
    return CWnd::FromHandle(reinterpret_cast<HWND>(SendMessage(TBM_GETBUDDY, AfxWordOf(before))));
}

CWnd* CSliderCtrl::SetBuddy(CWnd* buddy, BOOL before)
{
    const HWND handle = buddy == nullptr ? nullptr : buddy->m_hWnd;
    return CWnd::FromHandle(AfxSendHandle(*this, TBM_SETBUDDY, AfxWordOf(before), handle));
}

void CSliderCtrl::SetToolTips(CToolTipCtrl* tips)
{
    SendMessage(TBM_SETTOOLTIPS, reinterpret_cast<WPARAM>(tips == nullptr ? nullptr : tips->m_hWnd));
}
