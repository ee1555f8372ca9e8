#include "controls/labels/group_box.h"
#include "controls/labels/group_box_record.h"

template class PANELKIT_API Arr<DuGroupBoxCL>;

BEGIN_MESSAGE_MAP(DuGroupBoxCL, CButton)
ON_WM_CREATE()
END_MESSAGE_MAP()

int DVrGroupBoxCL::InitGroupBoxM(DuGroupBoxCL* control) const
{
    if (InitCommonCtrlM(control) == 0) {
        return 0;
    }
    control->SetInitTextM(text_.TextM());
    return 1;
}

BOOL DuGroupBoxCL::PreCreateWindow(CREATESTRUCT& create)
{
    create.style |= WS_CHILD | WS_VISIBLE | WS_TABSTOP | BS_GROUPBOX;
    return CButton::PreCreateWindow(create);
}

int DuGroupBoxCL::OnCreate(LPCREATESTRUCT create)
{
    if (CButton::OnCreate(create) == -1) {
        return -1;
    }
    SetWindowText(text_.TextM());
    return 0;
}
