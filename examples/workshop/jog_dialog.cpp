#include "jog_dialog.h"

#include "baselib/io.h"
#include "controls/buttons/new_rotate_btn_record.h"
#include "speed_curve.h"

#include <algorithm>
#include <cmath>

namespace {

enum ControlId : int // Of jog.dlg.
{
    OkId = 1,
    CancelId = 2,
    XPlusId = 1101,
    YPlusId = 1102,
    XMinusId = 1103,
    YMinusId = 1104,
    HomeId = 1105,
    XId = 1201,
    YId = 1202,
    CurveId = 1301,
    FactorKnobId = 1401,
    FactorId = 1402,
    StepKnobId = 1501,
    StepId = 1502,
    PenSwitchId = 1601,
    PenId = 1602,
    PenPictureId = 1701,
    StateId = 1702,
    SpindleId = 1801,
    SpindleTurnsId = 1802
};
constexpr int Arrows[] = { XPlusId, YPlusId, XMinusId, YMinusId, HomeId };

enum PenStatus : int // Of the switch.
{
    PenOff,
    PenUp,
    PenDown
};

constexpr const char* DescriptionFile = "jog.dlg";
constexpr const char* FileName = "jog";
constexpr double Steps[] = { 0.1, 1, 10, 50, 100 }; // Millimetres, by the knob's position.
constexpr int StepCount = 5;
constexpr int SpindleFrames = 4;
constexpr int LowestPenFrame = 3;
constexpr double GreatestFactor = 1.5;

constexpr UINT_PTR MoveTimer = 1; // Runs while something moves,
constexpr UINT MoveMilliseconds = 30;
constexpr UINT_PTR StepTimer = 2; // and while the step knob is held.
constexpr UINT StepMilliseconds = 250;

std::wstring number(const wchar_t* format, double value)
{
    wchar_t text[60];
    return std::wstring(text, static_cast<size_t>(std::swprintf(text, 60, format, value)));
}

} // namespace

BEGIN_MESSAGE_MAP(JogDialogCL, DuBasicDialogCL)
ON_WM_TIMER()
ON_WM_DESTROY()
ON_MESSAGE(ButtonActionMsg, &JogDialogCL::onButtonM)
ON_MESSAGE(QueryPermissionMsg, &JogDialogCL::onPermissionM)
ON_MESSAGE(ButtonDownMsg, &JogDialogCL::onStepDownM)
ON_MESSAGE(RotateReleasedMsg, &JogDialogCL::onStepTurnedM)
END_MESSAGE_MAP()

JogDialogCL::JogDialogCL(const SettingsCL& settings, const MotionCL& motion)
    : settings_(settings)
    , motion_(motion)
{
    SetConfigFileM(DescriptionFile);
    SetPictureKeyboardM(true); // Who has no mouse at hand works the pictures by keys.
    // Called whenever the curve needs another picture; RepaintM says when.
    SetPainterM(CurveId, [this](CDC& dc, const CSize& size) {
        const MoveCL move = isMoving_ ? move_ : MoveCL(motion_, factorM(), stepM());
        const double now = isMoving_ ? static_cast<double>(::GetTickCount64() - began_) / 1000 : -1;
        slDrawCurve(dc, size, GetDlgItem(StateId)->GetFont(), move, motion_.maxSpeed * GreatestFactor, now);
    });
    // The frame is drawn already: here is added what only the program knows.
    SetPainterM(PenPictureId, [this](CDC& dc, const CSize& size) {
        if (ValuesM().IntM(PenSwitchId) == PenOff) {
            dc.FillSolidRect(4, size.cy - 12, size.cx - 8, 3, RGB(208, 62, 58));
        }
    });
}

BOOL JogDialogCL::OnInitDialog()
{
    const BOOL result = DuBasicDialogCL::OnInitDialog(); // The controls are there from now on.
    mainBefore_ = AfxGetApp()->m_pMainWnd;
    AfxGetApp()->m_pMainWnd = this; // The step knob asks the main window before each step.
    makeStepKnobM();
    for (const auto& [id, value] : slValuesOfText(settings_.LoadM(FileName))) {
        if (id == StepKnobId) {
            ControlValueCL position;
            position.number = std::atoi(value.c_str());
            stepKnob_.WriteValueM(position);
        } else {
            ValuesM().RestoreM(id, value);
        }
    }
    penFrame_ = ValuesM().IntM(PenSwitchId) == PenDown ? LowestPenFrame : 0;
    ShowFrameM(PenPictureId, penFrame_);
    showSetM();
    showPenM();
    showPlaceM();
    return result;
}

void JogDialogCL::OnDestroy()
{
    AfxGetApp()->m_pMainWnd = mainBefore_;
    DuBasicDialogCL::OnDestroy();
}

// The dialog reads its file without these knobs; the application does it.
void JogDialogCL::makeStepKnobM()
{
    VrIOCL io;
    DVrNewRotateBtnArr records;
    io.OpenM(DescriptionFile, "r");
    if (records.FmReadInterfaceM(&io) == 1 && records.InitNewRotateBtnM(0, &stepKnob_) == 1) {
        stepKnob_.UseKeyboardM(true);
        stepKnob_.Create(this);
    }
}

double JogDialogCL::factorM()
{
    return ValuesM().IntM(FactorKnobId).value_or(100) / 100.0; // The knob counts percent.
}

double JogDialogCL::stepM() const
{
    return Steps[std::clamp(stepKnob_.GetCurIndxM(), 0, StepCount - 1)];
}

// What the two knobs say, and the curve that follows.
void JogDialogCL::showSetM()
{
    SetDlgItemText(FactorId, number(L"%.0f %%", factorM() * 100).c_str());
    SetDlgItemText(StepId, number(L"%g mm", stepM()).c_str());
    shownStep_ = stepKnob_.GetCurIndxM();
    RepaintM(CurveId);
}

void JogDialogCL::showPlaceM()
{
    SetDlgItemText(XId, number(L"%.2f", place_.x).c_str());
    SetDlgItemText(YId, number(L"%.2f", place_.y).c_str());
}

void JogDialogCL::showPenM()
{
    const int status = ValuesM().IntM(PenSwitchId).value_or(PenOff);
    SetDlgItemText(PenId, status == PenOff ? L"关闭" : status == PenUp ? L"抬起" : L"落下");
    SetDlgItemText(StateId, isMoving_ ? L"移动中……" : L"就绪");
    RepaintM(PenPictureId);
}

LRESULT JogDialogCL::onPermissionM(WPARAM flag, LPARAM)
{
    *reinterpret_cast<int*>(flag) = isMoving_ ? 0 : 1;
    return 0;
}

// Also told by the arrows, which do nothing before they are released.
LRESULT JogDialogCL::onStepDownM(WPARAM id, LPARAM)
{
    if (id == StepKnobId) {
        SetTimer(StepTimer, StepMilliseconds, nullptr);
    }
    return 0;
}

LRESULT JogDialogCL::onStepTurnedM(WPARAM, LPARAM)
{
    showSetM();
    return 0;
}

LRESULT JogDialogCL::onButtonM(WPARAM id, LPARAM)
{
    const double step = stepM();
    switch (id) {
    case OkId:
        if (keepM()) {
            EndDialog(IDOK);
        }
        break;
    case CancelId:
        EndDialog(IDCANCEL);
        break;
    case FactorKnobId:
        showSetM();
        break;
    case PenSwitchId:
        showPenM();
        SetTimer(MoveTimer, MoveMilliseconds, nullptr); // Lifts or lowers it.
        break;
    case XPlusId:
        beginMoveM({ place_.x + step, place_.y });
        break;
    case XMinusId:
        beginMoveM({ place_.x - step, place_.y });
        break;
    case YPlusId:
        beginMoveM({ place_.x, place_.y + step });
        break;
    case YMinusId:
        beginMoveM({ place_.x, place_.y - step });
        break;
    case HomeId:
        beginMoveM({ 0, 0 });
        break;
    default:
        break;
    }
    return 0;
}

void JogDialogCL::beginMoveM(PlaceCL target)
{
    from_ = place_;
    to_ = { std::clamp(target.x, 0.0, motion_.travelX), std::clamp(target.y, 0.0, motion_.travelY) };
    move_ = MoveCL(motion_, factorM(), std::hypot(to_.x - from_.x, to_.y - from_.y));
    began_ = ::GetTickCount64();
    isMoving_ = true;
    enableArrowsM(false);
    showPenM();
    SetTimer(MoveTimer, MoveMilliseconds, nullptr);
}

// Some milliseconds have gone by.
void JogDialogCL::goOnM()
{
    if (isMoving_) {
        const double now = static_cast<double>(::GetTickCount64() - began_) / 1000;
        isMoving_ = now < move_.DurationM();
        const double whole = move_.DistanceM(move_.DurationM());
        const double part = isMoving_ && whole > 0 ? move_.DistanceM(now) / whole : 1;
        place_ = { from_.x + (to_.x - from_.x) * part, from_.y + (to_.y - from_.y) * part };
        showPlaceM();
        RepaintM(CurveId);
        int frame = 0;
        if (ValuesM().CheckedM(SpindleTurnsId) == true && GetNormalAnimateBmpIdxM(SpindleId, &frame) == 1) {
            ShowFrameM(SpindleId, (frame + 1) % SpindleFrames);
        }
        if (!isMoving_) {
            enableArrowsM(true);
            showPenM();
        }
    }
    const int wanted = ValuesM().IntM(PenSwitchId) == PenDown ? LowestPenFrame : 0;
    if (penFrame_ != wanted) {
        penFrame_ += penFrame_ < wanted ? 1 : -1;
        ShowFrameM(PenPictureId, penFrame_);
    } else if (!isMoving_) {
        KillTimer(MoveTimer); // Everything stands still.
    }
}

void JogDialogCL::OnTimer(UINT_PTR timer)
{
    if (timer == MoveTimer) {
        goOnM();
    } else if (timer == StepTimer) {
        // A release that moves nothing is not told: the mouse tells whether the knob is still held.
        if (::GetCapture() == stepKnob_.m_hWnd) {
            stepKnob_.OnTimerM();
        } else {
            KillTimer(StepTimer);
        }
        if (stepKnob_.GetCurIndxM() != shownStep_) {
            showSetM();
        }
    }
    DuBasicDialogCL::OnTimer(timer);
}

// A click leaves a picture button in its released status; enabled it is as new. Disabled it loses the focus,
// which the next key needs there.
void JogDialogCL::enableArrowsM(bool enable)
{
    if (!enable) {
        focusBefore_ = ::GetFocus();
    }
    for (const int id : Arrows) {
        int kind = 0;
        CWnd* const control = GetContrlPtrM(id, &kind);
        if (control != nullptr && kind == BmpButtonCode) {
            static_cast<DuBmpButtonCL*>(control)->SetBtnStatusM(enable ? ButtonNormal : ButtonDisabled);
        }
    }
    if (enable && ::GetFocus() == nullptr) {
        ::SetFocus(focusBefore_);
    }
}

bool JogDialogCL::keepM()
{
    auto values = ValuesM().AllM();
    values.emplace_back(StepKnobId, stepKnob_.ReadValueM().SavedM()); // The dialog doesn't know this one.
    if (!settings_.SaveM(FileName, slTextOfValues(values))) {
        ::MessageBoxW(
            m_hWnd, L"设定无法保存到文件, 对话框保持打开。", L"点动面板", MB_OK | MB_ICONEXCLAMATION);
        return false;
    }
    return true;
}

std::string JogDialogCL::SummaryM(const SettingsCL& settings)
{
    std::string factor = "100";
    double step = Steps[2];
    for (const auto& [id, value] : slValuesOfText(settings.LoadM(FileName))) {
        if (id == FactorKnobId) {
            factor = value.substr(value.find(' ') + 1); // Behind the angle.
        } else if (id == StepKnobId) {
            step = Steps[std::clamp(std::atoi(value.c_str()), 0, StepCount - 1)];
        }
    }
    return "倍率 " + factor + " %, 步长 " + ValueTextCL(number(L"%g", step)).Utf8M() + " mm";
}
