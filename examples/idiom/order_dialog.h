// The main dialog of dialog_application.
#pragma once

#include "resource.h"

class COrderDlg : public CDialog
{
    DECLARE_DYNAMIC(COrderDlg)

public:
    explicit COrderDlg(CWnd* pParent = NULL);
    virtual ~COrderDlg() { }

    enum
    {
        IDD = IDD_ORDER
    };

    CString m_strCustomer;
    int m_nQuantity;
    double m_dPrice;
    int m_nGoods;
    BOOL m_bExpress;
    int m_nPayment;

protected:
    virtual void DoDataExchange(CDataExchange* pDX);
    virtual BOOL OnInitDialog();
    virtual BOOL PreTranslateMessage(MSG* pMsg);
    virtual void OnOK();
    virtual void OnCancel();

    afx_msg void ShowTotal();
    afx_msg void OnSelchangeGoods();
    afx_msg void OnSplit();
    afx_msg void OnSend();
    afx_msg void OnDblclkList();
    afx_msg void OnFileOpen();
    afx_msg void OnListClear();
    afx_msg void OnUpdateListClear(CCmdUI* pCmdUI);
    afx_msg void OnListSort();
    afx_msg void OnUpdateListSort(CCmdUI* pCmdUI);
    afx_msg void OnOrderExpress();
    afx_msg void OnUpdateOrderExpress(CCmdUI* pCmdUI);
    afx_msg void OnGoods(UINT nID);
    afx_msg void OnUpdateGoods(CCmdUI* pCmdUI);
    afx_msg void OnHelpAbout();
    afx_msg void OnTimer(UINT_PTR nIDEvent);
    afx_msg HBRUSH OnCtlColor(CDC* pDC, CWnd* pWnd, UINT nCtlColor);
    afx_msg void OnDrawItem(int nIDCtl, LPDRAWITEMSTRUCT lpDrawItemStruct);
    afx_msg void OnInitMenuPopup(CMenu* pPopupMenu, UINT nIndex, BOOL bSysMenu);
    afx_msg void OnDestroy();
    afx_msg LRESULT OnSendProgress(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnSendDone(WPARAM wParam, LPARAM lParam);
    DECLARE_MESSAGE_MAP()

private:
    BOOL GetQuantity(int& nQuantity);
    void FillFrom(const CString& strLine);

    HACCEL m_hAccel;
    CBrush m_brBad;
    CEdit m_edtQuantity;
    CComboBox m_cboGoods;
    CListBox m_lstWords;
    CProgressCtrl m_progress;
    CSpinButtonCtrl m_spin;
    CEvent m_evtStop;
    CWinThread* m_pThread;
    DWORD m_dwStarted;
};
