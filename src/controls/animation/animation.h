#pragma once
#include "controls/base/picture_static.h"

// What both animations share: the frames and the current one.
class PANELKIT_API AnimationCL : public PictureStaticCL
{
public:
    int SetInitBmpNumM(int n); // Room for n frames, n < 1: nothing. 1.
    void DelItemM();
    void RescaledM(int from, int to); // Its frames follow.
    // Deletes a frame; nothing outside the list. If it is the current one there is none from then on, and the
    // window shows so. 1.
    int DeleteBmpM(int index);
    // Whether there is a frame with that number, from 0.
    bool HasBmpM(int index) const { return frames_.CheckAvailableM(index) == 1; }

protected:
    // Without frames; current: what counts as the current one until there is one.
    explicit AnimationCL(int current)
        : current_(current)
    {
    }
    AnimationCL(char tag, int current)
        : PictureStaticCL(tag)
        , current_(current)
    {
    }
    void deleteFramesM(); // All of them.

    int current_;         // -1: none.
    DVrBitmapArr frames_; // In the order in which they were added.
};
