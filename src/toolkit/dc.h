#pragma once
#include "toolkit/gbk_string.h"
#include "toolkit/gdi_objects.h"

class CWnd;

// A device context. One that it still holds is deleted with it; those of windows (window_dc.h) give theirs
// back instead. Texts are GBK or wide; a count is of bytes or wide characters, -1: up to the zero. Members
// that do no more than the function of the window system of that name have its results. A null object, brush
// or region is refused where nothing else is said.
class PANELKIT_API CDC : public CObject
{
    DECLARE_DYNAMIC(CDC)
public:
    CDC() = default;
    ~CDC() override;

    HDC m_hDC = nullptr;       // what is drawn to
    HDC m_hAttribDC = nullptr; // what is asked; the same unless set otherwise

    // The handle of what is drawn to; null: none.
    HDC GetSafeHdc() const { return m_hDC; }
    operator HDC() const { return m_hDC; }
    BOOL Attach(HDC dc); // takes it over; FALSE: null
    HDC Detach();        // gives it back, not deleted; null: there was none
    // Another context to draw to, or to ask. It stays the caller's.
    void SetOutputDC(HDC dc) { m_hDC = dc; }
    void SetAttribDC(HDC dc) { m_hAttribDC = dc; }
    void ReleaseOutputDC() { m_hDC = nullptr; } // to have none; it is not deleted
    // The same for what is asked.
    void ReleaseAttribDC() { m_hAttribDC = nullptr; }
    // The object of the calling thread that holds it, else a temporary one; null for a null handle.
    static CDC* FromHandle(HDC dc);
    BOOL CreateCompatibleDC(CDC* like); // null: like the screen
    BOOL CreateDC(LPCSTR driver, LPCSTR device, LPCSTR output, const void* mode);
    BOOL CreateDC(LPCWSTR driver, LPCWSTR device, LPCWSTR output, const void* mode);
    BOOL CreateIC(LPCSTR driver, LPCSTR device, LPCSTR output, const void* mode);
    BOOL DeleteDC();
    int SaveDC() { return ::SaveDC(m_hDC); }
    BOOL RestoreDC(int saved) { return ::RestoreDC(m_hDC, saved); }
    int GetDeviceCaps(int index) const { return ::GetDeviceCaps(m_hAttribDC, index); }
    CWnd* GetWindow() const;
    CPoint GetDCOrg() const;

    // Each gives what was selected before: null on failure or a null argument.
    CGdiObject* SelectStockObject(int index);
    CPen* SelectObject(CPen* pen);
    CBrush* SelectObject(CBrush* brush);
    CFont* SelectObject(CFont* font);
    CBitmap* SelectObject(CBitmap* bitmap);
    int SelectObject(CRgn* region);
    CGdiObject* SelectObject(CGdiObject* object);
    CPalette* SelectPalette(CPalette* palette, BOOL asBackground);
    UINT RealizePalette() { return ::RealizePalette(m_hDC); }

    CPen* GetCurrentPen() const;
    CBrush* GetCurrentBrush() const;
    CFont* GetCurrentFont() const;
    CBitmap* GetCurrentBitmap() const;
    CPalette* GetCurrentPalette() const;

    COLORREF SetBkColor(COLORREF color) { return ::SetBkColor(m_hDC, color); }
    COLORREF GetBkColor() const { return ::GetBkColor(m_hAttribDC); }
    int SetBkMode(int mode) { return ::SetBkMode(m_hDC, mode); }
    int GetBkMode() const { return ::GetBkMode(m_hAttribDC); }
    COLORREF SetTextColor(COLORREF color) { return ::SetTextColor(m_hDC, color); }
    COLORREF GetTextColor() const { return ::GetTextColor(m_hAttribDC); }
    COLORREF SetDCBrushColor(COLORREF color) { return ::SetDCBrushColor(m_hDC, color); }
    COLORREF GetDCBrushColor() const { return ::GetDCBrushColor(m_hAttribDC); }
    COLORREF SetDCPenColor(COLORREF color) { return ::SetDCPenColor(m_hDC, color); }
    COLORREF GetDCPenColor() const { return ::GetDCPenColor(m_hAttribDC); }
    COLORREF GetNearestColor(COLORREF color) const { return ::GetNearestColor(m_hAttribDC, color); }
    int SetROP2(int mode) { return ::SetROP2(m_hDC, mode); }
    int GetROP2() const { return ::GetROP2(m_hAttribDC); }
    int SetStretchBltMode(int mode) { return ::SetStretchBltMode(m_hDC, mode); }
    int GetStretchBltMode() const { return ::GetStretchBltMode(m_hAttribDC); }
    int SetPolyFillMode(int mode) { return ::SetPolyFillMode(m_hDC, mode); }
    int GetPolyFillMode() const { return ::GetPolyFillMode(m_hAttribDC); }
    int SetArcDirection(int direction) { return ::SetArcDirection(m_hDC, direction); }
    int GetArcDirection() const { return ::GetArcDirection(m_hAttribDC); }
    DWORD SetLayout(DWORD layout) { return ::SetLayout(m_hDC, layout); }
    DWORD GetLayout() const { return ::GetLayout(m_hAttribDC); }

    // Origins and extents: each gives the one before.
    int SetMapMode(int mode) { return ::SetMapMode(m_hDC, mode); }
    int GetMapMode() const { return ::GetMapMode(m_hAttribDC); }
    int SetGraphicsMode(int mode) { return ::SetGraphicsMode(m_hDC, mode); }
    int GetGraphicsMode() const { return ::GetGraphicsMode(m_hAttribDC); }
    BOOL SetWorldTransform(const XFORM* form) { return ::SetWorldTransform(m_hDC, form); }
    BOOL GetWorldTransform(XFORM* form) const { return ::GetWorldTransform(m_hAttribDC, form); }
    BOOL ModifyWorldTransform(const XFORM* form, DWORD mode)
    {
        return ::ModifyWorldTransform(m_hDC, form, mode);
    }
    CPoint SetViewportOrg(int x, int y);
    CPoint SetViewportOrg(POINT at) { return SetViewportOrg(at.x, at.y); }
    CPoint OffsetViewportOrg(int dx, int dy);
    CPoint GetViewportOrg() const;
    CSize SetViewportExt(int cx, int cy);
    CSize SetViewportExt(SIZE size) { return SetViewportExt(size.cx, size.cy); }
    CSize ScaleViewportExt(int xBy, int xDivisor, int yBy, int yDivisor);
    CSize GetViewportExt() const;
    CPoint SetWindowOrg(int x, int y);
    CPoint SetWindowOrg(POINT at) { return SetWindowOrg(at.x, at.y); }
    CPoint OffsetWindowOrg(int dx, int dy);
    CPoint GetWindowOrg() const;
    CSize SetWindowExt(int cx, int cy);
    CSize SetWindowExt(SIZE size) { return SetWindowExt(size.cx, size.cy); }
    CSize ScaleWindowExt(int xBy, int xDivisor, int yBy, int yDivisor);
    CSize GetWindowExt() const;
    CPoint SetBrushOrg(int x, int y);
    CPoint SetBrushOrg(POINT at) { return SetBrushOrg(at.x, at.y); }
    CPoint GetBrushOrg() const;
    void LPtoDP(LPPOINT points, int count = 1) const { ::LPtoDP(m_hAttribDC, points, count); }
    void LPtoDP(LPRECT rect) const { LPtoDP(reinterpret_cast<LPPOINT>(rect), 2); }
    void LPtoDP(LPSIZE size) const; // a size has no sign there
    void DPtoLP(LPPOINT points, int count = 1) const { ::DPtoLP(m_hAttribDC, points, count); }
    void DPtoLP(LPRECT rect) const { DPtoLP(reinterpret_cast<LPPOINT>(rect), 2); }
    void DPtoLP(LPSIZE size) const;

    int SelectClipRgn(CRgn* region); // null: no clipping
    int SelectClipRgn(CRgn* region, int mode);
    BOOL SelectClipPath(int mode) { return ::SelectClipPath(m_hDC, mode); }
    int GetClipBox(LPRECT box) const { return ::GetClipBox(m_hAttribDC, box); }
    int IntersectClipRect(int l, int t, int r, int b) { return ::IntersectClipRect(m_hDC, l, t, r, b); }
    int IntersectClipRect(LPCRECT r) { return IntersectClipRect(r->left, r->top, r->right, r->bottom); }
    int ExcludeClipRect(int l, int t, int r, int b) { return ::ExcludeClipRect(m_hDC, l, t, r, b); }
    int ExcludeClipRect(LPCRECT r) { return ExcludeClipRect(r->left, r->top, r->right, r->bottom); }
    int ExcludeUpdateRgn(CWnd* window);
    int OffsetClipRgn(int dx, int dy) { return ::OffsetClipRgn(m_hDC, dx, dy); }
    int OffsetClipRgn(SIZE by) { return OffsetClipRgn(by.cx, by.cy); }
    BOOL RectVisible(LPCRECT rect) const { return ::RectVisible(m_hDC, rect); }
    BOOL PtVisible(int x, int y) const { return ::PtVisible(m_hDC, x, y); }
    BOOL PtVisible(POINT at) const { return PtVisible(at.x, at.y); }

    CPoint MoveTo(int x, int y);
    CPoint MoveTo(POINT to) { return MoveTo(to.x, to.y); }
    BOOL LineTo(int x, int y) { return ::LineTo(m_hDC, x, y); }
    BOOL LineTo(POINT to) { return LineTo(to.x, to.y); }
    CPoint GetCurrentPosition() const;
    BOOL Polyline(const POINT* points, int count) { return ::Polyline(m_hDC, points, count); }
    BOOL PolylineTo(const POINT* p, int count) { return ::PolylineTo(m_hDC, p, static_cast<DWORD>(count)); }
    BOOL PolyPolyline(const POINT* points, const DWORD* counts, int lines);
    BOOL PolyBezier(const POINT* p, int count) { return ::PolyBezier(m_hDC, p, static_cast<DWORD>(count)); }
    BOOL PolyBezierTo(const POINT* points, int count);
    BOOL PolyDraw(const POINT* p, const BYTE* kinds, int count) { return ::PolyDraw(m_hDC, p, kinds, count); }
    BOOL Polygon(const POINT* points, int count) { return ::Polygon(m_hDC, points, count); }
    BOOL PolyPolygon(const POINT* p, const INT* counts, int n) { return ::PolyPolygon(m_hDC, p, counts, n); }
    BOOL Rectangle(int l, int t, int r, int b) { return ::Rectangle(m_hDC, l, t, r, b); }
    BOOL Rectangle(LPCRECT r) { return Rectangle(r->left, r->top, r->right, r->bottom); }
    BOOL RoundRect(int l, int t, int r, int b, int w, int h) { return ::RoundRect(m_hDC, l, t, r, b, w, h); }
    BOOL RoundRect(LPCRECT r, POINT c) { return RoundRect(r->left, r->top, r->right, r->bottom, c.x, c.y); }
    BOOL Ellipse(int l, int t, int r, int b) { return ::Ellipse(m_hDC, l, t, r, b); }
    BOOL Ellipse(LPCRECT r) { return Ellipse(r->left, r->top, r->right, r->bottom); }
    // Parts of the ellipse in a rectangle, between the rays through two points.
    BOOL Arc(int l, int t, int r, int b, int x1, int y1, int x2, int y2);
    BOOL Arc(LPCRECT rect, POINT from, POINT to);
    BOOL ArcTo(int l, int t, int r, int b, int x1, int y1, int x2, int y2);
    BOOL ArcTo(LPCRECT rect, POINT from, POINT to);
    BOOL Chord(int l, int t, int r, int b, int x1, int y1, int x2, int y2);
    BOOL Chord(LPCRECT rect, POINT from, POINT to);
    BOOL Pie(int l, int t, int r, int b, int x1, int y1, int x2, int y2);
    BOOL Pie(LPCRECT rect, POINT from, POINT to);
    BOOL AngleArc(int x, int y, int radius, float startAngle, float sweepAngle); // degrees

    void FillRect(LPCRECT rect, CBrush* brush) { ::FillRect(m_hDC, rect, handleM<HBRUSH>(brush)); }
    void FrameRect(LPCRECT rect, CBrush* brush) { ::FrameRect(m_hDC, rect, handleM<HBRUSH>(brush)); }
    void InvertRect(LPCRECT rect) { ::InvertRect(m_hDC, rect); }
    // Both set the background colour as a side effect.
    void FillSolidRect(LPCRECT rect, COLORREF color);
    void FillSolidRect(int x, int y, int cx, int cy, COLORREF color);
    void Draw3dRect(LPCRECT rect, COLORREF topLeft, COLORREF bottomRight);
    void Draw3dRect(int x, int y, int cx, int cy, COLORREF topLeft, COLORREF bottomRight);
    BOOL DrawEdge(LPRECT rect, UINT edge, UINT flags) { return ::DrawEdge(m_hDC, rect, edge, flags); }
    BOOL DrawFrameControl(LPRECT rect, UINT type, UINT state)
    {
        return ::DrawFrameControl(m_hDC, rect, type, state);
    }
    void DrawFocusRect(LPCRECT rect) { ::DrawFocusRect(m_hDC, rect); }
    BOOL DrawIcon(int x, int y, HICON icon) { return ::DrawIcon(m_hDC, x, y, icon); }

    BOOL DrawIcon(POINT at, HICON icon) { return DrawIcon(at.x, at.y, icon); }
    // A null brush: that of the state alone.
    BOOL DrawState(CPoint at, CSize size, HBITMAP bitmap, UINT flags, HBRUSH brush = nullptr);
    BOOL DrawState(CPoint at, CSize size, CBitmap* bitmap, UINT flags, CBrush* brush = nullptr);
    BOOL DrawState(CPoint at, CSize size, HICON icon, UINT flags, HBRUSH brush = nullptr);
    BOOL DrawState(CPoint at, CSize size, HICON icon, UINT flags, CBrush* brush);
    BOOL DrawState(CPoint at, CSize size, LPCSTR text, UINT flags, BOOL hasPrefix = TRUE, int count = 0,
        HBRUSH brush = nullptr); // count 0: up to the zero
    BOOL DrawState(CPoint at, CSize size, LPCWSTR text, UINT flags, BOOL hasPrefix = TRUE, int count = 0,
        HBRUSH brush = nullptr);
    BOOL FillRgn(CRgn* region, CBrush* brush);
    BOOL FrameRgn(CRgn* region, CBrush* brush, int width, int height);
    BOOL InvertRgn(CRgn* region) { return ::InvertRgn(m_hDC, handleM<HRGN>(region)); }
    BOOL PaintRgn(CRgn* region) { return ::PaintRgn(m_hDC, handleM<HRGN>(region)); }
    BOOL FloodFill(int x, int y, COLORREF border) { return ::FloodFill(m_hDC, x, y, border); }
    BOOL ExtFloodFill(int x, int y, COLORREF c, UINT type) { return ::ExtFloodFill(m_hDC, x, y, c, type); }
    BOOL GradientFill(TRIVERTEX* corners, ULONG cornerCount, void* mesh, ULONG meshCount, DWORD mode);
    BOOL PatBlt(int x, int y, int cx, int cy, DWORD code) { return ::PatBlt(m_hDC, x, y, cx, cy, code); }
    BOOL BitBlt(int x, int y, int cx, int cy, CDC* from, int fromX, int fromY, DWORD code);
    BOOL StretchBlt(
        int x, int y, int cx, int cy, CDC* from, int fromX, int fromY, int fromCx, int fromCy, DWORD code);
    BOOL MaskBlt(int x, int y, int cx, int cy, CDC* from, int fromX, int fromY, CBitmap& mask, int maskX,
        int maskY, DWORD code);
    BOOL PlgBlt(
        POINT* corners, CDC* from, int fromX, int fromY, int cx, int cy, CBitmap& mask, int maskX, int maskY);
    BOOL AlphaBlend(int x, int y, int cx, int cy, CDC* from, int fromX, int fromY, int fromCx, int fromCy,
        BLENDFUNCTION blend);
    BOOL TransparentBlt(int x, int y, int cx, int cy, CDC* from, int fromX, int fromY, int fromCx, int fromCy,
        UINT transparent);
    BOOL ScrollDC(int dx, int dy, LPCRECT scroll, LPCRECT clip, CRgn* update, LPRECT updateRect);
    COLORREF GetPixel(int x, int y) const { return ::GetPixel(m_hDC, x, y); }
    COLORREF GetPixel(POINT at) const { return GetPixel(at.x, at.y); }
    COLORREF SetPixel(int x, int y, COLORREF color) { return ::SetPixel(m_hDC, x, y, color); }
    COLORREF SetPixel(POINT at, COLORREF color) { return SetPixel(at.x, at.y, color); }
    BOOL SetPixelV(int x, int y, COLORREF color) { return ::SetPixelV(m_hDC, x, y, color); }
    BOOL SetPixelV(POINT at, COLORREF color) { return SetPixelV(at.x, at.y, color); }

    BOOL BeginPath() { return ::BeginPath(m_hDC); }
    BOOL EndPath() { return ::EndPath(m_hDC); }
    BOOL AbortPath() { return ::AbortPath(m_hDC); }
    BOOL CloseFigure() { return ::CloseFigure(m_hDC); }
    BOOL FillPath() { return ::FillPath(m_hDC); }
    BOOL FlattenPath() { return ::FlattenPath(m_hDC); }
    BOOL StrokePath() { return ::StrokePath(m_hDC); }
    BOOL StrokeAndFillPath() { return ::StrokeAndFillPath(m_hDC); }
    BOOL WidenPath() { return ::WidenPath(m_hDC); }
    int GetPath(POINT* p, BYTE* kinds, int count) const { return ::GetPath(m_hAttribDC, p, kinds, count); }
    BOOL SetMiterLimit(float limit) { return ::SetMiterLimit(m_hDC, limit, nullptr); }
    float GetMiterLimit() const;

    BOOL TextOut(int x, int y, LPCSTR text, int count = -1);
    BOOL TextOut(int x, int y, LPCWSTR text, int count = -1);
    BOOL TextOut(int x, int y, const CString& text) { return TextOut(x, y, text, text.GetLength()); }
    // widths (may be null): an advance for each byte; a character of two gets the sum of its bytes'.
    // With ETO_PDY a pair for each, with ETO_GLYPH_INDEX there is no text in any code page: call the window
    // system's own function for that.
    BOOL ExtTextOut(int x, int y, UINT options, LPCRECT rect, LPCSTR text, UINT count, const INT* widths);
    BOOL ExtTextOut(int x, int y, UINT options, LPCRECT rect, const CString& text, const INT* widths);
    template <class C, AfxIfWide<C> = 0>
    BOOL ExtTextOut(int x, int y, UINT options, LPCRECT rect, const C* text, UINT count, const INT* widths)
    {
        return ::ExtTextOutW(m_hDC, x, y, options, rect, text, count, widths);
    }
    // Tab stops are in logical units from the tab origin; none: every eight average characters.
    CSize TabbedTextOut(int x, int y, LPCSTR text, int count, int stops, const INT* stopAt, int tabOrigin);
    CSize TabbedTextOut(int x, int y, LPCWSTR text, int count, int stops, const INT* stopAt, int tabOrigin);
    CSize TabbedTextOut(int x, int y, const CString& text, int stops, const INT* stopAt, int tabOrigin);
    // The result is the height. DT_MODIFYSTRING is ignored.
    int DrawText(LPCSTR text, int count, LPRECT rect, UINT format);
    int DrawText(LPCWSTR text, int count, LPRECT rect, UINT format);
    int DrawText(const CString& text, LPRECT rect, UINT format) { return DrawText(text, -1, rect, format); }
    int DrawText(LPCWSTR text, LPRECT rect, UINT format) { return DrawText(text, -1, rect, format); }
    int DrawTextEx(LPCSTR text, int count, LPRECT rect, UINT format, DRAWTEXTPARAMS* parameters);
    int DrawTextEx(LPCWSTR text, int count, LPRECT rect, UINT format, DRAWTEXTPARAMS* parameters);
    int DrawTextEx(const CString& text, LPRECT rect, UINT format, DRAWTEXTPARAMS* parameters);

    // Width and height of a text in one line, in logical units.
    CSize GetTextExtent(LPCSTR text, int count = -1) const;
    CSize GetTextExtent(LPCWSTR text, int count = -1) const;
    CSize GetTextExtent(const CString& text) const { return GetTextExtent(text, text.GetLength()); }
    CSize GetOutputTextExtent(LPCSTR text, int count = -1) const;
    CSize GetOutputTextExtent(LPCWSTR text, int count = -1) const;
    CSize GetOutputTextExtent(const CString& text) const;
    CSize GetTabbedTextExtent(LPCSTR text, int count, int stops, const INT* stopAt) const;
    CSize GetTabbedTextExtent(LPCWSTR text, int count, int stops, const INT* stopAt) const;
    CSize GetTabbedTextExtent(const CString& text, int stops, const INT* stopAt) const;
    UINT SetTextAlign(UINT flags) { return ::SetTextAlign(m_hDC, flags); }
    UINT GetTextAlign() const { return ::GetTextAlign(m_hAttribDC); }
    int SetTextCharacterExtra(int extra) { return ::SetTextCharacterExtra(m_hDC, extra); }
    int GetTextCharacterExtra() const { return ::GetTextCharacterExtra(m_hAttribDC); }
    int SetTextJustification(int extra, int breaks) { return ::SetTextJustification(m_hDC, extra, breaks); }
    int GetTextFace(int size, LPSTR face) const; // result: bytes copied, with the final zero as the system's
    int GetTextFace(CString& face) const;
    BOOL GetTextMetrics(TEXTMETRICW* metrics) const { return ::GetTextMetricsW(m_hAttribDC, metrics); }
    BOOL GetOutputTextMetrics(TEXTMETRICW* metrics) const { return ::GetTextMetricsW(m_hDC, metrics); }
    // Of the characters with these GBK codes, one byte or two (0xD6D0); one width each.
    BOOL GetCharWidth(UINT first, UINT last, LPINT widths) const;
    BOOL GetOutputCharWidth(UINT first, UINT last, LPINT widths) const;
    BOOL GetCharABCWidths(UINT first, UINT last, ABC* widths) const;

private:
    template <class HandleTP> static HandleTP handleM(const CGdiObject* object)
    {
        return object == nullptr ? nullptr : static_cast<HandleTP>(object->m_hObject);
    }
    HGDIOBJ selectM(const CGdiObject* object);
    bool isKnown_ = false; // as the holder of its context
};

// Holds another's context for the length of one call, which stays the other's for FromHandle.
class AfxDcLoan : public CDC
{
public:
    // Takes it for as long as the object lives.
    explicit AfxDcLoan(HDC dc)
    {
        m_hDC = dc;
        m_hAttribDC = dc;
    }
    ~AfxDcLoan() override { Detach(); }
};
