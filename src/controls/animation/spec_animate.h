#pragma once
#include "controls/animation/animation.h"
#include "controls/base/control_arr.h"
#include "controls/base/painted.h"

// Keeps frames and a type for the application, which draws them: the control paints nothing itself. With a
// painter it shows the current frame and what the painter makes of it. The edge takes effect when the window
// is created.
class PANELKIT_API DuSpecAnimateCL : public PaintedCL<AnimationCL>
{
public:
    DuSpecAnimateCL()
        : PaintedCL(0)
    {
    }
    explicit DuSpecAnimateCL(char tag)
        : PaintedCL(tag, 0)
    {
    }

    // Appends the frame of a file: 1, also when it can't be loaded, which leaves a frame that draws nothing;
    // 0 for an empty name.
    int AddBmpM(const char* file);
    int DeleteBmpM(int index); // As of all animations; the painter then has no frame below it. 1.
    int DelAllBmpM();          // Deletes all frames; the painter then has no frame below it. 1.
    int SetSunkModeM(int sunkMode) { return slKeep(sunkMode_, sunkMode); } // 1: sunken edge.
    int SetTypeM(int type) { return slKeep(type_, type); } // What it means is the application's business.

    // The frame below what the painter paints: at its own size, or scaled to the window where that is
    // smaller. At first the first; -1: none.
    int DispBmpM(int index); // 1, or 0 and no change when there is no such frame.
    // Its number, from 0; -1: none.
    int GetCurIdxM() const { return current_; }

    // What was set, or stands in the description file; 0 at first.
    int GetTypeM() const { return type_; }
    int GetSunkModeM() const { return sunkMode_; }
    DVrBitmapArr& GetFramesM() { return frames_; } // The control keeps them.

protected:
    BOOL PreCreateWindow(CREATESTRUCT& create) override;
    afx_msg void OnPaint() { const CPaintDC validated(this); } // The application draws.
    void drawUnderM(CDC& dc, const CSize& size) override;
    DECLARE_MESSAGE_MAP()

private:
    int sunkMode_ { 0 };
    int type_ { 0 };
};

extern template class PANELKIT_API Arr<DuSpecAnimateCL>;

class PANELKIT_API DuSpecAnimateArr : public ControlArr<DuSpecAnimateCL>
{
};
