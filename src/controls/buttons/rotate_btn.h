#pragma once
#include "controls/base/control_arr.h"
#include "controls/base/control_value.h"
#include "controls/base/picture_static.h"
#include "pictures/image_cache.h"
#include <vector>

// A knob: a picture turned to the current angle over a background. A left or right click inside its hit
// region turns it by a step and posts the counter. Angles are degrees, pictures GBK names of .bmp files,
// positions pixels of the control's window. Setters take effect when the knob is painted anew after the next
// step, before the first painting at once.
class PANELKIT_API DuRotateBtnCL : public PictureStaticCL
{
public:
    using PictureStaticCL::PictureStaticCL;

    using CStatic::Create;
    int Create(CWnd* parent) { return createM(parent, " "); }

    int SetAngleM(
        const float range[2], float step, float angle); // range: upper, lower; angle: the current one.
    // The place of the turning picture's corner and the point it turns about: each x, y.
    int SetRotPosM(const int position[2], const int centre[2]);
    // The factor of the step that a click turns it by, and what it adds to the counter; each for left, right.
    int SetSignM(const int signs[2], const int increments[2]);
    // What the clicks count on from.
    int SetCounterM(int counter) { return slKeep(counter_, counter); }
    int SetBmpM(const char* background, const char* rotating); // Loads both pictures.
    // 1: enabled; applied when the window is created.
    int SetEnableM(int enabled) { return slKeep(enabled_, enabled); }
    int EnableButtonM(int enabled);                // The same at once.
    DVrRgnCL* GetButtonRgnM() { return &hitRgn_; } // Where clicks count; the control keeps it.
    // What the knob shows, or will show when it is painted.
    float GetAngleM() const { return angle_; }
    int GetCounterM() const { return counter_; }
    // The value by id: the angle and the counter. Each is taken for itself, an angle out of the range never;
    // the knob shows it at once and posts nothing.
    unsigned ValuePartsM() const { return RealPart | NumberPart; }
    ControlValueCL ReadValueM() const;
    bool WriteValueM(const ControlValueCL& value);

    void DelItemM();
    void RescaledM(int from, int to); // Pictures, centre and region follow.

    void drawBkM(CDC* dc);               // The background from its corner over the client rectangle.
    void drawRotM(CDC* dc, float angle); // The turned picture; composed anew only after a change.

protected:
    afx_msg int OnCreate(LPCREATESTRUCT create);
    afx_msg BOOL OnEraseBkgnd(CDC* dc);
    afx_msg void OnPaint();
    afx_msg void OnLButtonDown(UINT flags, CPoint point);
    afx_msg void OnLButtonUp(UINT flags, CPoint point);
    afx_msg void OnLButtonDblClk(UINT flags, CPoint point) { OnLButtonDown(flags, point); }
    afx_msg void OnRButtonDown(UINT flags, CPoint point);
    afx_msg void OnRButtonUp(UINT flags, CPoint point);
    afx_msg void OnRButtonDblClk(UINT flags, CPoint point) { OnRButtonDown(flags, point); }
    afx_msg void OnSetFocus(CWnd* oldFocus) { reportFocusM(oldFocus); }
    unsigned keysM() const override { return PressKey | TurnKeys; }
    void keyPressM() override { beginClickM(); }
    void keyReleaseM() override;
    void keyTurnM(bool forward) override { turnM(forward ? Left : Right); }
    CSize pictureSizeM() const override { return { background_.GetWidthM(), background_.GetHeightM() }; }
    DECLARE_MESSAGE_MAP()

private:
    enum Side
    {
        Left,
        Right
    };
    void pressM(CPoint point);
    void releaseM(CPoint point, Side side);
    void turnM(Side side);
    bool isInRangeM(float angle) const { return lower_ <= angle && angle <= upper_; }
    bool stepM(Side side);
    void showAngleM();
    void shapeM();
    CRect neededPartM(CDC* dc) const;
    void composeM(CDC* dc);
    bool prepareM(CDC* dc);
    void forgetPixelsM();

    int counter_ { 0 };
    float angle_ { 0 };
    float stepAngle_ { 0 };
    int enabled_ { 1 };
    bool redrawNeeded_ { true };
    int position_[2] {};
    int centre_[2] {};
    int signs_[2] {};
    int increments_[2] {};
    float upper_ { 0 };
    float lower_ { 0 };
    int width_ { 0 }; // Of the rotating picture when the window was created.
    int height_ { 0 };
    OwnPictureCL background_;
    OwnPictureCL rotating_;
    OwnRgnCL hitRgn_;
    OwnRgnCL windowRgn_;
    // The turned picture, or of a large one the part that can be seen.
    ImageCacheCL cache_;
    CRect part_;
    float composedAngle_ { 0 };
    // What every angle starts from; empty until it is needed. Of a large picture the pixels are asked for
    // anew.
    std::vector<std::uint32_t> base_;
    std::vector<std::uint32_t> picture_;
};

extern template class PANELKIT_API Arr<DuRotateBtnCL>;

class PANELKIT_API DuRotateBtnArr : public ControlArr<DuRotateBtnCL>
{
};
