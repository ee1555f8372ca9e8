#pragma once
#include "toolkit/gbk_string.h"
#include "toolkit/geometry.h"
#include "toolkit/object.h"
#include <commctrl.h>

class CDC;

// Owns one GDI object and deletes it with itself. Not copyable. The toolkit knows which object holds a
// handle: while it holds one, it may be moved by its bytes only as an element of an Arr. Texts are GBK or
// wide; a null handle or object is no success.
class PANELKIT_API CGdiObject : public CObject
{
    DECLARE_DYNAMIC(CGdiObject)
public:
    CGdiObject() = default;
    ~CGdiObject() override;

    HGDIOBJ m_hObject = nullptr; // null: none
    // The same.
    HGDIOBJ GetSafeHandle() const { return m_hObject; }
    operator HGDIOBJ() const { return m_hObject; }

    BOOL Attach(HGDIOBJ object); // FALSE: null; what was held before is not deleted
    HGDIOBJ Detach();            // gives it back, not deleted; null: there was none
    BOOL DeleteObject();         // FALSE: there was none
    int GetObject(int size, void* to) const { return ::GetObjectW(m_hObject, size, to); } // wide structures
    UINT GetObjectType() const { return ::GetObjectType(m_hObject); }
    BOOL CreateStockObject(int index) { return Attach(::GetStockObject(index)); }
    BOOL UnrealizeObject() { return ::UnrealizeObject(m_hObject); }
    // Compare the handles.
    BOOL operator==(const CGdiObject& other) const { return m_hObject == other.m_hObject; }
    BOOL operator!=(const CGdiObject& other) const { return m_hObject != other.m_hObject; }

    // The object of the calling thread that holds the handle and is of that class, else a temporary one (see
    // CWnd::FromHandle); null for a null handle.
    static CGdiObject* FromHandle(HGDIOBJ object);

private:
    bool isKnown_ = false; // as the holder of its handle
};

// A pen. The constructors with arguments make it; where the system refuses the handle is null.
class PANELKIT_API CPen : public CGdiObject
{
    DECLARE_DYNAMIC(CPen)
public:
    CPen() = default;
    CPen(int style, int width, COLORREF color) { CreatePen(style, width, color); }
    CPen(int style, int width, const LOGBRUSH* brush, int styleCount = 0, const DWORD* styles = nullptr)
    {
        CreatePen(style, width, brush, styleCount, styles);
    }
    operator HPEN() const { return static_cast<HPEN>(m_hObject); }
    BOOL CreatePen(int style, int width, COLORREF color) { return Attach(::CreatePen(style, width, color)); }
    BOOL CreatePen(
        int style, int width, const LOGBRUSH* brush, int styleCount = 0, const DWORD* styles = nullptr)
    {
        return Attach(::ExtCreatePen(static_cast<DWORD>(style), static_cast<DWORD>(width), brush,
            static_cast<DWORD>(styleCount), styles));
    }
    BOOL CreatePenIndirect(const LOGPEN* pen) { return Attach(::CreatePenIndirect(pen)); }
    // What it was made of, as GetObject gives it; 0 without one.
    int GetLogPen(LOGPEN* pen) const { return GetObject(sizeof *pen, pen); }
    int GetExtLogPen(EXTLOGPEN* pen) const { return GetObject(sizeof *pen, pen); }
    static CPen* FromHandle(HPEN pen);
};

class CBitmap;

// A brush. The constructors with arguments make it; where the system refuses the handle is null.
class PANELKIT_API CBrush : public CGdiObject
{
    DECLARE_DYNAMIC(CBrush)
public:
    CBrush() = default;
    explicit CBrush(COLORREF color) { CreateSolidBrush(color); }
    CBrush(int hatch, COLORREF color) { CreateHatchBrush(hatch, color); }
    explicit CBrush(CBitmap* pattern) { CreatePatternBrush(pattern); }
    operator HBRUSH() const { return static_cast<HBRUSH>(m_hObject); }
    BOOL CreateSolidBrush(COLORREF color) { return Attach(::CreateSolidBrush(color)); }
    BOOL CreateHatchBrush(int hatch, COLORREF color) { return Attach(::CreateHatchBrush(hatch, color)); }
    BOOL CreateBrushIndirect(const LOGBRUSH* brush) { return Attach(::CreateBrushIndirect(brush)); }
    BOOL CreateSysColorBrush(int index) { return Attach(::GetSysColorBrush(index)); }
    BOOL CreatePatternBrush(CBitmap* pattern);
    BOOL CreateDIBPatternBrush(const void* packed, UINT use)
    {
        return Attach(::CreateDIBPatternBrushPt(packed, use));
    }

    // What it was made of, as GetObject gives it; 0 without one.
    int GetLogBrush(LOGBRUSH* brush) const { return GetObject(sizeof *brush, brush); }
    static CBrush* FromHandle(HBRUSH brush);
};

// A font.
class PANELKIT_API CFont : public CGdiObject
{
    DECLARE_DYNAMIC(CFont)
public:
    CFont() = default;
    operator HFONT() const { return static_cast<HFONT>(m_hObject); }
    BOOL CreateFontIndirect(const LOGFONTW* font) { return Attach(::CreateFontIndirectW(font)); }
    BOOL CreateFontIndirect(const LOGFONTA* font); // face name in GBK
    // A null face: any that suits the rest.
    BOOL CreateFont(int height, int width, int escapement, int orientation, int weight, BYTE italic,
        BYTE underline, BYTE strikeOut, BYTE charSet, BYTE outPrecision, BYTE clipPrecision, BYTE quality,
        BYTE pitchAndFamily, LPCSTR face);
    template <class C, AfxIfWide<C> = 0>
    BOOL CreateFont(int height, int width, int escapement, int orientation, int weight, BYTE italic,
        BYTE underline, BYTE strikeOut, BYTE charSet, BYTE outPrecision, BYTE clipPrecision, BYTE quality,
        BYTE pitchAndFamily, const C* face)
    {
        return Attach(::CreateFontW(height, width, escapement, orientation, weight, italic, underline,
            strikeOut, charSet, outPrecision, clipPrecision, quality, pitchAndFamily, face));
    }
    // Sizes in tenths of a point; a null context: the screen.
    BOOL CreatePointFont(int tenthsOfPoint, LPCSTR face, CDC* dc = nullptr);
    template <class C, AfxIfWide<C> = 0> BOOL CreatePointFont(int tenths, const C* face, CDC* dc = nullptr)
    {
        LOGFONTW font = {};
        font.lfHeight = tenths;
        font.lfCharSet = DEFAULT_CHARSET;
        CStringW(face).CopyM(font.lfFaceName, LF_FACESIZE);
        return CreatePointFontIndirect(&font, dc);
    }
    BOOL CreatePointFontIndirect(const LOGFONTW* font, CDC* dc = nullptr); // lfHeight is the size
    BOOL CreatePointFontIndirect(const LOGFONTA* font, CDC* dc = nullptr); // face name in GBK

    // What it was made of, as GetObject gives it; 0 without one.
    int GetLogFont(LOGFONTW* font) const { return GetObject(sizeof *font, font); }
    int GetLogFont(LOGFONTA* font) const; // face name in GBK
    static CFont* FromHandle(HFONT font);
};

// A bitmap.
class PANELKIT_API CBitmap : public CGdiObject
{
    DECLARE_DYNAMIC(CBitmap)
public:
    CBitmap() = default;
    operator HBITMAP() const { return static_cast<HBITMAP>(m_hObject); }
    BOOL LoadBitmap(UINT id);     // from the application's resources
    BOOL LoadBitmap(LPCSTR name); // or MAKEINTRESOURCE
    BOOL LoadBitmap(LPCWSTR name);
    BOOL LoadOEMBitmap(UINT id) { return Attach(::LoadBitmapW(nullptr, MAKEINTRESOURCEW(id))); }
    // From the application's resources, with the colours of the map replaced; null map: those that stand for
    // the system's colours.
    BOOL LoadMappedBitmap(UINT id, UINT flags = 0, COLORMAP* map = nullptr, int mapCount = 0);
    BOOL CreateBitmap(int width, int height, UINT planes, UINT bits, const void* pixels)
    {
        return Attach(::CreateBitmap(width, height, planes, bits, pixels));
    }
    BOOL CreateBitmapIndirect(BITMAP* bitmap) { return Attach(::CreateBitmapIndirect(bitmap)); }
    BOOL CreateCompatibleBitmap(CDC* dc, int width, int height);

    // What it is, as GetObject gives it; 0 without one.
    int GetBitmap(BITMAP* bitmap) const { return GetObject(sizeof *bitmap, bitmap); }

    DWORD GetBitmapBits(DWORD size, void* to) const;
    DWORD SetBitmapBits(DWORD size, const void* from);
    CSize GetBitmapDimension() const; // in tenths of a millimetre, as set
    CSize SetBitmapDimension(int width, int height);
    BOOL CreateDiscardableBitmap(CDC* dc, int width, int height);
    static CBitmap* FromHandle(HBITMAP bitmap);
};

// A region.
class PANELKIT_API CRgn : public CGdiObject
{
    DECLARE_DYNAMIC(CRgn)
public:
    CRgn() = default;
    operator HRGN() const { return handleM(); }
    BOOL CreateRectRgn(int left, int top, int right, int bottom)
    {
        return Attach(::CreateRectRgn(left, top, right, bottom));
    }
    BOOL CreateRectRgnIndirect(LPCRECT rect) { return Attach(::CreateRectRgnIndirect(rect)); }
    BOOL CreateEllipticRgn(int left, int top, int right, int bottom)
    {
        return Attach(::CreateEllipticRgn(left, top, right, bottom));
    }
    BOOL CreateEllipticRgnIndirect(LPCRECT rect) { return Attach(::CreateEllipticRgnIndirect(rect)); }
    BOOL CreateRoundRectRgn(int left, int top, int right, int bottom, int width, int height)
    {
        return Attach(::CreateRoundRectRgn(left, top, right, bottom, width, height));
    }
    BOOL CreatePolygonRgn(const POINT* points, int count, int mode)
    {
        return Attach(::CreatePolygonRgn(points, count, mode));
    }
    BOOL CreatePolyPolygonRgn(const POINT* points, const INT* counts, int polygons, int mode)
    {
        return Attach(::CreatePolyPolygonRgn(points, counts, polygons, mode));
    }
    BOOL CreateFromData(const XFORM* transform, int size, const RGNDATA* data)
    {
        return Attach(::ExtCreateRegion(transform, static_cast<DWORD>(size), data));
    }
    BOOL CreateFromPath(CDC* dc); // the path that it holds, which is then gone
    int GetRegionData(RGNDATA* data, int size) const
    {
        return static_cast<int>(::GetRegionData(handleM(), static_cast<DWORD>(size), data));
    }
    // This region must exist; it becomes the combination. Null operands count as failures.
    int CombineRgn(const CRgn* one, const CRgn* two, int mode);
    int CopyRgn(const CRgn* from);

    BOOL EqualRgn(const CRgn* other) const;
    int OffsetRgn(int dx, int dy) { return ::OffsetRgn(handleM(), dx, dy); }
    int OffsetRgn(POINT by) { return ::OffsetRgn(handleM(), by.x, by.y); }
    int GetRgnBox(LPRECT box) const { return ::GetRgnBox(handleM(), box); }
    void SetRectRgn(int left, int top, int right, int bottom)
    {
        ::SetRectRgn(handleM(), left, top, right, bottom);
    }
    void SetRectRgn(LPCRECT rect) { SetRectRgn(rect->left, rect->top, rect->right, rect->bottom); }
    BOOL PtInRegion(int x, int y) const { return ::PtInRegion(handleM(), x, y); }
    BOOL PtInRegion(POINT point) const { return PtInRegion(point.x, point.y); }
    BOOL RectInRegion(LPCRECT rect) const { return ::RectInRegion(handleM(), rect); }
    static CRgn* FromHandle(HRGN region);

private:
    HRGN handleM() const { return static_cast<HRGN>(m_hObject); }
};

// A palette.
class PANELKIT_API CPalette : public CGdiObject
{
    DECLARE_DYNAMIC(CPalette)
public:
    CPalette() = default;
    operator HPALETTE() const { return static_cast<HPALETTE>(m_hObject); }
    BOOL CreatePalette(const LOGPALETTE* palette) { return Attach(::CreatePalette(palette)); }
    BOOL CreateHalftonePalette(CDC* dc);

    // How many colours it has.
    int GetEntryCount() const;
    UINT GetPaletteEntries(UINT first, UINT count, PALETTEENTRY* to) const
    {
        return ::GetPaletteEntries(*this, first, count, to);
    }
    UINT SetPaletteEntries(UINT first, UINT count, const PALETTEENTRY* from)
    {
        return ::SetPaletteEntries(*this, first, count, from);
    }
    void AnimatePalette(UINT first, UINT count, const PALETTEENTRY* from)
    {
        ::AnimatePalette(*this, first, count, from);
    }
    UINT GetNearestPaletteIndex(COLORREF color) const { return ::GetNearestPaletteIndex(*this, color); }
    BOOL ResizePalette(UINT count) { return ::ResizePalette(*this, count); }
    static CPalette* FromHandle(HPALETTE palette);
};
