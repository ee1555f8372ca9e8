// What the user does with the grid.
#include "toolkit/toolkit.h"

#include "cell_grid.h"

void CCellGrid::OnLButtonDown(UINT nFlags, CPoint point)
{
    SetFocus();
    const int nCell = HitTest(point);
    if (nCell >= 0) {
        SetCapture();
        m_bDragging = TRUE;
        Select(nCell, (nFlags & MK_SHIFT) != 0);
    }
    CWnd::OnLButtonDown(nFlags, point);
}

void CCellGrid::OnMouseMove(UINT nFlags, CPoint point)
{
    if (m_bDragging && GetCapture() == this) {
        const int nCell = HitTest(point);
        if (nCell >= 0) {
            Select(nCell, TRUE);
        }
    }
    CWnd::OnMouseMove(nFlags, point);
}

void CCellGrid::OnLButtonUp(UINT nFlags, CPoint point)
{
    if (m_bDragging) {
        ReleaseCapture();
    }
    CWnd::OnLButtonUp(nFlags, point);
}

void CCellGrid::OnCaptureChanged(CWnd* pWnd)
{
    m_bDragging = FALSE;
    CWnd::OnCaptureChanged(pWnd);
}

void CCellGrid::OnLButtonDblClk(UINT /*nFlags*/, CPoint point)
{
    if (HitTest(point) >= 0) {
        Activate();
    }
}

BOOL CCellGrid::OnMouseWheel(UINT /*nFlags*/, short zDelta, CPoint pt)
{
    CRect rect;
    GetWindowRect(&rect);
    if (!rect.PtInRect(pt)) {
        return FALSE;
    }
    ScrollTo(m_nTop - zDelta / WHEEL_DELTA);
    return TRUE;
}

BOOL CCellGrid::OnSetCursor(CWnd* pWnd, UINT nHitTest, UINT message)
{
    if (nHitTest == HTCLIENT) {
        CPoint point;
        ::GetCursorPos(&point);
        ScreenToClient(&point);
        ::SetCursor(AfxGetApp()->LoadStandardCursor(HitTest(point) >= 0 ? IDC_HAND : IDC_ARROW));
        return TRUE;
    }
    return CWnd::OnSetCursor(pWnd, nHitTest, message);
}

UINT CCellGrid::OnGetDlgCode()
{
    UINT nCode = DLGC_WANTARROWS;
    // Enter activates a cell here; elsewhere it is the default button's.
    const MSG* pMsg = GetCurrentMessage();
    if (pMsg->lParam != 0 && reinterpret_cast<MSG*>(pMsg->lParam)->wParam == VK_RETURN) {
        nCode |= DLGC_WANTMESSAGE;
    }
    return nCode;
}

void CCellGrid::OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags)
{
    const BOOL bExtend = ::GetKeyState(VK_SHIFT) < 0;
    switch (nChar) {
    case VK_LEFT:
        Select(m_nCurrent - 1, bExtend);
        break;
    case VK_RIGHT:
        Select(m_nCurrent + 1, bExtend);
        break;
    case VK_UP:
        Select(m_nCurrent < m_nColumns ? m_nCurrent : m_nCurrent - m_nColumns, bExtend);
        break;
    case VK_DOWN:
        Select(m_nCurrent + m_nColumns < m_nCount ? m_nCurrent + m_nColumns : m_nCurrent, bExtend);
        break;
    case VK_HOME:
        Select(0, bExtend);
        break;
    case VK_END:
        Select(m_nCount - 1, bExtend);
        break;
    case VK_RETURN:
        Activate();
        break;
    default:
        CWnd::OnKeyDown(nChar, nRepCnt, nFlags);
        break;
    }
}

void CCellGrid::OnSetFocus(CWnd* pOldWnd)
{
    CWnd::OnSetFocus(pOldWnd);
    if (m_nCurrent < 0) {
        Select(0, FALSE);
    }
    Invalidate(FALSE);
}

void CCellGrid::OnKillFocus(CWnd* pNewWnd)
{
    CWnd::OnKillFocus(pNewWnd);
    Invalidate(FALSE);
}

void CCellGrid::OnEnable(BOOL bEnable)
{
    CWnd::OnEnable(bEnable);
    Invalidate(FALSE);
}

void CCellGrid::OnVScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar)
{
    switch (nSBCode) {
    case SB_LINEUP:
        ScrollTo(m_nTop - 1);
        break;
    case SB_LINEDOWN:
        ScrollTo(m_nTop + 1);
        break;
    case SB_PAGEUP:
        ScrollTo(m_nTop - GetVisibleRows());
        break;
    case SB_PAGEDOWN:
        ScrollTo(m_nTop + GetVisibleRows());
        break;
    case SB_THUMBTRACK:
    case SB_THUMBPOSITION:
        ScrollTo(static_cast<int>(nPos));
        break;
    default:
        CWnd::OnVScroll(nSBCode, nPos, pScrollBar);
        break;
    }
}

LRESULT CCellGrid::OnSetFont(WPARAM wParam, LPARAM lParam)
{
    m_pFont = CFont::FromHandle(reinterpret_cast<HFONT>(wParam));
    CClientDC dc(this);
    CFont* pOldFont = dc.SelectObject(m_pFont);
    TEXTMETRIC tm;
    dc.GetTextMetrics(&tm);
    m_sizeCell = dc.GetTextExtent(_T("0000"), 4);
    m_sizeCell.cx += 6;
    m_sizeCell.cy = tm.tmHeight + tm.tmExternalLeading + 6;
    dc.SelectObject(pOldFont);
    UpdateScrollBar();
    UpdateTips();
    if (LOWORD(lParam)) {
        Invalidate();
    }
    return 0;
}

LRESULT CCellGrid::OnGetFont(WPARAM /*wParam*/, LPARAM /*lParam*/)
{
    return reinterpret_cast<LRESULT>(m_pFont != NULL ? m_pFont->GetSafeHandle() : NULL);
}
