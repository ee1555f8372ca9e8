#include "controls/lists/combo_box.h"
#include "baselib/gbk.h"
#include "controls/lists/combo_box_record.h"
#include "controls/lists/combo_field.h"
#include "controls/lists/filling.h"
#include <cstring>

template class PANELKIT_API Arr<DuComboBoxCL>;

BEGIN_MESSAGE_MAP(DuComboBoxCL, CComboBox)
ON_WM_SETFOCUS()
ON_CONTROL_REFLECT(CBN_SELCHANGE, &DuComboBoxCL::OnSelchange)
ON_CONTROL_REFLECT(CBN_KILLFOCUS, &DuComboBoxCL::OnKillfocus)
END_MESSAGE_MAP()

namespace {

// Adds texts as AddItemM does, but to the list below the control, which that would hand each of them on to,
// for half of the time. Of a control of the library's own class nobody waits for the messages.
void fillList(const DuComboBoxCL& control, const VrStringArr& texts)
{
    COMBOBOXINFO info {};
    control.GetComboBoxInfo(&info);
    slEachText(texts, [&info](int number, const char* text) {
        const std::wstring wide = slGbkToShown(text);
        const LRESULT line
            = ::SendMessageW(info.hwndList, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(wide.c_str()));
        if (line >= 0) {
            ::SendMessageW(info.hwndList, LB_SETITEMDATA, static_cast<WPARAM>(line), number);
        }
    });
}

} // namespace

int DVrComboBoxCL::InitComboBoxM(DuComboBoxCL* control) const
{
    if (InitCommonCtrlM(control) == 0) {
        return 0;
    }
    control->SetEditAvailableM(editAvailable_);
    return 1;
}

int DVrComboBoxCL::InitComboBoxStrM(DuComboBoxCL* control) const
{
    if (control == nullptr) {
        return 0;
    }
    const FillingCL filling(control);
    if (slMakeRoom(control, items_.GetAvailableNumM()) && slIsJust(*control)) {
        fillList(*control, items_);
    } else {
        slEachText(items_, [control](int number, const char* text) { control->AddItemM(number, text); });
    }
    return 1;
}

int DuComboBoxArr::Create(CWnd* parent)
{
    const int first = GetFirstIdxM();
    if (first < 0) {
        return 0;
    }
    int result = ControlAtM(first).Create(parent);
    for (int i = 1; result == 1 && i < GetAvailableNumM(); ++i) {
        result = ControlAtM(i).Create(parent);
    }
    return result;
}

BOOL DuComboBoxCL::PreCreateWindow(CREATESTRUCT& create)
{
    create.style |= WS_CHILD | WS_VISIBLE | WS_VSCROLL | WS_TABSTOP;
    if (editAvailable_ == 0) {
        create.style |= CBS_DROPDOWNLIST;
    } else if (editAvailable_ == 1) {
        create.style |= CBS_DROPDOWN;
    }
    return CComboBox::PreCreateWindow(create);
}

int DuComboBoxCL::AddItemM(int data, const char* text)
{
    if (text == nullptr) {
        return -1;
    }
    const int position = AddString(text);
    return position < 0 ? -1 : SetItemData(position, static_cast<DWORD_PTR>(data));
}

int DuComboBoxCL::InsertItemM(int index, int data, const char* text)
{
    if (text == nullptr) {
        return 0;
    }
    const int position = InsertString(index, text);
    return position >= 0 && SetItemData(position, static_cast<DWORD_PTR>(data)) != CB_ERR ? 1 : 0;
}

int DuComboBoxCL::DelItemM(int index)
{
    return DeleteString(static_cast<UINT>(index)) != CB_ERR ? 1 : 0;
}

int DuComboBoxCL::DelAllItemM()
{
    const int count = GetCount();
    for (int i = 0; i < count; ++i) {
        DelItemM(i);
    }
    return 1;
}

int DuComboBoxCL::GetCurItemM(int* index, int* data, char* text)
{
    if (index == nullptr || data == nullptr || text == nullptr) {
        return 0;
    }
    const int selected = GetCurSel();
    if (selected == CB_ERR) {
        char typed[TextSize];
        if (GetWindowText(typed, TextSize) == 0) {
            return 0;
        }
        *index = -1;
        *data = -1;
        slCopyText(text, TextSize, typed);
        return 1;
    }
    const int itemData = static_cast<int>(GetItemData(selected));
    CString itemText;
    GetLBText(selected, itemText);
    if (itemData == CB_ERR || GetLBTextLen(selected) == CB_ERR) {
        return 0;
    }
    *index = selected;
    *data = itemData;
    const ValueTextCL* const original = originals_.AtM(selected);
    slCopyText(text, TextSize, original != nullptr ? original->GbkM().c_str() : itemText.GetString());
    return 1;
}

int DuComboBoxCL::SetSelM(int index)
{
    const int count = GetCount();
    if (count < 1 && index < count) {
        return 0;
    }
    return SetCurSel(index) != CB_ERR ? 1 : 0;
}

int DuComboBoxCL::SetDataSelM(int data)
{
    const int count = GetCount();
    if (count < 1) {
        return 0;
    }
    for (int i = 0; i < count; ++i) {
        const int itemData = static_cast<int>(GetItemData(i));
        if (itemData == CB_ERR) {
            return 0;
        }
        if (itemData == data) {
            SetCurSel(i);
            return 1;
        }
    }
    SetCurSel(-1);
    return 0;
}

LRESULT DuComboBoxCL::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    const HWND window = m_hWnd;
    if (message == WM_COMMAND && HIWORD(wParam) == EN_SETFOCUS) {
        slGuardComboField(reinterpret_cast<HWND>(lParam));
    }
    const bool colours = looks_.ColoursM(message); // Its field or its list asks.
    LRESULT result = ControlCL::WindowProc(message, wParam, lParam);
    if (colours) {
        looks_.ColourM(this, true, message, wParam, lParam, &result);
    }
    // The parent may have destroyed this object.
    if (CWnd::FromHandlePermanent(window) == this) {
        followSelectionM(message, static_cast<int>(wParam), static_cast<int>(result));
    }
    return result;
}

void DuComboBoxCL::SetTextColourM(std::optional<COLORREF> colour)
{
    ControlCL::SetTextColourM(colour);
    if (m_hWnd != nullptr) {
        RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
    }
}

// Keeps the item last selected known through what a message has just done to the list.
void DuComboBoxCL::followSelectionM(UINT message, int index, int result)
{
    switch (message) {
    case CB_SETCURSEL:
        currentSel_ = result >= 0 ? result : GetCurSel();
        break;
    case CB_SELECTSTRING:
        currentSel_ = result >= 0 ? result : currentSel_; // Nothing found: the selection stays.
        break;
    case CB_ADDSTRING:
    case CB_INSERTSTRING:
        if (result >= 0) {
            currentSel_ += result <= currentSel_ ? 1 : 0;
            originals_.InsertedM(result);
        }
        break;
    case CB_DELETESTRING:
        if (result >= 0) {
            currentSel_ = index > currentSel_ ? currentSel_ : index < currentSel_ ? currentSel_ - 1 : -1;
            originals_.DeletedM(index);
        }
        break;
    case CB_RESETCONTENT:
    case WM_CREATE:
        currentSel_ = -1;
        originals_.ClearM();
        break;
    case WM_DESTROY:
        originals_.ClearM();
        break;
    default:
        break;
    }
}

void DuComboBoxCL::OnSelchange()
{
    currentSel_ = GetCurSel();
    if (currentSel_ != CB_ERR) {
        postToParentM(SelectionChangedMsg, currentSel_);
    }
}

void DuComboBoxCL::OnKillfocus()
{
    if (!slIsLeft(m_hWnd)) {
        return;
    }
    if (editAvailable_ == 1) {
        takeTypedTextM();
    }
    postToParentM(WM_KILLFOCUS);
}

// What stands in the edit field replaces the text of the item last selected.
void DuComboBoxCL::takeTypedTextM()
{
    char typed[TextSize];
    GetWindowText(typed, TextSize);
    const int item = currentSel_;
    if (showsTranslationM(item)) {
        if (GetCurSel() != item) {
            SetCurSel(item); // Typing makes the list forget it.
        }
        return;
    }
    if (item >= 0 && item < GetCount()) {
        CString kept;
        GetLBText(item, kept);
        char text[TextSize];
        slCopyText(text, TextSize, kept); // Cut like what is typed.
        if (std::strcmp(text, typed) != 0) {
            replaceItemM(item, typed);
        } else if (GetCurSel() == item) {
            return; // Nobody typed.
        }
        SetCurSel(item); // Typing makes the list forget it; it also went with the old item.
    }
    SetWindowText(typed);
}

// The item keeps its data.
void DuComboBoxCL::replaceItemM(int item, const char* text)
{
    const DWORD_PTR data = GetItemData(item);
    if (InsertString(item, text) >= 0) {
        SetItemData(item, data);
        DeleteString(static_cast<UINT>(item + 1));
    }
}
