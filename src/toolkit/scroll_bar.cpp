#include "toolkit/scroll_bar.h"
#include <algorithm>

IMPLEMENT_DYNAMIC(CScrollBar, CWnd)

BOOL CScrollBar::Create(DWORD style, const RECT& rect, CWnd* parent, UINT id)
{
    return CWnd::Create("ScrollBar", nullptr, style, rect, parent, id);
}

BOOL CScrollBar::SetScrollInfo(LPSCROLLINFO info, BOOL redraw)
{
    info->cbSize = sizeof *info;
    ::SetScrollInfo(m_hWnd, SB_CTL, info, redraw);
    return m_hWnd != nullptr;
}

BOOL CScrollBar::GetScrollInfo(LPSCROLLINFO info, UINT mask)
{
    info->cbSize = sizeof *info;
    info->fMask = mask;
    return ::GetScrollInfo(m_hWnd, SB_CTL, info);
}

int CScrollBar::GetScrollLimit()
{
    SCROLLINFO info = {};
    if (!GetScrollInfo(&info, SIF_RANGE | SIF_PAGE)) {
        return 0;
    }
    return info.nMax - std::max(static_cast<int>(info.nPage) - 1, 0);
}

BOOL CScrollBar::GetScrollBarInfo(PSCROLLBARINFO info) const
{
    info->cbSize = sizeof *info;
    return ::GetScrollBarInfo(m_hWnd, OBJID_CLIENT, info);
}
