#include "toolkit/image_list.h"
#include "baselib/gbk.h"
#include "toolkit/common_library.h"
#include "toolkit/module.h"
#include "toolkit/thread_state.h"
#include "toolkit/wnd.h"
#include <mutex>
#include <set>
#include <utility>

IMPLEMENT_DYNAMIC(CImageList, CObject)

namespace {

HBITMAP bitmapOfM(CBitmap* bitmap)
{
    return bitmap == nullptr ? nullptr : static_cast<HBITMAP>(*bitmap);
}

HWND lockedM(CWnd* wnd)
{
    return wnd == nullptr ? nullptr : wnd->m_hWnd;
}

// Reached by name, as the framework's wrapper does.
int addMaskedM(HIMAGELIST list, HBITMAP bitmap, COLORREF mask)
{
    using AddMaskedTP = int(WINAPI*)(HIMAGELIST, HBITMAP, COLORREF);
    static const auto addMasked = reinterpret_cast<AddMaskedTP>(reinterpret_cast<void*>(
        ::GetProcAddress(::GetModuleHandleW(L"comctl32.dll"), "ImageList_AddMasked")));
    return addMasked != nullptr ? addMasked(list, bitmap, mask) : -1;
}

// The handles that objects own, for as long as this lives. The objects themselves may be moved by their
// bytes.
class OwnedCL
{
public:
    std::set<HIMAGELIST>& handles = knownM().handles;

private:
    struct KnownTP
    {
        std::set<HIMAGELIST> handles;
        std::mutex mutex;
    };
    static KnownTP& knownM()
    {
        static KnownTP& known = *new KnownTP; // Objects of static life outlast any order of its end.
        return known;
    }
    std::lock_guard<std::mutex> lock_ { knownM().mutex };
};

} // namespace

BOOL CImageList::Attach(HIMAGELIST list)
{
    m_hImageList = list;
    if (list != nullptr) {
        OwnedCL owned;
        owned.handles.insert(list);
    }
    return list != nullptr;
}

HIMAGELIST CImageList::Detach()
{
    if (m_hImageList != nullptr) {
        OwnedCL owned;
        owned.handles.erase(m_hImageList);
    }
    return std::exchange(m_hImageList, nullptr);
}

BOOL CImageList::IsOwned(HIMAGELIST list)
{
    OwnedCL owned;
    return owned.handles.count(list) != 0;
}

CImageList* CImageList::FromHandle(HIMAGELIST list)
{
    return ThreadStateCL::ThisM().imageLists.GetM<CImageList, &CImageList::m_hImageList>(list);
}

BOOL CImageList::Create(int width, int height, UINT flags, int initial, int grow)
{
    NeedCommonControls();
    DeleteImageList();
    return Attach(::ImageList_Create(width, height, flags, initial, grow));
}

BOOL CImageList::Create(UINT bitmapId, int width, int grow, COLORREF mask)
{
    return loadM(MAKEINTRESOURCEW(bitmapId), width, grow, mask);
}

BOOL CImageList::Create(LPCSTR bitmapName, int width, int grow, COLORREF mask)
{
    if (IS_INTRESOURCE(bitmapName)) {
        return loadM(reinterpret_cast<LPCWSTR>(bitmapName), width, grow, mask);
    }
    return loadM(slGbkToShown(bitmapName).c_str(), width, grow, mask);
}

BOOL CImageList::loadM(LPCWSTR bitmapName, int width, int grow, COLORREF mask)
{
    NeedCommonControls();
    DeleteImageList();
    return Attach(
        ::ImageList_LoadImageW(AfxGetResourceHandle(), bitmapName, width, grow, mask, IMAGE_BITMAP, 0));
}

BOOL CImageList::Create(CImageList& one, int first, CImageList& two, int second, int dx, int dy)
{
    const HIMAGELIST merged = ::ImageList_Merge(one.m_hImageList, first, two.m_hImageList, second, dx, dy);
    DeleteImageList();
    return Attach(merged);
}

BOOL CImageList::Create(CImageList* other)
{
    const HIMAGELIST copy = ::ImageList_Duplicate(other->m_hImageList);
    DeleteImageList();
    return Attach(copy);
}

BOOL CImageList::DeleteImageList()
{
    return m_hImageList != nullptr && ::ImageList_Destroy(Detach());
}

BOOL CImageList::GetImageInfo(int index, IMAGEINFO* info) const
{
    return ::ImageList_GetImageInfo(m_hImageList, index, info);
}

int CImageList::Add(CBitmap* bitmap, CBitmap* mask)
{
    return ::ImageList_Add(m_hImageList, bitmapOfM(bitmap), bitmapOfM(mask));
}

int CImageList::Add(CBitmap* bitmap, COLORREF maskColor)
{
    return addMaskedM(m_hImageList, bitmapOfM(bitmap), maskColor);
}

BOOL CImageList::Replace(int index, CBitmap* bitmap, CBitmap* mask)
{
    return ::ImageList_Replace(m_hImageList, index, bitmapOfM(bitmap), bitmapOfM(mask));
}

BOOL CImageList::Copy(int to, int from, UINT flags)
{
    return ::ImageList_Copy(m_hImageList, to, m_hImageList, from, flags);
}

BOOL CImageList::Copy(int to, CImageList* source, int from, UINT flags)
{
    return ::ImageList_Copy(m_hImageList, to, source->m_hImageList, from, flags);
}

BOOL CImageList::SetOverlayImage(int index, int overlay)
{
    return ::ImageList_SetOverlayImage(m_hImageList, index, overlay);
}

BOOL CImageList::Draw(CDC* dc, int index, POINT at, UINT style)
{
    return ::ImageList_Draw(m_hImageList, index, dc->m_hDC, at.x, at.y, style);
}

BOOL CImageList::DrawEx(CDC* dc, int index, POINT at, SIZE size, COLORREF back, COLORREF blend, UINT style)
{
    return ::ImageList_DrawEx(
        m_hImageList, index, dc->m_hDC, at.x, at.y, size.cx, size.cy, back, blend, style);
}

BOOL CImageList::DrawIndirect(IMAGELISTDRAWPARAMS* params)
{
    params->cbSize = sizeof *params;
    params->himl = m_hImageList;
    return ::ImageList_DrawIndirect(params);
}

BOOL CImageList::DrawIndirect(CDC* dc, int index, POINT at, SIZE size, POINT origin, UINT style, DWORD rop,
    COLORREF back, COLORREF blend)
{
    IMAGELISTDRAWPARAMS params = {};
    params.i = index;
    params.hdcDst = dc->m_hDC;
    params.x = at.x;
    params.y = at.y;
    params.cx = size.cx;
    params.cy = size.cy;
    params.xBitmap = origin.x;
    params.yBitmap = origin.y;
    params.rgbBk = back;
    params.rgbFg = blend;
    params.fStyle = style;
    params.dwRop = rop;
    return DrawIndirect(&params);
}

BOOL CImageList::BeginDrag(int index, CPoint hotSpot)
{
    return ::ImageList_BeginDrag(m_hImageList, index, hotSpot.x, hotSpot.y);
}

BOOL CImageList::DragEnter(CWnd* locked, CPoint at)
{
    return ::ImageList_DragEnter(lockedM(locked), at.x, at.y);
}

BOOL CImageList::DragLeave(CWnd* locked)
{
    return ::ImageList_DragLeave(lockedM(locked));
}

CImageList* CImageList::GetDragImage(LPPOINT at, LPPOINT hotSpot)
{
    return FromHandle(::ImageList_GetDragImage(at, hotSpot));
}

BOOL CImageList::SetDragCursorImage(int index, CPoint hotSpot)
{
    return ::ImageList_SetDragCursorImage(m_hImageList, index, hotSpot.x, hotSpot.y);
}
