#include "controls/animation/spec_animate.h"
#include "controls/animation/spec_animate_record.h"
#include "controls/base/styles.h"

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
    slEachText(frames_, [control](int, const char* file) { control->AddBmpM(file); });
    control->SetSunkModeM(sunkMode_);
    control->SetTypeM(type_);
    return 1;
}

BOOL DuSpecAnimateCL::PreCreateWindow(CREATESTRUCT& create)
{
    create.style |= WS_CHILD | WS_VISIBLE | WS_GROUP;
    slSetSunken(create, sunkMode_);
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
