#include "toolkit/dc.h"
#include <cstdlib>

// Where things are drawn: origins, extents, clipping.

CPoint CDC::GetDCOrg() const
{
    CPoint now;
    ::GetDCOrgEx(m_hDC, &now);
    return now;
}

CPoint CDC::SetViewportOrg(int x, int y)
{
    CPoint old;
    ::SetViewportOrgEx(m_hDC, x, y, &old);
    return old;
}

CPoint CDC::OffsetViewportOrg(int dx, int dy)
{
    CPoint old;
    ::OffsetViewportOrgEx(m_hDC, dx, dy, &old);
    return old;
}

CPoint CDC::GetViewportOrg() const
{
    CPoint now;
    ::GetViewportOrgEx(m_hAttribDC, &now);
    return now;
}

CSize CDC::SetViewportExt(int cx, int cy)
{
    CSize old;
    ::SetViewportExtEx(m_hDC, cx, cy, &old);
    return old;
}

CSize CDC::ScaleViewportExt(int xBy, int xDivisor, int yBy, int yDivisor)
{
    CSize old;
    ::ScaleViewportExtEx(m_hDC, xBy, xDivisor, yBy, yDivisor, &old);
    return old;
}

CSize CDC::GetViewportExt() const
{
    CSize now;
    ::GetViewportExtEx(m_hAttribDC, &now);
    return now;
}

CPoint CDC::SetWindowOrg(int x, int y)
{
    CPoint old;
    ::SetWindowOrgEx(m_hDC, x, y, &old);
    return old;
}

CPoint CDC::OffsetWindowOrg(int dx, int dy)
{
    CPoint old;
    ::OffsetWindowOrgEx(m_hDC, dx, dy, &old);
    return old;
}

CPoint CDC::GetWindowOrg() const
{
    CPoint now;
    ::GetWindowOrgEx(m_hAttribDC, &now);
    return now;
}

CSize CDC::SetWindowExt(int cx, int cy)
{
    CSize old;
    ::SetWindowExtEx(m_hDC, cx, cy, &old);
    return old;
}

CSize CDC::ScaleWindowExt(int xBy, int xDivisor, int yBy, int yDivisor)
{
    CSize old;
    ::ScaleWindowExtEx(m_hDC, xBy, xDivisor, yBy, yDivisor, &old);
    return old;
}

CSize CDC::GetWindowExt() const
{
    CSize now;
    ::GetWindowExtEx(m_hAttribDC, &now);
    return now;
}

CPoint CDC::SetBrushOrg(int x, int y)
{
    CPoint old;
    ::SetBrushOrgEx(m_hDC, x, y, &old);
    return old;
}

CPoint CDC::GetBrushOrg() const
{
    CPoint now;
    ::GetBrushOrgEx(m_hAttribDC, &now);
    return now;
}

void CDC::LPtoDP(LPSIZE size) const
{
    CRect rect(CPoint(0, 0), *size);
    LPtoDP(&rect);
    *size = CSize(std::abs(rect.Width()), std::abs(rect.Height()));
}

void CDC::DPtoLP(LPSIZE size) const
{
    CRect rect(CPoint(0, 0), *size);
    DPtoLP(&rect);
    *size = CSize(std::abs(rect.Width()), std::abs(rect.Height()));
}

int CDC::SelectClipRgn(CRgn* region)
{
    return ::SelectClipRgn(m_hDC, handleM<HRGN>(region));
}

int CDC::SelectClipRgn(CRgn* region, int mode)
{
    return ::ExtSelectClipRgn(m_hDC, handleM<HRGN>(region), mode);
}
