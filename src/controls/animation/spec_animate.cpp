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

int DuSpecAnimateCL::DeleteBmpM(int index)
{
    const int result = AnimationCL::DeleteBmpM(index);
    RepaintM();
    return result;
}

int DuSpecAnimateCL::DelAllBmpM()
{
    deleteFramesM();
    RepaintM();
    return 1;
}

int DuSpecAnimateCL::DispBmpM(int index)
{
    if (!HasBmpM(index)) {
        return 0;
    }
    current_ = index;
    RepaintM();
    return 1;
}

void DuSpecAnimateCL::drawUnderM(CDC& dc, const CSize& size)
{
    drawBehindM(&dc, size);
    const int room[2] = { static_cast<int>(size.cx), static_cast<int>(size.cy) };
    frames_.DrawBitmapM(current_, &dc, 0, 0, &room);
}
