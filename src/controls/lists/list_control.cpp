#include "controls/lists/list_control.h"
#include "controls/lists/filling.h"
#include "controls/lists/list_control_record.h"
#include <algorithm>

template class PANELKIT_API Arr<DuListCtrlCL>;

BEGIN_MESSAGE_MAP(DuListCtrlCL, CListCtrl)
ON_WM_CREATE()
ON_WM_SETFOCUS()
END_MESSAGE_MAP()

int DVrListCtrlCL::InitListCtrlM(DuListCtrlCL* control) const
{
    if (InitCommonCtrlM(control) == 0) {
        return 0;
    }
    control->SetColNumM(columnCount_);
    control->SetSelModeM(singleSelection_);
    return 1;
}

int DVrListCtrlCL::InitListCtrlStrM(DuListCtrlCL* control) const
{
    if (control == nullptr) {
        return 0;
    }
    const FillingCL filling(control);
    const auto each = [](const PairedTextsCL& list, auto&& see) {
        const int count = list.CountM();
        int text = list.texts.GetFirstIdxM();
        for (int i = 0; i < count && text >= 0; ++i) {
            see(list.pairs[i], slTextAt(list.texts, text));
            text = list.texts.GetNextIdxM(text);
        }
    };
    each(titles_,
        [control](const int* title, const char* text) { control->InsertColumnM(title[0], title[1], text); });
    each(cells_, [control](const int* cell, const char* text) {
        // A cell needs its row, which the row's column-0 text makes.
        if (cell[1] == 0) {
            control->InsertItemM(cell[0], 0, text);
        } else {
            control->SetItemTextM(cell[0], cell[1], text);
        }
    });
    return 1;
}

void DuListCtrlCL::RescaledM(int from, int to)
{
    const HWND header = GetHeaderCtrl()->GetSafeHwnd();
    const int count
        = header != nullptr ? static_cast<int>(::SendMessageW(header, HDM_GETITEMCOUNT, 0, 0)) : 0;
    int end = 0; // One column behind the other: edges are rounded, not widths.
    for (int i = 0; i < count; ++i) {
        const int begin = end;
        end += GetColumnWidth(i);
        SetColumnWidth(i, ::MulDiv(end, to, from) - ::MulDiv(begin, to, from));
    }
}

BOOL DuListCtrlCL::PreCreateWindow(CREATESTRUCT& create)
{
    create.style |= WS_CHILD | WS_VISIBLE | WS_BORDER | WS_TABSTOP | LVS_REPORT | LVS_SHOWSELALWAYS;
    create.dwExStyle |= WS_EX_CLIENTEDGE;
    if (singleSelection_ == 1) {
        create.style |= LVS_SINGLESEL;
    }
    return CListCtrl::PreCreateWindow(create);
}

int DuListCtrlCL::OnCreate(LPCREATESTRUCT create)
{
    if (CListCtrl::OnCreate(create) == -1) {
        return -1;
    }
    SetExtendedStyle(GetExtendedStyle() | LVS_EX_FULLROWSELECT);
    platformColour_ = GetTextColor();
    if (looks_.TextColourM()) {
        showTextColourM();
    }
    return 0;
}

void DuListCtrlCL::SetTextColourM(std::optional<COLORREF> colour)
{
    ControlCL::SetTextColourM(colour);
    if (m_hWnd != nullptr) {
        showTextColourM();
    }
}

void DuListCtrlCL::showTextColourM()
{
    SetTextColor(looks_.TextColourM().value_or(platformColour_));
}

int DuListCtrlCL::InsertColumnM(int column, int width, const char* text)
{
    if (m_hWnd == nullptr || text == nullptr) {
        return 0;
    }
    LVCOLUMNA heading {};
    heading.mask = LVCF_FMT | LVCF_WIDTH | LVCF_TEXT | LVCF_SUBITEM;
    heading.fmt = LVCFMT_LEFT;
    heading.cx = width;
    heading.pszText = const_cast<char*>(text);
    heading.iSubItem = column;
    return CListCtrl::InsertColumn(column, &heading) != -1 ? 1 : 0;
}

void DuListCtrlCL::TranslateM(const TranslatorTP& translate)
{
    if (m_hWnd == nullptr) {
        return;
    }
    char text[TextSize];
    for (int column = 0;; ++column) {
        LVCOLUMNA heading {};
        heading.mask = LVCF_TEXT;
        heading.pszText = text;
        heading.cchTextMax = TextSize;
        if (!GetColumn(column, &heading)) {
            return;
        }
        const ValueTextCL shown = translate(ValueTextCL(text));
        if (!shown.IsNoneM()) {
            std::wstring title = shown.WideM();
            LVCOLUMNW wide {};
            wide.mask = LVCF_TEXT;
            wide.pszText = title.data();
            SetColumn(column, &wide);
        }
    }
}

int DuListCtrlCL::InsertItemM(int row, int data, const char* text)
{
    if (m_hWnd == nullptr || text == nullptr) {
        return 0;
    }
    const int inserted = CListCtrl::InsertItem(row, text);
    if (inserted == -1) {
        return 0;
    }
    SetItemData(inserted, static_cast<DWORD_PTR>(data));
    return 1;
}

int DuListCtrlCL::SetItemTextM(int row, int column, const char* text)
{
    if (m_hWnd == nullptr || text == nullptr) {
        return 0;
    }
    return SetItemText(row, column, text) ? 1 : 0;
}

int DuListCtrlCL::GetRowNumM(int* count) const
{
    if (count == nullptr) {
        return 0;
    }
    *count = GetItemCount();
    return 1;
}

int DuListCtrlCL::GetSelNumM(int* count) const
{
    if (count == nullptr) {
        return 0;
    }
    *count = static_cast<int>(GetSelectedCount());
    return 1;
}

int DuListCtrlCL::GetFirstSelM(int* row, int* data) const
{
    if (m_hWnd == nullptr || row == nullptr || data == nullptr) {
        return 0;
    }
    const int first = GetNextItem(-1, LVNI_SELECTED);
    if (first == -1) {
        return 0;
    }
    *row = first;
    *data = static_cast<int>(GetItemData(first));
    return 1;
}

int DuListCtrlCL::GetNextSelM(int from, int* row, int* data) const
{
    if (m_hWnd == nullptr || row == nullptr || data == nullptr) {
        return 0;
    }
    *row = GetNextItem(from, LVNI_SELECTED);
    if (*row == -1) {
        return 0;
    }
    *data = static_cast<int>(GetItemData(*row));
    return 1;
}

int DuListCtrlCL::GetCurSelM(int* row, int* data) const
{
    if (row == nullptr || data == nullptr) {
        return 0;
    }
    if (GetSelectedCount() > 0) {
        return GetFirstSelM(row, data);
    }
    *row = -1;
    return 1;
}

int DuListCtrlCL::SetSelM(int row)
{
    for (int at = GetNextItem(-1, LVNI_SELECTED); at != -1; at = GetNextItem(at, LVNI_SELECTED)) {
        deselectM(at);
    }
    if (row >= 0) { // The platform takes -1 for all rows.
        SetItemState(row, LVIS_SELECTED, LVIS_SELECTED);
    }
    return 1;
}

void DuListCtrlCL::deselectM(int row)
{
    SetItemState(row, 0, LVIS_FOCUSED | LVIS_SELECTED | LVIS_DROPHILITED);
}

std::optional<ValueTextCL> DuListCtrlCL::LineTextM(int row) const
{
    if (row < 0 || row >= GetItemCount()) {
        return std::nullopt;
    }
    return ValueTextCL(GetItemText(row, 0).GetString());
}

ControlValueCL DuListCtrlCL::ReadValueM() const
{
    ControlValueCL value;
    if (m_hWnd != nullptr) {
        value.lines.emplace();
        for (int at = GetNextItem(-1, LVNI_SELECTED); at != -1; at = GetNextItem(at, LVNI_SELECTED)) {
            value.lines->push_back(at);
        }
    }
    return value;
}

bool DuListCtrlCL::WriteValueM(const ControlValueCL& value)
{
    const auto rows = value.LinesOfM(GetItemCount(), (GetStyle() & LVS_SINGLESEL) == 0);
    if (m_hWnd == nullptr || !rows || !value.IsOfM(LinesPart)) {
        return false;
    }
    for (int at = GetNextItem(-1, LVNI_SELECTED); at != -1; at = GetNextItem(at, LVNI_SELECTED)) {
        if (!std::binary_search(rows->begin(), rows->end(), at)) {
            deselectM(at);
        }
    }
    for (const int row : *rows) {
        if (GetItemState(row, LVIS_SELECTED) == 0) {
            SetItemState(row, LVIS_SELECTED, LVIS_SELECTED);
        }
    }
    return true;
}
