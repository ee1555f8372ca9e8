#pragma once
#include "controls/base/control_value.h"
#include "controls/base/picture_static.h"

class VrStringArr;

// A knob shown as one of a series of pictures, one for each position. A click with the left or right button
// moves it by that button's step; while a button is held, each OnTimerM moves it once more. It acts only when
// the application allows it (CheckLegalM). Applications create it themselves.
class PANELKIT_API DuNewRotateBtnCL : public PictureStaticCL
{
public:
    using PictureStaticCL::PictureStaticCL;
    using VrBaseCL::InitialM;

    // steps: for left, right. Loads the picture of each name (GBK, as given); an index without a picture
    // shows nothing.
    int InitialM(const int steps[2], int index, const VrStringArr& names);
    void SetIsCycledM(int cycled) { cycled_ = cycled; } // Not 0: behind the last picture comes the first.
    void SetCurIndxM(int index) { index_ = index; }     // The position; without repainting.
    // The position, from 0; -1 at first.
    int GetCurIndxM() const { return index_; }
    // The value, as other kinds have it: the position; it takes those that have a picture, and repaints.
    unsigned ValuePartsM() const { return NumberPart; }
    ControlValueCL ReadValueM() const;
    bool WriteValueM(const ControlValueCL& value);
    // How many steps one click moves. OnTimerM always moves one.
    void SetTouchWinClickAsMouseKeyM(int multiplier) { multiplier_ = multiplier; }
    // The repetition while a button is held: to be called from a timer of the application.
    void OnTimerM();
    void RescaledM(int from, int to);

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
    afx_msg void OnPaint();
    afx_msg void OnMouseMove(UINT flags, CPoint point);
    afx_msg void OnLButtonDown(UINT flags, CPoint point);
    afx_msg void OnLButtonUp(UINT flags, CPoint point);
    afx_msg void OnLButtonDblClk(UINT flags, CPoint point) { OnLButtonDown(flags, point); }
    afx_msg void OnRButtonDown(UINT flags, CPoint point);
    afx_msg void OnRButtonUp(UINT flags, CPoint point);
    afx_msg void OnRButtonDblClk(UINT flags, CPoint point) { OnRButtonDown(flags, point); }
    unsigned keysM() const override { return PressKey | TurnKeys; }
    void keyPressM() override { pressM(PressedLeft, leftStep_); }
    void keyReleaseM() override { releaseM(leftStep_); }
    void keyTurnM(bool forward) override;
    CSize pictureSizeM() const override;
    DECLARE_MESSAGE_MAP()

private:
    enum Pressed : unsigned
    {
        PressedLeft = 31,
        PressedRight = 32,
        PressedNone = 0x80000001
    };
    int clickStepM(int step) const;
    void pressM(Pressed button, int step);
    void releaseM(int step);
    bool moveM(int by); // Whether the position moved, or went round.

    int index_ { -1 };
    DVrBitmapArr pictures_;
    int leftStep_ { 0 };
    int rightStep_ { 0 };
    int cycled_ { 0 };
    Pressed pressed_ { PressedNone };
    int multiplier_ { 1 };
};
