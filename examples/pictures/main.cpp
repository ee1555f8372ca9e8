// The picture controls at work: pictures.exe [FOLDER], the folder of pictures.dlg and its pictures.
// The new rotate button is none of the dialog's own: this application creates it and repeats its steps.
#include "baselib/io.h"
#include "controls/buttons/new_rotate_btn.h"
#include "controls/buttons/new_rotate_btn_record.h"
#include "dialog/basic_dialog.h"
#include <cstdio>

namespace {

// The function ids of pictures.dlg that the application uses.
enum ControlId : int
{
    RunId = 1101,
    LampId = 1201,
    KnobId = 1301,
    LeverId = 1401,
    FanId = 1502
};

constexpr const char* Description = "pictures.dlg";
constexpr UINT_PTR RepeatTimer = 1;
constexpr UINT RepeatMilliseconds = 200;
constexpr int FanFrames = 4;

class PicturesAppCL : public CWinApp
{
};
PicturesAppCL application;

class PicturesDialogCL : public DuBasicDialogCL
{
public:
    PicturesDialogCL() { SetConfigFileM(Description); }
    BOOL OnInitDialog() override;

protected:
    afx_msg LRESULT onPermissionM(WPARAM wParam, LPARAM);
    afx_msg LRESULT onDownM(WPARAM wParam, LPARAM);
    afx_msg LRESULT onLeverM(WPARAM, LPARAM);
    afx_msg LRESULT onButtonM(WPARAM wParam, LPARAM lParam);
    afx_msg void OnTimer(UINT_PTR timer);
    DECLARE_MESSAGE_MAP()

private:
    void showLeverM();

    DuNewRotateBtnCL lever_;
    int shown_ { -1 };
};

BEGIN_MESSAGE_MAP(PicturesDialogCL, DuBasicDialogCL)
ON_WM_TIMER()
ON_MESSAGE(QueryPermissionMsg, &PicturesDialogCL::onPermissionM)
ON_MESSAGE(ButtonDownMsg, &PicturesDialogCL::onDownM)
ON_MESSAGE(RotateReleasedMsg, &PicturesDialogCL::onLeverM)
ON_MESSAGE(ButtonActionMsg, &PicturesDialogCL::onButtonM)
END_MESSAGE_MAP()

BOOL PicturesDialogCL::OnInitDialog()
{
    const BOOL result = DuBasicDialogCL::OnInitDialog();
    AfxGetApp()->m_pMainWnd = this; // Asked for permission before each press of the lever.
    VrIOCL io;
    DVrNewRotateBtnArr records;
    io.OpenM(Description, "r");
    if (records.FmReadInterfaceM(&io) == 1 && records.InitNewRotateBtnM(0, &lever_) == 1
        && lever_.Create(this) != 0) {
        lever_.SetIsCycledM(1);
        showLeverM();
    } else {
        std::fprintf(stderr, "no new rotate button in %s\n", Description);
    }
    return result;
}

LRESULT PicturesDialogCL::onPermissionM(WPARAM wParam, LPARAM)
{
    *reinterpret_cast<int*>(wParam) = 1;
    return 0;
}

LRESULT PicturesDialogCL::onDownM(WPARAM wParam, LPARAM)
{
    if (wParam == LeverId) {
        SetTimer(RepeatTimer, RepeatMilliseconds, nullptr);
    }
    return 0;
}

// The lever steps for as long as it is held. A release that moves nothing is not reported: the mouse tells.
void PicturesDialogCL::OnTimer(UINT_PTR timer)
{
    if (timer == RepeatTimer) {
        if (::GetCapture() == lever_.m_hWnd) {
            lever_.OnTimerM();
            showLeverM();
        } else {
            KillTimer(RepeatTimer);
        }
    }
    DuBasicDialogCL::OnTimer(timer);
}

LRESULT PicturesDialogCL::onLeverM(WPARAM, LPARAM)
{
    showLeverM();
    return 0;
}

// The fan that doesn't turn by itself follows the lever.
void PicturesDialogCL::showLeverM()
{
    if (lever_.GetCurIndxM() != shown_) {
        shown_ = lever_.GetCurIndxM();
        ChangeNormalAnimateM(FanId, shown_ % FanFrames);
        std::printf("lever %d\n", shown_);
        std::fflush(stdout);
    }
}

LRESULT PicturesDialogCL::onButtonM(WPARAM wParam, LPARAM lParam)
{
    int kind = 0;
    CWnd* const control = GetContrlPtrM(static_cast<int>(wParam), &kind);
    if (wParam == RunId && control != nullptr && kind == BmpButtonCode) {
        static_cast<DuBmpButtonCL*>(control)->SetBtnStatusM(ButtonNormal);
        std::printf("run\n");
    } else if (wParam == LampId) {
        std::printf("lamp %d\n", static_cast<int>(lParam));
    } else if (wParam == KnobId) {
        std::printf("knob %d\n", static_cast<int>(lParam));
    }
    std::fflush(stdout);
    return 0;
}

} // namespace

int main(int argc, char** argv)
{
    // Pictures are found relative to the current folder.
    if (argc > 1 && !::SetCurrentDirectoryA(argv[1])) {
        std::fprintf(stderr, "no such folder: %s\n", argv[1]);
        return 2;
    }
    PicturesDialogCL dialog;
    dialog.DoModalM();
    return 0;
}
