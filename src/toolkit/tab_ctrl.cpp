#include "toolkit/tab_ctrl.h"
#include "toolkit/owner_drawn.h"
#include "toolkit/tool_tip_ctrl.h"

IMPLEMENT_DYNAMIC(CTabCtrl, CWnd)

BOOL CTabCtrl::Create(DWORD style, const RECT& rect, CWnd* parent, UINT id)
{
    NeedCommonControls();
    return CWnd::Create("SysTabControl32", nullptr, style, rect, parent, id);
}

BOOL CTabCtrl::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result)
{
    return AfxDrawnSingle(this, message, lParam, result)
        || CWnd::OnChildNotify(message, wParam, lParam, result);
}

LONG CTabCtrl::insertItemM(UINT mask, int index, LPCWSTR text, int image, LPARAM param)
{
    TCITEMW item = {};
    item.mask = mask;
    item.pszText = const_cast<wchar_t*>(text);
    item.iImage = image;
    item.lParam = param;
    return InsertItem(index, &item);
}

LONG CTabCtrl::InsertItem(int index, const TCITEMA* item)
{
    return InsertItem(index, WideItemCL<TCITEMW, TCIF_TEXT>(*item).PointerM());
}

LONG CTabCtrl::InsertItem(int index, const TCITEMW* item)
{
    return AfxSendInt(*this, TCM_INSERTITEMW, index, reinterpret_cast<LPARAM>(item));
}

BOOL CTabCtrl::GetItem(int index, TCITEMA* item) const
{
    return AskGbkItem<TCITEMW, TCIF_TEXT>(item, [&](TCITEMW* wide) { return GetItem(index, wide); });
}

BOOL CTabCtrl::GetItem(int index, TCITEMW* item) const
{
    return SendMessage(TCM_GETITEMW, AfxWordOf(index), reinterpret_cast<LPARAM>(item)) != 0;
}

BOOL CTabCtrl::SetItem(int index, const TCITEMA* item)
{
    return SetItem(index, WideItemCL<TCITEMW, TCIF_TEXT>(*item).PointerM());
}

BOOL CTabCtrl::SetItem(int index, const TCITEMW* item)
{
    return SendMessage(TCM_SETITEMW, AfxWordOf(index), reinterpret_cast<LPARAM>(item)) != 0;
}

DWORD CTabCtrl::GetItemState(int index, DWORD mask) const
{
    TCITEMW item = {};
    item.mask = TCIF_STATE;
    item.dwStateMask = mask;
    return GetItem(index, &item) ? item.dwState & mask : 0;
}

BOOL CTabCtrl::SetItemState(int index, DWORD mask, DWORD state)
{
    TCITEMW item = {};
    item.mask = TCIF_STATE;
    item.dwStateMask = mask;
    item.dwState = state;
    return SetItem(index, &item);
}

BOOL CTabCtrl::GetItemRect(int index, LPRECT rect) const
{
    return SendMessage(TCM_GETITEMRECT, AfxWordOf(index), reinterpret_cast<LPARAM>(rect)) != 0;
}

CSize CTabCtrl::SetItemSize(CSize size)
{
    const LRESULT packed = SendMessage(TCM_SETITEMSIZE, 0, MAKELPARAM(size.cx, size.cy));
    return CSize(LOWORD(packed), HIWORD(packed));
}

void CTabCtrl::SetToolTips(CToolTipCtrl* tips)
{
    SendMessage(TCM_SETTOOLTIPS, reinterpret_cast<WPARAM>(tips == nullptr ? nullptr : tips->m_hWnd));
}
