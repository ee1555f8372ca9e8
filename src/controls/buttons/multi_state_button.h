#pragma once
#include "containers/int_arr.h"
#include "controls/base/control_arr.h"
#include "controls/base/control_value.h"
#include "controls/base/picture_static.h"

// A button that goes on to the next of its status values at every click, with a picture for each. Status
// values are any integers; of equal ones a search finds the first. Files are GBK names of .bmp files.
class PANELKIT_API DuMultiStateButtonCL : public PictureStaticCL
{
public:
    using PictureStaticCL::PictureStaticCL;

    int SetInitBmpNumM(int n);                    // Room for n pictures, n < 1: nothing.
    int AddStatusM(int status, const char* file); // 1; 0 and nothing added for an empty name.
    // Makes a status current: 1, or 0 and no change when there is none with that value. Without any status 1
    // for the value 1, else 0.
    int SetInitStatusM(int status);
    int SetCurStatusM(int status);     // The same, but 0 without any status; repaints in every case.
    int GetCurStatusM(int* out) const; // Without a current status *out keeps its value.
    // The value by id: the current status, if there is one; it takes those that it has.
    unsigned ValuePartsM() const { return NumberPart; }
    ControlValueCL ReadValueM() const;
    bool WriteValueM(const ControlValueCL& value);
    int DelStatusM(int status); // Removes a status with its picture; 0 when there is none.
    int DelAllM();              // There is no current status then.
    void DelItemM();
    void RescaledM(int from, int to); // Pictures and region follow.
    int InitRgnM(); // Both regions become the client rectangle, once; nothing without a window.
    DVrRgnCL* GetButtonRgnM() { return &buttonRgn_; } // Where clicks count; the control keeps it.

protected:
    afx_msg int OnCreate(LPCREATESTRUCT create);
    afx_msg void OnPaint();
    afx_msg void OnLButtonDown(UINT flags, CPoint point);
    afx_msg void OnLButtonUp(UINT flags, CPoint point);
    afx_msg void OnLButtonDblClk(UINT flags, CPoint point) { OnLButtonDown(flags, point); }
    afx_msg void OnSetFocus(CWnd* oldFocus) { reportFocusM(oldFocus); }
    unsigned keysM() const override { return PressKey | TurnKeys; }
    void keyPressM() override { beginClickM(); }
    void keyReleaseM() override;
    void keyTurnM(bool forward) override;
    CSize pictureSizeM() const override;
    DECLARE_MESSAGE_MAP()

private:
    int indexOfM(int status) const;  // Of the first entry with that value, -1 when there is none.
    int pictureOfM(int index) const; // The picture of an entry, -1 when there is none.
    void goOnM(bool forward);        // To the next or previous status, and says so.

    int current_ { 0 }; // An index of the status list, -1 for none.
    OwnRgnCL buttonRgn_;
    OwnRgnCL drawRgn_;
    IntArr statuses_;
    DVrBitmapArr pictures_; // The same number of alive ones in the same order.
};

extern template class PANELKIT_API Arr<DuMultiStateButtonCL>;

class PANELKIT_API DuMultiStateButtonArr : public ControlArr<DuMultiStateButtonCL>
{
};
