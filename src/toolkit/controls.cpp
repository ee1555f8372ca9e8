#include "toolkit/controls.h"
#include "baselib/gbk.h"
#include "toolkit/text.h"
#include <vector>

IMPLEMENT_DYNAMIC(CStatic, CWnd)
IMPLEMENT_DYNAMIC(CButton, CWnd)
IMPLEMENT_DYNAMIC(CEdit, CWnd)
IMPLEMENT_DYNAMIC(CScrollBar, CWnd)
IMPLEMENT_DYNAMIC(CListBox, CWnd)
IMPLEMENT_DYNAMIC(CComboBox, CWnd)

namespace {

LPARAM pointerM(const std::wstring& text)
{
    return reinterpret_cast<LPARAM>(text.c_str());
}

// The text of a list's line in GBK; messages differ between list and combo box. False: no such line.
bool lineTextM(const CWnd& list, UINT lengthMessage, UINT textMessage, int index, std::string* to)
{
    WPARAM line = static_cast<WPARAM>(static_cast<INT_PTR>(index));
    LRESULT length = list.SendMessage(lengthMessage, line);
    if (length < 0) {
        return false;
    }
    std::vector<wchar_t> text(static_cast<size_t>(length) + 1);
    length = list.SendMessage(textMessage, line, reinterpret_cast<LPARAM>(text.data()));
    *to = WideToGbk(text.data(), static_cast<int>(length));
    return length >= 0;
}

// Hands a reflected owner-draw message to the control's virtual functions.
template <class ListTP> BOOL drawnListM(ListTP* list, UINT message, LPARAM lParam, LRESULT* result)
{
    *result = TRUE;
    switch (message) {
    case WM_DRAWITEM:
        list->DrawItem(reinterpret_cast<LPDRAWITEMSTRUCT>(lParam));
        return TRUE;
    case WM_MEASUREITEM:
        list->MeasureItem(reinterpret_cast<LPMEASUREITEMSTRUCT>(lParam));
        return TRUE;
    case WM_COMPAREITEM:
        *result = list->CompareItem(reinterpret_cast<LPCOMPAREITEMSTRUCT>(lParam));
        return TRUE;
    case WM_DELETEITEM:
        list->DeleteItem(reinterpret_cast<LPDELETEITEMSTRUCT>(lParam));
        return TRUE;
    default:
        *result = 0;
        return FALSE;
    }
}

} // namespace

BOOL CStatic::Create(LPCSTR text, DWORD style, const RECT& rect, CWnd* parent, UINT id)
{
    return CWnd::Create("Static", text, style, rect, parent, id);
}

HBITMAP CStatic::SetBitmap(HBITMAP bitmap)
{
    return reinterpret_cast<HBITMAP>(
        SendMessage(STM_SETIMAGE, IMAGE_BITMAP, reinterpret_cast<LPARAM>(bitmap)));
}

HBITMAP CStatic::GetBitmap() const
{
    return reinterpret_cast<HBITMAP>(SendMessage(STM_GETIMAGE, IMAGE_BITMAP));
}

HICON CStatic::SetIcon(HICON icon)
{
    return reinterpret_cast<HICON>(SendMessage(STM_SETIMAGE, IMAGE_ICON, reinterpret_cast<LPARAM>(icon)));
}

BOOL CStatic::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result)
{
    if (message == WM_DRAWITEM) {
        DrawItem(reinterpret_cast<LPDRAWITEMSTRUCT>(lParam));
        *result = TRUE;
        return TRUE;
    }
    return CWnd::OnChildNotify(message, wParam, lParam, result);
}

BOOL CButton::Create(LPCSTR caption, DWORD style, const RECT& rect, CWnd* parent, UINT id)
{
    return CWnd::Create("Button", caption, style, rect, parent, id);
}

HBITMAP CButton::SetBitmap(HBITMAP bitmap)
{
    return reinterpret_cast<HBITMAP>(
        SendMessage(BM_SETIMAGE, IMAGE_BITMAP, reinterpret_cast<LPARAM>(bitmap)));
}

BOOL CButton::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result)
{
    if (message == WM_DRAWITEM) {
        DrawItem(reinterpret_cast<LPDRAWITEMSTRUCT>(lParam));
        *result = TRUE;
        return TRUE;
    }
    return CWnd::OnChildNotify(message, wParam, lParam, result);
}

BOOL CEdit::Create(DWORD style, const RECT& rect, CWnd* parent, UINT id)
{
    return CWnd::Create("Edit", nullptr, style, rect, parent, id);
}

void CEdit::SetSel(int first, int end, BOOL noScroll)
{
    SendMessage(EM_SETSEL, static_cast<WPARAM>(static_cast<INT_PTR>(first)), end);
    if (!noScroll) {
        SendMessage(EM_SCROLLCARET);
    }
}

void CEdit::GetSel(int& first, int& end) const
{
    DWORD from = 0;
    DWORD to = 0;
    SendMessage(EM_GETSEL, reinterpret_cast<WPARAM>(&from), reinterpret_cast<LPARAM>(&to));
    first = static_cast<int>(from);
    end = static_cast<int>(to);
}

void CEdit::ReplaceSel(LPCSTR text, BOOL canUndo)
{
    SendMessage(EM_REPLACESEL, static_cast<WPARAM>(canUndo), pointerM(slGbkToShown(text)));
}

BOOL CEdit::SetReadOnly(BOOL readOnly)
{
    return SendMessage(EM_SETREADONLY, static_cast<WPARAM>(readOnly)) != 0;
}

void CEdit::SetPasswordChar(char character)
{
    SendMessage(EM_SETPASSWORDCHAR, static_cast<unsigned char>(character));
}

int CEdit::GetLine(int index, LPSTR to, int size) const
{
    int length = LineLength(LineIndex(index));
    std::vector<wchar_t> line(static_cast<size_t>(length) + 2);
    // The control reads the room there is from the first word and adds no zero.
    line[0] = static_cast<wchar_t>(length + 1);
    int used = static_cast<int>(SendMessage(
        EM_GETLINE, static_cast<WPARAM>(static_cast<INT_PTR>(index)), reinterpret_cast<LPARAM>(line.data())));
    return slCopyText(to, size, WideToGbk(line.data(), used));
}

void CEdit::LineScroll(int lines, int characters)
{
    SendMessage(EM_LINESCROLL, static_cast<WPARAM>(static_cast<INT_PTR>(characters)), lines);
}

void CEdit::SetMargins(UINT left, UINT right)
{
    SendMessage(EM_SETMARGINS, EC_LEFTMARGIN | EC_RIGHTMARGIN, MAKELPARAM(left, right));
}

BOOL CScrollBar::Create(DWORD style, const RECT& rect, CWnd* parent, UINT id)
{
    return CWnd::Create("ScrollBar", nullptr, style, rect, parent, id);
}

BOOL CListBox::Create(DWORD style, const RECT& rect, CWnd* parent, UINT id)
{
    return CWnd::Create("ListBox", nullptr, style, rect, parent, id);
}

int CListBox::AddString(LPCSTR text)
{
    return intM(LB_ADDSTRING, 0, pointerM(slGbkToShown(text)));
}

int CListBox::InsertString(int index, LPCSTR text)
{
    return intM(LB_INSERTSTRING, index, pointerM(slGbkToShown(text)));
}

int CListBox::GetText(int index, LPSTR to) const
{
    std::string text;
    if (!lineTextM(*this, LB_GETTEXTLEN, LB_GETTEXT, index, &text)) {
        return LB_ERR;
    }
    return slCopyText(to, static_cast<int>(text.size()) + 1, text);
}

void CListBox::GetText(int index, CString& to) const
{
    std::string text;
    lineTextM(*this, LB_GETTEXTLEN, LB_GETTEXT, index, &text);
    to = text.c_str();
}

int CListBox::GetTextLen(int index) const
{
    std::string text;
    return lineTextM(*this, LB_GETTEXTLEN, LB_GETTEXT, index, &text) ? static_cast<int>(text.size()) : LB_ERR;
}

int CListBox::FindString(int after, LPCSTR start) const
{
    return intM(LB_FINDSTRING, after, pointerM(slGbkToShown(start)));
}

int CListBox::FindStringExact(int after, LPCSTR text) const
{
    return intM(LB_FINDSTRINGEXACT, after, pointerM(slGbkToShown(text)));
}

int CListBox::SelectString(int after, LPCSTR start)
{
    return intM(LB_SELECTSTRING, after, pointerM(slGbkToShown(start)));
}

int CListBox::SetSel(int index, BOOL select)
{
    return intM(LB_SETSEL, select, index);
}

BOOL CListBox::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result)
{
    return drawnListM(this, message, lParam, result) || CWnd::OnChildNotify(message, wParam, lParam, result);
}

BOOL CComboBox::Create(DWORD style, const RECT& rect, CWnd* parent, UINT id)
{
    return CWnd::Create("ComboBox", nullptr, style, rect, parent, id);
}

int CComboBox::AddString(LPCSTR text)
{
    return intM(CB_ADDSTRING, 0, pointerM(slGbkToShown(text)));
}

int CComboBox::InsertString(int index, LPCSTR text)
{
    return intM(CB_INSERTSTRING, index, pointerM(slGbkToShown(text)));
}

int CComboBox::GetLBText(int index, LPSTR to) const
{
    std::string text;
    if (!lineTextM(*this, CB_GETLBTEXTLEN, CB_GETLBTEXT, index, &text)) {
        return CB_ERR;
    }
    return slCopyText(to, static_cast<int>(text.size()) + 1, text);
}

void CComboBox::GetLBText(int index, CString& to) const
{
    std::string text;
    lineTextM(*this, CB_GETLBTEXTLEN, CB_GETLBTEXT, index, &text);
    to = text.c_str();
}

int CComboBox::GetLBTextLen(int index) const
{
    std::string text;
    return lineTextM(*this, CB_GETLBTEXTLEN, CB_GETLBTEXT, index, &text) ? static_cast<int>(text.size())
                                                                         : CB_ERR;
}

int CComboBox::FindString(int after, LPCSTR start) const
{
    return intM(CB_FINDSTRING, after, pointerM(slGbkToShown(start)));
}

int CComboBox::FindStringExact(int after, LPCSTR text) const
{
    return intM(CB_FINDSTRINGEXACT, after, pointerM(slGbkToShown(text)));
}

int CComboBox::SelectString(int after, LPCSTR start)
{
    return intM(CB_SELECTSTRING, after, pointerM(slGbkToShown(start)));
}

BOOL CComboBox::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result)
{
    return drawnListM(this, message, lParam, result) || CWnd::OnChildNotify(message, wParam, lParam, result);
}
