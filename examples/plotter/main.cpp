// The parameter dialog of a plotter: plotter.exe [FOLDER], the folder of plotter.dlg and its pictures.
#include "baselib/gbk.h"
#include "controls/text/tool_tip.h"
#include "dialog/basic_dialog.h"
#include <cstdio>

namespace {

// The function ids of plotter.dlg that the application uses.
enum ControlId : int
{
    OkId = 1,
    CancelId = 2,
    NameId = 1050,
    SpeedId = 1051,
    LiftSpeedId = 1053,
    PressureId = 1055,
    WidthId = 1056,
    HeightId = 1057,
    LandscapeId = 3001,
    FeedId = 3011,
    LiftPenId = 3012,
    PenListId = 3020
};

class PlotterAppCL : public CWinApp
{
};
PlotterAppCL application;

class PlotterDialogCL : public DuBasicDialogCL
{
public:
    PlotterDialogCL()
    {
        tip_.InitialM();
        SetConfigFileM("plotter.dlg");
        SetCancelIdM(CancelId); // Its focus has no field asked again for its value.
    }
    void PrintM() const;

protected:
    afx_msg LRESULT onButtonM(WPARAM wParam, LPARAM);
    afx_msg BOOL OnSetCursor(CWnd* over, UINT hit, UINT message);
    DECLARE_MESSAGE_MAP()

private:
    template <class ControlTP> ControlTP* controlM(int id, int code)
    {
        int kind = 0;
        CWnd* const found = GetContrlPtrM(id, &kind);
        return found != nullptr && kind == code ? static_cast<ControlTP*>(found) : nullptr;
    }
    bool isCheckedM(int id) const
    {
        return ::SendMessageW(::GetDlgItem(m_hWnd, id), BM_GETCHECK, 0, 0) == BST_CHECKED;
    }
    bool isLegalM(int spinEditId)
    {
        auto* const edit = controlM<DuSpinEditCL>(spinEditId, SpinEditCode);
        simpleValD unused {};
        return edit != nullptr && edit->GetCurValM(&unused) == ValidValue;
    }
    bool readM();

    uToolTipCtrl tip_;
    char name_[sizeof(simpleValD)] {};
    UINT speed_ { 0 };
    UINT liftSpeed_ { 0 };
    int pressure_ { 0 };
    float width_ { 0 };
    float height_ { 0 };
    bool landscape_ { false };
    bool feed_ { false };
    bool liftPen_ { false };
    int pen_ { -1 };
};

BEGIN_MESSAGE_MAP(PlotterDialogCL, DuBasicDialogCL)
ON_WM_SETCURSOR()
ON_MESSAGE(ButtonActionMsg, &PlotterDialogCL::onButtonM)
ON_MESSAGE(ValueReportMsg, &PlotterDialogCL::onCtrlLostFocusM)
ON_MESSAGE(FocusGainedMsg, &PlotterDialogCL::onCtrlSetFocusM)
END_MESSAGE_MAP()

// The pointer has moved over the dialog or one of its controls.
BOOL PlotterDialogCL::OnSetCursor(CWnd* over, UINT hit, UINT message)
{
    if (message == WM_MOUSEMOVE && over->GetDlgCtrlID() == SpeedId && GetActiveWindow() == this) {
        CRect rect;
        over->GetWindowRect(&rect);
        // The new window takes the activation: no field is left by that.
        const ValidationPauseCL showing(m_hWnd);
        tip_.ShowHelpM(
            this, CRect(rect.left, rect.bottom + 2, rect.left + 90, rect.bottom + 24), "10..800 mm/s");
        SetActiveWindow();
    }
    return DuBasicDialogCL::OnSetCursor(over, hit, message);
}

LRESULT PlotterDialogCL::onButtonM(WPARAM wParam, LPARAM)
{
    if (wParam == OkId) {
        // Enter leaves no field: what is being typed is checked here, while the controls still exist.
        if (CheckValueLegalM() == 0 && readM()) {
            EndDialog(IDOK);
        }
    } else if (wParam == CancelId) {
        EndDialog(IDCANCEL);
    }
    return 0;
}

// False when a value can't be taken; the user has been told.
bool PlotterDialogCL::readM()
{
    speed_ = GetDlgItemInt(SpeedId);
    liftSpeed_ = GetDlgItemInt(LiftSpeedId);
    landscape_ = isCheckedM(LandscapeId);
    feed_ = isCheckedM(FeedId);
    liftPen_ = isCheckedM(LiftPenId);
    if (auto* const pens = controlM<DuTextListBoxCL>(PenListId, TextListBoxCode)) {
        int index = 0;
        pens->GetItemM(&index, &pen_);
    }
    return isLegalM(SpeedId) && isLegalM(LiftSpeedId) && GetSingleEditValM(NameId, name_) == 1
        && GetSingleEditValM(PressureId, &pressure_) == 1 && GetSingleEditValM(WidthId, &width_) == 1
        && GetSingleEditValM(HeightId, &height_) == 1;
}

void PlotterDialogCL::PrintM() const
{
    std::printf("job %s\nspeed %u mm/s\nlift speed %u mm/s\npressure %d g\npaper %.1f x %.1f mm\n", name_,
        speed_, liftSpeed_, pressure_, static_cast<double>(width_), static_cast<double>(height_));
    std::printf("landscape %d\nfeed paper %d\nlift pen %d\npen %d\n", landscape_, feed_, liftPen_, pen_);
}

} // namespace

int main(int argc, char** argv)
{
    // Pictures are found relative to the current folder.
    if (argc > 1 && !::SetCurrentDirectoryA(argv[1])) {
        std::fprintf(stderr, "no such folder: %s\n", argv[1]);
        return 2;
    }
    PlotterDialogCL dialog;
    if (dialog.DoModalM() != IDOK) {
        std::printf("cancelled\n");
        return 1;
    }
    dialog.PrintM();
    return 0;
}
