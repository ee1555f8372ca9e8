#include "toolkit/common_controls.h"
#include "toolkit/item_text.h"
#include "toolkit/text.h"
#include <vector>

IMPLEMENT_DYNAMIC(CTreeCtrl, CWnd)

BOOL CTreeCtrl::Create(DWORD style, const RECT& rect, CWnd* parent, UINT id)
{
    NeedCommonControls();
    return CWnd::Create("SysTreeView32", nullptr, style, rect, parent, id);
}

HTREEITEM CTreeCtrl::InsertItem(LPCSTR text, HTREEITEM parent, HTREEITEM after)
{
    return InsertItem(TVIF_TEXT, text, 0, 0, 0, 0, 0, parent, after);
}

HTREEITEM CTreeCtrl::InsertItem(LPCSTR text, int image, int selectedImage, HTREEITEM parent, HTREEITEM after)
{
    return InsertItem(
        TVIF_TEXT | TVIF_IMAGE | TVIF_SELECTEDIMAGE, text, image, selectedImage, 0, 0, 0, parent, after);
}

HTREEITEM CTreeCtrl::InsertItem(UINT mask, LPCSTR text, int image, int selectedImage, UINT state,
    UINT stateMask, LPARAM param, HTREEITEM parent, HTREEITEM after)
{
    ItemTextCL wide(text);
    TVINSERTSTRUCTW what = {};
    what.hParent = parent;
    what.hInsertAfter = after;
    what.item.mask = mask;
    what.item.pszText = wide.PointerM();
    what.item.iImage = image;
    what.item.iSelectedImage = selectedImage;
    what.item.state = state;
    what.item.stateMask = stateMask;
    what.item.lParam = param;
    return InsertItem(&what);
}

HTREEITEM CTreeCtrl::InsertItem(TVINSERTSTRUCTA* what)
{
    const TVITEMA& item = what->item;
    ItemTextCL text((item.mask & TVIF_TEXT) != 0 ? item.pszText : nullptr);
    TVINSERTSTRUCTW wide = {};
    wide.hParent = what->hParent;
    wide.hInsertAfter = what->hInsertAfter;
    wide.item = { item.mask, item.hItem, item.state, item.stateMask, text.PointerM(), 0, item.iImage,
        item.iSelectedImage, item.cChildren, item.lParam };
    return InsertItem(&wide);
}

HTREEITEM CTreeCtrl::InsertItem(TVINSERTSTRUCTW* what)
{
    return reinterpret_cast<HTREEITEM>(SendMessage(TVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(what)));
}

HTREEITEM CTreeCtrl::GetNextItem(HTREEITEM item, UINT which) const
{
    return reinterpret_cast<HTREEITEM>(SendMessage(TVM_GETNEXTITEM, which, reinterpret_cast<LPARAM>(item)));
}

BOOL CTreeCtrl::SelectItem(HTREEITEM item)
{
    return SendMessage(TVM_SELECTITEM, TVGN_CARET, reinterpret_cast<LPARAM>(item)) != 0;
}

BOOL CTreeCtrl::Expand(HTREEITEM item, UINT code)
{
    return SendMessage(TVM_EXPAND, code, reinterpret_cast<LPARAM>(item)) != 0;
}

BOOL CTreeCtrl::EnsureVisible(HTREEITEM item)
{
    return SendMessage(TVM_ENSUREVISIBLE, 0, reinterpret_cast<LPARAM>(item)) != 0;
}

CString CTreeCtrl::GetItemText(HTREEITEM item) const
{
    std::vector<wchar_t> text(128);
    for (;;) {
        TVITEMW what = {};
        what.mask = TVIF_TEXT;
        what.hItem = item;
        what.pszText = text.data();
        what.cchTextMax = static_cast<int>(text.size());
        if (!SendMessage(TVM_GETITEMW, 0, reinterpret_cast<LPARAM>(&what))) {
            return CString();
        }
        size_t used = std::wcslen(what.pszText);
        if (used + 1 < text.size()) {
            return CString(WideToGbk(what.pszText).c_str());
        }
        text.assign(text.size() * 4, 0);
    }
}

BOOL CTreeCtrl::SetItemText(HTREEITEM item, LPCSTR text)
{
    ItemTextCL wide(text);
    TVITEMW what = {};
    what.mask = TVIF_TEXT;
    what.hItem = item;
    what.pszText = wide.PointerM();
    return SendMessage(TVM_SETITEMW, 0, reinterpret_cast<LPARAM>(&what)) != 0;
}

BOOL CTreeCtrl::GetItemImage(HTREEITEM item, int& image, int& selectedImage) const
{
    TVITEMW what = {};
    what.mask = TVIF_IMAGE | TVIF_SELECTEDIMAGE;
    what.hItem = item;
    BOOL got = SendMessage(TVM_GETITEMW, 0, reinterpret_cast<LPARAM>(&what)) != 0;
    image = what.iImage;
    selectedImage = what.iSelectedImage;
    return got;
}

BOOL CTreeCtrl::SetItemImage(HTREEITEM item, int image, int selectedImage)
{
    TVITEMW what = {};
    what.mask = TVIF_IMAGE | TVIF_SELECTEDIMAGE;
    what.hItem = item;
    what.iImage = image;
    what.iSelectedImage = selectedImage;
    return SendMessage(TVM_SETITEMW, 0, reinterpret_cast<LPARAM>(&what)) != 0;
}

DWORD_PTR CTreeCtrl::GetItemData(HTREEITEM item) const
{
    TVITEMW what = {};
    what.mask = TVIF_PARAM;
    what.hItem = item;
    SendMessage(TVM_GETITEMW, 0, reinterpret_cast<LPARAM>(&what));
    return static_cast<DWORD_PTR>(what.lParam);
}

BOOL CTreeCtrl::SetItemData(HTREEITEM item, DWORD_PTR data)
{
    TVITEMW what = {};
    what.mask = TVIF_PARAM;
    what.hItem = item;
    what.lParam = static_cast<LPARAM>(data);
    return SendMessage(TVM_SETITEMW, 0, reinterpret_cast<LPARAM>(&what)) != 0;
}

BOOL CTreeCtrl::GetItemRect(HTREEITEM item, LPRECT rect, BOOL textOnly) const
{
    return TreeView_GetItemRect(m_hWnd, item, rect, textOnly);
}

CImageList* CTreeCtrl::SetImageList(CImageList* list, int which)
{
    return CImageList::FromHandle(
        reinterpret_cast<HIMAGELIST>(SendMessage(TVM_SETIMAGELIST, static_cast<WPARAM>(which),
            reinterpret_cast<LPARAM>(list == nullptr ? nullptr : list->m_hImageList))));
}

CImageList* CTreeCtrl::GetImageList(UINT which) const
{
    return CImageList::FromHandle(reinterpret_cast<HIMAGELIST>(SendMessage(TVM_GETIMAGELIST, which)));
}
