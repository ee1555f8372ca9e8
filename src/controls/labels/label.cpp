#include "controls/labels/label.h"
#include "controls/base/styles.h"
#include "controls/labels/label_record.h"

template class PANELKIT_API Arr<DuLabelCL>;

BEGIN_MESSAGE_MAP(DuLabelCL, CStatic)
ON_WM_SETFOCUS()
ON_WM_CTLCOLOR_REFLECT()
END_MESSAGE_MAP()

int DVrLabelCL::InitLabelM(DuLabelCL* control) const
{
    if (InitCommonCtrlM(control) == 0) {
        return 0;
    }
    control->SetAlignModeM(alignMode_);
    control->SetInitTextM(text_.TextM());
    control->SetEdgeM(edge_);
    control->SetBkColorM(bkColour_);
    control->SetBkColorFlagM(bkColourFlag_);
    return 1;
}

BOOL DuLabelCL::PreCreateWindow(CREATESTRUCT& create)
{
    create.style |= WS_CHILD | WS_VISIBLE | WS_GROUP | SS_NOTIFY;
    slSetEdge(create, edge_);
    slSetAlignment(create, alignMode_);
    return CStatic::PreCreateWindow(create);
}

void DuLabelCL::PreSubclassWindow()
{
    ModifyStyle(0, SS_NOTIFY);
    CStatic::PreSubclassWindow();
}

void DuLabelCL::DelItemM()
{
    ControlCL::DelItemM();
    destroyM();
}

HBRUSH DuLabelCL::CtlColor(CDC* dc, UINT)
{
    // No brush: the platform paints, so the label takes the dialog's background.
    return bkColourFlag_ == 1 ? background_.AnswerM(dc) : nullptr;
}
