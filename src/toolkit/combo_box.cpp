#include "toolkit/combo_box.h"
#include "toolkit/edit_text.h"
#include "toolkit/line_text.h"
#include "toolkit/owner_drawn.h"

IMPLEMENT_DYNAMIC(CComboBox, CWnd)

namespace {

HWND fieldOfM(const CComboBox& combo) // Null: it cannot be edited.
{
    COMBOBOXINFO info = {};
    const bool isKnown = combo.m_hWnd != nullptr && combo.GetComboBoxInfo(&info);
    return isKnown && info.hwndItem != combo.m_hWnd ? info.hwndItem : nullptr;
}

} // namespace

BOOL CComboBox::Create(DWORD style, const RECT& rect, CWnd* parent, UINT id)
{
    return CWnd::Create("ComboBox", nullptr, style, rect, parent, id);
}

int CComboBox::GetLBText(int index, LPSTR to) const
{
    std::string text;
    if (!LineText(*this, CB_GETLBTEXTLEN, CB_GETLBTEXT, index, &text)) {
        return CB_ERR;
    }
    return slCopyText(to, static_cast<int>(text.size()) + 1, text);
}

void CComboBox::GetLBText(int index, CString& to) const
{
    std::string text;
    LineText(*this, CB_GETLBTEXTLEN, CB_GETLBTEXT, index, &text);
    to = text.c_str();
}

int CComboBox::GetLBTextLen(int index) const
{
    std::string text;
    return LineText(*this, CB_GETLBTEXTLEN, CB_GETLBTEXT, index, &text) ? static_cast<int>(text.size())
                                                                        : CB_ERR;
}

DWORD CComboBox::GetEditSel() const
{
    DWORD first = 0;
    DWORD end = 0;
    const LRESULT packed
        = SendMessage(CB_GETEDITSEL, reinterpret_cast<WPARAM>(&first), reinterpret_cast<LPARAM>(&end));
    const HWND field = fieldOfM(*this);
    if (field == nullptr) {
        return static_cast<DWORD>(packed);
    }
    const EditTextCL text(field);
    return static_cast<DWORD>(
        MAKELONG(text.BytesM(static_cast<int>(first)), text.BytesM(static_cast<int>(end))));
}

BOOL CComboBox::SetEditSel(int first, int end)
{
    if (const HWND field = fieldOfM(*this)) {
        const EditTextCL text(field);
        first = text.UnitsM(first);
        end = text.UnitsM(end);
    }
    return AfxSendInt(*this, CB_SETEDITSEL, 0, MAKELPARAM(first, end));
}

BOOL CComboBox::LimitText(int bytes)
{
    const HWND field = fieldOfM(*this);
    if (field == nullptr) {
        return CB_ERR;
    }
    SendMessage(CB_LIMITTEXT, AfxWordOf(bytes));
    LimitEditText(field, static_cast<UINT>(bytes));
    return TRUE;
}

BOOL CComboBox::GetComboBoxInfo(PCOMBOBOXINFO info) const
{
    info->cbSize = sizeof *info;
    return ::GetComboBoxInfo(m_hWnd, info);
}

BOOL CComboBox::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result)
{
    return AfxDrawnList(this, message, lParam, result)
        || CWnd::OnChildNotify(message, wParam, lParam, result);
}
