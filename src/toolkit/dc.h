#pragma once
#include "toolkit/gbk_string.h"
#include "toolkit/gdi_objects.h"

class CWnd;

// A device context. One that it still holds is deleted with it; those of windows (window_dc.h) give theirs
// back instead.
class PANELKIT_API CDC : public CObject
{
    DECLARE_DYNAMIC(CDC)
public:
    CDC() = default;
    ~CDC() override { DeleteDC(); }

    HDC m_hDC = nullptr;
    HDC m_hAttribDC = nullptr;
    HDC GetSafeHdc() const { return m_hDC; }
    operator HDC() const { return m_hDC; }
    BOOL Attach(HDC dc); // FALSE: null
    HDC Detach();
    static CDC* FromHandle(HDC dc);     // temporary object; null for a null handle
    BOOL CreateCompatibleDC(CDC* like); // null: like the screen
    BOOL CreateDC(LPCSTR driver, LPCSTR device, LPCSTR output, const void* mode);
    BOOL DeleteDC();
    int SaveDC() { return ::SaveDC(m_hDC); }
    BOOL RestoreDC(int saved) { return ::RestoreDC(m_hDC, saved); }
    int GetDeviceCaps(int index) const { return ::GetDeviceCaps(m_hDC, index); }
    CWnd* GetWindow() const;

    // Each gives what was selected before, as a temporary object; null on failure or a null argument.
    CGdiObject* SelectStockObject(int index);
    CPen* SelectObject(CPen* pen);
    CBrush* SelectObject(CBrush* brush);
    CFont* SelectObject(CFont* font);
    CBitmap* SelectObject(CBitmap* bitmap);
    int SelectObject(CRgn* region);
    CGdiObject* SelectObject(CGdiObject* object);
    CPen* GetCurrentPen() const;
    CBrush* GetCurrentBrush() const;
    CFont* GetCurrentFont() const;
    CBitmap* GetCurrentBitmap() const;

    COLORREF SetBkColor(COLORREF color) { return ::SetBkColor(m_hDC, color); }
    COLORREF GetBkColor() const { return ::GetBkColor(m_hDC); }
    int SetBkMode(int mode) { return ::SetBkMode(m_hDC, mode); }
    int GetBkMode() const { return ::GetBkMode(m_hDC); }
    COLORREF SetTextColor(COLORREF color) { return ::SetTextColor(m_hDC, color); }
    COLORREF GetTextColor() const { return ::GetTextColor(m_hDC); }
    UINT SetTextAlign(UINT flags) { return ::SetTextAlign(m_hDC, flags); }
    int SetROP2(int mode) { return ::SetROP2(m_hDC, mode); }
    int SetStretchBltMode(int mode) { return ::SetStretchBltMode(m_hDC, mode); }
    int SetPolyFillMode(int mode) { return ::SetPolyFillMode(m_hDC, mode); }
    int SetMapMode(int mode) { return ::SetMapMode(m_hDC, mode); }
    CPoint SetViewportOrg(int x, int y);
    CPoint SetWindowOrg(int x, int y);
    CPoint SetBrushOrg(int x, int y);
    void LPtoDP(LPPOINT points, int count = 1) const { ::LPtoDP(m_hDC, points, count); }
    void DPtoLP(LPPOINT points, int count = 1) const { ::DPtoLP(m_hDC, points, count); }

    int SelectClipRgn(CRgn* region); // null: no clipping
    int SelectClipRgn(CRgn* region, int mode);
    int GetClipBox(LPRECT box) const { return ::GetClipBox(m_hDC, box); }
    int IntersectClipRect(LPCRECT r)
    {
        return ::IntersectClipRect(m_hDC, r->left, r->top, r->right, r->bottom);
    }
    int ExcludeClipRect(LPCRECT r) { return ::ExcludeClipRect(m_hDC, r->left, r->top, r->right, r->bottom); }
    BOOL RectVisible(LPCRECT rect) const { return ::RectVisible(m_hDC, rect); }
    BOOL PtVisible(int x, int y) const { return ::PtVisible(m_hDC, x, y); }

    CPoint MoveTo(int x, int y);
    CPoint MoveTo(POINT to) { return MoveTo(to.x, to.y); }
    BOOL LineTo(int x, int y) { return ::LineTo(m_hDC, x, y); }
    BOOL LineTo(POINT to) { return LineTo(to.x, to.y); }
    CPoint GetCurrentPosition() const;
    BOOL Polyline(const POINT* points, int count) { return ::Polyline(m_hDC, points, count); }
    BOOL Polygon(const POINT* points, int count) { return ::Polygon(m_hDC, points, count); }
    BOOL Rectangle(int l, int t, int r, int b) { return ::Rectangle(m_hDC, l, t, r, b); }
    BOOL Rectangle(LPCRECT r) { return Rectangle(r->left, r->top, r->right, r->bottom); }
    BOOL RoundRect(LPCRECT r, POINT c)
    {
        return ::RoundRect(m_hDC, r->left, r->top, r->right, r->bottom, c.x, c.y);
    }
    BOOL Ellipse(int l, int t, int r, int b) { return ::Ellipse(m_hDC, l, t, r, b); }
    BOOL Ellipse(LPCRECT r) { return Ellipse(r->left, r->top, r->right, r->bottom); }
    BOOL Arc(LPCRECT r, POINT from, POINT to)
    {
        return ::Arc(m_hDC, r->left, r->top, r->right, r->bottom, from.x, from.y, to.x, to.y);
    }
    void FillRect(LPCRECT rect, CBrush* brush) { ::FillRect(m_hDC, rect, *brush); }
    void FrameRect(LPCRECT rect, CBrush* brush) { ::FrameRect(m_hDC, rect, *brush); }
    void InvertRect(LPCRECT rect) { ::InvertRect(m_hDC, rect); }
    // Both set the background colour as a side effect.
    void FillSolidRect(LPCRECT rect, COLORREF color);
    void FillSolidRect(int x, int y, int cx, int cy, COLORREF color);
    void Draw3dRect(LPCRECT rect, COLORREF topLeft, COLORREF bottomRight);
    BOOL DrawEdge(LPRECT rect, UINT edge, UINT flags) { return ::DrawEdge(m_hDC, rect, edge, flags); }
    BOOL DrawFrameControl(LPRECT rect, UINT type, UINT state)
    {
        return ::DrawFrameControl(m_hDC, rect, type, state);
    }
    void DrawFocusRect(LPCRECT rect) { ::DrawFocusRect(m_hDC, rect); }
    BOOL DrawIcon(int x, int y, HICON icon) { return ::DrawIcon(m_hDC, x, y, icon); }
    BOOL FillRgn(CRgn* region, CBrush* brush) { return ::FillRgn(m_hDC, *region, *brush); }
    BOOL PaintRgn(CRgn* region) { return ::PaintRgn(m_hDC, *region); }
    BOOL PatBlt(int x, int y, int cx, int cy, DWORD code) { return ::PatBlt(m_hDC, x, y, cx, cy, code); }
    BOOL BitBlt(int x, int y, int cx, int cy, CDC* from, int fromX, int fromY, DWORD code);
    BOOL StretchBlt(
        int x, int y, int cx, int cy, CDC* from, int fromX, int fromY, int fromCx, int fromCy, DWORD code);
    COLORREF GetPixel(int x, int y) const { return ::GetPixel(m_hDC, x, y); }
    COLORREF GetPixel(POINT at) const { return GetPixel(at.x, at.y); }
    COLORREF SetPixel(int x, int y, COLORREF color) { return ::SetPixel(m_hDC, x, y, color); }
    COLORREF SetPixel(POINT at, COLORREF color) { return SetPixel(at.x, at.y, color); }
    BOOL SetPixelV(int x, int y, COLORREF color) { return ::SetPixelV(m_hDC, x, y, color); }

    // Texts are GBK; count in bytes, -1: up to the zero.
    BOOL TextOut(int x, int y, LPCSTR text, int count = -1);
    BOOL ExtTextOut(int x, int y, UINT options, LPCRECT rect, LPCSTR text, UINT count, INT* widths);
    int DrawText(LPCSTR text, int count, LPRECT rect, UINT format);
    int DrawText(const CString& text, LPRECT rect, UINT format) { return DrawText(text, -1, rect, format); }
    CSize GetTextExtent(LPCSTR text, int count = -1) const;
    BOOL GetTextMetrics(TEXTMETRICW* metrics) const { return ::GetTextMetricsW(m_hDC, metrics); }

private:
    HGDIOBJ selectM(const CGdiObject* object);
};

// Holds another's context for the length of one call.
class AfxDcLoan : public CDC
{
public:
    explicit AfxDcLoan(HDC dc) { Attach(dc); }
    ~AfxDcLoan() override { Detach(); }
};
