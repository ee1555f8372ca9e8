#include "controls/buttons/checkable_button.h"

BEGIN_MESSAGE_MAP(CheckableButtonCL, CButton)
ON_WM_CREATE()
END_MESSAGE_MAP()

ControlValueCL CheckableButtonCL::ReadValueM() const
{
    ControlValueCL value;
    if (m_hWnd != nullptr) {
        value.checked = GetCheck() == BST_CHECKED;
    }
    return value;
}

void CheckableButtonCL::CheckFromStartM()
{
    if (initCheck_ == 1 && m_hWnd != nullptr && GetCheck() != BST_CHECKED) {
        SetCheck(BST_CHECKED);
    }
}

int CheckableButtonCL::OnCreate(LPCREATESTRUCT create)
{
    if (CButton::OnCreate(create) == -1) {
        return -1;
    }
    catchUpM();
    SetWindowText(text_.TextM());
    return 0;
}

void CheckableButtonCL::catchUpM()
{
    if (initCheck_ == 1) {
        SetCheck(1);
    }
}
