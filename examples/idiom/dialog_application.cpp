// A dialog-based application: an order is typed, checked, and sent by a worker thread. Its list can be filled
// from a text file, and what was typed last is there again at the next start.
#include "toolkit/toolkit.h"

#include "order_dialog.h"

class COrderApp : public CWinApp
{
public:
    virtual BOOL InitInstance();
    virtual int ExitInstance();

private:
    BOOL m_bAccepted;
};

COrderApp theApp;

BOOL COrderApp::InitInstance()
{
    CWinApp::InitInstance();
    SetRegistryKey(_T("Panelkit Examples"));

    COrderDlg dlg;
    m_pMainWnd = &dlg;
    dlg.m_strCustomer = GetProfileString(_T("Order"), _T("Customer"), _T("Nobody"));
    dlg.m_nQuantity = GetProfileInt(_T("Order"), _T("Quantity"), 1);
    dlg.m_nGoods = GetProfileInt(_T("Order"), _T("Goods"), 0);
    dlg.m_bExpress = GetProfileInt(_T("Order"), _T("Express"), FALSE) != 0;
    m_bAccepted = dlg.DoModal() == IDOK;
    if (m_bAccepted) {
        WriteProfileString(_T("Order"), _T("Customer"), dlg.m_strCustomer);
        WriteProfileInt(_T("Order"), _T("Quantity"), dlg.m_nQuantity);
        WriteProfileInt(_T("Order"), _T("Goods"), dlg.m_nGoods);
        WriteProfileInt(_T("Order"), _T("Express"), dlg.m_bExpress);
    }
    return FALSE; // The dialog is closed: no message loop to run.
}

int COrderApp::ExitInstance()
{
    CWinApp::ExitInstance();
    return m_bAccepted ? 0 : 1;
}
