// The jog panel: pictures to press and to turn, animations, and a canvas. In class style, as one of its knobs
// (DuNewRotateBtnCL) is none that a dialog builds by itself.
#pragma once
#include "controls/buttons/new_rotate_btn.h"
#include "dialog/basic_dialog.h"
#include "move.h"
#include "settings.h"

class JogDialogCL : public DuBasicDialogCL
{
public:
    JogDialogCL(const SettingsCL& settings, const MotionCL& motion);
    BOOL OnInitDialog() override;
    static std::string SummaryM(const SettingsCL& settings); // Of what was kept (UTF-8).

protected:
    afx_msg LRESULT onPermissionM(WPARAM flag, LPARAM);
    afx_msg LRESULT onStepDownM(WPARAM id, LPARAM);
    afx_msg LRESULT onStepTurnedM(WPARAM, LPARAM);
    afx_msg LRESULT onButtonM(WPARAM id, LPARAM);
    afx_msg void OnTimer(UINT_PTR timer);
    afx_msg void OnDestroy();
    DECLARE_MESSAGE_MAP()

private:
    struct PlaceCL
    {
        double x;
        double y;
    };
    void makeStepKnobM();
    double factorM(); // Of the speed, as the knob says.
    double stepM() const;
    void showSetM();
    void showPlaceM();
    void showPenM();
    void beginMoveM(PlaceCL target);
    void goOnM();
    void enableArrowsM(bool enable);
    bool keepM();

    const SettingsCL& settings_;
    const MotionCL motion_;
    CWnd* mainBefore_ { nullptr };
    DuNewRotateBtnCL stepKnob_;
    int shownStep_ { -1 };
    PlaceCL place_ { 0, 0 };
    // The move that is under way, from where to where.
    bool isMoving_ { false };
    MoveCL move_;
    PlaceCL from_ { 0, 0 };
    PlaceCL to_ { 0, 0 };
    ULONGLONG began_ { 0 }; // Milliseconds.
    int penFrame_ { 0 };
    HWND focusBefore_ { nullptr };
};
