#include "toolkit/toolkit.h"

#include "cell_grid.h"

IMPLEMENT_DYNAMIC(CCellGrid, CWnd)

BEGIN_MESSAGE_MAP(CCellGrid, CWnd)
ON_WM_PAINT()
ON_WM_ERASEBKGND()
ON_WM_SIZE()
ON_WM_LBUTTONDOWN()
ON_WM_LBUTTONUP()
ON_WM_LBUTTONDBLCLK()
ON_WM_MOUSEMOVE()
ON_WM_MOUSEWHEEL()
ON_WM_CAPTURECHANGED()
ON_WM_SETCURSOR()
ON_WM_KEYDOWN()
ON_WM_GETDLGCODE()
ON_WM_SETFOCUS()
ON_WM_KILLFOCUS()
ON_WM_ENABLE()
ON_WM_VSCROLL()
ON_MESSAGE(WM_SETFONT, &CCellGrid::OnSetFont)
ON_MESSAGE(WM_GETFONT, &CCellGrid::OnGetFont)
END_MESSAGE_MAP()

CCellGrid::CCellGrid()
    : m_nCount(0)
    , m_nColumns(5)
    , m_nCurrent(-1)
    , m_nAnchor(-1)
    , m_nTop(0)
    , m_sizeCell(30, 20)
    , m_bDragging(FALSE)
    , m_pFont(NULL)
{
    RegisterWindowClass();
}

CCellGrid::~CCellGrid() { }

BOOL CCellGrid::RegisterWindowClass()
{
    WNDCLASS wndcls;
    const HINSTANCE hInst = AfxGetInstanceHandle();
    if (::GetClassInfo(hInst, CELLGRID_CLASSNAME, &wndcls)) {
        return TRUE;
    }
    memset(&wndcls, 0, sizeof(WNDCLASS));
    wndcls.style = CS_DBLCLKS | CS_HREDRAW | CS_VREDRAW;
    wndcls.lpfnWndProc = ::DefWindowProc;
    wndcls.hInstance = hInst;
    wndcls.hCursor = AfxGetApp()->LoadStandardCursor(IDC_ARROW);
    wndcls.lpszClassName = CELLGRID_CLASSNAME;
    if (!AfxRegisterClass(&wndcls)) {
        AfxThrowResourceException();
    }
    return TRUE;
}

BOOL CCellGrid::Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID)
{
    const LPCTSTR lpszClass = AfxRegisterWndClass(
        CS_DBLCLKS, ::LoadCursor(NULL, IDC_ARROW), reinterpret_cast<HBRUSH>(COLOR_WINDOW + 1), NULL);
    return CWnd::Create(lpszClass, _T(""), dwStyle, rect, pParentWnd, nID);
}

BOOL CCellGrid::PreTranslateMessage(MSG* pMsg)
{
    if (m_tip.GetSafeHwnd() != NULL) {
        m_tip.RelayEvent(pMsg);
    }
    return CWnd::PreTranslateMessage(pMsg);
}

void CCellGrid::SetCellCount(int nCount)
{
    ASSERT(nCount >= 0);
    m_nCount = nCount;
    m_nCurrent = m_nAnchor = min(m_nCurrent, nCount - 1);
    UpdateScrollBar();
    UpdateTips();
    Invalidate();
}

void CCellGrid::SetColumns(int nColumns)
{
    ASSERT(nColumns > 0);
    m_nColumns = nColumns;
    UpdateScrollBar();
    UpdateTips();
    Invalidate();
}

int CCellGrid::SetCurSel(int nCell)
{
    const int nOld = m_nCurrent;
    m_nCurrent = m_nAnchor = nCell >= 0 && nCell < m_nCount ? nCell : -1;
    Invalidate();
    return nOld;
}

void CCellGrid::GetSelRange(int& nFirst, int& nLast) const
{
    nFirst = min(m_nAnchor, m_nCurrent);
    nLast = max(m_nAnchor, m_nCurrent);
}

CRect CCellGrid::GetCellRect(int nCell) const
{
    const CPoint point(nCell % m_nColumns * m_sizeCell.cx, (nCell / m_nColumns - m_nTop) * m_sizeCell.cy);
    return CRect(point, m_sizeCell);
}

int CCellGrid::HitTest(CPoint point) const
{
    CRect rectClient;
    GetClientRect(rectClient);
    const CRect rectCells(CPoint(0, 0), CSize(m_nColumns * m_sizeCell.cx, rectClient.Height()));
    if (!rectCells.PtInRect(point)) {
        return -1;
    }
    const int nCell = (point.y / m_sizeCell.cy + m_nTop) * m_nColumns + point.x / m_sizeCell.cx;
    return nCell < m_nCount ? nCell : -1;
}

int CCellGrid::GetVisibleRows() const
{
    CRect rect;
    GetClientRect(&rect);
    return max(1, rect.Height() / static_cast<int>(m_sizeCell.cy));
}

void CCellGrid::UpdateScrollBar()
{
    if (!::IsWindow(m_hWnd)) {
        return;
    }
    const int nRows = (m_nCount + m_nColumns - 1) / m_nColumns;
    SCROLLINFO si = { sizeof(SCROLLINFO), SIF_RANGE | SIF_PAGE | SIF_POS, 0, max(0, nRows - 1),
        static_cast<UINT>(GetVisibleRows()), m_nTop, 0 };
    SetScrollInfo(SB_VERT, &si);
    m_nTop = GetScrollPos(SB_VERT);
}

void CCellGrid::ScrollTo(int nTop)
{
    nTop = max(0, min(nTop, GetScrollLimit(SB_VERT)));
    if (nTop == m_nTop) {
        return;
    }
    const int nRows = m_nTop - nTop;
    m_nTop = nTop;
    SetScrollPos(SB_VERT, nTop);
    ScrollWindow(0, nRows * m_sizeCell.cy);
    UpdateTips();
}

// A tip for every cell that shows; the tool's id is the cell plus one.
void CCellGrid::UpdateTips()
{
    if (!::IsWindow(m_hWnd)) {
        return;
    }
    if (m_tip.GetSafeHwnd() == NULL) {
        m_tip.Create(this, TTS_ALWAYSTIP);
        m_tip.Activate(TRUE);
    }
    for (int i = m_tip.GetToolCount(); i > 0; i--) {
        m_tip.DelTool(this, i);
    }
    const int nFirst = m_nTop * m_nColumns;
    const int nLast = min(m_nCount, nFirst + GetVisibleRows() * m_nColumns);
    for (int nCell = nFirst; nCell < nLast; nCell++) {
        CString strTip;
        strTip.Format(_T("cell %d of %d"), nCell + 1, m_nCount);
        m_tip.AddTool(this, strTip, GetCellRect(nCell), nCell - nFirst + 1);
    }
}

void CCellGrid::Select(int nCell, BOOL bExtend)
{
    nCell = max(0, min(nCell, m_nCount - 1));
    if (m_nCount == 0 || (nCell == m_nCurrent && (bExtend || m_nAnchor == m_nCurrent))) {
        return;
    }
    m_nCurrent = nCell;
    if (!bExtend || m_nAnchor < 0) {
        m_nAnchor = nCell;
    }
    const int nRow = nCell / m_nColumns;
    if (nRow < m_nTop) {
        ScrollTo(nRow);
    } else if (nRow >= m_nTop + GetVisibleRows()) {
        ScrollTo(nRow - GetVisibleRows() + 1);
    }
    Invalidate(FALSE);
    GetParent()->SendMessage(
        WM_COMMAND, MAKEWPARAM(GetDlgCtrlID(), CGN_SELCHANGE), reinterpret_cast<LPARAM>(m_hWnd));
}

void CCellGrid::Activate()
{
    if (m_nCurrent < 0) {
        return;
    }
    NMCELLGRID nm;
    nm.hdr.hwndFrom = m_hWnd;
    nm.hdr.idFrom = GetDlgCtrlID();
    nm.hdr.code = CGN_ACTIVATE;
    nm.nCell = m_nCurrent;
    GetParent()->SendMessage(WM_NOTIFY, nm.hdr.idFrom, reinterpret_cast<LPARAM>(&nm));
}

void CCellGrid::DrawCell(CDC* pDC, int nCell, const CRect& rect)
{
    int nFirst, nLast;
    GetSelRange(nFirst, nLast);
    const bool bSelected = nCell >= nFirst && nCell <= nLast;
    pDC->FillSolidRect(rect, ::GetSysColor(bSelected ? COLOR_HIGHLIGHT : COLOR_WINDOW));
    const int nText = !IsWindowEnabled() ? COLOR_GRAYTEXT
        : bSelected                      ? COLOR_HIGHLIGHTTEXT
                                         : COLOR_WINDOWTEXT;
    pDC->SetTextColor(::GetSysColor(nText));
    CString strText;
    strText.Format(_T("%d"), nCell + 1);
    CRect rectText(rect);
    pDC->DrawText(strText, rectText, DT_CENTER | DT_VCENTER | DT_SINGLELINE);
    if (nCell == m_nCurrent && GetFocus() == this) {
        CRect rectFocus(rect);
        rectFocus.DeflateRect(2, 2);
        pDC->SetTextColor(RGB(0, 0, 0));
        pDC->SetBkColor(RGB(255, 255, 255));
        pDC->DrawFocusRect(&rectFocus);
    }
}

void CCellGrid::OnPaint()
{
    CPaintDC dc(this);
    CRect rectClient;
    GetClientRect(&rectClient);

    CDC dcMem;
    CBitmap bmp;
    dcMem.CreateCompatibleDC(&dc);
    bmp.CreateCompatibleBitmap(&dc, rectClient.Width(), rectClient.Height());
    CBitmap* pOldBitmap = dcMem.SelectObject(&bmp);
    CFont* pOldFont = dcMem.SelectObject(m_pFont != NULL ? m_pFont : GetParent()->GetFont());
    CPen penLine(PS_SOLID, 1, RGB(192, 192, 192));
    CPen* pOldPen = dcMem.SelectObject(&penLine);

    CBrush brush(::GetSysColor(COLOR_WINDOW));
    dcMem.FillRect(rectClient, &brush);
    dcMem.SetBkMode(TRANSPARENT);
    const int nFirst = m_nTop * m_nColumns;
    for (int nCell = nFirst; nCell < m_nCount; nCell++) {
        const CRect rect = GetCellRect(nCell);
        if (rect.top >= rectClient.bottom) {
            break;
        }
        if (!dc.RectVisible(rect)) {
            continue;
        }
        DrawCell(&dcMem, nCell, CRect(rect.left, rect.top, rect.right - 1, rect.bottom - 1));
        dcMem.MoveTo(rect.right - 1, rect.top);
        dcMem.LineTo(rect.right - 1, rect.bottom - 1);
        dcMem.LineTo(rect.left - 1, rect.bottom - 1);
    }
    const CRect& rectPaint = dc.m_ps.rcPaint;
    dc.BitBlt(rectPaint.left, rectPaint.top, rectPaint.Width(), rectPaint.Height(), &dcMem, rectPaint.left,
        rectPaint.top, SRCCOPY);
    dcMem.SelectObject(pOldPen);
    dcMem.SelectObject(pOldFont);
    dcMem.SelectObject(pOldBitmap);
}

BOOL CCellGrid::OnEraseBkgnd(CDC* /*pDC*/)
{
    return TRUE; // OnPaint covers everything.
}

void CCellGrid::OnSize(UINT nType, int cx, int cy)
{
    CWnd::OnSize(nType, cx, cy);
    UpdateScrollBar();
    UpdateTips();
}
