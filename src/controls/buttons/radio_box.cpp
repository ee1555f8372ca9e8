#include "controls/buttons/radio_box.h"
#include "controls/buttons/radio_box_record.h"

template class PANELKIT_API Arr<DuRadioBoxCL>;

BEGIN_MESSAGE_MAP(DuRadioBoxCL, CheckableButtonCL)
ON_WM_SETFOCUS()
ON_CONTROL_REFLECT(BN_CLICKED, &DuRadioBoxCL::onClickedM)
END_MESSAGE_MAP()

int DVrRadioBoxCL::InitRadioBoxM(DuRadioBoxCL* control) const
{
    if (InitCommonCtrlM(control) == 0) {
        return 0;
    }
    control->SetGroupNoM(group_);
    control->SetInitCheckM(check_);
    control->SetTextM(text_.TextM());
    return 1;
}

BOOL DuRadioBoxCL::PreCreateWindow(CREATESTRUCT& create)
{
    // No tab stop: the platform gives it to the checked button of a group.
    create.style |= WS_CHILD | WS_VISIBLE | BS_AUTORADIOBUTTON;
    return CButton::PreCreateWindow(create);
}

// Disabled and hidden ones too: they stand in the group like any other.
std::vector<HWND> DuRadioBoxCL::groupWindowsM() const
{
    const auto begins = [](HWND window) { return (::GetWindowLongW(window, GWL_STYLE) & WS_GROUP) != 0; };
    HWND at = m_hWnd;
    for (HWND before = at; before != nullptr && !begins(at); before = ::GetWindow(at, GW_HWNDPREV)) {
        at = before;
    }
    std::vector<HWND> windows;
    for (; at != nullptr && (windows.empty() || !begins(at)); at = ::GetWindow(at, GW_HWNDNEXT)) {
        if ((::SendMessageW(at, WM_GETDLGCODE, 0, 0) & DLGC_RADIOBUTTON) != 0) {
            windows.push_back(at);
        }
    }
    return windows;
}

std::optional<int> DuRadioBoxCL::CheckedInGroupM() const
{
    for (const HWND window : groupWindowsM()) {
        if (::SendMessageW(window, BM_GETCHECK, 0, 0) == BST_CHECKED) {
            return ::GetDlgCtrlID(window);
        }
    }
    return std::nullopt;
}

bool DuRadioBoxCL::WriteValueM(const ControlValueCL& value)
{
    if (m_hWnd == nullptr || !value.IsOfM(CheckedPart)) {
        return false;
    }
    if (*value.checked) {
        for (const HWND window : groupWindowsM()) {
            if (window != m_hWnd) {
                ::SendMessageW(window, BM_SETCHECK, BST_UNCHECKED, 0);
            }
        }
    }
    return SetCurCheckM(*value.checked ? BST_CHECKED : BST_UNCHECKED) == 1;
}

int DuRadioBoxCL::SetCurCheckM(int state)
{
    if (m_hWnd != nullptr) {
        SetCheck(state);
    }
    return 1;
}

int DuRadioBoxCL::GetGroupNoM(int* out) const
{
    if (out == nullptr) {
        return 0;
    }
    *out = group_;
    return 1;
}

int DuRadioBoxCL::SetGroupM(int flag)
{
    if (m_hWnd != nullptr) {
        const LONG style = ::GetWindowLongW(m_hWnd, GWL_STYLE);
        ::SetWindowLongW(m_hWnd, GWL_STYLE, flag == 1 ? style | WS_GROUP : 0);
    }
    return 1;
}

int DuRadioBoxArr::MakeGroupM()
{
    const int first = GetFirstIdxM();
    if (first < 0) {
        return 0;
    }
    int current = 0;
    for (int i = first; i >= 0; i = GetNextIdxM(i)) {
        int group = 0;
        ControlAtM(i).GetGroupNoM(&group);
        if (i == first || group != current) {
            current = group;
            ControlAtM(i).SetGroupM(1);
        }
    }
    return 1;
}

// With visual styles a check takes back those of all radio buttons that stand together: of all groups, until
// they are made.
int DuRadioBoxArr::AfterCreateM()
{
    const int made = MakeGroupM();
    for (int i = GetFirstIdxM(); i >= 0; i = GetNextIdxM(i)) {
        ControlAtM(i).CheckFromStartM();
    }
    return made;
}

void DuRadioBoxArr::ShowObjectM(int index, bool show)
{
    if (index >= 0 && index < GetBoundM()) {
        ControlAtM(index).DControlCommonCL::ShowObjectM(show);
    }
}
