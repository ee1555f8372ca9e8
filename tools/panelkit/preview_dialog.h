#pragma once
#include "controls/buttons/new_rotate_btn.h"
#include "dialog/basic_dialog.h"
#include <deque>
#include <string>

// The dialog as its author wants to see it: with the new rotate buttons of the file, which the library leaves
// to the application. Here they may always be pressed, and go on turning while they are held.
class PreviewDialogCL : public DuBasicDialogCL
{
public:
    // file: in the current folder, as the library takes it. language: of its texts; empty: as in the file.
    explicit PreviewDialogCL(const std::string& file, const std::string& language = {});

    void RebuildM(); // All controls anew, from the file as it now is.
    // Until it is on the screen and painted, animations at their first frame; false after ten seconds.
    bool WaitUntilShownM();
    // Puts the control with that id in a status as an application could: the status of a bitmap button or
    // multi-state button, the frame of a normal animation (it then stands still), the position of a new
    // rotate button. A frame or position without a picture shows none. False when no control has the id, or a
    // button has no such status.
    bool SetStatusM(int id, int status);
    BOOL OnInitDialog() override;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
    afx_msg LRESULT onPermissionM(WPARAM wParam, LPARAM);
    afx_msg LRESULT onButtonDownM(WPARAM, LPARAM);
    afx_msg LRESULT onButtonM(WPARAM wParam, LPARAM);
    afx_msg void OnTimer(UINT_PTR id);
    DECLARE_MESSAGE_MAP()

private:
    void addNewRotateButtonsM();

    std::string file_;
    std::deque<DuNewRotateBtnCL> newRotateButtons_; // Must not move while they have windows.
};
