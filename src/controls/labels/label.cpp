#include "controls/labels/label.h"
#include "baselib/gbk.h"
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

int DuLabelCL::Create(CWnd* parent)
{
    return createdM(CStatic::Create(text_, 0, describedRectM(), parent, GetFunctionIDM()));
}

BOOL DuLabelCL::PreCreateWindow(CREATESTRUCT& create)
{
    create.style |= WS_CHILD | WS_VISIBLE | WS_GROUP;
    if (edge_ == 1) {
        create.style |= WS_BORDER;
        create.dwExStyle |= WS_EX_CLIENTEDGE;
    }
    if (alignMode_ == 3) {
        create.style |= SS_CENTER;
    } else if (alignMode_ == 4) {
        create.style |= SS_RIGHT;
    }
    return CStatic::PreCreateWindow(create);
}

void DuLabelCL::PreSubclassWindow()
{
    ModifyStyle(0, SS_NOTIFY);
    CStatic::PreSubclassWindow();
}

int DuLabelCL::SetInitTextM(const char* text)
{
    if (text == nullptr || *text == '\0') {
        return 0;
    }
    slCopyText(text_, TextSize, text);
    return 1;
}

int DuLabelCL::SetTextM(const char* text)
{
    if (text == nullptr) {
        return 0;
    }
    slCopyText(text_, TextSize, text);
    if (m_hWnd != nullptr) {
        SetWindowText(text_);
    }
    return 1;
}

int DuLabelCL::SetAlignModeM(int mode)
{
    alignMode_ = mode;
    return 1;
}

int DuLabelCL::SetEdgeM(int edge)
{
    edge_ = edge;
    return 1;
}

int DuLabelCL::SetBkColorM(COLORREF colour)
{
    background_.SetColourM(colour);
    return 1;
}

void DuLabelCL::SetBkColorFlagM(int flag)
{
    bkColorFlag_ = flag;
}

void DuLabelCL::DelItemM()
{
    ControlCL::DelItemM();
    destroyM();
}

void DuLabelCL::destroyM()
{
    background_.DeleteBrushM();
}

void DuLabelCL::OnSetFocus(CWnd* oldFocus)
{
    reportFocusM(oldFocus);
}

HBRUSH DuLabelCL::CtlColor(CDC* dc, UINT)
{
    // No brush: the platform paints, so the label takes the dialog's background.
    return bkColorFlag_ == 1 ? background_.AnswerM(dc) : nullptr;
}
