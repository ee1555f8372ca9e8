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
        ElementAtM(i).GetGroupNoM(&group);
        if (i == first || group != current) {
            current = group;
            ElementAtM(i).SetGroupM(1);
        }
    }
    return 1;
}

void DuRadioBoxArr::ShowObjectM(int index, bool show)
{
    if (index >= 0 && index < GetBoundM()) {
        ElementAtM(index).DControlCommonCL::ShowObjectM(show);
    }
}
