// A control of one's own: a grid in a dialog template, a second one made while the dialog runs, and the
// dialog that hears of what is chosen in them.
#include "toolkit/toolkit.h"

#include "cell_grid.h"
#include "resource.h"

class CGridHostDlg : public CDialog
{
public:
    CGridHostDlg();

protected:
    virtual void DoDataExchange(CDataExchange* pDX);
    virtual BOOL OnInitDialog();
    virtual BOOL PreTranslateMessage(MSG* pMsg);

    afx_msg void OnSelchangeGrid();
    afx_msg void OnActivateGrid(NMHDR* pNMHDR, LRESULT* pResult);
    afx_msg void OnSelchangeRows();
    afx_msg void OnHScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar);
    DECLARE_MESSAGE_MAP()

private:
    CCellGrid m_grid;
    CCellGrid m_gridSecond;
    CSliderCtrl m_sldRows;
    CStatic m_stcSelection;
    CToolTipCtrl m_tip;
    int m_nRows;
};

BEGIN_MESSAGE_MAP(CGridHostDlg, CDialog)
ON_CONTROL(CGN_SELCHANGE, IDC_GRID, &CGridHostDlg::OnSelchangeGrid)
ON_CONTROL(CGN_SELCHANGE, IDC_SECOND_GRID, &CGridHostDlg::OnSelchangeRows)
ON_NOTIFY(CGN_ACTIVATE, IDC_GRID, &CGridHostDlg::OnActivateGrid)
ON_WM_HSCROLL()
END_MESSAGE_MAP()

CGridHostDlg::CGridHostDlg()
    : CDialog(IDD_GRID_HOST)
    , m_nRows(12)
{
}

void CGridHostDlg::DoDataExchange(CDataExchange* pDX)
{
    CDialog::DoDataExchange(pDX);
    DDX_Control(pDX, IDC_GRID, m_grid);
    DDX_Control(pDX, IDC_ROWS, m_sldRows);
    DDX_Control(pDX, IDC_SELECTION, m_stcSelection);
    DDX_Slider(pDX, IDC_ROWS, m_nRows);
}

BOOL CGridHostDlg::OnInitDialog()
{
    CDialog::OnInitDialog();
    m_sldRows.SetRange(1, 40, TRUE);
    m_sldRows.SetPos(m_nRows);
    m_sldRows.SetTicFreq(5);
    m_grid.SetCellCount(5 * m_nRows);

    CRect rect;
    GetDlgItem(IDC_SECOND_PLACE)->GetWindowRect(&rect);
    ScreenToClient(&rect);
    VERIFY(m_gridSecond.Create(
        WS_CHILD | WS_VISIBLE | WS_TABSTOP | WS_BORDER | WS_VSCROLL, rect, this, IDC_SECOND_GRID));
    m_gridSecond.SetFont(GetFont());
    m_gridSecond.SetColumns(2);
    m_gridSecond.SetCellCount(8);
    m_gridSecond.SetWindowPos(GetDlgItem(IDC_SECOND_PLACE), 0, 0, 0, 0, SWP_NOSIZE | SWP_NOMOVE);
    GetDlgItem(IDC_SECOND_PLACE)->DestroyWindow();

    m_tip.Create(this);
    m_tip.AddTool(&m_sldRows, _T("rows of the grid"));
    m_tip.SetDelayTime(TTDT_INITIAL, 200);
    return TRUE;
}

BOOL CGridHostDlg::PreTranslateMessage(MSG* pMsg)
{
    if (::IsWindow(m_tip.m_hWnd)) {
        m_tip.RelayEvent(pMsg);
    }
    return CDialog::PreTranslateMessage(pMsg);
}

void CGridHostDlg::OnSelchangeGrid()
{
    int nFirst, nLast;
    m_grid.GetSelRange(nFirst, nLast);
    CString strText;
    if (nFirst == nLast) {
        strText.Format(_T("cell %d"), nFirst + 1);
    } else {
        strText.Format(_T("cells %d to %d"), nFirst + 1, nLast + 1);
    }
    m_stcSelection.SetWindowText(strText);
}

// The second grid chooses how many columns the first one has.
void CGridHostDlg::OnSelchangeRows()
{
    m_grid.SetColumns(m_gridSecond.GetCurSel() + 1);
}

void CGridHostDlg::OnActivateGrid(NMHDR* pNMHDR, LRESULT* pResult)
{
    const NMCELLGRID* pGrid = reinterpret_cast<NMCELLGRID*>(pNMHDR);
    CString strText;
    strText.Format(_T("%d was activated"), pGrid->nCell + 1);
    SetDlgItemText(IDC_ACTIVATED, strText);
    *pResult = 0;
}

void CGridHostDlg::OnHScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar)
{
    if (pScrollBar != NULL && pScrollBar->GetDlgCtrlID() == IDC_ROWS) {
        m_nRows = m_sldRows.GetPos();
        m_grid.SetCellCount(5 * m_nRows);
    }
    CDialog::OnHScroll(nSBCode, nPos, pScrollBar);
}

class CGridApp : public CWinApp
{
public:
    virtual BOOL InitInstance()
    {
        CWinApp::InitInstance();
        CGridHostDlg dlg;
        m_pMainWnd = &dlg;
        dlg.DoModal();
        return FALSE;
    }
};

CGridApp theApp;
