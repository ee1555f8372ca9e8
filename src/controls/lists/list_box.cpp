#include "controls/lists/list_box.h"
#include <algorithm>

namespace {

constexpr DWORD SelectsManyStyles = LBS_MULTIPLESEL | LBS_EXTENDEDSEL;

} // namespace

DWORD ListBoxCL::selectionStyleM() const
{
    switch (selMode_) {
    case SelectMany:
        return LBS_MULTIPLESEL;
    case SelectExtended:
        return LBS_EXTENDEDSEL;
    case SelectNone:
        return LBS_NOSEL;
    default:
        return 0;
    }
}

int ListBoxCL::selectM(int line, BOOL select)
{
    // Wine 8 answers the message of multiple selections with success in other lists too.
    return selectsM(SelectsManyStyles) && SetSel(line, select) != LB_ERR ? 1 : 0;
}

int ListBoxCL::GetSelNumM(int* count)
{
    if (count == nullptr) {
        return 0;
    }
    if (selMode_ == SelectOne) {
        *count = GetCurSel() != LB_ERR ? 1 : 0;
        return 1;
    }
    const int selected = GetSelCount();
    if (selected == LB_ERR) {
        return 0;
    }
    *count = selected;
    return 1;
}

ControlValueCL ListBoxCL::ReadValueM() const
{
    ControlValueCL value;
    if (m_hWnd == nullptr || ValuePartsM() == NoPart) {
        return value;
    }
    value.lines.emplace();
    if (selectsM(SelectsManyStyles)) {
        value.lines->resize(static_cast<size_t>(std::max(GetSelCount(), 0)));
        GetSelItems(static_cast<int>(value.lines->size()), value.lines->data());
    } else if (GetCurSel() != LB_ERR) {
        value.lines->push_back(GetCurSel());
    }
    return value;
}

bool ListBoxCL::WriteValueM(const ControlValueCL& value)
{
    const bool many = selectsM(SelectsManyStyles);
    const auto lines = value.LinesOfM(GetCount(), many);
    if (m_hWnd == nullptr || !lines || !value.IsOfM(ValuePartsM())) {
        return false;
    }
    if (!many) {
        SetCurSel(lines->empty() ? -1 : lines->front());
        return true;
    }
    for (int line = 0; line < GetCount(); ++line) {
        const bool isWanted = std::binary_search(lines->begin(), lines->end(), line);
        if (isWanted != (GetSel(line) > 0)) {
            SetSel(line, isWanted ? TRUE : FALSE);
        }
    }
    return true;
}

LRESULT ListBoxCL::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    // In Wine 8 the key that selects the line in front, or takes that back, ends a program where there is no
    // line.
    if (message == WM_KEYDOWN && wParam == VK_SPACE && selectsM(LBS_MULTIPLESEL) && GetCount() == 0) {
        return 0;
    }
    return ControlCL::WindowProc(message, wParam, lParam);
}
