#include "toolkit/wnd.h"

CScrollBar* WndRelationsCL::GetScrollBarCtrl(int) const
{
    return nullptr;
}

// The window and the number by which the system knows a bar: the window's own, or the control that stands for
// it.
WndRelationsCL::BarCL WndRelationsCL::barM(int bar) const
{
    const HWND control = scrollBarHandleM(bar);
    return control == nullptr ? BarCL { m_hWnd, bar } : BarCL { control, SB_CTL };
}

int WndRelationsCL::GetScrollPos(int bar) const
{
    const BarCL at = barM(bar);
    return ::GetScrollPos(at.hWnd, at.number);
}

int WndRelationsCL::SetScrollPos(int bar, int position, BOOL redraw)
{
    const BarCL at = barM(bar);
    return ::SetScrollPos(at.hWnd, at.number, position, redraw);
}

void WndRelationsCL::GetScrollRange(int bar, LPINT low, LPINT high) const
{
    const BarCL at = barM(bar);
    ::GetScrollRange(at.hWnd, at.number, low, high);
}

void WndRelationsCL::SetScrollRange(int bar, int low, int high, BOOL redraw)
{
    const BarCL at = barM(bar);
    ::SetScrollRange(at.hWnd, at.number, low, high, redraw);
}

BOOL WndRelationsCL::GetScrollInfo(int bar, LPSCROLLINFO info, UINT mask)
{
    const BarCL at = barM(bar);
    info->cbSize = sizeof *info;
    info->fMask = mask;
    return ::GetScrollInfo(at.hWnd, at.number, info);
}

BOOL WndRelationsCL::SetScrollInfo(int bar, LPSCROLLINFO info, BOOL redraw)
{
    const BarCL at = barM(bar);
    info->cbSize = sizeof *info;
    ::SetScrollInfo(at.hWnd, at.number, info, redraw);
    return TRUE;
}

int WndRelationsCL::GetScrollLimit(int bar)
{
    SCROLLINFO info = {};
    if (!GetScrollInfo(bar, &info, SIF_PAGE | SIF_RANGE)) {
        return 0;
    }
    const int page = static_cast<int>(info.nPage);
    return page > 1 ? info.nMax - (page - 1) : info.nMax;
}

void WndRelationsCL::EnableScrollBarCtrl(int bar, BOOL enable)
{
    const auto enableM = [this, enable](int one) {
        if (const HWND control = scrollBarHandleM(one)) {
            ::EnableWindow(control, enable);
        } else {
            EnableScrollBar(one, enable ? ESB_ENABLE_BOTH : ESB_DISABLE_BOTH);
        }
    };
    if (bar == SB_BOTH) {
        enableM(SB_HORZ);
        enableM(SB_VERT);
    } else {
        enableM(bar);
    }
}

int WndRelationsCL::ScrollWindowEx(
    int dx, int dy, LPCRECT rect, LPCRECT clip, CRgn* updateRegion, LPRECT update, UINT flags)
{
    return ::ScrollWindowEx(m_hWnd, dx, dy, rect, clip,
        updateRegion == nullptr ? nullptr : static_cast<HRGN>(*updateRegion), update, flags);
}
