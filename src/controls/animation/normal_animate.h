#pragma once
#include "controls/animation/animation.h"
#include "controls/base/control_arr.h"

// Shows one frame of a list of pictures. In mode 1 (automatic) the frames follow each other on the window's
// own timer, in mode 2 (manual) the host chooses. Mode, interval, edge and notification take effect when the
// window is created. Files are GBK names of .bmp files.
class PANELKIT_API DuNormalAnimateCL : public AnimationCL
{
public:
    DuNormalAnimateCL()
        : AnimationCL(-1)
    {
    }
    explicit DuNormalAnimateCL(char tag)
        : AnimationCL(tag, -1)
    {
    }

    // Appends the frame of a file: its index; 0 for an empty name; -1 when it can't be loaded: the frame is
    // then there, but draws nothing.
    int AddBmpM(const char* file);
    int SetBmpM(int index, const char* file); // Loads a frame anew; 1, or 0 when there is no such picture.
    int SetCtrlModeM(int mode); // 1, or 0 for other modes than 1 and 2. Mode 2 starts at frame 0.
    // Milliseconds between frames; below 1: they stand still.
    int SetTimeLapM(int lapse) { return slKeep(timeLapse_, lapse); }
    int SetSunkenM(int sunken) { return slKeep(sunken_, sunken); } // 1: sunken edge.
    int SetNotifyM(int notify) { return slKeep(notify_, notify); } // 1: the control gets the mouse.
    int SetFirstIdxM();             // Shows the first frame; 0 when there is none.
    int DispBmpM(int index);        // Shows a frame, none for any other number; 0 in mode 1.
    int GetCurIdxM(int* out) const; // 0, and *out unchanged, when there is no current frame.
    int RedrawWindowM();            // Paints at once; 0 when there is no current frame.
    int DelAllBmpM();               // Deletes all frames, and the window shows so. 1.

protected:
    BOOL PreCreateWindow(CREATESTRUCT& create) override;
    void PreSubclassWindow() override;
    afx_msg int OnCreate(LPCREATESTRUCT create);
    afx_msg void OnTimer(UINT_PTR id);
    afx_msg void OnPaint();
    afx_msg void OnLButtonDown(UINT flags, CPoint point);
    afx_msg void OnLButtonUp(UINT flags, CPoint point);
    afx_msg void OnLButtonDblClk(UINT flags, CPoint point) { OnLButtonDown(flags, point); }
    afx_msg void OnSetFocus(CWnd* oldFocus) { reportFocusM(oldFocus); }
    unsigned keysM() const override { return notify_ == 1 ? PressKey : NoKeys; }
    void keyPressM() override;
    void keyReleaseM() override;
    CSize pictureSizeM() const override;
    DECLARE_MESSAGE_MAP()

private:
    bool playsM() const { return controlMode_ == Automatic && timeLapse_ >= 1; }

    static constexpr int Automatic = 1;
    static constexpr int Manual = 2;
    int controlMode_ { Automatic };
    int timeLapse_ { 0 };
    int sunken_ { 0 };
    int notify_ { 0 };
};

extern template class PANELKIT_API Arr<DuNormalAnimateCL>;

class PANELKIT_API DuNormalAnimateArr : public ControlArr<DuNormalAnimateCL>
{
};
