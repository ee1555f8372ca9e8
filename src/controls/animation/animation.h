#pragma once
#include "controls/base/picture_static.h"

// What both animations share: the frames and the current one.
class PANELKIT_API AnimationCL : public PictureStaticCL
{
public:
    int SetInitBmpNumM(int n); // Room for n frames, n < 1: nothing.
    void DelItemM();
    // Deletes a frame. If it is the current one there is none from then on, and the window shows so.
    int DeleteBmpM(int index);
    bool HasBmpM(int index) const { return frames_.CheckAvailableM(index) == 1; }

protected:
    explicit AnimationCL(int current)
        : current_(current)
    {
    }
    AnimationCL(char tag, int current)
        : PictureStaticCL(tag)
        , current_(current)
    {
    }
    void deleteFramesM();

    int current_; // -1: none.
    DVrBitmapArr frames_;
};
