#include "toolkit/gdi_objects.h"
#include "baselib/gbk.h"
#include "toolkit/gdi_owners.h"
#include "toolkit/module.h"
#include "toolkit/text.h"
#include "toolkit/thread_state.h"
#include <algorithm>
#include <cstring>

IMPLEMENT_DYNAMIC(CGdiObject, CObject)
IMPLEMENT_DYNAMIC(CPen, CGdiObject)
IMPLEMENT_DYNAMIC(CBrush, CGdiObject)
IMPLEMENT_DYNAMIC(CFont, CGdiObject)
IMPLEMENT_DYNAMIC(CBitmap, CGdiObject)
IMPLEMENT_DYNAMIC(CRgn, CGdiObject)
IMPLEMENT_DYNAMIC(CPalette, CGdiObject)

namespace {

template <class ObjectTP> ObjectTP* objectM(HGDIOBJ handle)
{
    ObjectTP* const owner = DYNAMIC_DOWNCAST(ObjectTP, GdiOwnersCL::FindM(handle));
    return owner != nullptr && owner->m_hObject == handle
        ? owner
        : ThreadStateCL::ThisM().gdi.GetM<ObjectTP, &CGdiObject::m_hObject>(handle);
}

LOGFONTW ofGbkFontM(const LOGFONTA& font)
{
    // The two layouts agree up to the face name.
    LOGFONTW wide = {};
    std::memcpy(&wide, &font, offsetof(LOGFONTA, lfFaceName));
    char face[LF_FACESIZE + 1] = {}; // the given name may fill its array without a final zero
    std::memcpy(face, font.lfFaceName, LF_FACESIZE);
    CStringW(face).CopyM(wide.lfFaceName, LF_FACESIZE);
    return wide;
}

} // namespace

CGdiObject::~CGdiObject()
{
    DeleteObject();
    Detach();
}

BOOL CGdiObject::Attach(HGDIOBJ object)
{
    if (object == nullptr) {
        return FALSE;
    }
    m_hObject = object;
    GdiOwnersCL::AddM(object, this);
    isKnown_ = true;
    return TRUE;
}

HGDIOBJ CGdiObject::Detach()
{
    if (std::exchange(isKnown_, false)) {
        GdiOwnersCL::RemoveM(this);
    }
    return std::exchange(m_hObject, nullptr);
}

BOOL CGdiObject::DeleteObject()
{
    return m_hObject != nullptr && ::DeleteObject(Detach());
}

CGdiObject* CGdiObject::FromHandle(HGDIOBJ object)
{
    return objectM<CGdiObject>(object);
}
CPen* CPen::FromHandle(HPEN pen)
{
    return objectM<CPen>(pen);
}
CBrush* CBrush::FromHandle(HBRUSH brush)
{
    return objectM<CBrush>(brush);
}
CFont* CFont::FromHandle(HFONT font)
{
    return objectM<CFont>(font);
}
CBitmap* CBitmap::FromHandle(HBITMAP bitmap)
{
    return objectM<CBitmap>(bitmap);
}
CRgn* CRgn::FromHandle(HRGN region)
{
    return objectM<CRgn>(region);
}

CPalette* CPalette::FromHandle(HPALETTE palette)
{
    return objectM<CPalette>(palette);
}

int CPalette::GetEntryCount() const
{
    WORD count = 0;
    GetObject(sizeof count, &count);
    return count;
}

BOOL CBrush::CreatePatternBrush(CBitmap* pattern)
{
    return pattern != nullptr && Attach(::CreatePatternBrush(*pattern));
}

BOOL CFont::CreateFontIndirect(const LOGFONTA* font)
{
    const LOGFONTW wide = ofGbkFontM(*font);
    return CreateFontIndirect(&wide);
}

BOOL CFont::CreatePointFontIndirect(const LOGFONTA* font, CDC* dc)
{
    const LOGFONTW wide = ofGbkFontM(*font);
    return CreatePointFontIndirect(&wide, dc);
}

int CFont::GetLogFont(LOGFONTA* font) const
{
    LOGFONTW wide = {};
    int size = GetLogFont(&wide);
    std::memcpy(font, &wide, offsetof(LOGFONTA, lfFaceName));
    slCopyText(font->lfFaceName, LF_FACESIZE, WideToGbk(wide.lfFaceName));
    return size == 0 ? 0 : static_cast<int>(sizeof *font);
}

BOOL CFont::CreateFont(int height, int width, int escapement, int orientation, int weight, BYTE italic,
    BYTE underline, BYTE strikeOut, BYTE charSet, BYTE outPrecision, BYTE clipPrecision, BYTE quality,
    BYTE pitchAndFamily, LPCSTR face)
{
    return Attach(::CreateFontW(height, width, escapement, orientation, weight, italic, underline, strikeOut,
        charSet, outPrecision, clipPrecision, quality, pitchAndFamily, slGbkToShown(face).c_str()));
}

BOOL CBitmap::LoadBitmap(UINT id)
{
    return Attach(::LoadBitmapW(AfxGetResourceHandle(), MAKEINTRESOURCEW(id)));
}

BOOL CBitmap::LoadBitmap(LPCSTR name)
{
    if (IS_INTRESOURCE(name)) {
        return LoadBitmap(LOWORD(reinterpret_cast<UINT_PTR>(name)));
    }
    return LoadBitmap(CStringW(name).GetString());
}

BOOL CBitmap::LoadBitmap(LPCWSTR name)
{
    return Attach(::LoadBitmapW(AfxGetResourceHandle(), name));
}

BOOL CBitmap::LoadMappedBitmap(UINT id, UINT flags, COLORMAP* map, int mapCount)
{
    return Attach(
        ::CreateMappedBitmap(AfxGetResourceHandle(), static_cast<INT_PTR>(id), flags, map, mapCount));
}

DWORD CBitmap::GetBitmapBits(DWORD size, void* to) const
{
    return static_cast<DWORD>(::GetBitmapBits(*this, static_cast<LONG>(size), to));
}

DWORD CBitmap::SetBitmapBits(DWORD size, const void* from)
{
    return static_cast<DWORD>(::SetBitmapBits(*this, size, from));
}

CSize CBitmap::GetBitmapDimension() const
{
    SIZE size = {};
    ::GetBitmapDimensionEx(*this, &size);
    return size;
}

CSize CBitmap::SetBitmapDimension(int width, int height)
{
    SIZE before = {};
    ::SetBitmapDimensionEx(*this, width, height, &before);
    return before;
}

int CRgn::CombineRgn(const CRgn* one, const CRgn* two, int mode)
{
    return ::CombineRgn(handleM(), one == nullptr ? nullptr : one->handleM(),
        two == nullptr ? nullptr : two->handleM(), mode);
}

int CRgn::CopyRgn(const CRgn* from)
{
    return CombineRgn(from, nullptr, RGN_COPY);
}

BOOL CRgn::EqualRgn(const CRgn* other) const
{
    return other != nullptr && ::EqualRgn(handleM(), other->handleM()) == TRUE;
}
