#include "toolkit/list_box.h"
#include "toolkit/line_text.h"
#include "toolkit/owner_drawn.h"
#include <algorithm>

IMPLEMENT_DYNAMIC(CListBox, CWnd)

BOOL CListBox::Create(DWORD style, const RECT& rect, CWnd* parent, UINT id)
{
    return CWnd::Create("ListBox", nullptr, style, rect, parent, id);
}

int CListBox::GetText(int index, LPSTR to) const
{
    std::string text;
    if (!LineText(*this, LB_GETTEXTLEN, LB_GETTEXT, index, &text)) {
        return LB_ERR;
    }
    return slCopyText(to, static_cast<int>(text.size()) + 1, text);
}

void CListBox::GetText(int index, CString& to) const
{
    std::string text;
    LineText(*this, LB_GETTEXTLEN, LB_GETTEXT, index, &text);
    to = text.c_str();
}

int CListBox::GetTextLen(int index) const
{
    std::string text;
    return LineText(*this, LB_GETTEXTLEN, LB_GETTEXT, index, &text) ? static_cast<int>(text.size()) : LB_ERR;
}

int CListBox::SelItemRange(BOOL select, int first, int last)
{
    const auto [from, to] = std::minmax(first, last);
    if (!select && from == to) {
        return SetSel(from, FALSE); // The message below would select it.
    }
    return AfxSendInt(*this, LB_SELITEMRANGEEX, select ? from : to, select ? to : from);
}

UINT CListBox::ItemFromPoint(CPoint point, BOOL& isOutside) const
{
    const LRESULT found = SendMessage(LB_ITEMFROMPOINT, 0, MAKELPARAM(point.x, point.y));
    isOutside = HIWORD(found) != 0;
    return LOWORD(found);
}

BOOL CListBox::SetTabStops(int count, LPINT stops)
{
    return SendMessage(LB_SETTABSTOPS, AfxWordOf(count), reinterpret_cast<LPARAM>(stops)) != 0;
}

BOOL CListBox::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result)
{
    if (message == WM_VKEYTOITEM || message == WM_CHARTOITEM) {
        const int answer = message == WM_VKEYTOITEM ? VKeyToItem(LOWORD(wParam), HIWORD(wParam))
                                                    : CharToItem(LOWORD(wParam), HIWORD(wParam));
        if (answer != -1) {
            *result = answer;
            return TRUE;
        }
    }
    return AfxDrawnList(this, message, lParam, result)
        || CWnd::OnChildNotify(message, wParam, lParam, result);
}
