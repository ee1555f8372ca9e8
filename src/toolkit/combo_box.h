#pragma once
#include "toolkit/control_message.h"

// A field with a list that drops down. Indexes from 0; CB_ERR (-1) where there is none, and without a window.
// Texts are GBK; lengths and positions count bytes, a position within a character is its beginning.
class PANELKIT_API CComboBox : public CWnd
{
    DECLARE_DYNAMIC(CComboBox)
public:
    BOOL Create(DWORD style, const RECT& rect, CWnd* parent, UINT id);

    int AddString(LPCSTR text)
    {
        return AfxSendInt(*this, CB_ADDSTRING, 0, AfxLineText(*this, text, CBS_HASSTRINGS));
    }
    AFX_WIDE_TEXT int AddString(const WideTP* text)
    {
        return AfxSendInt(*this, CB_ADDSTRING, 0, AfxTextOf(text));
    }
    // Sorts nothing; -1: at the end.
    int InsertString(int index, LPCSTR text)
    {
        return AfxSendInt(*this, CB_INSERTSTRING, index, AfxLineText(*this, text, CBS_HASSTRINGS));
    }
    AFX_WIDE_TEXT int InsertString(int index, const WideTP* text)
    {
        return AfxSendInt(*this, CB_INSERTSTRING, index, AfxTextOf(text));
    }
    int DeleteString(UINT index) { return AfxSendInt(*this, CB_DELETESTRING, static_cast<int>(index)); }
    void ResetContent() { SendMessage(CB_RESETCONTENT); }
    // The names of files: attributes are DDL_ numbers, the pattern may have a path.
    int Dir(UINT attributes, LPCSTR pattern) { return Dir(attributes, slGbkToShown(pattern).c_str()); }
    AFX_WIDE_TEXT int Dir(UINT attributes, const WideTP* pattern)
    {
        return AfxSendInt(*this, CB_DIR, static_cast<int>(attributes), AfxTextOf(pattern));
    }
    int InitStorage(int lines, UINT bytes) { return AfxSendInt(*this, CB_INITSTORAGE, lines, bytes); }
    int GetCount() const { return AfxSendInt(*this, CB_GETCOUNT); }
    int GetLBText(int index, LPSTR to) const; // to holds GetLBTextLen + 1 bytes
    void GetLBText(int index, CString& to) const;

    // Bytes of GBK without the zero; CB_ERR: no such line.
    int GetLBTextLen(int index) const;

    // From the line after `after` on (-1: the first) and round; without regard to case.
    int FindString(int after, LPCSTR start) const
    {
        return AfxSendInt(*this, CB_FINDSTRING, after, AfxLineText(*this, start, CBS_HASSTRINGS));
    }
    AFX_WIDE_TEXT int FindString(int after, const WideTP* start) const
    {
        return AfxSendInt(*this, CB_FINDSTRING, after, AfxTextOf(start));
    }
    int FindStringExact(int after, LPCSTR text) const
    {
        return AfxSendInt(*this, CB_FINDSTRINGEXACT, after, AfxLineText(*this, text, CBS_HASSTRINGS));
    }
    AFX_WIDE_TEXT int FindStringExact(int after, const WideTP* text) const
    {
        return AfxSendInt(*this, CB_FINDSTRINGEXACT, after, AfxTextOf(text));
    }
    int SelectString(int after, LPCSTR start)
    {
        return AfxSendInt(*this, CB_SELECTSTRING, after, AfxLineText(*this, start, CBS_HASSTRINGS));
    }
    AFX_WIDE_TEXT int SelectString(int after, const WideTP* start)
    {
        return AfxSendInt(*this, CB_SELECTSTRING, after, AfxTextOf(start));
    }
    int GetCurSel() const { return AfxSendInt(*this, CB_GETCURSEL); }
    int SetCurSel(int index) { return AfxSendInt(*this, CB_SETCURSEL, index); }

    // Of the field. The selection packed: low word first, high word end.
    DWORD GetEditSel() const;
    BOOL SetEditSel(int first, int end); // 0, -1: all; -1, 0: nothing
    BOOL LimitText(int bytes); // for what the user enters; 0: what the field holds. CB_ERR: there is no field

    // The text that an empty field shows. FALSE: the platform's combo box has none.
    BOOL SetCueBanner(LPCSTR text) { return SetCueBanner(slGbkToShown(text).c_str()); }
    AFX_WIDE_TEXT BOOL SetCueBanner(const WideTP* text)
    {
        return AfxSendInt(*this, CB_SETCUEBANNER, 0, AfxTextOf(text)) > 0;
    }
    void Clear() { SendMessage(WM_CLEAR); }
    void Copy() { SendMessage(WM_COPY); }
    void Cut() { SendMessage(WM_CUT); }
    void Paste() { SendMessage(WM_PASTE); }

    DWORD_PTR GetItemData(int index) const
    {
        return static_cast<DWORD_PTR>(SendMessage(CB_GETITEMDATA, AfxWordOf(index)));
    }
    int SetItemData(int index, DWORD_PTR data)
    {
        return AfxSendInt(*this, CB_SETITEMDATA, index, static_cast<LPARAM>(data));
    }

    // The data of a line as a pointer, which stays the caller's.
    void* GetItemDataPtr(int index) const { return reinterpret_cast<void*>(GetItemData(index)); }
    int SetItemDataPtr(int index, void* data)
    {
        return SetItemData(index, reinterpret_cast<DWORD_PTR>(data));
    }

    int GetItemHeight(int index) const
    {
        return AfxSendInt(*this, CB_GETITEMHEIGHT, index);
    } // -1: of the field
    int SetItemHeight(int index, UINT height)
    {
        return AfxSendInt(*this, CB_SETITEMHEIGHT, index, MAKELPARAM(height, 0));
    }
    int GetTopIndex() const { return AfxSendInt(*this, CB_GETTOPINDEX); }
    int SetTopIndex(int index) { return AfxSendInt(*this, CB_SETTOPINDEX, index); }
    void SetHorizontalExtent(UINT width) { SendMessage(CB_SETHORIZONTALEXTENT, width); }
    UINT GetHorizontalExtent() const { return static_cast<UINT>(SendMessage(CB_GETHORIZONTALEXTENT)); }
    void ShowDropDown(BOOL show = TRUE) { SendMessage(CB_SHOWDROPDOWN, AfxWordOf(show)); }
    BOOL GetDroppedState() const { return AfxSendInt(*this, CB_GETDROPPEDSTATE); }
    void GetDroppedControlRect(LPRECT rect) const // on the screen
    {
        SendMessage(CB_GETDROPPEDCONTROLRECT, 0, reinterpret_cast<LPARAM>(rect));
    }
    int GetDroppedWidth() const { return AfxSendInt(*this, CB_GETDROPPEDWIDTH); }
    int SetDroppedWidth(UINT width) { return AfxSendInt(*this, CB_SETDROPPEDWIDTH, static_cast<int>(width)); }
    int SetExtendedUI(BOOL extended = TRUE) { return AfxSendInt(*this, CB_SETEXTENDEDUI, extended); }
    BOOL GetExtendedUI() const { return SendMessage(CB_GETEXTENDEDUI) != 0; }
    BOOL GetComboBoxInfo(PCOMBOBOXINFO info) const; // fills in the size of the structure
    LCID GetLocale() const { return static_cast<LCID>(SendMessage(CB_GETLOCALE)); }
    LCID SetLocale(LCID locale) { return static_cast<LCID>(SendMessage(CB_SETLOCALE, locale)); }

    // Of owner-drawn combo boxes.
    virtual void DrawItem(LPDRAWITEMSTRUCT) { }
    virtual void MeasureItem(LPMEASUREITEMSTRUCT) { }
    virtual int CompareItem(LPCOMPAREITEMSTRUCT) { return 0; }
    virtual void DeleteItem(LPDELETEITEMSTRUCT) { }

protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result) override;
};
