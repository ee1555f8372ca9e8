#pragma once
#include "toolkit/control_message.h"

// A field of text. The window counts UTF-16; positions and lengths here count bytes of the GBK text that
// GetWindowText gives. A position within a character is its beginning.
class PANELKIT_API CEdit : public CWnd
{
    DECLARE_DYNAMIC(CEdit)
public:
    BOOL Create(DWORD style, const RECT& rect, CWnd* parent, UINT id);

    void SetSel(int first, int end, BOOL noScroll = FALSE); // 0, -1: all; -1, 0: nothing
    void SetSel(DWORD packed, BOOL noScroll = FALSE) { SetSel(LOWORD(packed), HIWORD(packed), noScroll); }
    void GetSel(int& first, int& end) const;
    DWORD GetSel() const; // packed; ~0 where a word is too short for it

    // Puts a text in the place of the selection, or where the caret is. canUndo: the user can take it back.
    void ReplaceSel(LPCSTR text, BOOL canUndo = FALSE) { ReplaceSel(slGbkToShown(text).c_str(), canUndo); }
    AFX_WIDE_TEXT void ReplaceSel(const WideTP* text, BOOL canUndo = FALSE)
    {
        SendMessage(EM_REPLACESEL, AfxWordOf(canUndo), AfxTextOf(text));
    }
    // For what the user enters. 0: as much as the window can hold.
    void SetLimitText(UINT bytes);
    void LimitText(int bytes = 0) { SetLimitText(static_cast<UINT>(bytes)); }
    UINT GetLimitText() const;

    int GetLineCount() const { return static_cast<int>(SendMessage(EM_GETLINECOUNT)); }
    // Copies as many bytes of the line as there is room for; a zero follows only where room is left. Result:
    // bytes copied, 0 for no such line.
    int GetLine(int index, LPSTR to, int size) const;
    int GetLine(int index, LPSTR to) const; // the first WORD of the buffer says how many bytes it has
    int LineIndex(int line = -1) const;     // -1: the line of the caret. Result -1: no such line
    int LineLength(int at = -1) const;      // -1: what is not selected of the selection's lines
    int LineFromChar(int at = -1) const;    // -1: of the selection
    int GetFirstVisibleLine() const { return static_cast<int>(SendMessage(EM_GETFIRSTVISIBLELINE)); }
    // Scrolls so many lines down and characters to the right; negative: back.
    void LineScroll(int lines, int characters = 0);
    int CharFromPos(CPoint point) const; // low word: position, high word: line
    CPoint PosFromChar(UINT at) const;
    BOOL FmtLines(BOOL softBreaks) { return SendMessage(EM_FMTLINES, AfxWordOf(softBreaks)) != 0; }

    BOOL SetReadOnly(BOOL readOnly = TRUE) { return SendMessage(EM_SETREADONLY, AfxWordOf(readOnly)) != 0; }
    void SetPasswordChar(char character); // 0: none
    void SetPasswordChar(wchar_t character) { SendMessage(EM_SETPASSWORDCHAR, character); }
    char GetPasswordChar() const { return static_cast<char>(SendMessage(EM_GETPASSWORDCHAR)); }
    BOOL GetModify() const { return SendMessage(EM_GETMODIFY) != 0; }
    void SetModify(BOOL modified = TRUE) { SendMessage(EM_SETMODIFY, AfxWordOf(modified)); }
    void SetMargins(UINT left, UINT right);                                             // pixels
    DWORD GetMargins() const { return static_cast<DWORD>(SendMessage(EM_GETMARGINS)); } // low word: left
    void GetRect(LPRECT rect) const { SendMessage(EM_GETRECT, 0, reinterpret_cast<LPARAM>(rect)); }
    void SetRect(LPCRECT rect) { SendMessage(EM_SETRECT, 0, reinterpret_cast<LPARAM>(rect)); }
    void SetRectNP(LPCRECT rect) { SendMessage(EM_SETRECTNP, 0, reinterpret_cast<LPARAM>(rect)); }
    // In quarters of a dialog unit; without arguments every 32.
    void SetTabStops() { SendMessage(EM_SETTABSTOPS); }
    BOOL SetTabStops(const int& each) { return SetTabStops(1, const_cast<LPINT>(&each)); }
    BOOL SetTabStops(int count, LPINT stops);
    // The text that an empty field shows. FALSE: the platform's edit field has none, or it has several lines.
    BOOL SetCueBanner(LPCSTR text, BOOL whileFocused = FALSE)
    {
        return SetCueBanner(slGbkToShown(text).c_str(), whileFocused);
    }
    AFX_WIDE_TEXT BOOL SetCueBanner(const WideTP* text, BOOL whileFocused = FALSE)
    {
        return SendMessage(EM_SETCUEBANNER, AfxWordOf(whileFocused), AfxTextOf(text)) != 0;
    }
    CString GetCueBanner() const;

    BOOL CanUndo() const { return SendMessage(EM_CANUNDO) != 0; }
    BOOL Undo() { return SendMessage(EM_UNDO) != 0; }
    void EmptyUndoBuffer() { SendMessage(EM_EMPTYUNDOBUFFER); }
    void Clear() { SendMessage(WM_CLEAR); }
    void Copy() { SendMessage(WM_COPY); }
    void Cut() { SendMessage(WM_CUT); }
    void Paste() { SendMessage(WM_PASTE); }

    LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
};
