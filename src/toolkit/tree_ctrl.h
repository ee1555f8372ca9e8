#pragma once
#include "toolkit/common_control.h"
#include "toolkit/control_objects.h"

// Items below items. Texts are GBK, lengths in bytes; a null item stands for failure. Where a structure
// carries a text, the one of GBK and the wide one are both taken. The texts in notifications are wide.
class PANELKIT_API CTreeCtrl : public CWnd
{
    DECLARE_DYNAMIC(CTreeCtrl)
public:
    BOOL Create(DWORD style, const RECT& rect, CWnd* parent, UINT id);

    // A new item below the parent, behind one of its children or TVI_FIRST, TVI_LAST, TVI_SORT. Null: the
    // system refused.
    HTREEITEM InsertItem(LPCSTR text, HTREEITEM parent = TVI_ROOT, HTREEITEM after = TVI_LAST)
    {
        return InsertItem(ItemTextCL(text).PointerM(), parent, after);
    }
    AFX_WIDE_TEXT HTREEITEM InsertItem(
        const WideTP* text, HTREEITEM parent = TVI_ROOT, HTREEITEM after = TVI_LAST)
    {
        return InsertItem(TVIF_TEXT, text, 0, 0, 0, 0, 0, parent, after);
    }
    HTREEITEM InsertItem(
        LPCSTR text, int image, int selectedImage, HTREEITEM parent = TVI_ROOT, HTREEITEM after = TVI_LAST)
    {
        return InsertItem(ItemTextCL(text).PointerM(), image, selectedImage, parent, after);
    }
    AFX_WIDE_TEXT HTREEITEM InsertItem(const WideTP* text, int image, int selectedImage,
        HTREEITEM parent = TVI_ROOT, HTREEITEM after = TVI_LAST)
    {
        const UINT mask = TVIF_TEXT | TVIF_IMAGE | TVIF_SELECTEDIMAGE;
        return InsertItem(mask, text, image, selectedImage, 0, 0, 0, parent, after);
    }
    HTREEITEM InsertItem(UINT mask, LPCSTR text, int image, int selectedImage, UINT state, UINT stateMask,
        LPARAM param, HTREEITEM parent, HTREEITEM after)
    {
        return InsertItem(
            mask, ItemTextCL(text).PointerM(), image, selectedImage, state, stateMask, param, parent, after);
    }
    AFX_WIDE_TEXT HTREEITEM InsertItem(UINT mask, const WideTP* text, int image, int selectedImage,
        UINT state, UINT stateMask, LPARAM param, HTREEITEM parent, HTREEITEM after)
    {
        return insertItemM(mask, text, image, selectedImage, state, stateMask, param, parent, after);
    }
    HTREEITEM InsertItem(TVINSERTSTRUCTA* what);
    HTREEITEM InsertItem(TVINSERTSTRUCTW* what);
    BOOL DeleteItem(HTREEITEM item) { return sendM(TVM_DELETEITEM, 0, item) != 0; }

    // FALSE: the system refused.
    BOOL DeleteAllItems() { return DeleteItem(TVI_ROOT); }
    UINT GetCount() const { return static_cast<UINT>(SendMessage(TVM_GETCOUNT)); }
    UINT GetVisibleCount() const { return static_cast<UINT>(SendMessage(TVM_GETVISIBLECOUNT)); }

    HTREEITEM GetNextItem(HTREEITEM item, UINT which) const;

    // Items by where they are; null: there is none.
    HTREEITEM GetRootItem() const { return GetNextItem(nullptr, TVGN_ROOT); }
    HTREEITEM GetChildItem(HTREEITEM item) const { return GetNextItem(item, TVGN_CHILD); }
    HTREEITEM GetNextSiblingItem(HTREEITEM item) const { return GetNextItem(item, TVGN_NEXT); }
    HTREEITEM GetPrevSiblingItem(HTREEITEM item) const { return GetNextItem(item, TVGN_PREVIOUS); }
    HTREEITEM GetParentItem(HTREEITEM item) const { return GetNextItem(item, TVGN_PARENT); }
    HTREEITEM GetSelectedItem() const { return GetNextItem(nullptr, TVGN_CARET); }
    HTREEITEM GetDropHilightItem() const { return GetNextItem(nullptr, TVGN_DROPHILITE); }
    HTREEITEM GetFirstVisibleItem() const { return GetNextItem(nullptr, TVGN_FIRSTVISIBLE); }
    HTREEITEM GetNextVisibleItem(HTREEITEM item) const { return GetNextItem(item, TVGN_NEXTVISIBLE); }
    HTREEITEM GetPrevVisibleItem(HTREEITEM item) const { return GetNextItem(item, TVGN_PREVIOUSVISIBLE); }
    HTREEITEM GetLastVisibleItem() const { return GetNextItem(nullptr, TVGN_LASTVISIBLE); }

    // Whether there is one below it.
    BOOL ItemHasChildren(HTREEITEM item) const { return GetChildItem(item) != nullptr; }

    BOOL Select(HTREEITEM item, UINT which) { return sendM(TVM_SELECTITEM, which, item) != 0; }

    // Selects the item; draws it as a target; makes it the first one seen. Null: none.
    BOOL SelectItem(HTREEITEM item) { return Select(item, TVGN_CARET); }
    BOOL SelectDropTarget(HTREEITEM item) { return Select(item, TVGN_DROPHILITE); }
    BOOL SelectSetFirstVisible(HTREEITEM item) { return Select(item, TVGN_FIRSTVISIBLE); }
    BOOL Expand(HTREEITEM item, UINT code) { return sendM(TVM_EXPAND, code, item) != 0; }
    BOOL EnsureVisible(HTREEITEM item) { return sendM(TVM_ENSUREVISIBLE, 0, item) != 0; }
    CEdit* EditLabel(HTREEITEM item); // the field, null: refused
    CEdit* GetEditControl() const { return AfxEditOf(TreeView_GetEditControl(m_hWnd)); }
    BOOL EndEditLabelNow(BOOL cancel) { return SendMessage(TVM_ENDEDITLABELNOW, AfxWordOf(cancel)) != 0; }
    BOOL SortChildren(HTREEITEM item) { return sendM(TVM_SORTCHILDREN, 0, item) != 0; }
    BOOL SortChildrenCB(LPTVSORTCB how)
    {
        return SendMessage(TVM_SORTCHILDRENCB, 0, reinterpret_cast<LPARAM>(how)) != 0;
    }

    BOOL GetItem(TVITEMA* item) const; // a text is cut between characters to cchTextMax bytes
    BOOL GetItem(TVITEMW* item) const;
    BOOL SetItem(const TVITEMA* item);
    BOOL SetItem(const TVITEMW* item);
    BOOL SetItem(HTREEITEM item, UINT mask, LPCSTR text, int image, int selectedImage, UINT state,
        UINT stateMask, LPARAM param)
    {
        return SetItem(
            item, mask, ItemTextCL(text).PointerM(), image, selectedImage, state, stateMask, param);
    }
    AFX_WIDE_TEXT BOOL SetItem(HTREEITEM item, UINT mask, const WideTP* text, int image, int selectedImage,
        UINT state, UINT stateMask, LPARAM param)
    {
        return setItemM(item, mask, text, image, selectedImage, state, stateMask, param);
    }

    // The whole text; empty: no such item.
    CString GetItemText(HTREEITEM item) const;
    // FALSE: no such item.
    BOOL SetItemText(HTREEITEM item, LPCSTR text) { return SetItemText(item, ItemTextCL(text).PointerM()); }
    AFX_WIDE_TEXT BOOL SetItemText(HTREEITEM item, const WideTP* text)
    {
        return setItemM(item, TVIF_TEXT, text, 0, 0, 0, 0, 0);
    }

    // The numbers of its pictures. FALSE: no such item.
    BOOL GetItemImage(HTREEITEM item, int& image, int& selectedImage) const;
    BOOL SetItemImage(HTREEITEM item, int image, int selectedImage)
    {
        const UINT mask = TVIF_IMAGE | TVIF_SELECTEDIMAGE;
        return setItemM(item, mask, nullptr, image, selectedImage, 0, 0, 0);
    }

    // The application's number of the item; 0: none, or no such item.
    DWORD_PTR GetItemData(HTREEITEM item) const;
    BOOL SetItemData(HTREEITEM item, DWORD_PTR data)
    {
        const LPARAM param = static_cast<LPARAM>(data);
        return setItemM(item, TVIF_PARAM, nullptr, 0, 0, 0, 0, param);
    }

    UINT GetItemState(HTREEITEM item, UINT mask) const;

    // The TVIS_ bits in the mask. FALSE: no such item.
    BOOL SetItemState(HTREEITEM item, UINT state, UINT mask)
    {
        return setItemM(item, TVIF_STATE, nullptr, 0, 0, state, mask, 0);
    }

    // Of a tree with TVS_CHECKBOXES.
    BOOL GetCheck(HTREEITEM item) const { return GetItemState(item, TVIS_STATEIMAGEMASK) >> 12 == 2; }
    BOOL SetCheck(HTREEITEM item, BOOL check = TRUE)
    {
        return SetItemState(item, INDEXTOSTATEIMAGEMASK(check ? 2u : 1u), TVIS_STATEIMAGEMASK);
    }

    BOOL GetItemRect(HTREEITEM item, LPRECT rect, BOOL textOnly) const; // FALSE: not shown
    HTREEITEM HitTest(TVHITTESTINFO* info) const;
    HTREEITEM HitTest(CPoint at, UINT* flags = nullptr) const;
    CImageList* SetImageList(CImageList* list, int which); // result: the list before, null: none
    CImageList* GetImageList(UINT which) const { return AfxImagesOf(SendMessage(TVM_GETIMAGELIST, which)); }
    CImageList* CreateDragImage(HTREEITEM item); // the caller's, made by new; null: the item has no picture
    CToolTipCtrl* GetToolTips() const { return AfxToolTipsOf(AfxSendHandle<HWND>(*this, TVM_GETTOOLTIPS)); }
    CToolTipCtrl* SetToolTips(CToolTipCtrl* tips); // result: the ones before
    UINT GetIndent() const { return static_cast<UINT>(SendMessage(TVM_GETINDENT)); } // pixels
    void SetIndent(UINT indent) { SendMessage(TVM_SETINDENT, indent); }
    SHORT GetItemHeight() const { return static_cast<SHORT>(SendMessage(TVM_GETITEMHEIGHT)); }
    SHORT SetItemHeight(SHORT height) // -1: what the font needs. Result: the one before
    {
        return static_cast<SHORT>(SendMessage(TVM_SETITEMHEIGHT, AfxWordOf(height)));
    }
    BOOL SetInsertMark(HTREEITEM item, BOOL after = TRUE)
    {
        return sendM(TVM_SETINSERTMARK, AfxWordOf(after), item) != 0;
    }
    // Results of the setters: the colour before. Those not set are ~0 (CLR_DEFAULT for lines).
    COLORREF GetBkColor() const { return static_cast<COLORREF>(SendMessage(TVM_GETBKCOLOR)); }
    COLORREF SetBkColor(COLORREF color) { return setColorM(TVM_SETBKCOLOR, color); }
    COLORREF GetTextColor() const { return static_cast<COLORREF>(SendMessage(TVM_GETTEXTCOLOR)); }
    COLORREF SetTextColor(COLORREF color) { return setColorM(TVM_SETTEXTCOLOR, color); }
    COLORREF GetLineColor() const { return static_cast<COLORREF>(SendMessage(TVM_GETLINECOLOR)); }
    COLORREF SetLineColor(COLORREF color) { return setColorM(TVM_SETLINECOLOR, color); }
    COLORREF GetInsertMarkColor() const { return static_cast<COLORREF>(SendMessage(TVM_GETINSERTMARKCOLOR)); }
    COLORREF SetInsertMarkColor(COLORREF color) { return setColorM(TVM_SETINSERTMARKCOLOR, color); }

private:
    HTREEITEM insertItemM(UINT mask, LPCWSTR text, int image, int selectedImage, UINT state, UINT stateMask,
        LPARAM param, HTREEITEM parent, HTREEITEM after);
    BOOL setItemM(HTREEITEM item, UINT mask, LPCWSTR text, int image, int selectedImage, UINT state,
        UINT stateMask, LPARAM param);
    LRESULT sendM(UINT message, WPARAM wParam, HTREEITEM item) const
    {
        return SendMessage(message, wParam, reinterpret_cast<LPARAM>(item));
    }
    COLORREF setColorM(UINT message, COLORREF color)
    {
        // As a signed number: -1 takes the colour away.
        return static_cast<COLORREF>(SendMessage(message, 0, static_cast<LPARAM>(static_cast<int>(color))));
    }
};
