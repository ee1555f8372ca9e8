// The rows of a list view: what they hold and which are selected.
#include "toolkit/list_ctrl.h"

namespace {

std::string rowTextM(const CListCtrl& list, int row, int column)
{
    return WholeItemText<LVITEMW>([&](LVITEMW* item) {
        item->iSubItem = column;
        list.SendMessage(LVM_GETITEMTEXTW, AfxWordOf(row), reinterpret_cast<LPARAM>(item));
        return true;
    });
}

LPARAM pointerM(const void* structure)
{
    return reinterpret_cast<LPARAM>(structure);
}

} // namespace

int CListCtrl::insertItemM(
    UINT mask, int row, LPCWSTR text, UINT state, UINT stateMask, int image, LPARAM param)
{
    LVITEMW item = {};
    item.mask = mask;
    item.iItem = row;
    item.pszText = const_cast<wchar_t*>(text);
    item.state = state;
    item.stateMask = stateMask;
    item.iImage = image;
    item.lParam = param;
    return InsertItem(&item);
}

int CListCtrl::InsertItem(const LVITEMA* item)
{
    return InsertItem(WideItemCL<LVITEMW, LVIF_TEXT>(*item).PointerM());
}

int CListCtrl::InsertItem(const LVITEMW* item)
{
    return static_cast<int>(SendMessage(LVM_INSERTITEMW, 0, pointerM(item)));
}

BOOL CListCtrl::GetItem(LVITEMA* item) const
{
    return AskGbkItem<LVITEMW, LVIF_TEXT>(item, [this](LVITEMW* wide) { return GetItem(wide); });
}

BOOL CListCtrl::GetItem(LVITEMW* item) const
{
    return SendMessage(LVM_GETITEMW, 0, pointerM(item)) != 0;
}

BOOL CListCtrl::SetItem(const LVITEMA* item)
{
    return SetItem(WideItemCL<LVITEMW, LVIF_TEXT>(*item).PointerM());
}

BOOL CListCtrl::SetItem(const LVITEMW* item)
{
    return SendMessage(LVM_SETITEMW, 0, pointerM(item)) != 0;
}

BOOL CListCtrl::setItemM(int row, int column, UINT mask, LPCWSTR text, int image, UINT state, UINT stateMask,
    LPARAM param, int indent)
{
    LVITEMW item = {};
    item.mask = mask;
    item.iItem = row;
    item.iSubItem = column;
    item.pszText = const_cast<wchar_t*>(text);
    item.iImage = image;
    item.state = state;
    item.stateMask = stateMask;
    item.lParam = param;
    item.iIndent = indent;
    return SetItem(&item);
}

BOOL CListCtrl::setItemTextM(int row, int column, LPCWSTR text)
{
    LVITEMW item = {};
    item.iSubItem = column;
    item.pszText = const_cast<wchar_t*>(text);
    return SendMessage(LVM_SETITEMTEXTW, AfxWordOf(row), pointerM(&item)) != 0;
}

int CListCtrl::GetItemText(int row, int column, LPSTR to, int size) const
{
    return slCopyText(to, size, rowTextM(*this, row, column));
}

CString CListCtrl::GetItemText(int row, int column) const
{
    return CString(rowTextM(*this, row, column).c_str());
}

BOOL CListCtrl::SetItemData(int row, DWORD_PTR data)
{
    LVITEMW item = {};
    item.mask = LVIF_PARAM;
    item.iItem = row;
    item.lParam = static_cast<LPARAM>(data);
    return SetItem(&item);
}

DWORD_PTR CListCtrl::GetItemData(int row) const
{
    LVITEMW item = {};
    item.mask = LVIF_PARAM;
    item.iItem = row;
    GetItem(&item);
    return static_cast<DWORD_PTR>(item.lParam);
}

BOOL CListCtrl::SortItems(PFNLVCOMPARE compare, DWORD_PTR data)
{
    return SendMessage(LVM_SORTITEMS, data, reinterpret_cast<LPARAM>(compare)) != 0;
}

BOOL CListCtrl::SortItemsEx(PFNLVCOMPARE compare, DWORD_PTR data)
{
    return SendMessage(LVM_SORTITEMSEX, data, reinterpret_cast<LPARAM>(compare)) != 0;
}

int CListCtrl::FindItem(const LVFINDINFOA* what, int after) const
{
    ItemTextCL text((what->flags & (LVFI_STRING | LVFI_PARTIAL)) != 0 ? what->psz : nullptr);
    const LVFINDINFOW wide = { what->flags, text.PointerM(), what->lParam, what->pt, what->vkDirection };
    return FindItem(&wide, after);
}

int CListCtrl::FindItem(const LVFINDINFOW* what, int after) const
{
    return AfxSendInt(*this, LVM_FINDITEMW, after, pointerM(what));
}

int CListCtrl::GetNextItem(int after, int flags) const
{
    return AfxSendInt(*this, LVM_GETNEXTITEM, after, MAKELPARAM(flags, 0));
}

// A position is the row and one, as there is none for null.
POSITION CListCtrl::GetFirstSelectedItemPosition() const
{
    return reinterpret_cast<POSITION>(static_cast<INT_PTR>(GetNextItem(-1, LVNI_SELECTED) + 1));
}

int CListCtrl::GetNextSelectedItem(POSITION& at) const
{
    const int row = static_cast<int>(reinterpret_cast<INT_PTR>(at)) - 1;
    at = reinterpret_cast<POSITION>(static_cast<INT_PTR>(GetNextItem(row, LVNI_SELECTED) + 1));
    return row;
}

BOOL CListCtrl::SetItemState(int row, UINT state, UINT mask)
{
    LVITEMW item = {};
    item.state = state;
    item.stateMask = mask;
    return SetItemState(row, &item);
}

BOOL CListCtrl::SetItemState(int row, LVITEMW* item)
{
    return SendMessage(LVM_SETITEMSTATE, AfxWordOf(row), pointerM(item)) != 0;
}

UINT CListCtrl::GetItemState(int row, UINT mask) const
{
    return static_cast<UINT>(SendMessage(LVM_GETITEMSTATE, AfxWordOf(row), mask));
}
