#pragma once
#include "toolkit/wnd.h"

// Their classes exist only after the library of common controls has been asked for them.
void NeedCommonControls();

// A list of equally sized pictures; deletes it with itself.
class PANELKIT_API CImageList : public CObject
{
    DECLARE_DYNAMIC(CImageList)
public:
    CImageList() = default;
    ~CImageList() override { DeleteImageList(); }

    HIMAGELIST m_hImageList = nullptr;
    HIMAGELIST GetSafeHandle() const { return m_hImageList; }
    operator HIMAGELIST() const { return m_hImageList; }
    BOOL Attach(HIMAGELIST list);
    HIMAGELIST Detach();
    static CImageList* FromHandle(HIMAGELIST list); // temporary object; null for a null handle
    BOOL Create(int width, int height, UINT flags, int initial, int grow);
    BOOL DeleteImageList();
    int GetImageCount() const { return ::ImageList_GetImageCount(m_hImageList); }
    // Result: the index of the new picture, -1 on failure. The bitmap stays the caller's.
    int Add(CBitmap* bitmap, CBitmap* mask);
    int Add(CBitmap* bitmap, COLORREF maskColor);
    int Add(HICON icon) { return ::ImageList_ReplaceIcon(m_hImageList, -1, icon); }
    BOOL Remove(int index) { return ::ImageList_Remove(m_hImageList, index); }
    COLORREF SetBkColor(COLORREF color) { return ::ImageList_SetBkColor(m_hImageList, color); }
    BOOL Draw(CDC* dc, int index, POINT at, UINT style);
    BOOL GetImageInfo(int index, IMAGEINFO* info) const;
};

// Report, icon and list views. Texts are GBK; rows and columns count from 0.
class PANELKIT_API CListCtrl : public CWnd
{
    DECLARE_DYNAMIC(CListCtrl)
public:
    BOOL Create(DWORD style, const RECT& rect, CWnd* parent, UINT id);
    // Results: the index of the new column or row, -1 on failure.
    int InsertColumn(int column, LPCSTR heading, int format = LVCFMT_LEFT, int width = -1, int subItem = -1);
    int InsertColumn(int column, const LVCOLUMNA* what);
    int InsertColumn(int column, const LVCOLUMNW* what);
    BOOL DeleteColumn(int column) { return SendMessage(LVM_DELETECOLUMN, word(column)) != 0; }
    BOOL SetColumnWidth(int column, int width) { return ListView_SetColumnWidth(m_hWnd, column, width); }
    int GetColumnWidth(int column) const { return ListView_GetColumnWidth(m_hWnd, column); }
    int InsertItem(int row, LPCSTR text);
    int InsertItem(int row, LPCSTR text, int image);
    int InsertItem(const LVITEMA* item);
    int InsertItem(const LVITEMW* item);
    BOOL SetItem(const LVITEMA* item);
    BOOL SetItem(const LVITEMW* item);
    BOOL SetItemText(int row, int column, LPCSTR text);
    int GetItemText(int row, int column, LPSTR to, int size) const; // result: bytes copied
    CString GetItemText(int row, int column) const;
    BOOL SetItemData(int row, DWORD_PTR data);
    DWORD_PTR GetItemData(int row) const;
    int GetItemCount() const { return static_cast<int>(SendMessage(LVM_GETITEMCOUNT)); }
    BOOL DeleteItem(int row) { return SendMessage(LVM_DELETEITEM, word(row)) != 0; }
    BOOL DeleteAllItems() { return SendMessage(LVM_DELETEALLITEMS) != 0; }
    int GetNextItem(int after, int flags) const;
    BOOL SetItemState(int row, UINT state, UINT mask);
    UINT GetItemState(int row, UINT mask) const;
    int GetSelectionMark() const { return static_cast<int>(SendMessage(LVM_GETSELECTIONMARK)); }
    UINT GetSelectedCount() const { return static_cast<UINT>(SendMessage(LVM_GETSELECTEDCOUNT)); }
    BOOL EnsureVisible(int row, BOOL partial)
    {
        return SendMessage(LVM_ENSUREVISIBLE, word(row), partial) != 0;
    }
    BOOL GetItemRect(int row, LPRECT rect, UINT part) const;
    BOOL SetTextColor(COLORREF color) { return SendMessage(LVM_SETTEXTCOLOR, 0, color) != 0; }
    BOOL SetTextBkColor(COLORREF color) { return SendMessage(LVM_SETTEXTBKCOLOR, 0, color) != 0; }
    BOOL SetBkColor(COLORREF color) { return SendMessage(LVM_SETBKCOLOR, 0, color) != 0; }
    DWORD SetExtendedStyle(DWORD style);
    DWORD GetExtendedStyle() const;
    CImageList* SetImageList(CImageList* list, int which); // result: the list before, null: none
    HWND GetHeaderHandle() const { return ListView_GetHeader(m_hWnd); }

private:
    static WPARAM word(int value) { return static_cast<WPARAM>(static_cast<INT_PTR>(value)); }
};

// Texts are GBK; a null item stands for failure.
class PANELKIT_API CTreeCtrl : public CWnd
{
    DECLARE_DYNAMIC(CTreeCtrl)
public:
    BOOL Create(DWORD style, const RECT& rect, CWnd* parent, UINT id);
    HTREEITEM InsertItem(LPCSTR text, HTREEITEM parent = TVI_ROOT, HTREEITEM after = TVI_LAST);
    HTREEITEM InsertItem(
        LPCSTR text, int image, int selectedImage, HTREEITEM parent = TVI_ROOT, HTREEITEM after = TVI_LAST);
    HTREEITEM InsertItem(UINT mask, LPCSTR text, int image, int selectedImage, UINT state, UINT stateMask,
        LPARAM param, HTREEITEM parent, HTREEITEM after);
    HTREEITEM InsertItem(TVINSERTSTRUCTA* what);
    HTREEITEM InsertItem(TVINSERTSTRUCTW* what);
    BOOL DeleteItem(HTREEITEM item)
    {
        return SendMessage(TVM_DELETEITEM, 0, reinterpret_cast<LPARAM>(item)) != 0;
    }
    BOOL DeleteAllItems() { return DeleteItem(TVI_ROOT); }
    UINT GetCount() const { return static_cast<UINT>(SendMessage(TVM_GETCOUNT)); }
    HTREEITEM GetNextItem(HTREEITEM item, UINT which) const;
    HTREEITEM GetRootItem() const { return GetNextItem(nullptr, TVGN_ROOT); }
    HTREEITEM GetChildItem(HTREEITEM item) const { return GetNextItem(item, TVGN_CHILD); }
    HTREEITEM GetNextSiblingItem(HTREEITEM item) const { return GetNextItem(item, TVGN_NEXT); }
    HTREEITEM GetPrevSiblingItem(HTREEITEM item) const { return GetNextItem(item, TVGN_PREVIOUS); }
    HTREEITEM GetParentItem(HTREEITEM item) const { return GetNextItem(item, TVGN_PARENT); }
    HTREEITEM GetSelectedItem() const { return GetNextItem(nullptr, TVGN_CARET); }
    BOOL ItemHasChildren(HTREEITEM item) const { return GetChildItem(item) != nullptr; }
    BOOL SelectItem(HTREEITEM item);
    BOOL Expand(HTREEITEM item, UINT code);
    BOOL EnsureVisible(HTREEITEM item);
    CString GetItemText(HTREEITEM item) const;
    BOOL SetItemText(HTREEITEM item, LPCSTR text);
    BOOL GetItemImage(HTREEITEM item, int& image, int& selectedImage) const;
    BOOL SetItemImage(HTREEITEM item, int image, int selectedImage);
    DWORD_PTR GetItemData(HTREEITEM item) const;
    BOOL SetItemData(HTREEITEM item, DWORD_PTR data);
    BOOL GetItemRect(HTREEITEM item, LPRECT rect, BOOL textOnly) const;
    CImageList* SetImageList(CImageList* list, int which); // result: the list before, null: none
    CImageList* GetImageList(UINT which) const;
};

class PANELKIT_API CSpinButtonCtrl : public CWnd
{
    DECLARE_DYNAMIC(CSpinButtonCtrl)
public:
    BOOL Create(DWORD style, const RECT& rect, CWnd* parent, UINT id);
    CWnd* SetBuddy(CWnd* buddy); // result: the buddy before
    CWnd* GetBuddy() const { return CWnd::FromHandle(reinterpret_cast<HWND>(SendMessage(UDM_GETBUDDY))); }
    void SetRange(short low, short high) { SendMessage(UDM_SETRANGE, 0, MAKELPARAM(high, low)); }
    void SetRange32(int low, int high) { SendMessage(UDM_SETRANGE32, static_cast<WPARAM>(low), high); }
    void GetRange(int& low, int& high) const;
    DWORD GetRange() const { return static_cast<DWORD>(SendMessage(UDM_GETRANGE)); }
    int SetPos(int at) { return static_cast<short>(SendMessage(UDM_SETPOS, 0, MAKELPARAM(at, 0))); }
    int GetPos() const { return static_cast<short>(LOWORD(SendMessage(UDM_GETPOS))); }
    int SetBase(int base) { return static_cast<int>(SendMessage(UDM_SETBASE, static_cast<WPARAM>(base))); }
    UINT GetBase() const { return static_cast<UINT>(SendMessage(UDM_GETBASE)); }
    BOOL SetAccel(int count, UDACCEL* steps);
};
