// What the menu of the order dialog does, and its list.
#include "toolkit/toolkit.h"

#include "order_dialog.h"

class CAboutDlg : public CDialog
{
public:
    CAboutDlg()
        : CDialog(CAboutDlg::IDD)
    {
    }
    enum
    {
        IDD = IDD_ABOUT
    };
};

void COrderDlg::FillFrom(const CString& strLine)
{
    int nStart = 0;
    CString strWord = strLine.Tokenize(_T(";,\t"), nStart);
    while (nStart != -1) {
        strWord.Trim();
        if (!strWord.IsEmpty() && m_lstWords.FindStringExact(-1, strWord) == LB_ERR) {
            m_lstWords.AddString(strWord);
        }
        strWord = strLine.Tokenize(_T(";,\t"), nStart);
    }
}

void COrderDlg::OnDblclkList()
{
    const int nIndex = m_lstWords.GetCurSel();
    if (nIndex != LB_ERR) {
        m_lstWords.DeleteString(nIndex);
    }
}

void COrderDlg::OnFileOpen()
{
    CString strFilter;
    strFilter.LoadString(IDS_FILE_FILTER);
    CFileDialog dlg(TRUE, _T("txt"), NULL, OFN_FILEMUSTEXIST | OFN_HIDEREADONLY, strFilter, this);
    if (dlg.DoModal() != IDOK) {
        return;
    }
    try {
        CStdioFile file(dlg.GetPathName(), CFile::modeRead | CFile::typeText);
        CString strLine;
        while (file.ReadString(strLine)) {
            FillFrom(strLine);
        }
        file.Close();
    } catch (CFileException* pException) {
        CString strMessage;
        AfxFormatString1(strMessage, IDS_CANNOT_OPEN, dlg.GetFileName());
        AfxMessageBox(strMessage, MB_ICONSTOP);
        pException->Delete();
    }
}

void COrderDlg::OnListClear()
{
    m_lstWords.ResetContent();
}

void COrderDlg::OnUpdateListClear(CCmdUI* pCmdUI)
{
    pCmdUI->Enable(m_lstWords.GetCount() > 0);
}

void COrderDlg::OnListSort()
{
    CArray<CString, const CString&> lines;
    for (int i = 0; i < m_lstWords.GetCount(); i++) {
        CString strItem;
        m_lstWords.GetText(i, strItem);
        int nAt = 0;
        while (nAt < lines.GetSize() && lines[nAt].CompareNoCase(strItem) < 0) {
            nAt++;
        }
        lines.InsertAt(nAt, strItem);
    }
    m_lstWords.SetRedraw(FALSE);
    m_lstWords.ResetContent();
    for (int i = 0; i < lines.GetSize(); i++) {
        m_lstWords.AddString(lines.GetAt(i));
    }
    m_lstWords.SetRedraw(TRUE);
    m_lstWords.Invalidate();
}

void COrderDlg::OnUpdateListSort(CCmdUI* pCmdUI)
{
    CString strText;
    strText.Format(_T("&Sort %d lines\tF5"), m_lstWords.GetCount());
    pCmdUI->SetText(strText);
    pCmdUI->Enable(m_lstWords.GetCount() > 1);
}

void COrderDlg::OnOrderExpress()
{
    CheckDlgButton(IDC_EXPRESS, IsDlgButtonChecked(IDC_EXPRESS) ? BST_UNCHECKED : BST_CHECKED);
    ShowTotal();
}

void COrderDlg::OnUpdateOrderExpress(CCmdUI* pCmdUI)
{
    pCmdUI->SetCheck(IsDlgButtonChecked(IDC_EXPRESS) == BST_CHECKED);
}

void COrderDlg::OnGoods(UINT nID)
{
    m_cboGoods.SetCurSel(nID - IDM_GOODS_FIRST);
    OnSelchangeGoods();
}

void COrderDlg::OnUpdateGoods(CCmdUI* pCmdUI)
{
    pCmdUI->SetRadio(m_cboGoods.GetCurSel() == static_cast<int>(pCmdUI->m_nID - IDM_GOODS_FIRST));
}

void COrderDlg::OnHelpAbout()
{
    CAboutDlg dlgAbout;
    dlgAbout.DoModal();
}

// Menus of a dialog are not updated by an idle loop: each popup's items are asked when it opens.
void COrderDlg::OnInitMenuPopup(CMenu* pPopupMenu, UINT nIndex, BOOL bSysMenu)
{
    CDialog::OnInitMenuPopup(pPopupMenu, nIndex, bSysMenu);
    if (bSysMenu) {
        return;
    }
    CCmdUI state;
    state.m_pMenu = pPopupMenu;
    state.m_nIndexMax = pPopupMenu->GetMenuItemCount();
    for (state.m_nIndex = 0; state.m_nIndex < state.m_nIndexMax; state.m_nIndex++) {
        state.m_nID = pPopupMenu->GetMenuItemID(state.m_nIndex);
        if (state.m_nID == 0 || state.m_nID == static_cast<UINT>(-1)) {
            continue; // A separator, or the head of a further menu.
        }
        state.m_pSubMenu = NULL;
        state.DoUpdate(this, FALSE);
    }
}
