#include "controls/lists/combo_box.h"
#include "baselib/gbk.h"
#include "controls/lists/combo_box_record.h"
#include "controls/lists/filling.h"

template class PANELKIT_API Arr<DuComboBoxCL>;

BEGIN_MESSAGE_MAP(DuComboBoxCL, CComboBox)
ON_WM_SETFOCUS()
ON_CONTROL_REFLECT(CBN_SELCHANGE, &DuComboBoxCL::OnSelchange)
ON_CONTROL_REFLECT(CBN_KILLFOCUS, &DuComboBoxCL::OnKillfocus)
END_MESSAGE_MAP()

int DVrComboBoxCL::InitComboBoxM(DuComboBoxCL* control) const
{
    InitCommonCtrlM(control);
    control->SetEditAvailableM(editAvailable_);
    return 1;
}

int DVrComboBoxCL::InitComboBoxStrM(DuComboBoxCL* control) const
{
    const FillingCL filling(control);
    slEachText(items_, [control](int number, const char* text) { control->AddItemM(number, text); });
    return 1;
}

int DVrComboBoxArr::InitComboBoxM(int index, DuComboBoxCL* control) const
{
    return ifAliveM(index, [control](const DVrComboBoxCL& record) { record.InitComboBoxM(control); });
}

int DVrComboBoxArr::InitComboBoxStrM(int index, DuComboBoxCL* control)
{
    return ifAliveM(index, [control](const DVrComboBoxCL& record) { record.InitComboBoxStrM(control); });
}

int DuComboBoxArr::Create(CWnd* parent)
{
    const int first = GetFirstIdxM();
    if (first < 0) {
        return 0;
    }
    int result = ElementAtM(first).Create(parent);
    for (int i = 1; result == 1 && i < GetAvailableNumM(); ++i) {
        result = ElementAtM(i).Create(parent);
    }
    return result;
}

int DuComboBoxCL::Create(CWnd* parent)
{
    DestroyWindow(); // The walk of the array may come by twice.
    return createdM(CComboBox::Create(0, describedRectM(), parent, static_cast<UINT>(GetFunctionIDM())));
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

int DuComboBoxCL::SetEditAvailableM(int available)
{
    editAvailable_ = available;
    return 1;
}

int DuComboBoxCL::AddItemM(int data, const char* text)
{
    const int position = AddString(text);
    return position < 0 ? -1 : SetItemData(position, static_cast<DWORD_PTR>(data));
}

int DuComboBoxCL::InsertItemM(int index, int data, const char* text)
{
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
    slCopyText(text, TextSize, itemText);
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

void DuComboBoxCL::OnSetFocus(CWnd* oldFocus)
{
    reportFocusM(oldFocus);
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

// What stands in the edit field replaces the text of the selected item, which keeps its data.
void DuComboBoxCL::takeTypedTextM()
{
    char typed[TextSize];
    GetWindowText(typed, TextSize);
    if (currentSel_ >= 0 && currentSel_ < GetCount()) {
        const DWORD_PTR data = GetItemData(currentSel_);
        currentSel_ = InsertString(currentSel_, typed);
        if (currentSel_ >= 0) {
            SetItemData(currentSel_, data);
            DeleteString(static_cast<UINT>(currentSel_ + 1));
            SetCurSel(currentSel_); // It went with the old item.
        }
    }
    SetWindowText(typed);
}
