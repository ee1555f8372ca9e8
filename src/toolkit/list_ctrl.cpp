#include "toolkit/list_ctrl.h"
#include "toolkit/header_ctrl.h"
#include "toolkit/owner_drawn.h"

IMPLEMENT_DYNAMIC(CListCtrl, CWnd)

BOOL CListCtrl::Create(DWORD style, const RECT& rect, CWnd* parent, UINT id)
{
    NeedCommonControls();
    return CWnd::Create("SysListView32", nullptr, style, rect, parent, id);
}

BEGIN_MESSAGE_MAP(CListCtrl, CWnd)
ON_WM_DESTROY()
END_MESSAGE_MAP()

void CListCtrl::OnDestroy()
{
    if ((GetStyle() & LVS_SHAREIMAGELISTS) == 0) {
        for (const int which : { LVSIL_NORMAL, LVSIL_SMALL, LVSIL_STATE }) {
            if (CImageList::IsOwned(AfxSendHandle<HIMAGELIST>(*this, LVM_GETIMAGELIST, AfxWordOf(which)))) {
                SetImageList(nullptr, which);
            }
        }
    }
    CWnd::OnDestroy();
}

BOOL CListCtrl::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result)
{
    return AfxDrawnSingle(this, message, lParam, result)
        || CWnd::OnChildNotify(message, wParam, lParam, result);
}

int CListCtrl::insertColumnM(int column, LPCWSTR heading, int format, int width, int subItem)
{
    LVCOLUMNW what = {};
    what.mask = LVCF_TEXT | LVCF_FMT | (width == -1 ? 0u : LVCF_WIDTH) | (subItem == -1 ? 0u : LVCF_SUBITEM);
    what.pszText = const_cast<wchar_t*>(heading);
    what.fmt = format;
    what.cx = width;
    what.iSubItem = subItem;
    return InsertColumn(column, &what);
}

int CListCtrl::InsertColumn(int column, const LVCOLUMNA* what)
{
    return InsertColumn(column, WideItemCL<LVCOLUMNW, LVCF_TEXT>(*what).PointerM());
}

int CListCtrl::InsertColumn(int column, const LVCOLUMNW* what)
{
    return static_cast<int>(
        SendMessage(LVM_INSERTCOLUMNW, AfxWordOf(column), reinterpret_cast<LPARAM>(what)));
}

BOOL CListCtrl::GetColumn(int column, LVCOLUMNA* to) const
{
    return AskGbkItem<LVCOLUMNW, LVCF_TEXT>(to, [&](LVCOLUMNW* wide) { return GetColumn(column, wide); });
}

BOOL CListCtrl::GetColumn(int column, LVCOLUMNW* to) const
{
    return SendMessage(LVM_GETCOLUMNW, AfxWordOf(column), reinterpret_cast<LPARAM>(to)) != 0;
}

BOOL CListCtrl::SetColumn(int column, const LVCOLUMNA* what)
{
    return SetColumn(column, WideItemCL<LVCOLUMNW, LVCF_TEXT>(*what).PointerM());
}

BOOL CListCtrl::SetColumn(int column, const LVCOLUMNW* what)
{
    return SendMessage(LVM_SETCOLUMNW, AfxWordOf(column), reinterpret_cast<LPARAM>(what)) != 0;
}

BOOL CListCtrl::SetColumnOrderArray(int count, LPINT order)
{
    return SendMessage(LVM_SETCOLUMNORDERARRAY, AfxWordOf(count), reinterpret_cast<LPARAM>(order)) != 0;
}

BOOL CListCtrl::GetColumnOrderArray(LPINT order, int count) const
{
    if (count == -1) {
        const CHeaderCtrl* header = GetHeaderCtrl();
        count = header == nullptr ? 0 : header->GetItemCount();
    }
    return SendMessage(LVM_GETCOLUMNORDERARRAY, AfxWordOf(count), reinterpret_cast<LPARAM>(order)) != 0;
}

CEdit* CListCtrl::EditLabel(int row)
{
    return AfxEditOf(reinterpret_cast<HWND>(SendMessage(LVM_EDITLABELW, AfxWordOf(row))));
}

BOOL CListCtrl::GetItemRect(int row, LPRECT rect, UINT part) const
{
    rect->left = static_cast<LONG>(part);
    return SendMessage(LVM_GETITEMRECT, AfxWordOf(row), reinterpret_cast<LPARAM>(rect)) != 0;
}

BOOL CListCtrl::GetSubItemRect(int row, int column, int part, CRect& rect) const
{
    rect.top = column;
    rect.left = part;
    return SendMessage(
               LVM_GETSUBITEMRECT, AfxWordOf(row), reinterpret_cast<LPARAM>(static_cast<LPRECT>(&rect)))
        != 0;
}

int CListCtrl::HitTest(LVHITTESTINFO* info) const
{
    return static_cast<int>(SendMessage(LVM_HITTEST, 0, reinterpret_cast<LPARAM>(info)));
}

int CListCtrl::HitTest(CPoint at, UINT* flags) const
{
    LVHITTESTINFO info = {};
    info.pt = at;
    const int row = HitTest(&info);
    if (flags != nullptr) {
        *flags = info.flags;
    }
    return row;
}

int CListCtrl::SubItemHitTest(LVHITTESTINFO* info)
{
    return static_cast<int>(SendMessage(LVM_SUBITEMHITTEST, 0, reinterpret_cast<LPARAM>(info)));
}

CSize CListCtrl::ApproximateViewRect(CSize size, int count) const
{
    const LRESULT packed
        = SendMessage(LVM_APPROXIMATEVIEWRECT, AfxWordOf(count), MAKELPARAM(size.cx, size.cy));
    return CSize(LOWORD(packed), HIWORD(packed));
}

CSize CListCtrl::SetIconSpacing(int width, int height)
{
    const LRESULT packed = SendMessage(LVM_SETICONSPACING, 0, MAKELPARAM(width, height));
    return CSize(LOWORD(packed), HIWORD(packed));
}

CImageList* CListCtrl::SetImageList(CImageList* list, int which)
{
    return AfxImagesOf(SendMessage(LVM_SETIMAGELIST, AfxWordOf(which), AfxHandleOf(list)));
}

CImageList* CListCtrl::CreateDragImage(int row, LPPOINT at)
{
    const HIMAGELIST made = reinterpret_cast<HIMAGELIST>(
        SendMessage(LVM_CREATEDRAGIMAGE, AfxWordOf(row), reinterpret_cast<LPARAM>(at)));
    return AfxOwnedImages(made);
}

DWORD CListCtrl::SetExtendedStyle(DWORD style)
{
    return static_cast<DWORD>(SendMessage(LVM_SETEXTENDEDLISTVIEWSTYLE, 0, style));
}

DWORD CListCtrl::GetExtendedStyle() const
{
    return static_cast<DWORD>(SendMessage(LVM_GETEXTENDEDLISTVIEWSTYLE));
}
