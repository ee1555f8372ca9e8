// A grid of cells to choose from, scrolled by rows. Its window class can stand in a dialog template.
#pragma once

#define CELLGRID_CLASSNAME _T("CellGrid")

// Codes of WM_COMMAND and WM_NOTIFY to the parent.
#define CGN_SELCHANGE 1
#define CGN_ACTIVATE 2

struct NMCELLGRID
{
    NMHDR hdr;
    int nCell;
};

class CCellGrid : public CWnd
{
    DECLARE_DYNAMIC(CCellGrid)

public:
    CCellGrid();
    virtual ~CCellGrid();
    BOOL Create(DWORD dwStyle, const RECT& rect, CWnd* pParentWnd, UINT nID);

    void SetCellCount(int nCount);
    int GetCellCount() const { return m_nCount; }
    void SetColumns(int nColumns);
    int GetCurSel() const { return m_nCurrent; }
    int SetCurSel(int nCell);
    // The cells from the first to the last one that the mouse or Shift passed over.
    void GetSelRange(int& nFirst, int& nLast) const;

protected:
    virtual BOOL PreTranslateMessage(MSG* pMsg);
    virtual void DrawCell(CDC* pDC, int nCell, const CRect& rect);

    afx_msg void OnPaint();
    afx_msg BOOL OnEraseBkgnd(CDC* pDC);
    afx_msg void OnSize(UINT nType, int cx, int cy);
    afx_msg void OnLButtonDown(UINT nFlags, CPoint point);
    afx_msg void OnLButtonUp(UINT nFlags, CPoint point);
    afx_msg void OnLButtonDblClk(UINT nFlags, CPoint point);
    afx_msg void OnMouseMove(UINT nFlags, CPoint point);
    afx_msg BOOL OnMouseWheel(UINT nFlags, short zDelta, CPoint pt);
    afx_msg void OnCaptureChanged(CWnd* pWnd);
    afx_msg BOOL OnSetCursor(CWnd* pWnd, UINT nHitTest, UINT message);
    afx_msg void OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags);
    afx_msg UINT OnGetDlgCode();
    afx_msg void OnSetFocus(CWnd* pOldWnd);
    afx_msg void OnKillFocus(CWnd* pNewWnd);
    afx_msg void OnEnable(BOOL bEnable);
    afx_msg void OnVScroll(UINT nSBCode, UINT nPos, CScrollBar* pScrollBar);
    afx_msg LRESULT OnSetFont(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnGetFont(WPARAM wParam, LPARAM lParam);
    DECLARE_MESSAGE_MAP()

private:
    static BOOL RegisterWindowClass();
    CRect GetCellRect(int nCell) const;
    int HitTest(CPoint point) const;
    int GetVisibleRows() const;
    void UpdateScrollBar();
    void ScrollTo(int nTop);
    void UpdateTips();
    void Select(int nCell, BOOL bExtend);
    void Activate();

    int m_nCount;
    int m_nColumns;
    int m_nCurrent;
    int m_nAnchor;
    int m_nTop; // The first row that shows.
    CSize m_sizeCell;
    BOOL m_bDragging;
    CFont* m_pFont;
    CToolTipCtrl m_tip;
};
