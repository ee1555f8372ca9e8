#pragma once
#include "toolkit/control_message.h"

// A list of lines. Indexes from 0; LB_ERR (-1) where there is none, and without a window. Texts are GBK,
// their lengths in bytes.
class PANELKIT_API CListBox : public CWnd
{
    DECLARE_DYNAMIC(CListBox)
public:
    BOOL Create(DWORD style, const RECT& rect, CWnd* parent, UINT id);

    int AddString(LPCSTR text)
    {
        return AfxSendInt(*this, LB_ADDSTRING, 0, AfxLineText(*this, text, LBS_HASSTRINGS));
    }
    AFX_WIDE_TEXT int AddString(const WideTP* text)
    {
        return AfxSendInt(*this, LB_ADDSTRING, 0, AfxTextOf(text));
    }
    // Sorts nothing; -1: at the end.
    int InsertString(int index, LPCSTR text)
    {
        return AfxSendInt(*this, LB_INSERTSTRING, index, AfxLineText(*this, text, LBS_HASSTRINGS));
    }
    AFX_WIDE_TEXT int InsertString(int index, const WideTP* text)
    {
        return AfxSendInt(*this, LB_INSERTSTRING, index, AfxTextOf(text));
    }
    int DeleteString(UINT index) { return AfxSendInt(*this, LB_DELETESTRING, static_cast<int>(index)); }
    void ResetContent() { SendMessage(LB_RESETCONTENT); }
    // The names of files: attributes are DDL_ numbers, the pattern may have a path.
    int Dir(UINT attributes, LPCSTR pattern) { return Dir(attributes, slGbkToShown(pattern).c_str()); }
    AFX_WIDE_TEXT int Dir(UINT attributes, const WideTP* pattern)
    {
        return AfxSendInt(*this, LB_DIR, static_cast<int>(attributes), AfxTextOf(pattern));
    }
    int InitStorage(int lines, UINT bytes) { return AfxSendInt(*this, LB_INITSTORAGE, lines, bytes); }
    int GetCount() const { return AfxSendInt(*this, LB_GETCOUNT); }
    int GetText(int index, LPSTR to) const; // to holds GetTextLen + 1 bytes
    void GetText(int index, CString& to) const;
    // Bytes of GBK without the zero; LB_ERR: no such line.
    int GetTextLen(int index) const;

    // From the line after `after` on (-1: the first) and round; without regard to case.
    int FindString(int after, LPCSTR start) const
    {
        return AfxSendInt(*this, LB_FINDSTRING, after, AfxLineText(*this, start, LBS_HASSTRINGS));
    }
    AFX_WIDE_TEXT int FindString(int after, const WideTP* start) const
    {
        return AfxSendInt(*this, LB_FINDSTRING, after, AfxTextOf(start));
    }
    int FindStringExact(int after, LPCSTR text) const
    {
        return AfxSendInt(*this, LB_FINDSTRINGEXACT, after, AfxLineText(*this, text, LBS_HASSTRINGS));
    }
    AFX_WIDE_TEXT int FindStringExact(int after, const WideTP* text) const
    {
        return AfxSendInt(*this, LB_FINDSTRINGEXACT, after, AfxTextOf(text));
    }
    int SelectString(int after, LPCSTR start)
    {
        return AfxSendInt(*this, LB_SELECTSTRING, after, AfxLineText(*this, start, LBS_HASSTRINGS));
    }
    AFX_WIDE_TEXT int SelectString(int after, const WideTP* start)
    {
        return AfxSendInt(*this, LB_SELECTSTRING, after, AfxTextOf(start));
    }

    int GetCurSel() const { return AfxSendInt(*this, LB_GETCURSEL); }
    int SetCurSel(int index) { return AfxSendInt(*this, LB_SETCURSEL, index); }
    // Of a multiple selection.
    int GetSel(int index) const { return AfxSendInt(*this, LB_GETSEL, index); }
    int SetSel(int index, BOOL select = TRUE)
    {
        return AfxSendInt(*this, LB_SETSEL, select, index);
    } // -1: all
    int GetSelCount() const { return AfxSendInt(*this, LB_GETSELCOUNT); }
    int GetSelItems(int most, LPINT to) const
    {
        return AfxSendInt(*this, LB_GETSELITEMS, most, reinterpret_cast<LPARAM>(to));
    }
    int SelItemRange(BOOL select, int first, int last);
    void SetAnchorIndex(int index) { SendMessage(LB_SETANCHORINDEX, AfxWordOf(index)); }
    int GetAnchorIndex() const { return AfxSendInt(*this, LB_GETANCHORINDEX); }
    int GetCaretIndex() const { return AfxSendInt(*this, LB_GETCARETINDEX); }
    int SetCaretIndex(int index, BOOL scroll = TRUE)
    {
        return AfxSendInt(*this, LB_SETCARETINDEX, index, scroll);
    }

    DWORD_PTR GetItemData(int index) const
    {
        return static_cast<DWORD_PTR>(SendMessage(LB_GETITEMDATA, AfxWordOf(index)));
    }
    int SetItemData(int index, DWORD_PTR data)
    {
        return AfxSendInt(*this, LB_SETITEMDATA, index, static_cast<LPARAM>(data));
    }

    // The data of a line as a pointer, which stays the caller's.
    void* GetItemDataPtr(int index) const { return reinterpret_cast<void*>(GetItemData(index)); }
    int SetItemDataPtr(int index, void* data)
    {
        return SetItemData(index, reinterpret_cast<DWORD_PTR>(data));
    }

    int GetItemHeight(int index) const { return AfxSendInt(*this, LB_GETITEMHEIGHT, index); }
    int SetItemHeight(int index, UINT height)
    {
        return AfxSendInt(*this, LB_SETITEMHEIGHT, index, MAKELPARAM(height, 0));
    }
    int GetItemRect(int index, LPRECT rect) const
    {
        return AfxSendInt(*this, LB_GETITEMRECT, index, reinterpret_cast<LPARAM>(rect));
    }
    UINT ItemFromPoint(CPoint point, BOOL& isOutside) const; // the nearest
    int GetTopIndex() const { return AfxSendInt(*this, LB_GETTOPINDEX); }
    int SetTopIndex(int index) { return AfxSendInt(*this, LB_SETTOPINDEX, index); }
    void SetColumnWidth(int width) { SendMessage(LB_SETCOLUMNWIDTH, AfxWordOf(width)); }
    void SetHorizontalExtent(int width) { SendMessage(LB_SETHORIZONTALEXTENT, AfxWordOf(width)); }
    int GetHorizontalExtent() const { return AfxSendInt(*this, LB_GETHORIZONTALEXTENT); }
    DWORD GetListBoxInfo() const
    {
        return static_cast<DWORD>(SendMessage(LB_GETLISTBOXINFO));
    } // lines a column
    // In quarters of a dialog unit; without arguments every 32.
    void SetTabStops() { SendMessage(LB_SETTABSTOPS); }
    BOOL SetTabStops(const int& each) { return SetTabStops(1, const_cast<LPINT>(&each)); }
    BOOL SetTabStops(int count, LPINT stops);
    LCID GetLocale() const { return static_cast<LCID>(SendMessage(LB_GETLOCALE)); }
    LCID SetLocale(LCID locale) { return static_cast<LCID>(SendMessage(LB_SETLOCALE, locale)); }

    // Of owner-drawn list boxes.
    virtual void DrawItem(LPDRAWITEMSTRUCT) { }
    virtual void MeasureItem(LPMEASUREITEMSTRUCT) { }
    virtual int CompareItem(LPCOMPAREITEMSTRUCT) { return 0; }
    virtual void DeleteItem(LPDELETEITEMSTRUCT) { }
    // With LBS_WANTKEYBOARDINPUT. -1: what the list does with the key by itself; -2: nothing; else that line.
    virtual int VKeyToItem(UINT, UINT) { return -1; }
    virtual int CharToItem(UINT, UINT) { return -1; }

protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result) override;
};
