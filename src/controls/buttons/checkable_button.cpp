#include "controls/buttons/checkable_button.h"
#include "baselib/gbk.h"

BEGIN_MESSAGE_MAP(CheckableButtonCL, CButton)
ON_WM_CREATE()
END_MESSAGE_MAP()

int CheckableButtonCL::Create(CWnd* parent)
{
    return createdM(CButton::Create(text_, 0, describedRectM(), parent, GetFunctionIDM()));
}

int CheckableButtonCL::SetTextM(const char* text)
{
    if (text == nullptr) {
        return 0;
    }
    slCopyText(text_, TextSize, text);
    return 1;
}

int CheckableButtonCL::SetInitCheckM(int check)
{
    initCheck_ = check;
    return 1;
}

int CheckableButtonCL::OnCreate(LPCREATESTRUCT create)
{
    if (CButton::OnCreate(create) == -1) {
        return -1;
    }
    if (initCheck_ == 1) {
        SetCheck(1);
    }
    SetWindowText(text_);
    return 0;
}
