#include "controls/animation/animation.h"

int AnimationCL::SetInitBmpNumM(int n)
{
    if (n >= 1) {
        frames_.InitialSizeM(n);
    }
    return 1;
}

void AnimationCL::DelItemM()
{
    PictureStaticCL::DelItemM();
    deleteFramesM();
}

void AnimationCL::RescaledM(int, int)
{
    frames_.RescaleM(PictureScaleM());
    invalidateM(true);
}

int AnimationCL::DeleteBmpM(int index)
{
    frames_.DelItemM(index);
    if (index == current_) {
        current_ = -1;
        invalidateM(true);
    }
    return 1;
}

void AnimationCL::deleteFramesM()
{
    // From the end on: a deleted last slot gives up its place.
    for (int i = frames_.GetBoundM() - 1; i >= 0; --i) {
        if (frames_.CheckAvailableM(i) == 1) {
            DeleteBmpM(i);
        }
    }
}
