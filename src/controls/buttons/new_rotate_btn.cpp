#include "controls/buttons/new_rotate_btn.h"
#include "controls/buttons/new_rotate_btn_record.h"
#include <cstdint>

BEGIN_MESSAGE_MAP(DuNewRotateBtnCL, CStatic)
ON_WM_PAINT()
ON_WM_MOUSEMOVE()
ON_WM_LBUTTONDOWN()
ON_WM_LBUTTONUP()
ON_WM_LBUTTONDBLCLK() // The second of two fast presses is a press like any other.
ON_WM_RBUTTONDOWN()
ON_WM_RBUTTONUP()
ON_WM_RBUTTONDBLCLK()
END_MESSAGE_MAP()

namespace {

// A message of the button to itself; wParam: the step of the turn that ends.
UINT turnEndMessage()
{
    static const UINT message = ::RegisterWindowMessageW(L"panelkit_turn_end");
    return message;
}

} // namespace

int DVrNewRotateBtnCL::InitNewRotateBtnM(DuNewRotateBtnCL* control) const
{
    if (InitCommonCtrlM(control) == 0) {
        return 0;
    }
    control->InitialM(steps_, initialIndex_, PicturesM());
    control->SetDescriptM(description_.TextM());
    return 1;
}

int DVrNewRotateBtnArr::InitNewRotateBtnM(int index, DuNewRotateBtnCL* control) const
{
    return CheckAvailableM(index) == 1 ? GetItemPM(index)->InitNewRotateBtnM(control) : 0;
}

int DuNewRotateBtnCL::InitialM(const int steps[2], int index, const VrStringArr& names)
{
    if (steps == nullptr) {
        return 0;
    }
    index_ = index;
    leftStep_ = steps[0];
    rightStep_ = steps[1];
    pictures_.DelAllM();
    pictures_.InitialSizeM(names.GetBoundM());
    for (int i = 0; i < names.GetBoundM(); ++i) {
        appendPictureM(&pictures_, names.GetItemPM(i)->TextM());
    }
    return 1;
}

void DuNewRotateBtnCL::RescaledM(int, int)
{
    pictures_.RescaleM(PictureScaleM());
    invalidateM(true);
}

bool DuNewRotateBtnCL::moveM(int by)
{
    const int count = pictures_.GetBoundM();
    const std::int64_t next = std::int64_t { index_ } + by;
    if (count == 0 || (cycled_ == 0 && (next < 0 || next >= count))) {
        return false;
    }
    index_ = next < 0 ? count - 1 : static_cast<int>(next % count);
    return true;
}

ControlValueCL DuNewRotateBtnCL::ReadValueM() const
{
    ControlValueCL value;
    if (index_ >= 0 && index_ < pictures_.GetBoundM()) {
        value.number = index_;
    }
    return value;
}

bool DuNewRotateBtnCL::WriteValueM(const ControlValueCL& value)
{
    if (!value.IsOfM(NumberPart) || *value.number < 0 || *value.number >= pictures_.GetBoundM()) {
        return false;
    }
    SetCurIndxM(*value.number);
    invalidateM(false);
    return true;
}

// At the end of the ints a product goes round.
int DuNewRotateBtnCL::clickStepM(int step) const
{
    return static_cast<int>(static_cast<unsigned>(multiplier_) * static_cast<unsigned>(step));
}

void DuNewRotateBtnCL::OnTimerM()
{
    // Whoever took the mouse away gets the release: without the mouse nothing is held any more.
    if (pressed_ != PressedNone && holdsMouseM() && moveM(pressed_ == PressedLeft ? leftStep_ : rightStep_)) {
        invalidateM(false);
    }
}

void DuNewRotateBtnCL::pressM(Pressed button, int step)
{
    if (CheckLegalM(1) != 1) {
        return;
    }
    pressed_ = button;
    if (beginClickM()) {
        postToParentM(ButtonDownMsg, clickStepM(step));
    }
}

void DuNewRotateBtnCL::releaseM(int step)
{
    endClickM([this, step] {
        const HWND window = m_hWnd;
        const int by = clickStepM(step);
        if (CheckLegalM(0) == 1 && moveM(by)) {
            sendToParentM(RotateReleasedMsg, by);
            if (!::IsWindow(window)) { // The parent may have destroyed this object.
                return;
            }
            Invalidate(FALSE);
        }
        pressed_ = PressedNone;
    });
}

void DuNewRotateBtnCL::OnPaint()
{
    CPaintDC dc(this);
    if (index_ >= 0 && index_ < pictures_.GetBoundM()) {
        pictures_.DrawBitmapM(index_, &dc, 0, 0, nullptr);
    }
}

void DuNewRotateBtnCL::OnMouseMove(UINT flags, CPoint point)
{
    DControlCommonCL::OnMouseMove(GetParent(), flags, point);
}

void DuNewRotateBtnCL::OnLButtonDown(UINT, CPoint)
{
    pressM(PressedLeft, leftStep_);
}

void DuNewRotateBtnCL::OnRButtonDown(UINT, CPoint)
{
    pressM(PressedRight, rightStep_);
}

void DuNewRotateBtnCL::OnLButtonUp(UINT, CPoint)
{
    releaseM(leftStep_);
}

void DuNewRotateBtnCL::OnRButtonUp(UINT, CPoint)
{
    releaseM(rightStep_);
}

void DuNewRotateBtnCL::keyTurnM(bool forward)
{
    const HWND window = m_hWnd;
    const int step = forward ? leftStep_ : rightStep_;
    pressM(forward ? PressedLeft : PressedRight, step);
    if (CWnd::FromHandlePermanent(window) == this) {              // The application was asked.
        PostMessage(turnEndMessage(), static_cast<WPARAM>(step)); // Behind the press, which is posted.
    }
}

LRESULT DuNewRotateBtnCL::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == turnEndMessage()) {
        releaseM(static_cast<int>(wParam));
        return 0;
    }
    return PictureStaticCL::WindowProc(message, wParam, lParam);
}

CSize DuNewRotateBtnCL::pictureSizeM() const
{
    int size[2] {};
    pictures_.GetBmpSizeM(index_, size);
    return { size[0], size[1] };
}
