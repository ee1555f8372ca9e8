// Controls that draw themselves: a list with colours of its own that sorts by its columns, an edit for
// digits, an owner drawn button and combo box, and a tree whose labels are edited. Its "Machine" button opens
// a dialog that a Panelkit file describes: custom_draw.exe [FILE], without one machine.dlg in the current
// folder.
#include "panelkit.h"

#include "part_controls.h"
#include "resource.h"

enum // The ids of machine.dlg.
{
    MACHINE_OK = 1,
    MACHINE_CANCEL = 2,
    MACHINE_NAME = 1001
};

class CMachineDlg : public DuBasicDialogCL
{
public:
    explicit CMachineDlg(const CString& strFile)
        : m_strName(_T(""))
    {
        SetConfigFileM(CStringA(strFile));
        SetCancelIdM(MACHINE_CANCEL);
    }

    CString m_strName;

protected:
    afx_msg LRESULT OnMachineButton(WPARAM wParam, LPARAM lParam);
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(CMachineDlg, DuBasicDialogCL)
ON_MESSAGE(ButtonActionMsg, &CMachineDlg::OnMachineButton)
END_MESSAGE_MAP()

LRESULT CMachineDlg::OnMachineButton(WPARAM wParam, LPARAM /*lParam*/)
{
    if (wParam == MACHINE_OK) {
        GetDlgItemText(MACHINE_NAME, m_strName);
        EndDialog(IDOK);
    } else if (wParam == MACHINE_CANCEL) {
        EndDialog(IDCANCEL);
    }
    return 0;
}

class CPartsApp : public CWinApp
{
public:
    virtual BOOL InitInstance();
    CString m_strMachineFile;
};

CPartsApp theApp;

class CPartsDlg : public CDialog
{
public:
    CPartsDlg()
        : CDialog(IDD_PARTS)
        , m_nAdded(0)
    {
    }

protected:
    virtual void DoDataExchange(CDataExchange* pDX);
    virtual BOOL OnInitDialog();
    virtual BOOL OnCommand(WPARAM wParam, LPARAM lParam);

    afx_msg void OnAdd();
    afx_msg void OnMachine();
    afx_msg void OnSelchangeColour();
    afx_msg void OnColumnclickParts(NMHDR* pNMHDR, LRESULT* pResult);
    afx_msg void OnItemchangedParts(NMHDR* pNMHDR, LRESULT* pResult);
    afx_msg void OnBeginlabeleditTree(NMHDR* pNMHDR, LRESULT* pResult);
    afx_msg void OnEndlabeleditTree(NMHDR* pNMHDR, LRESULT* pResult);
    afx_msg void OnSelchangedTree(NMHDR* pNMHDR, LRESULT* pResult);
    DECLARE_MESSAGE_MAP()

private:
    void FillTree();

    CPartList m_lstParts;
    CNumberEdit m_edtNumber;
    CFaceButton m_btnAdd;
    CColourCombo m_cboColour;
    CTreeCtrl m_tree;
    CImageList m_images;
    int m_nAdded;
};

BEGIN_MESSAGE_MAP(CPartsDlg, CDialog)
ON_BN_CLICKED(IDC_ADD, &CPartsDlg::OnAdd)
ON_BN_CLICKED(IDC_MACHINE, &CPartsDlg::OnMachine)
ON_CBN_SELCHANGE(IDC_COLOUR, &CPartsDlg::OnSelchangeColour)
ON_NOTIFY(LVN_COLUMNCLICK, IDC_PARTS, &CPartsDlg::OnColumnclickParts)
ON_NOTIFY(LVN_ITEMCHANGED, IDC_PARTS, &CPartsDlg::OnItemchangedParts)
ON_NOTIFY(TVN_BEGINLABELEDIT, IDC_TREE, &CPartsDlg::OnBeginlabeleditTree)
ON_NOTIFY(TVN_ENDLABELEDIT, IDC_TREE, &CPartsDlg::OnEndlabeleditTree)
ON_NOTIFY(TVN_SELCHANGED, IDC_TREE, &CPartsDlg::OnSelchangedTree)
END_MESSAGE_MAP()

BOOL CPartsApp::InitInstance()
{
    INITCOMMONCONTROLSEX icc = { sizeof(icc), ICC_WIN95_CLASSES };
    ::InitCommonControlsEx(&icc);
    CWinApp::InitInstance();
    m_strMachineFile = m_lpCmdLine[0] != _T('\0') ? m_lpCmdLine : _T("machine.dlg");
    CPartsDlg dlg;
    m_pMainWnd = &dlg;
    if (dlg.DoModal() == -1) {
        TRACE(_T("the dialog of %s can't be made\n"), m_pszAppName);
    }
    return FALSE;
}

void CPartsDlg::DoDataExchange(CDataExchange* pDX)
{
    CDialog::DoDataExchange(pDX);
    DDX_Control(pDX, IDC_PARTS, m_lstParts);
    DDX_Control(pDX, IDC_ADD, m_btnAdd);
    DDX_Control(pDX, IDC_COLOUR, m_cboColour);
    DDX_Control(pDX, IDC_TREE, m_tree);
}

BOOL CPartsDlg::OnInitDialog()
{
    CDialog::OnInitDialog();
    VERIFY(m_edtNumber.SubclassDlgItem(IDC_NUMBER, this));
    m_edtNumber.SetRange(1, 500);
    m_edtNumber.SetWindowText(_T("25"));

    m_lstParts.AddPart(_T("Washer"), 120, 0.05);
    m_lstParts.AddPart(_T("Bolt"), 4, 0.4);
    m_lstParts.AddPart(_T("Gear"), 9, 12.25);
    m_lstParts.AddPart(_T("axle"), 31, 8.5);

    m_cboColour.AddColour(_T("Yellow"), RGB(240, 220, 80));
    m_cboColour.AddColour(_T("Blue"), RGB(100, 140, 255));
    m_cboColour.AddColour(_T("Green"), RGB(60, 170, 80));
    m_cboColour.SetCurSel(0);
    OnSelchangeColour();
    FillTree();
    return TRUE;
}

void CPartsDlg::FillTree()
{
    CBitmap bmpImages;
    VERIFY(bmpImages.LoadBitmap(IDB_TREE));
    m_images.Create(16, 16, ILC_COLOR24 | ILC_MASK, 2, 1);
    m_images.Add(&bmpImages, RGB(255, 0, 255));
    m_tree.SetImageList(&m_images, TVSIL_NORMAL);
    const HTREEITEM hStore = m_tree.InsertItem(_T("Store"), 0, 0);
    TVINSERTSTRUCT tvis = {};
    tvis.hParent = hStore;
    tvis.hInsertAfter = TVI_LAST;
    tvis.item.mask = TVIF_TEXT | TVIF_IMAGE | TVIF_SELECTEDIMAGE | TVIF_PARAM;
    tvis.item.iImage = tvis.item.iSelectedImage = 1;
    for (int i = 1; i <= 3; i++) {
        CString strShelf;
        strShelf.Format(_T("Shelf %c"), _T('A') + i - 1);
        tvis.item.pszText = strShelf.GetBuffer();
        tvis.item.lParam = i;
        m_tree.InsertItem(&tvis);
        strShelf.ReleaseBuffer();
    }
    m_tree.Expand(hStore, TVE_EXPAND);
    m_tree.SelectItem(hStore);
}

// While a label is edited Enter and Escape belong to it, not to the dialog.
BOOL CPartsDlg::OnCommand(WPARAM wParam, LPARAM lParam)
{
    if ((wParam == IDOK || wParam == IDCANCEL) && m_tree.GetEditControl() != NULL) {
        TreeView_EndEditLabelNow(m_tree, wParam == IDCANCEL);
        return TRUE;
    }
    return CDialog::OnCommand(wParam, lParam);
}

void CPartsDlg::OnAdd()
{
    int nNumber;
    if (!m_edtNumber.GetNumber(nNumber)) {
        m_edtNumber.SetFocus();
        m_edtNumber.SetSel(0, -1);
        return;
    }
    CString strCode;
    strCode.Format(_T("Part %d"), ++m_nAdded);
    m_lstParts.AddPart(strCode, nNumber, nNumber / 4.0);
    m_lstParts.EnsureVisible(m_lstParts.GetItemCount() - 1, FALSE);
}

void CPartsDlg::OnMachine()
{
    CMachineDlg dlg(theApp.m_strMachineFile);
    if (dlg.DoModalM() == IDOK) {
        SetDlgItemText(IDC_STATUS, _T("Machine: ") + dlg.m_strName);
    }
}

void CPartsDlg::OnSelchangeColour()
{
    m_btnAdd.SetFace(m_cboColour.GetColour());
    SetDlgItemText(IDC_STATUS, _T("The button is ") + m_cboColour.GetColourName().MakeLower());
}

void CPartsDlg::OnColumnclickParts(NMHDR* pNMHDR, LRESULT* pResult)
{
    const LPNMLISTVIEW pNMLV = reinterpret_cast<LPNMLISTVIEW>(pNMHDR);
    TCHAR szColumn[32];
    LVCOLUMN column = {};
    column.mask = LVCF_TEXT;
    column.pszText = szColumn;
    column.cchTextMax = _countof(szColumn);
    m_lstParts.GetColumn(pNMLV->iSubItem, &column);
    CString strStatus;
    strStatus.Format(_T("Sorted by %s"), szColumn);
    SetDlgItemText(IDC_STATUS, strStatus);
    *pResult = 0;
}

void CPartsDlg::OnItemchangedParts(NMHDR* pNMHDR, LRESULT* pResult)
{
    const NMLISTVIEW* pNMLV = reinterpret_cast<NMLISTVIEW*>(pNMHDR);
    if (pNMLV->uChanged & LVIF_STATE && pNMLV->uNewState & LVIS_SELECTED) {
        POSITION pos = m_lstParts.GetFirstSelectedItemPosition();
        CString strStatus(_T("Chosen:"));
        while (pos != NULL) {
            strStatus += _T(' ') + m_lstParts.GetItemText(m_lstParts.GetNextSelectedItem(pos), 0);
        }
        SetDlgItemText(IDC_STATUS, strStatus);
    }
    *pResult = 0;
}

// The store keeps its name.
void CPartsDlg::OnBeginlabeleditTree(NMHDR* pNMHDR, LRESULT* pResult)
{
    const LPNMTVDISPINFO pDispInfo = reinterpret_cast<LPNMTVDISPINFO>(pNMHDR);
    *pResult = m_tree.GetParentItem(pDispInfo->item.hItem) == NULL;
}

void CPartsDlg::OnEndlabeleditTree(NMHDR* pNMHDR, LRESULT* pResult)
{
    const LPNMTVDISPINFO pDispInfo = reinterpret_cast<LPNMTVDISPINFO>(pNMHDR);
    CString strLabel(pDispInfo->item.pszText); // NULL when the user pressed Escape.
    *pResult = !strLabel.Trim().IsEmpty();
}

void CPartsDlg::OnSelchangedTree(NMHDR* pNMHDR, LRESULT* pResult)
{
    const NMTREEVIEW* pNMTreeView = reinterpret_cast<NMTREEVIEW*>(pNMHDR);
    const HTREEITEM hItem = pNMTreeView->itemNew.hItem;
    CString strStatus = m_tree.GetItemText(hItem);
    if (m_tree.ItemHasChildren(hItem)) {
        strStatus.AppendFormat(_T(", %u items"), m_tree.GetCount());
    } else {
        strStatus.AppendFormat(_T(", number %d"), static_cast<int>(m_tree.GetItemData(hItem)));
    }
    SetDlgItemText(IDC_STATUS, strStatus);
    *pResult = 0;
}
