#pragma once
#include "toolkit/wnd.h"

// The window system's own controls. Texts are GBK; where the control counts characters, so do these.
class PANELKIT_API CStatic : public CWnd
{
    DECLARE_DYNAMIC(CStatic)
public:
    BOOL Create(LPCSTR text, DWORD style, const RECT& rect, CWnd* parent, UINT id = 0xFFFF);
    HBITMAP SetBitmap(HBITMAP bitmap);
    HBITMAP GetBitmap() const;
    HICON SetIcon(HICON icon);

    virtual void DrawItem(LPDRAWITEMSTRUCT) { }

protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result) override;
};

class PANELKIT_API CButton : public CWnd
{
    DECLARE_DYNAMIC(CButton)
public:
    BOOL Create(LPCSTR caption, DWORD style, const RECT& rect, CWnd* parent, UINT id);
    void SetCheck(int check) { SendMessage(BM_SETCHECK, static_cast<WPARAM>(check)); }
    int GetCheck() const { return static_cast<int>(SendMessage(BM_GETCHECK)); }
    void SetState(BOOL pressed) { SendMessage(BM_SETSTATE, static_cast<WPARAM>(pressed)); }
    UINT GetState() const { return static_cast<UINT>(SendMessage(BM_GETSTATE)); }
    void SetButtonStyle(UINT style, BOOL redraw = TRUE) { SendMessage(BM_SETSTYLE, style, redraw); }
    UINT GetButtonStyle() const { return GetStyle() & 0xFFFF; }
    HBITMAP SetBitmap(HBITMAP bitmap);

    virtual void DrawItem(LPDRAWITEMSTRUCT) { } // of BS_OWNERDRAW

protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result) override;
};

class PANELKIT_API CEdit : public CWnd
{
    DECLARE_DYNAMIC(CEdit)
public:
    BOOL Create(DWORD style, const RECT& rect, CWnd* parent, UINT id);
    void SetSel(int first, int end, BOOL noScroll = FALSE);
    void SetSel(DWORD packed, BOOL noScroll = FALSE) { SetSel(LOWORD(packed), HIWORD(packed), noScroll); }
    void GetSel(int& first, int& end) const;
    DWORD GetSel() const { return static_cast<DWORD>(SendMessage(EM_GETSEL)); }
    void ReplaceSel(LPCSTR text, BOOL canUndo = FALSE);
    void LimitText(int characters = 0) { SetLimitText(static_cast<UINT>(characters)); }
    void SetLimitText(UINT characters) { SendMessage(EM_SETLIMITTEXT, characters); }
    UINT GetLimitText() const { return static_cast<UINT>(SendMessage(EM_GETLIMITTEXT)); }
    BOOL SetReadOnly(BOOL readOnly = TRUE);
    void SetPasswordChar(char character);
    char GetPasswordChar() const { return static_cast<char>(SendMessage(EM_GETPASSWORDCHAR)); }
    BOOL GetModify() const { return SendMessage(EM_GETMODIFY) != 0; }
    void SetModify(BOOL modified = TRUE) { SendMessage(EM_SETMODIFY, static_cast<WPARAM>(modified)); }
    int GetLineCount() const { return static_cast<int>(SendMessage(EM_GETLINECOUNT)); }
    int GetLine(int index, LPSTR to, int size) const; // result: bytes copied
    int LineIndex(int line = -1) const { return messageM(EM_LINEINDEX, line); }
    int LineLength(int at = -1) const { return messageM(EM_LINELENGTH, at); }
    int LineFromChar(int at = -1) const { return messageM(EM_LINEFROMCHAR, at); }
    int GetFirstVisibleLine() const { return messageM(EM_GETFIRSTVISIBLELINE, 0); }
    void LineScroll(int lines, int characters = 0);
    void SetMargins(UINT left, UINT right);
    void GetRect(LPRECT rect) const { SendMessage(EM_GETRECT, 0, reinterpret_cast<LPARAM>(rect)); }
    BOOL CanUndo() const { return SendMessage(EM_CANUNDO) != 0; }
    BOOL Undo() { return SendMessage(EM_UNDO) != 0; }
    void EmptyUndoBuffer() { SendMessage(EM_EMPTYUNDOBUFFER); }
    void Clear() { SendMessage(WM_CLEAR); }
    void Copy() { SendMessage(WM_COPY); }
    void Cut() { SendMessage(WM_CUT); }
    void Paste() { SendMessage(WM_PASTE); }

private:
    int messageM(UINT message, int at) const
    {
        return static_cast<int>(SendMessage(message, static_cast<WPARAM>(static_cast<INT_PTR>(at))));
    }
};

class PANELKIT_API CScrollBar : public CWnd
{
    DECLARE_DYNAMIC(CScrollBar)
public:
    BOOL Create(DWORD style, const RECT& rect, CWnd* parent, UINT id);
    int GetScrollPos() const { return ::GetScrollPos(m_hWnd, SB_CTL); }
    int SetScrollPos(int at, BOOL redraw = TRUE) { return ::SetScrollPos(m_hWnd, SB_CTL, at, redraw); }
    void SetScrollRange(int low, int high, BOOL redraw = TRUE)
    {
        ::SetScrollRange(m_hWnd, SB_CTL, low, high, redraw);
    }
};

class PANELKIT_API CListBox : public CWnd
{
    DECLARE_DYNAMIC(CListBox)
public:
    BOOL Create(DWORD style, const RECT& rect, CWnd* parent, UINT id);
    // Indexes from 0; LB_ERR (-1) where there is none, and without a window.
    int AddString(LPCSTR text);
    int InsertString(int index, LPCSTR text); // -1: at the end
    int DeleteString(UINT index) { return intM(LB_DELETESTRING, static_cast<int>(index)); }
    void ResetContent() { SendMessage(LB_RESETCONTENT); }
    int GetCount() const { return intM(LB_GETCOUNT); }
    int GetText(int index, LPSTR to) const; // to holds GetTextLen + 1 bytes
    void GetText(int index, CString& to) const;
    int GetTextLen(int index) const; // in bytes
    int FindString(int after, LPCSTR start) const;
    int FindStringExact(int after, LPCSTR text) const;
    int SelectString(int after, LPCSTR start);
    int GetCurSel() const { return intM(LB_GETCURSEL); }
    int SetCurSel(int index) { return intM(LB_SETCURSEL, index); }
    int GetSel(int index) const { return intM(LB_GETSEL, index); }
    int SetSel(int index, BOOL select = TRUE); // of a multiple selection; -1: all
    int GetSelCount() const { return intM(LB_GETSELCOUNT); }
    int GetSelItems(int most, LPINT to) const
    {
        return intM(LB_GETSELITEMS, most, reinterpret_cast<LPARAM>(to));
    }
    DWORD_PTR GetItemData(int index) const
    {
        return static_cast<DWORD_PTR>(SendMessage(LB_GETITEMDATA, word(index)));
    }
    int SetItemData(int index, DWORD_PTR data)
    {
        return intM(LB_SETITEMDATA, index, static_cast<LPARAM>(data));
    }
    int GetItemHeight(int index) const { return intM(LB_GETITEMHEIGHT, index); }
    int SetItemHeight(int index, UINT height) { return intM(LB_SETITEMHEIGHT, index, MAKELPARAM(height, 0)); }
    int GetItemRect(int index, LPRECT rect) const
    {
        return intM(LB_GETITEMRECT, index, reinterpret_cast<LPARAM>(rect));
    }
    int GetTopIndex() const { return intM(LB_GETTOPINDEX); }
    int SetTopIndex(int index) { return intM(LB_SETTOPINDEX, index); }
    int GetCaretIndex() const { return intM(LB_GETCARETINDEX); }
    int SetCaretIndex(int index, BOOL scroll = TRUE) { return intM(LB_SETCARETINDEX, index, scroll); }
    void SetColumnWidth(int width) { SendMessage(LB_SETCOLUMNWIDTH, word(width)); }
    void SetHorizontalExtent(int width) { SendMessage(LB_SETHORIZONTALEXTENT, word(width)); }
    int GetHorizontalExtent() const { return intM(LB_GETHORIZONTALEXTENT); }

    // Of owner-drawn list boxes.
    virtual void DrawItem(LPDRAWITEMSTRUCT) { }
    virtual void MeasureItem(LPMEASUREITEMSTRUCT) { }
    virtual int CompareItem(LPCOMPAREITEMSTRUCT) { return 0; }
    virtual void DeleteItem(LPDELETEITEMSTRUCT) { }

protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result) override;

private:
    static WPARAM word(int value) { return static_cast<WPARAM>(static_cast<INT_PTR>(value)); }
    int intM(UINT message, int index = 0, LPARAM lParam = 0) const
    {
        return m_hWnd != nullptr ? static_cast<int>(SendMessage(message, word(index), lParam)) : LB_ERR;
    }
};

class PANELKIT_API CComboBox : public CWnd
{
    DECLARE_DYNAMIC(CComboBox)
public:
    BOOL Create(DWORD style, const RECT& rect, CWnd* parent, UINT id);
    // Indexes from 0; CB_ERR (-1) where there is none, and without a window.
    int AddString(LPCSTR text);
    int InsertString(int index, LPCSTR text); // -1: at the end
    int DeleteString(UINT index) { return intM(CB_DELETESTRING, static_cast<int>(index)); }
    void ResetContent() { SendMessage(CB_RESETCONTENT); }
    int GetCount() const { return intM(CB_GETCOUNT); }
    int GetLBText(int index, LPSTR to) const; // to holds GetLBTextLen + 1 bytes
    void GetLBText(int index, CString& to) const;
    int GetLBTextLen(int index) const; // in bytes
    int FindString(int after, LPCSTR start) const;
    int FindStringExact(int after, LPCSTR text) const;
    int SelectString(int after, LPCSTR start);
    int GetCurSel() const { return intM(CB_GETCURSEL); }
    int SetCurSel(int index) { return intM(CB_SETCURSEL, index); }
    DWORD GetEditSel() const { return static_cast<DWORD>(SendMessage(CB_GETEDITSEL)); }
    BOOL SetEditSel(int first, int end) { return intM(CB_SETEDITSEL, 0, MAKELPARAM(first, end)); }
    BOOL LimitText(int characters) { return intM(CB_LIMITTEXT, characters); }
    DWORD_PTR GetItemData(int index) const
    {
        return static_cast<DWORD_PTR>(SendMessage(CB_GETITEMDATA, word(index)));
    }
    int SetItemData(int index, DWORD_PTR data)
    {
        return intM(CB_SETITEMDATA, index, static_cast<LPARAM>(data));
    }
    int GetItemHeight(int index) const { return intM(CB_GETITEMHEIGHT, index); }
    int SetItemHeight(int index, UINT height) { return intM(CB_SETITEMHEIGHT, index, MAKELPARAM(height, 0)); }
    void ShowDropDown(BOOL show = TRUE) { SendMessage(CB_SHOWDROPDOWN, static_cast<WPARAM>(show)); }
    BOOL GetDroppedState() const { return intM(CB_GETDROPPEDSTATE); }
    int GetDroppedWidth() const { return intM(CB_GETDROPPEDWIDTH); }
    int SetDroppedWidth(UINT width) { return intM(CB_SETDROPPEDWIDTH, static_cast<int>(width)); }

    // Of owner-drawn combo boxes.
    virtual void DrawItem(LPDRAWITEMSTRUCT) { }
    virtual void MeasureItem(LPMEASUREITEMSTRUCT) { }
    virtual int CompareItem(LPCOMPAREITEMSTRUCT) { return 0; }
    virtual void DeleteItem(LPDELETEITEMSTRUCT) { }

protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result) override;

private:
    static WPARAM word(int value) { return static_cast<WPARAM>(static_cast<INT_PTR>(value)); }
    int intM(UINT message, int index = 0, LPARAM lParam = 0) const
    {
        return m_hWnd != nullptr ? static_cast<int>(SendMessage(message, word(index), lParam)) : CB_ERR;
    }
};
