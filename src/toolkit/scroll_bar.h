#pragma once
#include "toolkit/control_message.h"

// A scroll bar that is a window of its own; what CWnd says of a window's bars is here without naming one.
class PANELKIT_API CScrollBar : public CWnd
{
    DECLARE_DYNAMIC(CScrollBar)
public:
    BOOL Create(DWORD style, const RECT& rect, CWnd* parent, UINT id);
    int GetScrollPos() const { return ::GetScrollPos(m_hWnd, SB_CTL); }
    int SetScrollPos(int at, BOOL redraw = TRUE) { return ::SetScrollPos(m_hWnd, SB_CTL, at, redraw); }
    void GetScrollRange(LPINT low, LPINT high) const { ::GetScrollRange(m_hWnd, SB_CTL, low, high); }
    void SetScrollRange(int low, int high, BOOL redraw = TRUE)
    {
        ::SetScrollRange(m_hWnd, SB_CTL, low, high, redraw);
    }
    void ShowScrollBar(BOOL show = TRUE) { ::ShowScrollBar(m_hWnd, SB_CTL, show); }
    BOOL EnableScrollBar(UINT arrows = ESB_ENABLE_BOTH) { return ::EnableScrollBar(m_hWnd, SB_CTL, arrows); }
    // The size of the structure is filled in.
    BOOL SetScrollInfo(LPSCROLLINFO info, BOOL redraw = TRUE);
    BOOL GetScrollInfo(LPSCROLLINFO info, UINT mask = SIF_ALL);
    int GetScrollLimit(); // the largest position that a page of this size allows
    BOOL GetScrollBarInfo(PSCROLLBARINFO info) const;
};
