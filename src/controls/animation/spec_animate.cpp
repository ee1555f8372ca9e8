#include "controls/animation/spec_animate.h"
#include "controls/animation/spec_animate_record.h"

template class PANELKIT_API Arr<DuSpecAnimateCL>;

BEGIN_MESSAGE_MAP(DuSpecAnimateCL, CStatic)
ON_WM_PAINT()
END_MESSAGE_MAP()

int DVrSpecAnimateCL::InitSpecAnimateM(DuSpecAnimateCL* control) const
{
    if (InitCommonCtrlM(control) == 0) {
        return 0;
    }
    control->SetInitBmpNumM(frames_.GetAvailableNumM());
    for (int i = frames_.GetFirstIdxM(); i >= 0; i = frames_.GetNextIdxM(i)) {
        control->AddBmpM(frames_.GetItemPM(i)->TextM());
    }
    control->SetSunkModeM(sunkMode_);
    control->SetTypeM(type_);
    return 1;
}

BOOL DuSpecAnimateCL::PreCreateWindow(CREATESTRUCT& create)
{
    create.style |= WS_CHILD | WS_VISIBLE | WS_GROUP;
    if (sunkMode_ == 1) {
        create.dwExStyle |= WS_EX_CLIENTEDGE;
    }
    return CStatic::PreCreateWindow(create);
}

int DuSpecAnimateCL::AddBmpM(const char* file)
{
    if (file == nullptr || *file == '\0') {
        return 0;
    }
    appendPictureM(&frames_, file);
    return 1;
}

int DuSpecAnimateCL::DelAllBmpM()
{
    deleteFramesM();
    return 1;
}

int DuSpecAnimateCL::SetSunkModeM(int sunkMode)
{
    sunkMode_ = sunkMode;
    return 1;
}

int DuSpecAnimateCL::SetTypeM(int type)
{
    type_ = type;
    return 1;
}

void DuSpecAnimateCL::OnPaint()
{
    const CPaintDC validated(this); // The application draws.
}
