// The jog panel while something moves.
#include "jog_dialog.h"
#include "jog_ids.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr int Arrows[] = { XPlusId, YPlusId, XMinusId, YMinusId, HomeId };

constexpr int SpindleFrames = 4;

} // namespace

void JogDialogCL::showPlaceM()
{
    SetDlgItemText(XId, slNumberText(L"%.2f", place_.x).c_str());
    SetDlgItemText(YId, slNumberText(L"%.2f", place_.y).c_str());
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
