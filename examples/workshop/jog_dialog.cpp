#include "jog_dialog.h"

#include "baselib/io.h"
#include "controls/buttons/new_rotate_btn_record.h"
#include "jog_ids.h"
#include "speed_curve.h"

#include <algorithm>

namespace {

constexpr const char* DescriptionFile = "jog.dlg";
constexpr const char* FileName = "jog";
constexpr double Steps[] = { 0.1, 1, 10, 50, 100 }; // Millimetres, by the knob's position.
constexpr int StepCount = 5;
constexpr double GreatestFactor = 1.5;

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
    SetDlgItemText(FactorId, slNumberText(L"%.0f %%", factorM() * 100).c_str());
    SetDlgItemText(StepId, slNumberText(L"%g mm", stepM()).c_str());
    shownStep_ = stepKnob_.GetCurIndxM();
    RepaintM(CurveId);
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
    return "倍率 " + factor + " %, 步长 " + ValueTextCL(slNumberText(L"%g", step)).Utf8M() + " mm";
}
