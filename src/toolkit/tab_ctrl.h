#pragma once
#include "toolkit/common_control.h"
#include "toolkit/control_objects.h"

// A row of tabs. Texts are GBK, lengths in bytes; indexes count from 0, -1 stands for failure or none. Where
// a structure carries a text, the one of GBK and the wide one are both taken.
class PANELKIT_API CTabCtrl : public CWnd
{
    DECLARE_DYNAMIC(CTabCtrl)
public:
    BOOL Create(DWORD style, const RECT& rect, CWnd* parent, UINT id);

    // A new tab; its index, -1 on failure.
    LONG InsertItem(int index, LPCSTR text) { return InsertItem(index, ItemTextCL(text).PointerM()); }
    AFX_WIDE_TEXT LONG InsertItem(int index, const WideTP* text)
    {
        return InsertItem(TCIF_TEXT, index, text, 0, 0);
    }
    LONG InsertItem(int index, LPCSTR text, int image)
    {
        return InsertItem(index, ItemTextCL(text).PointerM(), image);
    }
    AFX_WIDE_TEXT LONG InsertItem(int index, const WideTP* text, int image)
    {
        return InsertItem(TCIF_TEXT | TCIF_IMAGE, index, text, image, 0);
    }
    LONG InsertItem(UINT mask, int index, LPCSTR text, int image, LPARAM param)
    {
        return InsertItem(mask, index, ItemTextCL(text).PointerM(), image, param);
    }
    AFX_WIDE_TEXT LONG InsertItem(UINT mask, int index, const WideTP* text, int image, LPARAM param)
    {
        return insertItemM(mask, index, text, image, param);
    }
    LONG InsertItem(int index, const TCITEMA* item);
    LONG InsertItem(int index, const TCITEMW* item);
    BOOL DeleteItem(int index) { return SendMessage(TCM_DELETEITEM, AfxWordOf(index)) != 0; }
    BOOL DeleteAllItems() { return SendMessage(TCM_DELETEALLITEMS) != 0; }
    int GetItemCount() const { return AfxSendInt(*this, TCM_GETITEMCOUNT); }
    BOOL GetItem(int index, TCITEMA* item) const; // a text is cut between characters to cchTextMax bytes
    BOOL GetItem(int index, TCITEMW* item) const;
    BOOL SetItem(int index, const TCITEMA* item);
    BOOL SetItem(int index, const TCITEMW* item);
    BOOL SetItemExtra(int bytes) { return SendMessage(TCM_SETITEMEXTRA, AfxWordOf(bytes)) != 0; }

    // The TCIS_ bits of a tab.
    DWORD GetItemState(int index, DWORD mask) const;
    BOOL SetItemState(int index, DWORD mask, DWORD state);
    BOOL HighlightItem(int index, BOOL highlight = TRUE)
    {
        return SendMessage(TCM_HIGHLIGHTITEM, AfxWordOf(index), MAKELPARAM(highlight, 0)) != 0;
    }

    int GetCurSel() const { return AfxSendInt(*this, TCM_GETCURSEL); }
    int SetCurSel(int index) { return AfxSendInt(*this, TCM_SETCURSEL, index); } // result: the one before
    int GetCurFocus() const { return AfxSendInt(*this, TCM_GETCURFOCUS); }
    void SetCurFocus(int index) { SendMessage(TCM_SETCURFOCUS, AfxWordOf(index)); }
    void DeselectAll(BOOL exceptFocus) { SendMessage(TCM_DESELECTALL, AfxWordOf(exceptFocus)); }

    // TRUE: of the space within to that of the whole; FALSE: the other way.
    void AdjustRect(BOOL larger, LPRECT rect) const
    {
        SendMessage(TCM_ADJUSTRECT, AfxWordOf(larger), reinterpret_cast<LPARAM>(rect));
    }

    BOOL GetItemRect(int index, LPRECT rect) const;
    int HitTest(TCHITTESTINFO* info) const
    {
        return AfxSendInt(*this, TCM_HITTEST, 0, reinterpret_cast<LPARAM>(info));
    }
    int GetRowCount() const { return AfxSendInt(*this, TCM_GETROWCOUNT); }
    CSize SetItemSize(CSize size); // result: the one before
    void SetPadding(CSize size) { SendMessage(TCM_SETPADDING, 0, MAKELPARAM(size.cx, size.cy)); }
    int SetMinTabWidth(int width) { return static_cast<int>(SendMessage(TCM_SETMINTABWIDTH, 0, width)); }
    DWORD GetExtendedStyle() const { return static_cast<DWORD>(SendMessage(TCM_GETEXTENDEDSTYLE)); }
    DWORD SetExtendedStyle(DWORD style, DWORD mask = 0)
    {
        return static_cast<DWORD>(SendMessage(TCM_SETEXTENDEDSTYLE, mask, static_cast<LPARAM>(style)));
    }
    CImageList* GetImageList() const { return AfxImagesOf(SendMessage(TCM_GETIMAGELIST)); }
    CImageList* SetImageList(CImageList* list) // result: the list before, null: none
    {
        return AfxImagesOf(SendMessage(TCM_SETIMAGELIST, 0, AfxHandleOf(list)));
    }
    void RemoveImage(int image) { SendMessage(TCM_REMOVEIMAGE, AfxWordOf(image)); }
    CToolTipCtrl* GetToolTips() const { return AfxToolTipsOf(AfxSendHandle<HWND>(*this, TCM_GETTOOLTIPS)); }
    void SetToolTips(CToolTipCtrl* tips);

    virtual void DrawItem(LPDRAWITEMSTRUCT) { } // of TCS_OWNERDRAWFIXED

protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result) override;

private:
    LONG insertItemM(UINT mask, int index, LPCWSTR text, int image, LPARAM param);
};
