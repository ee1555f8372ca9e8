#pragma once
#include "controls/base/control_arr.h"
#include "controls/base/picture_static.h"

// The statuses of a bitmap button. Any other number shows no picture.
enum BUTTON_STATUS : int
{
    ButtonNormal = 0,
    ButtonPressed = 1,
    ButtonReleased = 2,
    ButtonDisabled = 3
};

// A button that shows a picture for each status. A press that begins on it always ends in a click, wherever
// the mouse is released, unless a message of the library interrupts it; status 2 then stays until
// SetBtnStatusM. Files are GBK names of .bmp files.
class PANELKIT_API DuBmpButtonCL : public PictureStaticCL
{
public:
    using PictureStaticCL::PictureStaticCL;

    // Loads the pictures that have a name; the others stay as they were.
    int SetBtnBmpM(const char* normal, const char* pressed, const char* released, const char* disabled);
    int SetBtnStatusM(BUTTON_STATUS status); // Also enables the window, or disables it for 3.
    // The status, and with it the picture.
    BUTTON_STATUS GetBtnStatusM() const { return status_; }
    DVrRgnCL* GetBtnRgnM() { return &buttonRgn_; } // Never null; the control keeps it.
    DVrRgnCL* GetDrawRgnM() { return &drawRgn_; }  // The window's shape, once there is a window.
    void destroyM();                               // Deletes the regions and pictures.
    void DelItemM();
    void RescaledM(int from, int to); // Pictures and regions follow.

protected:
    afx_msg int OnCreate(LPCREATESTRUCT create);
    afx_msg void OnPaint();
    afx_msg void OnMouseMove(UINT flags, CPoint point);
    afx_msg void OnLButtonDown(UINT flags, CPoint point);
    afx_msg void OnLButtonUp(UINT flags, CPoint point);
    afx_msg void OnLButtonDblClk(UINT flags, CPoint point) { OnLButtonDown(flags, point); }
    afx_msg void OnSetFocus(CWnd* oldFocus) { reportFocusM(oldFocus); }
    afx_msg void OnCancelMode();
    unsigned keysM() const override { return PressKey | EnterKey; }
    void keyPressM() override { OnLButtonDown(0, CPoint()); }
    void keyReleaseM() override { OnLButtonUp(0, CPoint()); }
    CSize pictureSizeM() const override;
    DECLARE_MESSAGE_MAP()

private:
    static constexpr int StatusCount = 4;
    BUTTON_STATUS status_ { ButtonNormal };
    BUTTON_STATUS beforePress_ { ButtonNormal };
    OwnRgnCL buttonRgn_;
    OwnRgnCL drawRgn_;
    OwnPictureCL pictures_[StatusCount];
};

extern template class PANELKIT_API Arr<DuBmpButtonCL>;

class PANELKIT_API DuBmpButtonArr : public ControlArr<DuBmpButtonCL>
{
};
