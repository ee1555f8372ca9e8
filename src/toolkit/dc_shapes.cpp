#include "toolkit/dc.h"

namespace {

HDC handleOfM(CDC* dc)
{
    return dc == nullptr ? nullptr : dc->m_hDC;
}

} // namespace

CPoint CDC::MoveTo(int x, int y)
{
    CPoint old;
    ::MoveToEx(m_hDC, x, y, &old);
    return old;
}

CPoint CDC::GetCurrentPosition() const
{
    CPoint at;
    ::GetCurrentPositionEx(m_hDC, &at);
    return at;
}

BOOL CDC::PolyPolyline(const POINT* points, const DWORD* counts, int lines)
{
    return ::PolyPolyline(m_hDC, points, counts, static_cast<DWORD>(lines));
}

BOOL CDC::PolyBezierTo(const POINT* points, int count)
{
    return ::PolyBezierTo(m_hDC, points, static_cast<DWORD>(count));
}

BOOL CDC::Arc(int l, int t, int r, int b, int x1, int y1, int x2, int y2)
{
    return ::Arc(m_hDC, l, t, r, b, x1, y1, x2, y2);
}

BOOL CDC::Arc(LPCRECT rect, POINT from, POINT to)
{
    return Arc(rect->left, rect->top, rect->right, rect->bottom, from.x, from.y, to.x, to.y);
}

BOOL CDC::ArcTo(int l, int t, int r, int b, int x1, int y1, int x2, int y2)
{
    return ::ArcTo(m_hDC, l, t, r, b, x1, y1, x2, y2);
}

BOOL CDC::ArcTo(LPCRECT rect, POINT from, POINT to)
{
    return ArcTo(rect->left, rect->top, rect->right, rect->bottom, from.x, from.y, to.x, to.y);
}

BOOL CDC::Chord(int l, int t, int r, int b, int x1, int y1, int x2, int y2)
{
    return ::Chord(m_hDC, l, t, r, b, x1, y1, x2, y2);
}

BOOL CDC::Chord(LPCRECT rect, POINT from, POINT to)
{
    return Chord(rect->left, rect->top, rect->right, rect->bottom, from.x, from.y, to.x, to.y);
}

BOOL CDC::Pie(int l, int t, int r, int b, int x1, int y1, int x2, int y2)
{
    return ::Pie(m_hDC, l, t, r, b, x1, y1, x2, y2);
}

BOOL CDC::Pie(LPCRECT rect, POINT from, POINT to)
{
    return Pie(rect->left, rect->top, rect->right, rect->bottom, from.x, from.y, to.x, to.y);
}

BOOL CDC::AngleArc(int x, int y, int radius, float startAngle, float sweepAngle)
{
    return ::AngleArc(m_hDC, x, y, static_cast<DWORD>(radius), startAngle, sweepAngle);
}

void CDC::FillSolidRect(LPCRECT rect, COLORREF color)
{
    // An opaque text of no characters fills without making a brush.
    ::SetBkColor(m_hDC, color);
    ::ExtTextOutW(m_hDC, 0, 0, ETO_OPAQUE, rect, nullptr, 0, nullptr);
}

void CDC::FillSolidRect(int x, int y, int cx, int cy, COLORREF color)
{
    FillSolidRect(CRect(x, y, x + cx, y + cy), color);
}

void CDC::Draw3dRect(LPCRECT rect, COLORREF topLeft, COLORREF bottomRight)
{
    Draw3dRect(
        rect->left, rect->top, rect->right - rect->left, rect->bottom - rect->top, topLeft, bottomRight);
}

void CDC::Draw3dRect(int x, int y, int cx, int cy, COLORREF topLeft, COLORREF bottomRight)
{
    FillSolidRect(x, y, cx - 1, 1, topLeft);
    FillSolidRect(x, y, 1, cy - 1, topLeft);
    FillSolidRect(x + cx - 1, y, 1, cy, bottomRight);
    FillSolidRect(x, y + cy - 1, cx, 1, bottomRight);
}

BOOL CDC::DrawState(CPoint at, CSize size, HBITMAP bitmap, UINT flags, HBRUSH brush)
{
    return ::DrawStateW(m_hDC, brush, nullptr, reinterpret_cast<LPARAM>(bitmap), 0, at.x, at.y, size.cx,
        size.cy, flags | DST_BITMAP);
}

BOOL CDC::DrawState(CPoint at, CSize size, CBitmap* bitmap, UINT flags, CBrush* brush)
{
    return DrawState(at, size, handleM<HBITMAP>(bitmap), flags, handleM<HBRUSH>(brush));
}

BOOL CDC::DrawState(CPoint at, CSize size, HICON icon, UINT flags, HBRUSH brush)
{
    return ::DrawStateW(m_hDC, brush, nullptr, reinterpret_cast<LPARAM>(icon), 0, at.x, at.y, size.cx,
        size.cy, flags | DST_ICON);
}

BOOL CDC::DrawState(CPoint at, CSize size, HICON icon, UINT flags, CBrush* brush)
{
    return DrawState(at, size, icon, flags, handleM<HBRUSH>(brush));
}

BOOL CDC::DrawState(CPoint at, CSize size, LPCSTR text, UINT flags, BOOL hasPrefix, int count, HBRUSH brush)
{
    const std::wstring wide = GbkToWide(text, count == 0 ? -1 : count);
    return DrawState(at, size, wide.c_str(), flags, hasPrefix, 0, brush);
}

BOOL CDC::DrawState(CPoint at, CSize size, LPCWSTR text, UINT flags, BOOL hasPrefix, int count, HBRUSH brush)
{
    return ::DrawStateW(m_hDC, brush, nullptr, reinterpret_cast<LPARAM>(text), static_cast<WPARAM>(count),
        at.x, at.y, size.cx, size.cy, flags | static_cast<UINT>(hasPrefix ? DST_PREFIXTEXT : DST_TEXT));
}

BOOL CDC::FillRgn(CRgn* region, CBrush* brush)
{
    return ::FillRgn(m_hDC, handleM<HRGN>(region), handleM<HBRUSH>(brush));
}

BOOL CDC::FrameRgn(CRgn* region, CBrush* brush, int width, int height)
{
    return ::FrameRgn(m_hDC, handleM<HRGN>(region), handleM<HBRUSH>(brush), width, height);
}

BOOL CDC::BitBlt(int x, int y, int cx, int cy, CDC* from, int fromX, int fromY, DWORD code)
{
    return ::BitBlt(m_hDC, x, y, cx, cy, handleOfM(from), fromX, fromY, code);
}

BOOL CDC::StretchBlt(
    int x, int y, int cx, int cy, CDC* from, int fromX, int fromY, int fromCx, int fromCy, DWORD code)
{
    HDC source = handleOfM(from);
    return ::StretchBlt(m_hDC, x, y, cx, cy, source, fromX, fromY, fromCx, fromCy, code);
}

BOOL CDC::MaskBlt(int x, int y, int cx, int cy, CDC* from, int fromX, int fromY, CBitmap& mask, int maskX,
    int maskY, DWORD code)
{
    return ::MaskBlt(m_hDC, x, y, cx, cy, handleOfM(from), fromX, fromY, mask, maskX, maskY, code);
}

BOOL CDC::PlgBlt(
    POINT* corners, CDC* from, int fromX, int fromY, int cx, int cy, CBitmap& mask, int maskX, int maskY)
{
    return ::PlgBlt(m_hDC, corners, handleOfM(from), fromX, fromY, cx, cy, mask, maskX, maskY);
}

// These three are the drawing library's own: others only hand them on.
BOOL CDC::AlphaBlend(int x, int y, int cx, int cy, CDC* from, int fromX, int fromY, int fromCx, int fromCy,
    BLENDFUNCTION blend)
{
    return ::GdiAlphaBlend(m_hDC, x, y, cx, cy, handleOfM(from), fromX, fromY, fromCx, fromCy, blend);
}

BOOL CDC::TransparentBlt(
    int x, int y, int cx, int cy, CDC* from, int fromX, int fromY, int fromCx, int fromCy, UINT transparent)
{
    return ::GdiTransparentBlt(
        m_hDC, x, y, cx, cy, handleOfM(from), fromX, fromY, fromCx, fromCy, transparent);
}

BOOL CDC::GradientFill(TRIVERTEX* corners, ULONG cornerCount, void* mesh, ULONG meshCount, DWORD mode)
{
    return ::GdiGradientFill(m_hDC, corners, cornerCount, mesh, meshCount, mode);
}

BOOL CDC::ScrollDC(int dx, int dy, LPCRECT scroll, LPCRECT clip, CRgn* update, LPRECT updateRect)
{
    return ::ScrollDC(m_hDC, dx, dy, scroll, clip, handleM<HRGN>(update), updateRect);
}

float CDC::GetMiterLimit() const
{
    float limit = 0;
    ::GetMiterLimit(m_hAttribDC, &limit);
    return limit;
}
