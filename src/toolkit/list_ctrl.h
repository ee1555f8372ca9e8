#pragma once
#include "toolkit/common_control.h"
#include "toolkit/control_objects.h"

// What the collections use too: where an iteration is.
struct __POSITION;
// A place in a list; null: none.
typedef __POSITION* POSITION;

// Report, icon, small icon and list views. Texts are GBK, lengths in bytes; rows and columns count from 0.
// Where a structure carries a text, the one of GBK and the wide one are both taken. The texts in
// notifications are wide.
class PANELKIT_API CListCtrl : public CWnd
{
    DECLARE_DYNAMIC(CListCtrl)
public:
    BOOL Create(DWORD style, const RECT& rect, CWnd* parent, UINT id);

    // Columns. Result of the insertions: the index of the new one, -1 on failure.
    int InsertColumn(int column, LPCSTR heading, int format = LVCFMT_LEFT, int width = -1, int subItem = -1)
    {
        return InsertColumn(column, ItemTextCL(heading).PointerM(), format, width, subItem);
    }
    AFX_WIDE_TEXT int InsertColumn(
        int column, const WideTP* heading, int format = LVCFMT_LEFT, int width = -1, int subItem = -1)
    {
        return insertColumnM(column, heading, format, width, subItem);
    }
    int InsertColumn(int column, const LVCOLUMNA* what);
    int InsertColumn(int column, const LVCOLUMNW* what);
    BOOL DeleteColumn(int column) { return SendMessage(LVM_DELETECOLUMN, AfxWordOf(column)) != 0; }

    // What mask asks of a column; what it says is set. FALSE: no such column.
    BOOL GetColumn(int column, LVCOLUMNA* to) const;
    BOOL GetColumn(int column, LVCOLUMNW* to) const;
    BOOL SetColumn(int column, const LVCOLUMNA* what);
    BOOL SetColumn(int column, const LVCOLUMNW* what);
    BOOL SetColumnWidth(int column, int width) { return ListView_SetColumnWidth(m_hWnd, column, width); }
    int GetColumnWidth(int column) const { return ListView_GetColumnWidth(m_hWnd, column); }
    BOOL SetColumnOrderArray(int count, LPINT order);
    BOOL GetColumnOrderArray(LPINT order, int count = -1) const;                  // -1: as many as there are
    CHeaderCtrl* GetHeaderCtrl() const { return AfxHeaderOf(GetHeaderHandle()); } // null: no report view
    HWND GetHeaderHandle() const { return ListView_GetHeader(m_hWnd); }

    // Rows. Result of the insertions: the index of the new one, -1 on failure.
    int InsertItem(int row, LPCSTR text) { return InsertItem(row, ItemTextCL(text).PointerM()); }
    AFX_WIDE_TEXT int InsertItem(int row, const WideTP* text)
    {
        return InsertItem(LVIF_TEXT, row, text, 0, 0, 0, 0);
    }
    int InsertItem(int row, LPCSTR text, int image)
    {
        return InsertItem(row, ItemTextCL(text).PointerM(), image);
    }
    AFX_WIDE_TEXT int InsertItem(int row, const WideTP* text, int image)
    {
        return InsertItem(LVIF_TEXT | LVIF_IMAGE, row, text, 0, 0, image, 0);
    }
    int InsertItem(UINT mask, int row, LPCSTR text, UINT state, UINT stateMask, int image, LPARAM param)
    {
        return InsertItem(mask, row, ItemTextCL(text).PointerM(), state, stateMask, image, param);
    }
    AFX_WIDE_TEXT int InsertItem(
        UINT mask, int row, const WideTP* text, UINT state, UINT stateMask, int image, LPARAM param)
    {
        return insertItemM(mask, row, text, state, stateMask, image, param);
    }
    int InsertItem(const LVITEMA* item);
    int InsertItem(const LVITEMW* item);
    BOOL DeleteItem(int row) { return SendMessage(LVM_DELETEITEM, AfxWordOf(row)) != 0; }
    BOOL DeleteAllItems() { return SendMessage(LVM_DELETEALLITEMS) != 0; }
    int GetItemCount() const { return static_cast<int>(SendMessage(LVM_GETITEMCOUNT)); }
    void SetItemCount(int count) { SendMessage(LVM_SETITEMCOUNT, AfxWordOf(count)); }
    BOOL SetItemCountEx(int count, DWORD flags = LVSICF_NOINVALIDATEALL)
    {
        return SendMessage(LVM_SETITEMCOUNT, AfxWordOf(count), static_cast<LPARAM>(flags)) != 0;
    }
    BOOL GetItem(LVITEMA* item) const; // a text is cut between characters to cchTextMax bytes
    BOOL GetItem(LVITEMW* item) const;
    BOOL SetItem(const LVITEMA* item);
    BOOL SetItem(const LVITEMW* item);
    BOOL SetItem(int row, int column, UINT mask, LPCSTR text, int image, UINT state, UINT stateMask,
        LPARAM param, int indent = 0)
    {
        return SetItem(
            row, column, mask, ItemTextCL(text).PointerM(), image, state, stateMask, param, indent);
    }
    AFX_WIDE_TEXT BOOL SetItem(int row, int column, UINT mask, const WideTP* text, int image, UINT state,
        UINT stateMask, LPARAM param, int indent = 0)
    {
        return setItemM(row, column, mask, text, image, state, stateMask, param, indent);
    }

    // The text of a cell. FALSE: no such row.
    BOOL SetItemText(int row, int column, LPCSTR text)
    {
        return SetItemText(row, column, ItemTextCL(text).PointerM());
    }
    AFX_WIDE_TEXT BOOL SetItemText(int row, int column, const WideTP* text)
    {
        return setItemTextM(row, column, text);
    }
    int GetItemText(int row, int column, LPSTR to, int size) const; // result: bytes copied
    CString GetItemText(int row, int column) const;

    // The application's number of a row.
    BOOL SetItemData(int row, DWORD_PTR data);
    // The same; 0: none, or no such row.
    DWORD_PTR GetItemData(int row) const;
    BOOL SortItems(PFNLVCOMPARE compare, DWORD_PTR data);   // compares item data
    BOOL SortItemsEx(PFNLVCOMPARE compare, DWORD_PTR data); // compares rows
    int FindItem(const LVFINDINFOA* what, int after = -1) const;
    int FindItem(const LVFINDINFOW* what, int after = -1) const;
    UINT GetCallbackMask() const { return static_cast<UINT>(SendMessage(LVM_GETCALLBACKMASK)); }
    BOOL SetCallbackMask(UINT mask) { return SendMessage(LVM_SETCALLBACKMASK, mask) != 0; }

    // Selection and state.
    int GetNextItem(int after, int flags) const;
    POSITION GetFirstSelectedItemPosition() const; // null: nothing is selected
    int GetNextSelectedItem(POSITION& at) const;   // and moves on; null: that was the last
    BOOL SetItemState(int row, UINT state, UINT mask);
    BOOL SetItemState(int row, LVITEMW* item); // row -1: all
    UINT GetItemState(int row, UINT mask) const;
    UINT GetSelectedCount() const { return static_cast<UINT>(SendMessage(LVM_GETSELECTEDCOUNT)); }
    int GetSelectionMark() const { return static_cast<int>(SendMessage(LVM_GETSELECTIONMARK)); }
    int SetSelectionMark(int row)
    {
        return static_cast<int>(SendMessage(LVM_SETSELECTIONMARK, 0, static_cast<LPARAM>(row)));
    }

    // Of a table with LVS_EX_CHECKBOXES.
    BOOL GetCheck(int row) const { return GetItemState(row, LVIS_STATEIMAGEMASK) >> 12 == 2; }
    BOOL SetCheck(int row, BOOL check = TRUE)
    {
        return SetItemState(row, INDEXTOSTATEIMAGEMASK(check ? 2u : 1u), LVIS_STATEIMAGEMASK);
    }
    int GetHotItem() const { return static_cast<int>(SendMessage(LVM_GETHOTITEM)); }
    int SetHotItem(int row) { return static_cast<int>(SendMessage(LVM_SETHOTITEM, AfxWordOf(row))); }
    CEdit* EditLabel(int row); // the field, null: refused
    CEdit* GetEditControl() const { return AfxEditOf(ListView_GetEditControl(m_hWnd)); }
    void CancelEditLabel() { SendMessage(LVM_CANCELEDITLABEL); }

    // Places.
    BOOL EnsureVisible(int row, BOOL partial)
    {
        return SendMessage(LVM_ENSUREVISIBLE, AfxWordOf(row), partial) != 0;
    }
    BOOL Scroll(CSize by) { return SendMessage(LVM_SCROLL, AfxWordOf(by.cx), by.cy) != 0; } // pixels
    int GetTopIndex() const { return static_cast<int>(SendMessage(LVM_GETTOPINDEX)); }
    int GetCountPerPage() const { return static_cast<int>(SendMessage(LVM_GETCOUNTPERPAGE)); }
    BOOL RedrawItems(int first, int last)
    {
        return SendMessage(LVM_REDRAWITEMS, AfxWordOf(first), last) != 0;
    }
    BOOL Update(int row) { return SendMessage(LVM_UPDATE, AfxWordOf(row)) != 0; }
    BOOL Arrange(UINT code) { return SendMessage(LVM_ARRANGE, code) != 0; }
    BOOL GetItemRect(int row, LPRECT rect, UINT part) const;
    BOOL GetSubItemRect(int row, int column, int part, CRect& rect) const;
    BOOL GetItemPosition(int row, LPPOINT at) const { return pointM(LVM_GETITEMPOSITION, row, at); }
    BOOL SetItemPosition(int row, POINT at) { return pointM(LVM_SETITEMPOSITION32, row, &at); }
    BOOL GetOrigin(LPPOINT origin) const { return pointM(LVM_GETORIGIN, 0, origin); }
    BOOL GetViewRect(LPRECT rect) const
    {
        return SendMessage(LVM_GETVIEWRECT, 0, reinterpret_cast<LPARAM>(rect)) != 0;
    }
    int HitTest(LVHITTESTINFO* info) const; // -1: no row
    int HitTest(CPoint at, UINT* flags = nullptr) const;
    int SubItemHitTest(LVHITTESTINFO* info); // fills in the column too

    // Pixels that a text takes in its font.
    int GetStringWidth(LPCSTR text) const { return GetStringWidth(ItemTextCL(text).PointerM()); }
    AFX_WIDE_TEXT int GetStringWidth(const WideTP* text) const
    {
        return static_cast<int>(SendMessage(LVM_GETSTRINGWIDTHW, 0, AfxTextOf(text)));
    }
    CSize ApproximateViewRect(CSize size = CSize(-1, -1), int count = -1) const;
    CSize SetIconSpacing(CSize size) { return SetIconSpacing(size.cx, size.cy); } // result: the one before
    CSize SetIconSpacing(int width, int height);

    // Looks.
    CImageList* SetImageList(CImageList* list, int which); // result: the list before, null: none
    CImageList* GetImageList(int which) const
    {
        return AfxImagesOf(SendMessage(LVM_GETIMAGELIST, AfxWordOf(which)));
    }
    CImageList* CreateDragImage(int row, LPPOINT at); // the caller's, made by new; null: no row
    CToolTipCtrl* GetToolTips() const { return AfxToolTipsOf(AfxSendHandle<HWND>(*this, LVM_GETTOOLTIPS)); }
    COLORREF GetBkColor() const { return static_cast<COLORREF>(SendMessage(LVM_GETBKCOLOR)); }
    BOOL SetBkColor(COLORREF color) { return SendMessage(LVM_SETBKCOLOR, 0, color) != 0; }
    COLORREF GetTextColor() const { return static_cast<COLORREF>(SendMessage(LVM_GETTEXTCOLOR)); }
    BOOL SetTextColor(COLORREF color) { return SendMessage(LVM_SETTEXTCOLOR, 0, color) != 0; }
    COLORREF GetTextBkColor() const { return static_cast<COLORREF>(SendMessage(LVM_GETTEXTBKCOLOR)); }
    BOOL SetTextBkColor(COLORREF color) { return SendMessage(LVM_SETTEXTBKCOLOR, 0, color) != 0; }
    DWORD SetExtendedStyle(DWORD style);
    DWORD GetExtendedStyle() const;
    DWORD GetView() const { return static_cast<DWORD>(SendMessage(LVM_GETVIEW)); }
    DWORD SetView(int view)
    {
        return static_cast<DWORD>(SendMessage(LVM_SETVIEW, AfxWordOf(view)));
    } // ~0: failed
    HCURSOR GetHotCursor() const { return AfxSendHandle<HCURSOR>(*this, LVM_GETHOTCURSOR); }
    HCURSOR SetHotCursor(HCURSOR cursor) { return AfxSendHandle(*this, LVM_SETHOTCURSOR, 0, cursor); }
    DWORD GetHoverTime() const { return static_cast<DWORD>(SendMessage(LVM_GETHOVERTIME)); } // milliseconds
    DWORD SetHoverTime(DWORD time = ~0u)
    {
        return static_cast<DWORD>(SendMessage(LVM_SETHOVERTIME, 0, time));
    }

    virtual void DrawItem(LPDRAWITEMSTRUCT) { } // of LVS_OWNERDRAWFIXED

protected:
    afx_msg void OnDestroy(); // keeps the window from deleting what objects own
    DECLARE_MESSAGE_MAP()
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result) override;

private:
    int insertColumnM(int column, LPCWSTR heading, int format, int width, int subItem);
    int insertItemM(UINT mask, int row, LPCWSTR text, UINT state, UINT stateMask, int image, LPARAM param);
    BOOL setItemM(int row, int column, UINT mask, LPCWSTR text, int image, UINT state, UINT stateMask,
        LPARAM param, int indent);
    BOOL setItemTextM(int row, int column, LPCWSTR text);
    BOOL pointM(UINT message, int row, LPPOINT at) const
    {
        return SendMessage(message, AfxWordOf(row), reinterpret_cast<LPARAM>(at)) != 0;
    }
};
