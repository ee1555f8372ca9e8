#include "baselib/gbk.h"
#include "toolkit/common_controls.h"
#include "toolkit/item_text.h"
#include "toolkit/text.h"
#include <vector>

IMPLEMENT_DYNAMIC(CListCtrl, CWnd)

namespace {

// The same item with another text.
LVITEMW wideItemM(const LVITEMA& item, ItemTextCL* text)
{
    LVITEMW wide = {};
    wide.mask = item.mask;
    wide.iItem = item.iItem;
    wide.iSubItem = item.iSubItem;
    wide.state = item.state;
    wide.stateMask = item.stateMask;
    wide.iImage = item.iImage;
    wide.lParam = item.lParam;
    wide.iIndent = item.iIndent;
    wide.pszText = text->PointerM();
    return wide;
}

ItemTextCL textOfM(const LVITEMA& item)
{
    return ItemTextCL((item.mask & LVIF_TEXT) != 0 ? item.pszText : nullptr);
}

std::string itemTextM(HWND list, int row, int column)
{
    // The control doesn't tell a length: more room until the text no longer fills it.
    std::vector<wchar_t> text(128);
    for (;;) {
        LVITEMW item = {};
        item.iSubItem = column;
        item.pszText = text.data();
        item.cchTextMax = static_cast<int>(text.size());
        size_t used = static_cast<size_t>(::SendMessageW(list, LVM_GETITEMTEXTW,
            static_cast<WPARAM>(static_cast<INT_PTR>(row)), reinterpret_cast<LPARAM>(&item)));
        if (used + 1 < text.size()) {
            return WideToGbk(text.data(), static_cast<int>(used));
        }
        text.resize(text.size() * 4);
    }
}

} // namespace

BOOL CListCtrl::Create(DWORD style, const RECT& rect, CWnd* parent, UINT id)
{
    NeedCommonControls();
    return CWnd::Create("SysListView32", nullptr, style, rect, parent, id);
}

int CListCtrl::InsertColumn(int column, LPCSTR heading, int format, int width, int subItem)
{
    std::wstring text = slGbkToShown(heading);
    LVCOLUMNW what = {};
    what.mask = LVCF_TEXT | LVCF_FMT | (width == -1 ? 0u : LVCF_WIDTH) | (subItem == -1 ? 0u : LVCF_SUBITEM);
    what.pszText = text.data();
    what.fmt = format;
    what.cx = width;
    what.iSubItem = subItem;
    return InsertColumn(column, &what);
}

int CListCtrl::InsertColumn(int column, const LVCOLUMNA* what)
{
    std::wstring text;
    LVCOLUMNW wide = {};
    wide.mask = what->mask & (LVCF_FMT | LVCF_WIDTH | LVCF_TEXT | LVCF_SUBITEM | LVCF_IMAGE | LVCF_ORDER);
    wide.fmt = what->fmt;
    wide.cx = what->cx;
    wide.iSubItem = what->iSubItem;
    wide.iImage = what->iImage;
    wide.iOrder = what->iOrder;
    if ((what->mask & LVCF_TEXT) != 0) {
        text = slGbkToShown(what->pszText);
        wide.pszText = text.data();
    }
    return InsertColumn(column, &wide);
}

int CListCtrl::InsertColumn(int column, const LVCOLUMNW* what)
{
    return static_cast<int>(SendMessage(LVM_INSERTCOLUMNW, word(column), reinterpret_cast<LPARAM>(what)));
}

int CListCtrl::InsertItem(int row, LPCSTR text)
{
    LVITEMA item = {};
    item.mask = LVIF_TEXT;
    item.iItem = row;
    item.pszText = const_cast<char*>(text);
    return InsertItem(&item);
}

int CListCtrl::InsertItem(int row, LPCSTR text, int image)
{
    LVITEMA item = {};
    item.mask = LVIF_TEXT | LVIF_IMAGE;
    item.iItem = row;
    item.pszText = const_cast<char*>(text);
    item.iImage = image;
    return InsertItem(&item);
}

int CListCtrl::InsertItem(const LVITEMA* item)
{
    ItemTextCL text = textOfM(*item);
    LVITEMW wide = wideItemM(*item, &text);
    return InsertItem(&wide);
}

int CListCtrl::InsertItem(const LVITEMW* item)
{
    return static_cast<int>(SendMessage(LVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(item)));
}

BOOL CListCtrl::SetItem(const LVITEMA* item)
{
    ItemTextCL text = textOfM(*item);
    LVITEMW wide = wideItemM(*item, &text);
    return SetItem(&wide);
}

BOOL CListCtrl::SetItem(const LVITEMW* item)
{
    return SendMessage(LVM_SETITEMW, 0, reinterpret_cast<LPARAM>(item)) != 0;
}

BOOL CListCtrl::SetItemText(int row, int column, LPCSTR text)
{
    ItemTextCL wide(text);
    LVITEMW item = {};
    item.iSubItem = column;
    item.pszText = wide.PointerM();
    return SendMessage(LVM_SETITEMTEXTW, word(row), reinterpret_cast<LPARAM>(&item)) != 0;
}

int CListCtrl::GetItemText(int row, int column, LPSTR to, int size) const
{
    return slCopyText(to, size, itemTextM(m_hWnd, row, column));
}

CString CListCtrl::GetItemText(int row, int column) const
{
    return CString(itemTextM(m_hWnd, row, column).c_str());
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
    SendMessage(LVM_GETITEMW, 0, reinterpret_cast<LPARAM>(&item));
    return static_cast<DWORD_PTR>(item.lParam);
}

int CListCtrl::GetNextItem(int after, int flags) const
{
    if (m_hWnd == nullptr) {
        return -1; // A caller's loop must end.
    }
    return static_cast<int>(SendMessage(LVM_GETNEXTITEM, word(after), MAKELPARAM(flags, 0)));
}

BOOL CListCtrl::SetItemState(int row, UINT state, UINT mask)
{
    LVITEMW item = {};
    item.state = state;
    item.stateMask = mask;
    return SendMessage(LVM_SETITEMSTATE, word(row), reinterpret_cast<LPARAM>(&item)) != 0;
}

UINT CListCtrl::GetItemState(int row, UINT mask) const
{
    return static_cast<UINT>(SendMessage(LVM_GETITEMSTATE, word(row), mask));
}

BOOL CListCtrl::GetItemRect(int row, LPRECT rect, UINT part) const
{
    rect->left = static_cast<LONG>(part);
    return SendMessage(LVM_GETITEMRECT, word(row), reinterpret_cast<LPARAM>(rect)) != 0;
}

DWORD CListCtrl::SetExtendedStyle(DWORD style)
{
    return static_cast<DWORD>(SendMessage(LVM_SETEXTENDEDLISTVIEWSTYLE, 0, style));
}

DWORD CListCtrl::GetExtendedStyle() const
{
    return static_cast<DWORD>(SendMessage(LVM_GETEXTENDEDLISTVIEWSTYLE));
}

CImageList* CListCtrl::SetImageList(CImageList* list, int which)
{
    return CImageList::FromHandle(reinterpret_cast<HIMAGELIST>(SendMessage(LVM_SETIMAGELIST, word(which),
        reinterpret_cast<LPARAM>(list == nullptr ? nullptr : list->m_hImageList))));
}
