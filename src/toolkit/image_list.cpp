#include "toolkit/common_controls.h"
#include "toolkit/thread_state.h"
#include <utility>

IMPLEMENT_DYNAMIC(CImageList, CObject)

void NeedCommonControls()
{
    INITCOMMONCONTROLSEX wanted
        = { sizeof wanted, ICC_LISTVIEW_CLASSES | ICC_TREEVIEW_CLASSES | ICC_UPDOWN_CLASS };
    ::InitCommonControlsEx(&wanted);
}

BOOL CImageList::Attach(HIMAGELIST list)
{
    m_hImageList = list;
    return list != nullptr;
}

HIMAGELIST CImageList::Detach()
{
    return std::exchange(m_hImageList, nullptr);
}

CImageList* CImageList::FromHandle(HIMAGELIST list)
{
    return ThreadStateCL::ThisM().imageLists.GetM<CImageList, &CImageList::m_hImageList>(list);
}

BOOL CImageList::Create(int width, int height, UINT flags, int initial, int grow)
{
    NeedCommonControls();
    return Attach(::ImageList_Create(width, height, flags, initial, grow));
}

BOOL CImageList::DeleteImageList()
{
    return m_hImageList != nullptr && ::ImageList_Destroy(Detach());
}

int CImageList::Add(CBitmap* bitmap, CBitmap* mask)
{
    return ::ImageList_Add(m_hImageList, *bitmap, mask == nullptr ? nullptr : static_cast<HBITMAP>(*mask));
}

int CImageList::Add(CBitmap* bitmap, COLORREF maskColor)
{
    // Reached by name, as the framework's wrapper does.
    using AddMaskedTP = int(WINAPI*)(HIMAGELIST, HBITMAP, COLORREF);
    static const auto addMasked = reinterpret_cast<AddMaskedTP>(reinterpret_cast<void*>(
        ::GetProcAddress(::GetModuleHandleW(L"comctl32.dll"), "ImageList_AddMasked")));
    return addMasked != nullptr ? addMasked(m_hImageList, *bitmap, maskColor) : -1;
}

BOOL CImageList::Draw(CDC* dc, int index, POINT at, UINT style)
{
    return ::ImageList_Draw(m_hImageList, index, dc->m_hDC, at.x, at.y, style);
}

BOOL CImageList::GetImageInfo(int index, IMAGEINFO* info) const
{
    return ::ImageList_GetImageInfo(m_hImageList, index, info);
}
