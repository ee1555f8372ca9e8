#include "toolkit/toolkit.h"

#include "part_controls.h"

struct SortBy
{
    CStringArray* pTexts;
    BOOL bNumbers;
    BOOL bAscending;
};

const int LOW_NUMBER = 10;
const COLORREF LOW_COLOUR = RGB(192, 0, 0);

CPartList::CPartList()
    : m_nSortColumn(-1)
    , m_bAscending(TRUE)
{
}

BEGIN_MESSAGE_MAP(CPartList, CListCtrl)
ON_NOTIFY_REFLECT(NM_CUSTOMDRAW, &CPartList::OnCustomDraw)
ON_NOTIFY_REFLECT_EX(LVN_COLUMNCLICK, &CPartList::OnColumnClick)
END_MESSAGE_MAP()

void CPartList::PreSubclassWindow()
{
    CListCtrl::PreSubclassWindow();
    SetExtendedStyle(GetExtendedStyle() | LVS_EX_FULLROWSELECT | LVS_EX_GRIDLINES);
    InsertColumn(0, _T("Code"), LVCFMT_LEFT, 90);
    InsertColumn(1, _T("Number"), LVCFMT_RIGHT, 60);
    InsertColumn(2, _T("Price"), LVCFMT_RIGHT, 60);
}

void CPartList::AddPart(LPCTSTR pszCode, int nNumber, double dPrice)
{
    CString strText;
    const int nItem = InsertItem(GetItemCount(), pszCode);
    strText.Format(_T("%d"), nNumber);
    SetItemText(nItem, 1, strText);
    strText.Format(_T("%.2f"), dPrice);
    SetItemText(nItem, 2, strText);
    SetItemData(nItem, nNumber);
}

void CPartList::OnCustomDraw(NMHDR* pNMHDR, LRESULT* pResult)
{
    NMLVCUSTOMDRAW* pDraw = reinterpret_cast<NMLVCUSTOMDRAW*>(pNMHDR);
    *pResult = CDRF_DODEFAULT;
    switch (pDraw->nmcd.dwDrawStage) {
    case CDDS_PREPAINT:
        *pResult = CDRF_NOTIFYITEMDRAW;
        break;
    case CDDS_ITEMPREPAINT:
        *pResult = CDRF_NOTIFYSUBITEMDRAW;
        break;
    case CDDS_ITEMPREPAINT | CDDS_SUBITEM:
        pDraw->clrText
            = pDraw->iSubItem == 1 && GetItemData(static_cast<int>(pDraw->nmcd.dwItemSpec)) < LOW_NUMBER
            ? LOW_COLOUR
            : ::GetSysColor(COLOR_WINDOWTEXT);
        pDraw->clrTextBk = pDraw->nmcd.dwItemSpec % 2 ? RGB(232, 240, 255) : RGB(255, 255, 255);
        *pResult = CDRF_NEWFONT;
        break;
    }
}

int CALLBACK CPartList::Compare(LPARAM lParam1, LPARAM lParam2, LPARAM lParamSort)
{
    const SortBy* pSort = reinterpret_cast<SortBy*>(lParamSort);
    const CString& str1 = pSort->pTexts->ElementAt(lParam1);
    const CString& str2 = pSort->pTexts->ElementAt(lParam2);
    int nResult = str1.CompareNoCase(str2);
    if (pSort->bNumbers) {
        const double d1 = _tcstod(str1, NULL), d2 = _tcstod(str2, NULL);
        nResult = d1 < d2 ? -1 : d1 > d2;
    }
    return pSort->bAscending ? nResult : -nResult;
}

// FALSE: the dialog hears of it too.
BOOL CPartList::OnColumnClick(NMHDR* pNMHDR, LRESULT* pResult)
{
    const NM_LISTVIEW* pNMListView = reinterpret_cast<NM_LISTVIEW*>(pNMHDR);
    m_bAscending = pNMListView->iSubItem == m_nSortColumn ? !m_bAscending : TRUE;
    m_nSortColumn = pNMListView->iSubItem;
    // While the items are sorted their indices change: what is compared are copies.
    const int nCount = GetItemCount();
    CArray<DWORD_PTR, DWORD_PTR> numbers;
    CStringArray texts;
    for (int i = 0; i < nCount; i++) {
        numbers.Add(GetItemData(i));
        texts.Add(GetItemText(i, m_nSortColumn));
        SetItemData(i, i);
    }
    SortBy sort = { &texts, m_nSortColumn > 0, m_bAscending };
    SortItems(Compare, reinterpret_cast<LPARAM>(&sort));
    for (int i = 0; i < nCount; i++) {
        SetItemData(i, numbers[static_cast<int>(GetItemData(i))]);
    }
    *pResult = 0;
    return FALSE;
}

CNumberEdit::CNumberEdit()
    : m_nMin(0)
    , m_nMax(INT_MAX)
    , m_brGood(RGB(255, 255, 255))
    , m_brBad(RGB(255, 220, 160))
{
}

BEGIN_MESSAGE_MAP(CNumberEdit, CEdit)
ON_WM_CHAR()
ON_WM_CTLCOLOR_REFLECT()
ON_CONTROL_REFLECT(EN_CHANGE, &CNumberEdit::OnChange)
ON_MESSAGE(WM_PASTE, &CNumberEdit::OnPaste)
END_MESSAGE_MAP()

void CNumberEdit::SetRange(int nMin, int nMax)
{
    m_nMin = nMin;
    m_nMax = nMax;
    if (GetSafeHwnd() != NULL) {
        Invalidate();
    }
}

BOOL CNumberEdit::GetNumber(int& nNumber) const
{
    CString strText;
    GetWindowText(strText);
    nNumber = _ttoi(strText);
    return !strText.IsEmpty() && nNumber >= m_nMin && nNumber <= m_nMax;
}

void CNumberEdit::OnChar(UINT nChar, UINT nRepCnt, UINT nFlags)
{
    if (_istdigit(static_cast<TCHAR>(nChar)) || nChar < _T(' ')) { // Backspace, Ctrl+C and the like.
        CEdit::OnChar(nChar, nRepCnt, nFlags);
    } else {
        ::MessageBeep(0xFFFFFFFF);
    }
}

HBRUSH CNumberEdit::CtlColor(CDC* pDC, UINT /*nCtlColor*/)
{
    int nNumber;
    if (GetNumber(nNumber)) {
        pDC->SetBkColor(RGB(255, 255, 255));
        return m_brGood;
    }
    pDC->SetBkColor(RGB(255, 220, 160));
    return m_brBad;
}

void CNumberEdit::OnChange()
{
    Invalidate(); // The colour is that of the whole field.
}

LRESULT CNumberEdit::OnPaste(WPARAM /*wParam*/, LPARAM /*lParam*/)
{
    if (!::IsClipboardFormatAvailable(CF_UNICODETEXT) || !OpenClipboard()) {
        return 0;
    }
    CString strText;
    const HANDLE hData = ::GetClipboardData(CF_UNICODETEXT);
    if (hData != NULL) {
        strText = static_cast<LPCWSTR>(::GlobalLock(hData));
        ::GlobalUnlock(hData);
    }
    ::CloseClipboard();
    if (strText.SpanIncluding(_T("0123456789")) == strText) {
        ReplaceSel(strText, TRUE);
    }
    return 0;
}

CFaceButton::CFaceButton()
    : m_crFace(RGB(200, 220, 255))
{
}

void CFaceButton::PreSubclassWindow()
{
    CButton::PreSubclassWindow();
    ModifyStyle(0x0F, BS_OWNERDRAW);
}

void CFaceButton::SetFace(COLORREF crFace)
{
    m_crFace = crFace;
    Invalidate();
}

void CFaceButton::DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct)
{
    CDC* pDC = CDC::FromHandle(lpDrawItemStruct->hDC);
    CRect rect = lpDrawItemStruct->rcItem;
    const UINT nState = lpDrawItemStruct->itemState;
    const int nSaved = pDC->SaveDC();

    CBrush brFace(nState & ODS_DISABLED ? ::GetSysColor(COLOR_3DFACE) : m_crFace);
    CPen pen(PS_SOLID, nState & ODS_FOCUS ? 2 : 1, RGB(64, 64, 64));
    pDC->FillSolidRect(rect, ::GetSysColor(COLOR_3DFACE));
    pDC->SelectObject(&brFace);
    pDC->SelectObject(&pen);
    pDC->RoundRect(rect, CPoint(8, 8));

    CString strText;
    GetWindowText(strText);
    if (nState & ODS_SELECTED) {
        rect.OffsetRect(1, 1);
    }
    pDC->SetBkMode(TRANSPARENT);
    pDC->SetTextColor(::GetSysColor(nState & ODS_DISABLED ? COLOR_GRAYTEXT : COLOR_BTNTEXT));
    pDC->DrawText(strText, &rect, DT_CENTER | DT_VCENTER | DT_SINGLELINE);
    pDC->RestoreDC(nSaved);
}

void CColourCombo::PreSubclassWindow()
{
    CComboBox::PreSubclassWindow();
    // The dialog made it before there was anyone to measure.
    SetItemHeight(0, 20);
    SetItemHeight(-1, 16);
}

int CColourCombo::AddColour(LPCTSTR pszName, COLORREF crColour)
{
    Item* pItem = new Item;
    pItem->strName = pszName;
    pItem->crColour = crColour;
    return AddString(reinterpret_cast<LPCTSTR>(pItem));
}

COLORREF CColourCombo::GetColour() const
{
    const int nIndex = GetCurSel();
    return nIndex == CB_ERR ? CLR_INVALID : reinterpret_cast<Item*>(GetItemData(nIndex))->crColour;
}

CString CColourCombo::GetColourName() const
{
    const int nIndex = GetCurSel();
    return nIndex == CB_ERR ? CString() : static_cast<Item*>(GetItemDataPtr(nIndex))->strName;
}

void CColourCombo::MeasureItem(LPMEASUREITEMSTRUCT lpMeasureItemStruct)
{
    lpMeasureItemStruct->itemHeight = 20;
}

void CColourCombo::DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct)
{
    if (lpDrawItemStruct->itemID == static_cast<UINT>(-1)) {
        return;
    }
    const Item* pItem = reinterpret_cast<Item*>(lpDrawItemStruct->itemData);
    CDC dc;
    dc.Attach(lpDrawItemStruct->hDC);
    const CRect rect(lpDrawItemStruct->rcItem);
    const bool bSelected = (lpDrawItemStruct->itemState & ODS_SELECTED) != 0;
    const COLORREF crOldText
        = dc.SetTextColor(::GetSysColor(bSelected ? COLOR_HIGHLIGHTTEXT : COLOR_WINDOWTEXT));
    const COLORREF crOldBk = dc.GetBkColor();
    dc.FillSolidRect(&rect, ::GetSysColor(bSelected ? COLOR_HIGHLIGHT : COLOR_WINDOW));

    CRect rectColour(rect);
    rectColour.DeflateRect(2, 2);
    rectColour.right = rectColour.left + 2 * rectColour.Height();
    CBrush brush(pItem->crColour);
    dc.FillRect(&rectColour, &brush);
    dc.FrameRect(&rectColour, CBrush::FromHandle(static_cast<HBRUSH>(::GetStockObject(BLACK_BRUSH))));

    CRect rectText(rectColour.right + 4, rect.top, rect.right, rect.bottom);
    dc.DrawText(pItem->strName, &rectText, DT_LEFT | DT_VCENTER | DT_SINGLELINE);
    dc.SetTextColor(crOldText);
    dc.SetBkColor(crOldBk);
    dc.Detach();
}

int CColourCombo::CompareItem(LPCOMPAREITEMSTRUCT lpCompareItemStruct)
{
    const COLORREF cr1 = reinterpret_cast<Item*>(lpCompareItemStruct->itemData1)->crColour;
    const COLORREF cr2 = reinterpret_cast<Item*>(lpCompareItemStruct->itemData2)->crColour;
    const int n1 = GetRValue(cr1) + GetGValue(cr1) + GetBValue(cr1);
    const int n2 = GetRValue(cr2) + GetGValue(cr2) + GetBValue(cr2);
    return n1 < n2 ? -1 : n1 > n2 ? 1 : 0;
}

void CColourCombo::DeleteItem(LPDELETEITEMSTRUCT lpDeleteItemStruct)
{
    delete reinterpret_cast<Item*>(lpDeleteItemStruct->itemData);
    CComboBox::DeleteItem(lpDeleteItemStruct);
}
