#include "toolkit/dc.h"
#include "baselib/gbk.h"
#include "toolkit/thread_state.h"
#include <utility>

IMPLEMENT_DYNAMIC(CDC, CObject)

namespace {

std::wstring wideTextM(LPCSTR text, int count)
{
    return count < 0 ? slGbkToShown(text)
                     : slGbkToShown(std::string(text, static_cast<size_t>(count)).c_str());
}

} // namespace

BOOL CDC::Attach(HDC dc)
{
    if (dc == nullptr) {
        return FALSE;
    }
    m_hDC = dc;
    m_hAttribDC = dc;
    return TRUE;
}

HDC CDC::Detach()
{
    m_hAttribDC = nullptr;
    return std::exchange(m_hDC, nullptr);
}

CDC* CDC::FromHandle(HDC dc)
{
    return ThreadStateCL::ThisM().dcs.GetM<CDC, &CDC::m_hDC, &CDC::m_hAttribDC>(dc);
}

BOOL CDC::CreateCompatibleDC(CDC* like)
{
    return Attach(::CreateCompatibleDC(like == nullptr ? nullptr : like->m_hDC));
}

BOOL CDC::CreateDC(LPCSTR driver, LPCSTR device, LPCSTR output, const void* mode)
{
    auto name
        = [](LPCSTR text, const std::wstring& wide) { return text == nullptr ? nullptr : wide.c_str(); };
    std::wstring wideDriver = slGbkToShown(driver);
    std::wstring wideDevice = slGbkToShown(device);
    std::wstring wideOutput = slGbkToShown(output);
    return Attach(::CreateDCW(name(driver, wideDriver), name(device, wideDevice), name(output, wideOutput),
        static_cast<const DEVMODEW*>(mode)));
}

BOOL CDC::DeleteDC()
{
    return m_hDC != nullptr && ::DeleteDC(Detach());
}

HGDIOBJ CDC::selectM(const CGdiObject* object)
{
    return object == nullptr ? nullptr : ::SelectObject(m_hDC, object->m_hObject);
}

CGdiObject* CDC::SelectStockObject(int index)
{
    return CGdiObject::FromHandle(::SelectObject(m_hDC, ::GetStockObject(index)));
}

CPen* CDC::SelectObject(CPen* pen)
{
    return CPen::FromHandle(static_cast<HPEN>(selectM(pen)));
}

CBrush* CDC::SelectObject(CBrush* brush)
{
    return CBrush::FromHandle(static_cast<HBRUSH>(selectM(brush)));
}

CFont* CDC::SelectObject(CFont* font)
{
    return CFont::FromHandle(static_cast<HFONT>(selectM(font)));
}

CBitmap* CDC::SelectObject(CBitmap* bitmap)
{
    return CBitmap::FromHandle(static_cast<HBITMAP>(selectM(bitmap)));
}

int CDC::SelectObject(CRgn* region)
{
    return static_cast<int>(reinterpret_cast<INT_PTR>(selectM(region)));
}

CGdiObject* CDC::SelectObject(CGdiObject* object)
{
    return CGdiObject::FromHandle(selectM(object));
}

CPen* CDC::GetCurrentPen() const
{
    return CPen::FromHandle(static_cast<HPEN>(::GetCurrentObject(m_hDC, OBJ_PEN)));
}

CBrush* CDC::GetCurrentBrush() const
{
    return CBrush::FromHandle(static_cast<HBRUSH>(::GetCurrentObject(m_hDC, OBJ_BRUSH)));
}

CFont* CDC::GetCurrentFont() const
{
    return CFont::FromHandle(static_cast<HFONT>(::GetCurrentObject(m_hDC, OBJ_FONT)));
}

CBitmap* CDC::GetCurrentBitmap() const
{
    return CBitmap::FromHandle(static_cast<HBITMAP>(::GetCurrentObject(m_hDC, OBJ_BITMAP)));
}

CPoint CDC::SetViewportOrg(int x, int y)
{
    CPoint old;
    ::SetViewportOrgEx(m_hDC, x, y, &old);
    return old;
}

CPoint CDC::SetWindowOrg(int x, int y)
{
    CPoint old;
    ::SetWindowOrgEx(m_hDC, x, y, &old);
    return old;
}

CPoint CDC::SetBrushOrg(int x, int y)
{
    CPoint old;
    ::SetBrushOrgEx(m_hDC, x, y, &old);
    return old;
}

int CDC::SelectClipRgn(CRgn* region)
{
    return ::SelectClipRgn(m_hDC, region == nullptr ? nullptr : static_cast<HRGN>(*region));
}

int CDC::SelectClipRgn(CRgn* region, int mode)
{
    return ::ExtSelectClipRgn(m_hDC, region == nullptr ? nullptr : static_cast<HRGN>(*region), mode);
}

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
    int width = rect->right - rect->left;
    int height = rect->bottom - rect->top;
    FillSolidRect(rect->left, rect->top, width - 1, 1, topLeft);
    FillSolidRect(rect->left, rect->top, 1, height - 1, topLeft);
    FillSolidRect(rect->right - 1, rect->top, 1, height, bottomRight);
    FillSolidRect(rect->left, rect->bottom - 1, width, 1, bottomRight);
}

BOOL CDC::BitBlt(int x, int y, int cx, int cy, CDC* from, int fromX, int fromY, DWORD code)
{
    return ::BitBlt(m_hDC, x, y, cx, cy, from == nullptr ? nullptr : from->m_hDC, fromX, fromY, code);
}

BOOL CDC::StretchBlt(
    int x, int y, int cx, int cy, CDC* from, int fromX, int fromY, int fromCx, int fromCy, DWORD code)
{
    HDC source = from == nullptr ? nullptr : from->m_hDC;
    return ::StretchBlt(m_hDC, x, y, cx, cy, source, fromX, fromY, fromCx, fromCy, code);
}

BOOL CDC::TextOut(int x, int y, LPCSTR text, int count)
{
    std::wstring wide = wideTextM(text, count);
    return ::TextOutW(m_hDC, x, y, wide.c_str(), static_cast<int>(wide.size()));
}

BOOL CDC::ExtTextOut(int x, int y, UINT options, LPCRECT rect, LPCSTR text, UINT count, INT* widths)
{
    std::wstring wide = wideTextM(text, static_cast<int>(count));
    return ::ExtTextOutW(m_hDC, x, y, options, rect, wide.c_str(), static_cast<UINT>(wide.size()), widths);
}

int CDC::DrawText(LPCSTR text, int count, LPRECT rect, UINT format)
{
    std::wstring wide = wideTextM(text, count);
    return ::DrawTextW(m_hDC, wide.c_str(), static_cast<int>(wide.size()), rect, format & ~DT_MODIFYSTRING);
}

CSize CDC::GetTextExtent(LPCSTR text, int count) const
{
    std::wstring wide = wideTextM(text, count);
    CSize size;
    ::GetTextExtentPoint32W(m_hDC, wide.c_str(), static_cast<int>(wide.size()), &size);
    return size;
}

// Objects made to suit a context are made here: contexts select objects, so those must not know contexts.
BOOL CFont::CreatePointFont(int tenthsOfPoint, LPCSTR face, CDC* dc)
{
    HDC screen = dc == nullptr ? ::GetDC(nullptr) : nullptr;
    int dotsPerInch = ::GetDeviceCaps(dc == nullptr ? screen : dc->m_hDC, LOGPIXELSY);
    if (screen != nullptr) {
        ::ReleaseDC(nullptr, screen);
    }
    return CreateFont(-::MulDiv(tenthsOfPoint, dotsPerInch, 720), 0, 0, 0, FW_NORMAL, 0, 0, 0,
        DEFAULT_CHARSET, OUT_DEFAULT_PRECIS, CLIP_DEFAULT_PRECIS, DEFAULT_QUALITY, DEFAULT_PITCH, face);
}

BOOL CBitmap::CreateCompatibleBitmap(CDC* dc, int width, int height)
{
    return dc != nullptr && Attach(::CreateCompatibleBitmap(dc->m_hDC, width, height));
}
