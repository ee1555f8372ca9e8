#include "toolkit/header_ctrl.h"
#include "toolkit/owner_drawn.h"

IMPLEMENT_DYNAMIC(CHeaderCtrl, CWnd)

BOOL CHeaderCtrl::Create(DWORD style, const RECT& rect, CWnd* parent, UINT id)
{
    NeedCommonControls();
    return CWnd::Create("SysHeader32", nullptr, style, rect, parent, id);
}

BOOL CHeaderCtrl::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result)
{
    return AfxDrawnSingle(this, message, lParam, result)
        || CWnd::OnChildNotify(message, wParam, lParam, result);
}

int CHeaderCtrl::InsertItem(int index, const HDITEMA* item)
{
    return InsertItem(index, WideItemCL<HDITEMW, HDI_TEXT>(*item).PointerM());
}

int CHeaderCtrl::InsertItem(int index, const HDITEMW* item)
{
    return AfxSendInt(*this, HDM_INSERTITEMW, index, reinterpret_cast<LPARAM>(item));
}

BOOL CHeaderCtrl::GetItem(int index, HDITEMA* item) const
{
    return AskGbkItem<HDITEMW, HDI_TEXT>(item, [&](HDITEMW* wide) { return GetItem(index, wide); });
}

BOOL CHeaderCtrl::GetItem(int index, HDITEMW* item) const
{
    return SendMessage(HDM_GETITEMW, AfxWordOf(index), reinterpret_cast<LPARAM>(item)) != 0;
}

BOOL CHeaderCtrl::SetItem(int index, const HDITEMA* item)
{
    return SetItem(index, WideItemCL<HDITEMW, HDI_TEXT>(*item).PointerM());
}

BOOL CHeaderCtrl::SetItem(int index, const HDITEMW* item)
{
    return SendMessage(HDM_SETITEMW, AfxWordOf(index), reinterpret_cast<LPARAM>(item)) != 0;
}

BOOL CHeaderCtrl::GetItemRect(int index, LPRECT rect) const
{
    return SendMessage(HDM_GETITEMRECT, AfxWordOf(index), reinterpret_cast<LPARAM>(rect)) != 0;
}

BOOL CHeaderCtrl::GetOrderArray(LPINT order, int count) const
{
    const int all = count == -1 ? GetItemCount() : count;
    return SendMessage(HDM_GETORDERARRAY, AfxWordOf(all), reinterpret_cast<LPARAM>(order)) != 0;
}

BOOL CHeaderCtrl::SetOrderArray(int count, LPINT order)
{
    return SendMessage(HDM_SETORDERARRAY, AfxWordOf(count), reinterpret_cast<LPARAM>(order)) != 0;
}

CImageList* CHeaderCtrl::CreateDragImage(int index)
{
    return AfxOwnedImages(reinterpret_cast<HIMAGELIST>(SendMessage(HDM_CREATEDRAGIMAGE, AfxWordOf(index))));
}
