#include "controls/lists/text_list_box.h"
#include "controls/base/styles.h"
#include "controls/lists/filling.h"
#include "controls/lists/text_list_box_record.h"

template class PANELKIT_API Arr<DuTextListBoxCL>;

BEGIN_MESSAGE_MAP(DuTextListBoxCL, CListBox)
ON_WM_CREATE()
ON_WM_CTLCOLOR_REFLECT()
END_MESSAGE_MAP()

int DVrTextListBoxCL::InitTextListBoxM(DuTextListBoxCL* control) const
{
    if (InitCommonCtrlM(control) == 0) {
        return 0;
    }
    control->SetItemInitHeightM(itemHeight_);
    control->SetSelModeM(selMode_);
    control->SetEdgeM(edge_);
    control->SetBkColorM(bkColour_);
    control->SetScrollM(scroll_);
    return 1;
}

int DVrTextListBoxCL::GiveLengthsM(DuTextListBoxCL* control) const
{
    return RecordCL::GiveLengthsM(control) == 1 ? control->SetItemInitHeightM(itemHeight_) : 0;
}

int DVrTextListBoxCL::InitTextListBoxStrM(DuTextListBoxCL* control) const
{
    if (control == nullptr) {
        return 0;
    }
    const FillingCL filling(control);
    slMakeRoom(control, items_.GetAvailableNumM());
    slEachText(items_, [control](int number, const char* text) { control->AddItemM(number, text); });
    return 1;
}

BOOL DuTextListBoxCL::PreCreateWindow(CREATESTRUCT& create)
{
    create.style |= WS_CHILD | WS_VISIBLE | WS_VSCROLL | WS_TABSTOP | LBS_NOINTEGRALHEIGHT | LBS_NOTIFY;
    slSetSunken(create, edge_);
    if (scroll_ == 1) {
        create.style |= LBS_DISABLENOSCROLL;
    }
    create.style |= static_cast<LONG>(selectionStyleM());
    return CListBox::PreCreateWindow(create);
}

int DuTextListBoxCL::OnCreate(LPCREATESTRUCT create)
{
    if (CListBox::OnCreate(create) == -1) {
        return -1;
    }
    SetItemHeightM();
    return 0;
}

int DuTextListBoxCL::SetItemInitHeightM(int height)
{
    if (height < 1) {
        return 0;
    }
    itemHeight_ = height;
    return 1;
}

int DuTextListBoxCL::AddItemM(int data, const char* text)
{
    if (text == nullptr) {
        return -1;
    }
    const int position = AddString(text);
    if (position == LB_ERR || position == LB_ERRSPACE) {
        return -1;
    }
    return SetItemData(position, static_cast<DWORD_PTR>(static_cast<INT_PTR>(data)));
}

int DuTextListBoxCL::InsertItemM(int index, int data, const char* text)
{
    if (text == nullptr) {
        return 0;
    }
    const int position = InsertString(index, text);
    if (position == LB_ERR || position == LB_ERRSPACE) {
        return 0;
    }
    return SetItemData(position, static_cast<DWORD_PTR>(static_cast<INT_PTR>(data))) != LB_ERR ? 1 : 0;
}

void DuTextListBoxCL::DelItemM()
{
    ListBoxCL::DelItemM();
    destroyM();
}

int DuTextListBoxCL::DelItemM(int index)
{
    return DeleteString(static_cast<UINT>(index)) != LB_ERR ? 1 : 0;
}

int DuTextListBoxCL::DelAllItemM()
{
    for (int i = GetCount() - 1; i >= 0; --i) {
        DelItemM(i);
    }
    return 1;
}

std::optional<ValueTextCL> DuTextListBoxCL::LineTextM(int line) const
{
    if (line < 0 || line >= GetCount()) {
        return std::nullopt;
    }
    if (const ValueTextCL* const original = originals_.AtM(line)) {
        return *original;
    }
    CString text;
    GetText(line, text);
    return ValueTextCL(text.GetString());
}

void DuTextListBoxCL::TranslateM(const TranslatorTP& translate)
{
    if (m_hWnd != nullptr) {
        slTranslateLines(*this, LB_INSERTSTRING, originals_, translate);
    }
}

LRESULT DuTextListBoxCL::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    const HWND window = m_hWnd;
    const bool follows = !originals_.EmptyM();
    const LRESULT result = ListBoxCL::WindowProc(message, wParam, lParam);
    // The parent may have destroyed this object.
    if (follows && CWnd::FromHandlePermanent(window) == this) {
        followLinesM(message, static_cast<int>(wParam), static_cast<int>(result));
    }
    return result;
}

void DuTextListBoxCL::followLinesM(UINT message, int index, int result)
{
    if ((message == LB_ADDSTRING || message == LB_INSERTSTRING) && result >= 0) {
        originals_.InsertedM(result);
    } else if (message == LB_DELETESTRING && result != LB_ERR) {
        originals_.DeletedM(index);
    } else if (message == LB_RESETCONTENT || message == WM_DESTROY) {
        originals_.ClearM();
    }
}

int DuTextListBoxCL::GetItemM(int* index, int* data)
{
    if (index == nullptr || data == nullptr) {
        return 0;
    }
    // A list box without selection remembers the line clicked nevertheless.
    const int selected = selMode_ == SelectNone ? LB_ERR : GetCurSel();
    if (selected == LB_ERR) {
        return 0;
    }
    const int number = static_cast<int>(GetItemData(selected));
    if (number == LB_ERR) {
        return 0;
    }
    *index = selected;
    *data = number;
    return 1;
}

int DuTextListBoxCL::SetItemHeightM(int height)
{
    if (height < 1) {
        return 0;
    }
    itemHeight_ = height;
    if (m_hWnd != nullptr) {
        SetItemHeight(0, static_cast<UINT>(height));
        RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW);
    }
    return 1;
}

int DuTextListBoxCL::SetItemHeightM()
{
    return m_hWnd != nullptr && SetItemHeight(0, static_cast<UINT>(itemHeight_)) != LB_ERR ? 1 : 0;
}
