#include "controls/lists/bitmap_list_box.h"
#include "controls/lists/bitmap_list_box_record.h"
#include "controls/lists/filling.h"
#include <algorithm>

template class PANELKIT_API Arr<DuBmpListBoxCL>;

BEGIN_MESSAGE_MAP(DuBmpListBoxCL, CListBox)
ON_WM_CREATE()
ON_WM_SETFOCUS()
END_MESSAGE_MAP()

int DVrBmpListBoxCL::InitBmpListBoxM(DuBmpListBoxCL* control) const
{
    if (InitCommonCtrlM(control) == 0) {
        return 0;
    }
    const int rowsColumns[2] = { rows_, columns_ };
    control->SetRowColNumM(rowsColumns);
    control->SetScrollModeM(scrollMode_);
    control->SetSelModeM(selMode_);
    return 1;
}

int DVrBmpListBoxCL::InitBmpListBoxBmpM(DuBmpListBoxCL* control) const
{
    if (control == nullptr) {
        return 0;
    }
    const int names = bitmaps_.GetAvailableNumM();
    if (names == 0) {
        return 1;
    }
    const FillingCL filling(control);
    control->SetInitBmpNumM(names);
    slEachText(bitmaps_, [control](int number, const char* name) { control->AddItemM(number, name); });
    return 1;
}

int LinePicturesCL::SlotOfLineM(int line) const
{
    if (line < 0 || line >= GetAvailableNumM()) {
        return -1;
    }
    if (GetAvailableNumM() == GetBoundM()) {
        return line; // No gaps.
    }
    int slot = GetFirstIdxM();
    for (int i = 0; i < line && slot >= 0; ++i) {
        slot = GetNextIdxM(slot);
    }
    return slot;
}

BOOL DuBmpListBoxCL::PreCreateWindow(CREATESTRUCT& create)
{
    create.style |= WS_CHILD | WS_VISIBLE | WS_BORDER | WS_TABSTOP | LBS_DISABLENOSCROLL
        | LBS_NOINTEGRALHEIGHT | LBS_OWNERDRAWFIXED | LBS_NOTIFY;
    if (columns_ > 1) {
        create.style |= LBS_MULTICOLUMN;
    }
    if (scrollMode_ == 1 || scrollMode_ == 4) {
        create.style |= WS_HSCROLL;
    }
    if (scrollMode_ == 2 || scrollMode_ == 4) {
        create.style |= WS_VSCROLL;
    }
    create.style |= static_cast<LONG>(selectionStyleM());
    return CListBox::PreCreateWindow(create);
}

int DuBmpListBoxCL::OnCreate(LPCREATESTRUCT create)
{
    if (CListBox::OnCreate(create) == -1) {
        return -1;
    }
    SetColumnWidth(columnWidthM());
    return 0;
}

// However a line goes, by an operation or by a message of the platform, its picture goes along.
LRESULT DuBmpListBoxCL::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    const HWND window = m_hWnd;
    if (message == LB_RESETCONTENT || message == WM_DESTROY) {
        pictures_.DelAllM();
    }
    const LRESULT result = ListBoxCL::WindowProc(message, wParam, lParam);
    // The parent may have destroyed this object.
    if (message == LB_DELETESTRING && result != LB_ERR && CWnd::FromHandlePermanent(window) == this) {
        pictures_.DelItemM(pictures_.SlotOfLineM(static_cast<int>(wParam)));
    }
    return result;
}

// No line is narrower or lower than a pixel: the platform divides by both.
int DuBmpListBoxCL::columnWidthM() const
{
    CRect client;
    GetClientRect(&client);
    return std::max(1, client.Width() / std::max(1, columns_));
}

int DuBmpListBoxCL::lineHeightM() const
{
    CRect client;
    GetClientRect(&client);
    return std::max(1, client.Height() / std::max(1, rows_));
}

void DuBmpListBoxCL::MeasureItem(LPMEASUREITEMSTRUCT measure)
{
    if (measure == nullptr) {
        return;
    }
    measure->itemWidth = static_cast<UINT>(columnWidthM());
    measure->itemHeight = static_cast<UINT>(lineHeightM());
}

void DuBmpListBoxCL::RescaledM(int, int)
{
    pictures_.RescaleM(PictureScaleM().AnywhereM());
    if (m_hWnd != nullptr) {
        SetColumnWidth(columnWidthM());
        SetItemHeight(0, static_cast<UINT>(lineHeightM()));
    }
}

void DuBmpListBoxCL::DrawItem(LPDRAWITEMSTRUCT draw)
{
    CDC* const dc = draw != nullptr ? CDC::FromHandle(draw->hDC) : nullptr;
    if (dc == nullptr) { // The system may be out of contexts.
        return;
    }
    if (pictures_.GetAvailableNumM() == 0 || draw->itemID == static_cast<UINT>(-1)
        || (draw->itemAction & (ODA_DRAWENTIRE | ODA_SELECT)) == 0) {
        return;
    }
    constexpr COLORREF Selected = 0xFF0000; // Blue.
    constexpr COLORREF Unselected = 0xFFFFFF;
    const int slot = pictures_.SlotOfLineM(static_cast<int>(draw->itemID));
    int size[2];
    if (pictures_.GetBmpSizeM(slot, size) == 1) {
        pictures_.DrawBitmapM(slot, dc, draw->rcItem.left, draw->rcItem.top, nullptr);
    }
    drawFrameM(dc, draw->rcItem, (draw->itemState & ODS_SELECTED) != 0 ? Selected : Unselected);
}

void DuBmpListBoxCL::drawFrameM(CDC* dc, const RECT& item, COLORREF colour)
{
    constexpr int PenWidth = 2;
    CPen pen;
    if (!pen.CreatePen(PS_SOLID, PenWidth, colour)) {
        return;
    }
    CPen* const before = dc->SelectObject(&pen);
    const POINT corners[5] = { { item.left + 1, item.top + 1 }, { item.right, item.top + 1 },
        { item.right, item.bottom }, { item.left + 1, item.bottom }, { item.left + 1, item.top + 1 } };
    for (int side = 0; side < 4; ++side) {
        dc->MoveTo(corners[side].x, corners[side].y);
        dc->LineTo(corners[side + 1].x, corners[side + 1].y);
    }
    dc->SelectObject(before);
}

int DuBmpListBoxCL::SetRowColNumM(const int rowsColumns[2])
{
    if (rowsColumns == nullptr) {
        return 0;
    }
    rows_ = rowsColumns[0];
    columns_ = rowsColumns[1];
    return 1;
}

int DuBmpListBoxCL::SetInitBmpNumM(int count)
{
    if (count >= 1) {
        pictures_.InitialSizeM(count);
    }
    return 1;
}

int DuBmpListBoxCL::AddItemM(int data, const char* file)
{
    if (file == nullptr || *file == '\0') {
        return 0;
    }
    const int line = AddString(" ");
    if (line < 0) {
        return 0;
    }
    SetItemData(line, static_cast<DWORD_PTR>(data));
    const int slot = pictures_.AddBitmapM(file, PictureScaleM().AnywhereM());
    if (slot == -1) {
        DeleteString(static_cast<UINT>(line));
    }
    return slot;
}

int DuBmpListBoxCL::InsertItemM(int index, int data, const char* file)
{
    if (file == nullptr || *file == '\0') {
        return 0;
    }
    const int line = InsertString(index, "");
    if (line < 0) {
        return 0;
    }
    SetItemData(line, static_cast<DWORD_PTR>(data));
    // Deleted lines have left gaps among the slots.
    const int slot = pictures_.SlotOfLineM(line);
    pictures_.InsertBitmapM(slot >= 0 ? slot : pictures_.GetBoundM(), file, PictureScaleM().AnywhereM());
    return 1;
}

bool DuBmpListBoxCL::InsertLineM(int line, int data, const char* file)
{
    const int before = GetCount();
    line == before ? AddItemM(data, file) : InsertItemM(line, data, file);
    return GetCount() > before;
}

void DuBmpListBoxCL::DelItemM()
{
    ListBoxCL::DelItemM();
    destroyM();
}

int DuBmpListBoxCL::DelItemM(int index)
{
    return DeleteString(static_cast<UINT>(index)) != LB_ERR ? 1 : 0;
}

int DuBmpListBoxCL::DelAllItemM()
{
    const int count = GetCount();
    for (int i = 0; i < count; ++i) {
        DelItemM(i);
    }
    return 1;
}

int DuBmpListBoxCL::SetSelM(int index, int select)
{
    if (selMode_ == SelectOne) {
        return SetCurSel(index) != LB_ERR ? 1 : 0;
    }
    return selectM(index, select);
}

int DuBmpListBoxCL::GetNextItemM(int from, int* index, int* data)
{
    if (index == nullptr || data == nullptr) {
        return 0;
    }
    // A list box without selection marks the line clicked nevertheless.
    const int count = selMode_ == SelectNone ? 0 : GetCount();
    for (int i = std::max(from, -1); i < count - 1;) {
        ++i;
        if (GetSel(i) > 0) {
            *index = i;
            *data = static_cast<int>(GetItemData(i));
            return 1;
        }
    }
    return 0;
}
