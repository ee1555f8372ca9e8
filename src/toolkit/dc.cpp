#include "toolkit/dc.h"
#include "toolkit/gdi_owners.h"
#include "toolkit/thread_state.h"
#include <utility>

IMPLEMENT_DYNAMIC(CDC, CObject)

CDC::~CDC()
{
    DeleteDC();
    Detach();
}

BOOL CDC::Attach(HDC dc)
{
    if (dc == nullptr) {
        return FALSE;
    }
    m_hDC = dc;
    m_hAttribDC = dc;
    GdiOwnersCL::AddM(dc, this);
    isKnown_ = true;
    return TRUE;
}

HDC CDC::Detach()
{
    if (std::exchange(isKnown_, false)) {
        GdiOwnersCL::RemoveM(this);
    }
    m_hAttribDC = nullptr;
    return std::exchange(m_hDC, nullptr);
}

CDC* CDC::FromHandle(HDC dc)
{
    CDC* const owner = DYNAMIC_DOWNCAST(CDC, GdiOwnersCL::FindM(dc));
    return owner != nullptr && owner->m_hDC == dc
        ? owner
        : ThreadStateCL::ThisM().dcs.GetM<CDC, &CDC::m_hDC, &CDC::m_hAttribDC>(dc);
}

BOOL CDC::CreateCompatibleDC(CDC* like)
{
    return Attach(::CreateCompatibleDC(like == nullptr ? nullptr : like->m_hDC));
}

namespace {

// Null stays null.
class NameCL
{
public:
    explicit NameCL(LPCSTR text)
        : isNull_(text == nullptr)
        , wide_(text)
    {
    }
    LPCWSTR GetM() const { return isNull_ ? nullptr : wide_.GetString(); }

private:
    bool isNull_;
    CStringW wide_;
};

} // namespace

BOOL CDC::CreateDC(LPCSTR driver, LPCSTR device, LPCSTR output, const void* mode)
{
    return CreateDC(NameCL(driver).GetM(), NameCL(device).GetM(), NameCL(output).GetM(), mode);
}

BOOL CDC::CreateDC(LPCWSTR driver, LPCWSTR device, LPCWSTR output, const void* mode)
{
    return Attach(::CreateDCW(driver, device, output, static_cast<const DEVMODEW*>(mode)));
}

BOOL CDC::CreateIC(LPCSTR driver, LPCSTR device, LPCSTR output, const void* mode)
{
    return Attach(::CreateICW(NameCL(driver).GetM(), NameCL(device).GetM(), NameCL(output).GetM(),
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
    return CPen::FromHandle(static_cast<HPEN>(::GetCurrentObject(m_hAttribDC, OBJ_PEN)));
}

CBrush* CDC::GetCurrentBrush() const
{
    return CBrush::FromHandle(static_cast<HBRUSH>(::GetCurrentObject(m_hAttribDC, OBJ_BRUSH)));
}

CFont* CDC::GetCurrentFont() const
{
    return CFont::FromHandle(static_cast<HFONT>(::GetCurrentObject(m_hAttribDC, OBJ_FONT)));
}

CBitmap* CDC::GetCurrentBitmap() const
{
    return CBitmap::FromHandle(static_cast<HBITMAP>(::GetCurrentObject(m_hAttribDC, OBJ_BITMAP)));
}

CPalette* CDC::SelectPalette(CPalette* palette, BOOL asBackground)
{
    return palette == nullptr ? nullptr
                              : CPalette::FromHandle(::SelectPalette(m_hDC, *palette, asBackground));
}

CPalette* CDC::GetCurrentPalette() const
{
    return CPalette::FromHandle(static_cast<HPALETTE>(::GetCurrentObject(m_hAttribDC, OBJ_PAL)));
}

// Objects made to suit a context are made here: contexts select objects, so those must not know contexts.
BOOL CFont::CreatePointFont(int tenthsOfPoint, LPCSTR face, CDC* dc)
{
    return CreatePointFont(tenthsOfPoint, CStringW(face).GetString(), dc);
}

BOOL CFont::CreatePointFontIndirect(const LOGFONTW* font, CDC* dc)
{
    HDC screen = dc == nullptr ? ::GetDC(nullptr) : nullptr;
    int dotsPerInch = ::GetDeviceCaps(dc == nullptr ? screen : dc->m_hAttribDC, LOGPIXELSY);
    if (screen != nullptr) {
        ::ReleaseDC(nullptr, screen);
    }
    LOGFONTW sized = *font;
    sized.lfHeight = -::MulDiv(font->lfHeight, dotsPerInch, 720);
    return CreateFontIndirect(&sized);
}

BOOL CBitmap::CreateCompatibleBitmap(CDC* dc, int width, int height)
{
    return dc != nullptr && Attach(::CreateCompatibleBitmap(dc->m_hDC, width, height));
}

BOOL CBitmap::CreateDiscardableBitmap(CDC* dc, int width, int height)
{
    return dc != nullptr && Attach(::CreateDiscardableBitmap(dc->m_hDC, width, height));
}

BOOL CPalette::CreateHalftonePalette(CDC* dc)
{
    return dc != nullptr && Attach(::CreateHalftonePalette(dc->m_hDC));
}

BOOL CRgn::CreateFromPath(CDC* dc)
{
    return dc != nullptr && Attach(::PathToRegion(dc->m_hDC));
}
