#include "baselib/gbk.h"
#include "toolkit/ddx.h"
#include "toolkit/text.h"
#include "toolkit/wnd.h"
#include <commctrl.h>
#include <vector>

namespace {

LPARAM wordOfTextM(const std::wstring& text)
{
    return reinterpret_cast<LPARAM>(text.c_str());
}

CString windowTextM(HWND window)
{
    CString text;
    CWnd::FromHandle(window)->GetWindowText(text);
    return text;
}

void indexM(CDataExchange* exchange, int id, UINT ask, UINT tell, int* index)
{
    const HWND list = exchange->PrepareCtrl(id);
    if (exchange->m_bSaveAndValidate) {
        *index = static_cast<int>(::SendMessageW(list, ask, 0, 0));
    } else {
        ::SendMessageW(list, tell, static_cast<WPARAM>(static_cast<INT_PTR>(*index)), 0);
    }
}

void listTextM(CDataExchange* exchange, int id, UINT select, CString* value)
{
    const HWND list = exchange->PrepareCtrl(id);
    if (!exchange->m_bSaveAndValidate) {
        const std::wstring wanted = slGbkToShown(value->GetString());
        const LRESULT found = ::SendMessageW(list, select, static_cast<WPARAM>(-1), wordOfTextM(wanted));
        ::SendMessageW(list, LB_SETCURSEL, static_cast<WPARAM>(found), 0);
        return;
    }
    const LRESULT line = ::SendMessageW(list, LB_GETCURSEL, 0, 0);
    const LRESULT length
        = line == LB_ERR ? LB_ERR : ::SendMessageW(list, LB_GETTEXTLEN, static_cast<WPARAM>(line), 0);
    std::vector<wchar_t> text(static_cast<size_t>(length < 0 ? 0 : length) + 1);
    if (length > 0) {
        ::SendMessageW(list, LB_GETTEXT, static_cast<WPARAM>(line), reinterpret_cast<LPARAM>(text.data()));
    }
    *value = WideToGbk(text.data()).c_str();
}

// The text of the field of a combo box; set, the line of that text is selected, or the field gets it alone.
void comboTextM(CDataExchange* exchange, int id, UINT find, CString* value)
{
    const HWND combo = exchange->PrepareCtrl(id);
    const auto style = ::GetWindowLongPtrW(combo, GWL_STYLE) & (CBS_SIMPLE | CBS_DROPDOWN | CBS_DROPDOWNLIST);
    const bool isField = style != CBS_DROPDOWNLIST;
    if (isField) {
        exchange->m_bEditLastControl = false; // selected by the combo box's own message
    }
    if (exchange->m_bSaveAndValidate) {
        *value = windowTextM(combo);
        return;
    }
    const std::wstring wanted = slGbkToShown(value->GetString());
    const LRESULT found = ::SendMessageW(combo, find, static_cast<WPARAM>(-1), wordOfTextM(wanted));
    ::SendMessageW(combo, CB_SETCURSEL, static_cast<WPARAM>(found), 0);
    if (found == CB_ERR && isField) {
        ::SetWindowTextW(combo, wanted.c_str());
    }
}

bool isRadioM(HWND window)
{
    return (::SendMessageW(window, WM_GETDLGCODE, 0, 0) & DLGC_RADIOBUTTON) != 0;
}

} // namespace

void DDX_Check(CDataExchange* exchange, int id, int& value)
{
    const HWND button = exchange->PrepareCtrl(id);
    if (exchange->m_bSaveAndValidate) {
        value = static_cast<int>(::SendMessageW(button, BM_GETCHECK, 0, 0));
    } else {
        if (value < BST_UNCHECKED || value > BST_INDETERMINATE) {
            value = BST_UNCHECKED;
        }
        ::SendMessageW(button, BM_SETCHECK, static_cast<WPARAM>(value), 0);
    }
}

void DDX_Radio(CDataExchange* exchange, int id, int& value)
{
    HWND window = exchange->PrepareCtrl(id);
    if (exchange->m_bSaveAndValidate) {
        value = -1;
    }
    int number = 0;
    do {
        if (isRadioM(window)) {
            if (!exchange->m_bSaveAndValidate) {
                ::SendMessageW(window, BM_SETCHECK, number == value ? BST_CHECKED : BST_UNCHECKED, 0);
            } else if (::SendMessageW(window, BM_GETCHECK, 0, 0) == BST_CHECKED) {
                value = number;
            }
            ++number;
        }
        window = ::GetNextWindow(window, GW_HWNDNEXT);
    } while (window != nullptr && (::GetWindowLongPtrW(window, GWL_STYLE) & WS_GROUP) == 0);
}

void DDX_LBIndex(CDataExchange* exchange, int id, int& index)
{
    indexM(exchange, id, LB_GETCURSEL, LB_SETCURSEL, &index);
}

void DDX_LBString(CDataExchange* exchange, int id, CString& value)
{
    listTextM(exchange, id, LB_FINDSTRING, &value);
}

void DDX_LBStringExact(CDataExchange* exchange, int id, CString& value)
{
    listTextM(exchange, id, LB_FINDSTRINGEXACT, &value);
}

void DDX_CBIndex(CDataExchange* exchange, int id, int& index)
{
    indexM(exchange, id, CB_GETCURSEL, CB_SETCURSEL, &index);
}

void DDX_CBString(CDataExchange* exchange, int id, CString& value)
{
    comboTextM(exchange, id, CB_FINDSTRING, &value);
}

void DDX_CBStringExact(CDataExchange* exchange, int id, CString& value)
{
    comboTextM(exchange, id, CB_FINDSTRINGEXACT, &value);
}

void DDX_Scroll(CDataExchange* exchange, int id, int& position)
{
    const HWND bar = exchange->PrepareCtrl(id);
    if (exchange->m_bSaveAndValidate) {
        position = ::GetScrollPos(bar, SB_CTL);
    } else {
        ::SetScrollPos(bar, SB_CTL, position, TRUE);
    }
}

void DDX_Slider(CDataExchange* exchange, int id, int& position)
{
    const HWND slider = exchange->PrepareCtrl(id);
    if (exchange->m_bSaveAndValidate) {
        position = static_cast<int>(::SendMessageW(slider, TBM_GETPOS, 0, 0));
    } else {
        ::SendMessageW(slider, TBM_SETPOS, TRUE, position);
    }
}
