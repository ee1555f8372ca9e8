#include "toolkit/tree_ctrl.h"
#include "toolkit/tool_tip_ctrl.h"

IMPLEMENT_DYNAMIC(CTreeCtrl, CWnd)

BOOL CTreeCtrl::Create(DWORD style, const RECT& rect, CWnd* parent, UINT id)
{
    NeedCommonControls();
    return CWnd::Create("SysTreeView32", nullptr, style, rect, parent, id);
}

HTREEITEM CTreeCtrl::insertItemM(UINT mask, LPCWSTR text, int image, int selectedImage, UINT state,
    UINT stateMask, LPARAM param, HTREEITEM parent, HTREEITEM after)
{
    TVINSERTSTRUCTW what = {};
    what.hParent = parent;
    what.hInsertAfter = after;
    what.item.mask = mask;
    what.item.pszText = const_cast<wchar_t*>(text);
    what.item.iImage = image;
    what.item.iSelectedImage = selectedImage;
    what.item.state = state;
    what.item.stateMask = stateMask;
    what.item.lParam = param;
    return InsertItem(&what);
}

HTREEITEM CTreeCtrl::InsertItem(TVINSERTSTRUCTA* what)
{
    WideItemCL<TVITEMW, TVIF_TEXT> item(what->item);
    TVINSERTSTRUCTW wide = {};
    wide.hParent = what->hParent;
    wide.hInsertAfter = what->hInsertAfter;
    wide.item = *item.PointerM();
    return InsertItem(&wide);
}

HTREEITEM CTreeCtrl::InsertItem(TVINSERTSTRUCTW* what)
{
    return reinterpret_cast<HTREEITEM>(SendMessage(TVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(what)));
}

HTREEITEM CTreeCtrl::GetNextItem(HTREEITEM item, UINT which) const
{
    return reinterpret_cast<HTREEITEM>(sendM(TVM_GETNEXTITEM, which, item));
}

CEdit* CTreeCtrl::EditLabel(HTREEITEM item)
{
    return AfxEditOf(reinterpret_cast<HWND>(sendM(TVM_EDITLABELW, 0, item)));
}

BOOL CTreeCtrl::GetItem(TVITEMA* item) const
{
    return AskGbkItem<TVITEMW, TVIF_TEXT>(item, [this](TVITEMW* wide) { return GetItem(wide); });
}

BOOL CTreeCtrl::GetItem(TVITEMW* item) const
{
    return SendMessage(TVM_GETITEMW, 0, reinterpret_cast<LPARAM>(item)) != 0;
}

BOOL CTreeCtrl::SetItem(const TVITEMA* item)
{
    return SetItem(WideItemCL<TVITEMW, TVIF_TEXT>(*item).PointerM());
}

BOOL CTreeCtrl::SetItem(const TVITEMW* item)
{
    return SendMessage(TVM_SETITEMW, 0, reinterpret_cast<LPARAM>(item)) != 0;
}

BOOL CTreeCtrl::setItemM(HTREEITEM item, UINT mask, LPCWSTR text, int image, int selectedImage, UINT state,
    UINT stateMask, LPARAM param)
{
    TVITEMW what = {};
    what.mask = mask;
    what.hItem = item;
    what.pszText = const_cast<wchar_t*>(text);
    what.iImage = image;
    what.iSelectedImage = selectedImage;
    what.state = state;
    what.stateMask = stateMask;
    what.lParam = param;
    return SetItem(&what);
}

CString CTreeCtrl::GetItemText(HTREEITEM item) const
{
    const std::string text = WholeItemText<TVITEMW>([&](TVITEMW* what) {
        what->mask = TVIF_TEXT;
        what->hItem = item;
        return GetItem(what);
    });
    return CString(text.c_str());
}

BOOL CTreeCtrl::GetItemImage(HTREEITEM item, int& image, int& selectedImage) const
{
    TVITEMW what = {};
    what.mask = TVIF_IMAGE | TVIF_SELECTEDIMAGE;
    what.hItem = item;
    const BOOL got = GetItem(&what);
    image = what.iImage;
    selectedImage = what.iSelectedImage;
    return got;
}

DWORD_PTR CTreeCtrl::GetItemData(HTREEITEM item) const
{
    TVITEMW what = {};
    what.mask = TVIF_PARAM;
    what.hItem = item;
    GetItem(&what);
    return static_cast<DWORD_PTR>(what.lParam);
}

UINT CTreeCtrl::GetItemState(HTREEITEM item, UINT mask) const
{
    return static_cast<UINT>(
        SendMessage(TVM_GETITEMSTATE, reinterpret_cast<WPARAM>(item), static_cast<LPARAM>(mask)) & mask);
}

BOOL CTreeCtrl::GetItemRect(HTREEITEM item, LPRECT rect, BOOL textOnly) const
{
    return TreeView_GetItemRect(m_hWnd, item, rect, textOnly);
}

HTREEITEM CTreeCtrl::HitTest(TVHITTESTINFO* info) const
{
    return reinterpret_cast<HTREEITEM>(SendMessage(TVM_HITTEST, 0, reinterpret_cast<LPARAM>(info)));
}

HTREEITEM CTreeCtrl::HitTest(CPoint at, UINT* flags) const
{
    TVHITTESTINFO info = {};
    info.pt = at;
    const HTREEITEM item = HitTest(&info);
    if (flags != nullptr) {
        *flags = info.flags;
    }
    return item;
}

CImageList* CTreeCtrl::SetImageList(CImageList* list, int which)
{
    return AfxImagesOf(SendMessage(TVM_SETIMAGELIST, AfxWordOf(which), AfxHandleOf(list)));
}

CImageList* CTreeCtrl::CreateDragImage(HTREEITEM item)
{
    return AfxOwnedImages(reinterpret_cast<HIMAGELIST>(sendM(TVM_CREATEDRAGIMAGE, 0, item)));
}

CToolTipCtrl* CTreeCtrl::SetToolTips(CToolTipCtrl* tips)
{
    const HWND handle = tips == nullptr ? nullptr : tips->m_hWnd;
    return AfxToolTipsOf(
        reinterpret_cast<HWND>(SendMessage(TVM_SETTOOLTIPS, reinterpret_cast<WPARAM>(handle))));
}
