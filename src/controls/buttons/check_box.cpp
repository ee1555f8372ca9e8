#include "controls/buttons/check_box.h"
#include "controls/buttons/check_box_record.h"

template class PANELKIT_API Arr<DuCheckBoxCL>;

BEGIN_MESSAGE_MAP(DuCheckBoxCL, CheckableButtonCL)
ON_CONTROL_REFLECT(BN_CLICKED, &DuCheckBoxCL::onClickedM)
END_MESSAGE_MAP()

int DVrCheckBoxCL::InitCheckBoxM(DuCheckBoxCL* control) const
{
    if (InitCommonCtrlM(control) == 0) {
        return 0;
    }
    control->SetInitCheckM(check_);
    control->SetTextM(text_.TextM());
    return 1;
}

BOOL DuCheckBoxCL::PreCreateWindow(CREATESTRUCT& create)
{
    create.style |= WS_CHILD | WS_VISIBLE | WS_TABSTOP | BS_AUTOCHECKBOX;
    return CButton::PreCreateWindow(create);
}

bool DuCheckBoxCL::WriteValueM(const ControlValueCL& value)
{
    return m_hWnd != nullptr && value.IsOfM(CheckedPart) && SetCurCheckM(*value.checked ? 1 : 0) == 1;
}

int DuCheckBoxCL::SetCurCheckM(int state)
{
    if (m_hWnd != nullptr) {
        SetCheck(state == 1 ? 1 : 0);
    }
    return 1;
}
