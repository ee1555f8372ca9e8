#include "toolkit/toolkit.h"

#include "order_dialog.h"

const UINT WM_SEND_PROGRESS = WM_APP + 1; // wParam: percent
const UINT WM_SEND_DONE = WM_APP + 2;     // wParam: whether it was sent whole
const UINT_PTR CLOCK_TIMER = 1;
const COLORREF BAD_COLOUR = RGB(255, 200, 200);
const COLORREF GOODS_COLOURS[] = { RGB(200, 40, 40), RGB(40, 160, 60), RGB(40, 80, 200) };
const int GOODS_COUNT = 3;

// What the thread needs; it deletes it.
struct SendJob
{
    HWND hWndNotify;
    HANDLE hStop;
    CStringArray lines;
};

UINT SendOrder(LPVOID pParam)
{
    SendJob* pJob = static_cast<SendJob*>(pParam);
    const int nCount = static_cast<int>(pJob->lines.GetSize());
    BOOL bWhole = TRUE;
    for (int i = 0; i < nCount; i++) {
        if (::WaitForSingleObject(pJob->hStop, 20) == WAIT_OBJECT_0) {
            bWhole = FALSE;
            break;
        }
        ::PostMessage(pJob->hWndNotify, WM_SEND_PROGRESS, (i + 1) * 100 / nCount, 0);
    }
    ::PostMessage(pJob->hWndNotify, WM_SEND_DONE, bWhole, 0);
    delete pJob;
    return 0;
}

IMPLEMENT_DYNAMIC(COrderDlg, CDialog)

BEGIN_MESSAGE_MAP(COrderDlg, CDialog)
ON_EN_CHANGE(IDC_QUANTITY, &COrderDlg::ShowTotal)
ON_EN_CHANGE(IDC_PRICE, &COrderDlg::ShowTotal)
ON_CBN_SELCHANGE(IDC_GOODS, &COrderDlg::OnSelchangeGoods)
ON_LBN_DBLCLK(IDC_LIST, &COrderDlg::OnDblclkList)
ON_BN_CLICKED(IDC_SPLIT, &COrderDlg::OnSplit)
ON_BN_CLICKED(IDC_SEND, &COrderDlg::OnSend)
ON_BN_CLICKED(IDC_EXPRESS, &COrderDlg::ShowTotal)
ON_COMMAND(IDM_FILE_OPEN, &COrderDlg::OnFileOpen)
ON_COMMAND(IDM_FILE_EXIT, &COrderDlg::OnCancel)
ON_COMMAND(IDM_LIST_CLEAR, &COrderDlg::OnListClear)
ON_UPDATE_COMMAND_UI(IDM_LIST_CLEAR, &COrderDlg::OnUpdateListClear)
ON_COMMAND(IDM_LIST_SORT, &COrderDlg::OnListSort)
ON_UPDATE_COMMAND_UI(IDM_LIST_SORT, &COrderDlg::OnUpdateListSort)
ON_COMMAND(IDM_ORDER_EXPRESS, &COrderDlg::OnOrderExpress)
ON_UPDATE_COMMAND_UI(IDM_ORDER_EXPRESS, &COrderDlg::OnUpdateOrderExpress)
ON_COMMAND_RANGE(IDM_GOODS_FIRST, IDM_GOODS_LAST, &COrderDlg::OnGoods)
ON_UPDATE_COMMAND_UI_RANGE(IDM_GOODS_FIRST, IDM_GOODS_LAST, &COrderDlg::OnUpdateGoods)
ON_COMMAND(IDM_HELP_ABOUT, &COrderDlg::OnHelpAbout)
ON_WM_TIMER()
ON_WM_CTLCOLOR()
ON_WM_DRAWITEM()
ON_WM_INITMENUPOPUP()
ON_WM_DESTROY()
ON_MESSAGE(WM_SEND_PROGRESS, &COrderDlg::OnSendProgress)
ON_MESSAGE(WM_SEND_DONE, &COrderDlg::OnSendDone)
END_MESSAGE_MAP()

COrderDlg::COrderDlg(CWnd* pParent /*=NULL*/)
    : CDialog(COrderDlg::IDD, pParent)
    , m_strCustomer(_T(""))
    , m_nQuantity(1)
    , m_dPrice(2.5)
    , m_nGoods(0)
    , m_bExpress(FALSE)
    , m_nPayment(0)
    , m_hAccel(NULL)
    , m_brBad(BAD_COLOUR)
    , m_evtStop(FALSE, TRUE)
    , m_pThread(NULL)
    , m_dwStarted(::GetTickCount())
{
}

void COrderDlg::DoDataExchange(CDataExchange* pDX)
{
    CDialog::DoDataExchange(pDX);
    DDX_Control(pDX, IDC_QUANTITY, m_edtQuantity);
    DDX_Control(pDX, IDC_GOODS, m_cboGoods);
    DDX_Control(pDX, IDC_LIST, m_lstWords);
    DDX_Control(pDX, IDC_PROGRESS, m_progress);
    DDX_Control(pDX, IDC_QUANTITY_SPIN, m_spin);
    DDX_Text(pDX, IDC_CUSTOMER, m_strCustomer);
    DDV_MaxChars(pDX, m_strCustomer, 20);
    DDX_Text(pDX, IDC_QUANTITY, m_nQuantity);
    DDV_MinMaxInt(pDX, m_nQuantity, 1, 100);
    DDX_Text(pDX, IDC_PRICE, m_dPrice);
    DDV_MinMaxDouble(pDX, m_dPrice, 0.0, 1000.0);
    DDX_CBIndex(pDX, IDC_GOODS, m_nGoods);
    DDX_Check(pDX, IDC_EXPRESS, m_bExpress);
    DDX_Radio(pDX, IDC_PAY_CASH, m_nPayment);
    if (pDX->m_bSaveAndValidate && m_strCustomer.IsEmpty()) {
        pDX->PrepareEditCtrl(IDC_CUSTOMER);
        AfxMessageBox(_T("An order needs a customer."), MB_OK | MB_ICONEXCLAMATION);
        pDX->Fail();
    }
}

BOOL COrderDlg::OnInitDialog()
{
    // The combo box must hold its items before its index is shown.
    CComboBox* pGoods = static_cast<CComboBox*>(GetDlgItem(IDC_GOODS));
    for (int i = 0; i < GOODS_COUNT; i++) {
        CString strGoods;
        VERIFY(strGoods.LoadString(IDS_GOODS_FIRST + i));
        const int nIndex = pGoods->AddString(strGoods);
        pGoods->SetItemData(nIndex, GOODS_COLOURS[i]);
    }
    CDialog::OnInitDialog();

    CString strTitle;
    strTitle.LoadString(IDS_TITLE);
    SetWindowText(strTitle + _T(" - ") + AfxGetAppName());
    SetIcon(AfxGetApp()->LoadStandardIcon(IDI_APPLICATION), TRUE);
    m_hAccel = ::LoadAccelerators(AfxGetResourceHandle(), MAKEINTRESOURCE(IDR_ORDER));
    m_spin.SetRange(1, 100);
    m_spin.SetBuddy(&m_edtQuantity);
    m_progress.SetRange(0, 100);
    m_edtQuantity.LimitText(4);
    SetDlgItemText(IDC_WORDS, _T(" bolts; nuts ;washers"));
    SetTimer(CLOCK_TIMER, 250, NULL);
    ShowTotal();

    GotoDlgCtrl(&m_edtQuantity);
    return FALSE; // The focus has been set.
}

// A modal dialog has no frame window that would translate its accelerators.
BOOL COrderDlg::PreTranslateMessage(MSG* pMsg)
{
    if (m_hAccel != NULL && ::TranslateAccelerator(m_hWnd, m_hAccel, pMsg)) {
        return TRUE;
    }
    return CDialog::PreTranslateMessage(pMsg);
}

void COrderDlg::OnOK()
{
    if (m_pThread != NULL) {
        ::MessageBeep(MB_ICONHAND);
        return;
    }
    CDialog::OnOK();
}

void COrderDlg::OnCancel()
{
    if (m_pThread != NULL) {
        m_evtStop.SetEvent();
        return;
    }
    CDialog::OnCancel();
}

BOOL COrderDlg::GetQuantity(int& nQuantity)
{
    BOOL bTranslated = FALSE;
    nQuantity = static_cast<int>(GetDlgItemInt(IDC_QUANTITY, &bTranslated, TRUE));
    return bTranslated && nQuantity >= 1 && nQuantity <= 100;
}

void COrderDlg::ShowTotal()
{
    int nQuantity;
    CString strText, strPrice;
    GetDlgItemText(IDC_PRICE, strPrice);
    if (!GetQuantity(nQuantity)) {
        strText.LoadString(IDS_BAD_QUANTITY);
    } else {
        double dTotal = nQuantity * _tstof(strPrice);
        if (IsDlgButtonChecked(IDC_EXPRESS) == BST_CHECKED) {
            dTotal += 9.9;
        }
        strText.Format(_T("%d x %s = %.2f"), nQuantity, strPrice.GetString(), dTotal);
    }
    SetDlgItemText(IDC_TOTAL, strText);
    GetDlgItem(IDOK)->EnableWindow(GetQuantity(nQuantity));
    m_edtQuantity.Invalidate();
}

void COrderDlg::OnSelchangeGoods()
{
    CString strGoods;
    m_cboGoods.GetLBText(m_cboGoods.GetCurSel(), strGoods);
    // "Steel (heavy)": the remark is what the list shows.
    const int nOpen = strGoods.Find(_T('(')), nClose = strGoods.ReverseFind(_T(')'));
    if (nOpen >= 0 && nClose > nOpen) {
        CString strRemark = strGoods.Mid(nOpen + 1, nClose - nOpen - 1);
        strRemark.MakeUpper();
        m_lstWords.SetCurSel(m_lstWords.AddString(strRemark + _T(": ") + strGoods.Left(nOpen).TrimRight()));
    }
    GetDlgItem(IDC_SWATCH)->Invalidate();
}

void COrderDlg::OnSplit()
{
    CString strLine;
    GetDlgItem(IDC_WORDS)->GetWindowText(strLine);
    CWaitCursor wait;
    FillFrom(strLine);
}

void COrderDlg::OnSend()
{
    if (!UpdateData(TRUE)) {
        return;
    }
    SendJob* pJob = new SendJob;
    pJob->hWndNotify = GetSafeHwnd();
    pJob->hStop = m_evtStop;
    for (int i = 0; i < m_lstWords.GetCount(); i++) {
        CString strItem;
        m_lstWords.GetText(i, strItem);
        pJob->lines.Add(strItem);
    }
    m_evtStop.ResetEvent();
    m_progress.SetPos(0);
    m_pThread = AfxBeginThread(SendOrder, pJob, THREAD_PRIORITY_BELOW_NORMAL, 0, CREATE_SUSPENDED);
    m_pThread->m_bAutoDelete = FALSE;
    m_pThread->ResumeThread();
    GetDlgItem(IDC_SEND)->EnableWindow(FALSE);
}

LRESULT COrderDlg::OnSendProgress(WPARAM wParam, LPARAM /*lParam*/)
{
    m_progress.SetPos(static_cast<int>(wParam));
    return 0;
}

LRESULT COrderDlg::OnSendDone(WPARAM wParam, LPARAM /*lParam*/)
{
    ::WaitForSingleObject(m_pThread->m_hThread, INFINITE);
    delete m_pThread;
    m_pThread = NULL;
    GetDlgItem(IDC_SEND)->EnableWindow(TRUE);
    if (wParam) {
        CString strCount, strSent;
        strCount.Format(_T("%d"), m_lstWords.GetCount());
        AfxFormatString2(strSent, IDS_SENT, strCount, m_strCustomer);
        SetDlgItemText(IDC_TOTAL, strSent);
    }
    return 0;
}

void COrderDlg::OnTimer(UINT_PTR nIDEvent)
{
    if (nIDEvent == CLOCK_TIMER) {
        CString strClock;
        strClock.Format(_T("open for %u s"), static_cast<UINT>((::GetTickCount() - m_dwStarted) / 1000));
        CString strShown;
        GetDlgItemText(IDC_CLOCK, strShown);
        if (strClock != strShown) {
            SetDlgItemText(IDC_CLOCK, strClock);
        }
    }
    CDialog::OnTimer(nIDEvent);
}

HBRUSH COrderDlg::OnCtlColor(CDC* pDC, CWnd* pWnd, UINT nCtlColor)
{
    HBRUSH hbr = CDialog::OnCtlColor(pDC, pWnd, nCtlColor);
    int nQuantity;
    if (pWnd->GetDlgCtrlID() == IDC_QUANTITY && nCtlColor == CTLCOLOR_EDIT && !GetQuantity(nQuantity)) {
        pDC->SetTextColor(RGB(128, 0, 0));
        pDC->SetBkColor(BAD_COLOUR);
        return m_brBad;
    }
    return hbr;
}

void COrderDlg::OnDrawItem(int nIDCtl, LPDRAWITEMSTRUCT lpDrawItemStruct)
{
    if (nIDCtl != IDC_SWATCH) {
        CDialog::OnDrawItem(nIDCtl, lpDrawItemStruct);
        return;
    }
    CDC dc;
    dc.Attach(lpDrawItemStruct->hDC);
    CRect rect(lpDrawItemStruct->rcItem);
    dc.Draw3dRect(rect, ::GetSysColor(COLOR_3DSHADOW), ::GetSysColor(COLOR_3DHILIGHT));
    rect.DeflateRect(1, 1);
    const int nGoods = m_cboGoods.GetCurSel();
    dc.FillSolidRect(
        rect, nGoods == CB_ERR ? RGB(0, 0, 0) : static_cast<COLORREF>(m_cboGoods.GetItemData(nGoods)));
    dc.Detach();
}

void COrderDlg::OnDestroy()
{
    KillTimer(CLOCK_TIMER);
    CDialog::OnDestroy();
}
