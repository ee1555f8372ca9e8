// Controls that draw or filter for themselves.
#pragma once

// A list of parts: code, number, price. Few ones are drawn red; a click on a column sorts by it.
class CPartList : public CListCtrl
{
public:
    CPartList();
    void AddPart(LPCTSTR pszCode, int nNumber, double dPrice);
    int GetSortColumn() const { return m_nSortColumn; }

protected:
    virtual void PreSubclassWindow();
    afx_msg void OnCustomDraw(NMHDR* pNMHDR, LRESULT* pResult);
    afx_msg BOOL OnColumnClick(NMHDR* pNMHDR, LRESULT* pResult);
    DECLARE_MESSAGE_MAP()

private:
    static int CALLBACK Compare(LPARAM lParam1, LPARAM lParam2, LPARAM lParamSort);

    int m_nSortColumn;
    BOOL m_bAscending;
};

// An edit that takes digits alone and shows by its colour whether the number is in its range.
class CNumberEdit : public CEdit
{
public:
    CNumberEdit();
    void SetRange(int nMin, int nMax);
    BOOL GetNumber(int& nNumber) const;

protected:
    afx_msg void OnChar(UINT nChar, UINT nRepCnt, UINT nFlags);
    afx_msg HBRUSH CtlColor(CDC* pDC, UINT nCtlColor);
    afx_msg void OnChange();
    afx_msg LRESULT OnPaste(WPARAM wParam, LPARAM lParam);
    DECLARE_MESSAGE_MAP()

private:
    int m_nMin;
    int m_nMax;
    CBrush m_brGood;
    CBrush m_brBad;
};

// An owner drawn button with a rounded face.
class CFaceButton : public CButton
{
public:
    CFaceButton();
    void SetFace(COLORREF crFace);

protected:
    virtual void PreSubclassWindow();
    virtual void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct);

private:
    COLORREF m_crFace;
};

// A combo box of colours, the brightest last. Without CBS_HASSTRINGS it holds what the items are, not their
// names.
class CColourCombo : public CComboBox
{
public:
    int AddColour(LPCTSTR pszName, COLORREF crColour);
    COLORREF GetColour() const;
    CString GetColourName() const;

protected:
    virtual void PreSubclassWindow();
    virtual void DrawItem(LPDRAWITEMSTRUCT lpDrawItemStruct);
    virtual void MeasureItem(LPMEASUREITEMSTRUCT lpMeasureItemStruct);
    virtual int CompareItem(LPCOMPAREITEMSTRUCT lpCompareItemStruct);
    virtual void DeleteItem(LPDELETEITEMSTRUCT lpDeleteItemStruct);

private:
    struct Item
    {
        CString strName;
        COLORREF crColour;
    };
};
