#pragma once
#include "controls/animation/animation.h"
#include "controls/base/control_arr.h"

// Keeps frames and a type for the application, which draws them: the control paints nothing itself. The edge
// takes effect when the window is created.
class PANELKIT_API DuSpecAnimateCL : public AnimationCL
{
public:
    DuSpecAnimateCL()
        : AnimationCL(0)
    {
    }
    explicit DuSpecAnimateCL(char tag)
        : AnimationCL(tag, 0)
    {
    }

    // Appends the frame of a file: 1, also when it can't be loaded, which leaves a frame that draws nothing;
    // 0 for an empty name.
    int AddBmpM(const char* file);
    int DelAllBmpM(); // Deletes all frames; what the application has drawn stays. 1.
    int SetSunkModeM(int sunkMode) { return slKeep(sunkMode_, sunkMode); } // 1: sunken edge.
    int SetTypeM(int type) { return slKeep(type_, type); } // What it means is the application's business.

    // What was set, or stands in the description file; 0 at first.
    int GetTypeM() const { return type_; }
    int GetSunkModeM() const { return sunkMode_; }
    DVrBitmapArr& GetFramesM() { return frames_; } // The control keeps them.

protected:
    BOOL PreCreateWindow(CREATESTRUCT& create) override;
    afx_msg void OnPaint() { const CPaintDC validated(this); } // The application draws.
    DECLARE_MESSAGE_MAP()

private:
    int sunkMode_ { 0 };
    int type_ { 0 };
};

extern template class PANELKIT_API Arr<DuSpecAnimateCL>;

class PANELKIT_API DuSpecAnimateArr : public ControlArr<DuSpecAnimateCL>
{
};
