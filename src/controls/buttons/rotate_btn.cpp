#include "controls/buttons/rotate_btn.h"
#include "controls/buttons/rotate_btn_record.h"
#include "pictures/hit_region.h"

template class PANELKIT_API Arr<DuRotateBtnCL>;

BEGIN_MESSAGE_MAP(DuRotateBtnCL, CStatic)
ON_WM_CREATE()
ON_WM_ERASEBKGND()
ON_WM_PAINT()
ON_WM_LBUTTONDOWN()
ON_WM_LBUTTONUP()
ON_WM_LBUTTONDBLCLK() // The second of two fast presses is a press like any other.
ON_WM_RBUTTONDOWN()
ON_WM_RBUTTONUP()
ON_WM_RBUTTONDBLCLK()
ON_WM_SETFOCUS()
END_MESSAGE_MAP()

int DVrRotateBtnCL::InitRotateBtnM(DuRotateBtnCL* control) const
{
    if (InitCommonCtrlM(control) == 0) {
        return 0;
    }
    control->SetEnableM(enabled_ == 1 ? 1 : 0);
    control->SetSignM(stepSigns_, counterIncrements_);
    control->SetAngleM(angleRange_, stepAngle_, initialAngle_);
    control->SetCounterM(initialCounter_);
    control->SetBmpM(background_.TextM(), rotating_.TextM());
    control->SetRotPosM(picturePosition_, centre_);
    giveRegionM(control);
    return 1;
}

void DVrRotateBtnCL::giveRegionM(DuRotateBtnCL* control) const
{
    control->GetButtonRgnM()->GenerateRgnFromBitmapM(
        region_.TextM(), HitRegionKey, HitRegionMode, control->PictureScaleM());
}

int DVrRotateBtnCL::GiveLengthsM(DuRotateBtnCL* control) const
{
    if (RecordCL::GiveLengthsM(control) == 0) {
        return 0;
    }
    control->SetRotPosM(picturePosition_, centre_);
    control->GetButtonRgnM()->DeleteObject();
    giveRegionM(control);
    return 1;
}

int DuRotateBtnCL::SetAngleM(const float range[2], float step, float angle)
{
    if (range == nullptr) {
        return 0;
    }
    upper_ = range[0];
    lower_ = range[1];
    stepAngle_ = step;
    angle_ = angle;
    return 1;
}

int DuRotateBtnCL::SetRotPosM(const int position[2], const int centre[2])
{
    if (position == nullptr || centre == nullptr) {
        return 0;
    }
    slCopyPair(position_, position);
    slCopyPair(centre_, centre);
    forgetPixelsM();
    return 1;
}

int DuRotateBtnCL::SetSignM(const int signs[2], const int increments[2])
{
    if (signs == nullptr || increments == nullptr) {
        return 0;
    }
    slCopyPair(signs_, signs);
    return slCopyPair(increments_, increments);
}

int DuRotateBtnCL::SetBmpM(const char* background, const char* rotating)
{
    if (background == nullptr || rotating == nullptr) {
        return 0;
    }
    constexpr std::int64_t White = 0xFFFFFF; // Lets the background through.
    background_.LoadScaledM(background, PictureScaleM());
    rotating_.LoadScaledM(rotating, PictureScaleM().AnywhereM(), White); // Square pictures stay so.
    forgetPixelsM();
    return 1;
}

int DuRotateBtnCL::EnableButtonM(int enabled)
{
    enabled_ = enabled;
    if (m_hWnd != nullptr) {
        EnableWindow(enabled == 1);
    }
    return 1;
}

void DuRotateBtnCL::DelItemM()
{
    PictureStaticCL::DelItemM();
    hitRgn_.DeleteObject();
    windowRgn_.DeleteObject();
    background_.DelItemM();
    rotating_.DelItemM();
    cache_.DestroyM();
    forgetPixelsM();
}

int DuRotateBtnCL::OnCreate(LPCREATESTRUCT create)
{
    if (CStatic::OnCreate(create) == -1) {
        return -1;
    }
    if (windowRgn_.GetSafeHandle() == nullptr) {
        clientRgnM(&windowRgn_);
    }
    shapeM();
    EnableWindow(enabled_ == 1);
    return 0;
}

// The window's shape, where clicks count, and how large the picture is that turns.
void DuRotateBtnCL::shapeM()
{
    if (hitRgn_.GetSafeHandle() == nullptr) {
        CRect client;
        GetClientRect(&client);
        hitRgn_.CreateEllipticRgnIndirect(&client);
    }
    clipWindowM(windowRgn_);
    width_ = rotating_.GetWidthM();
    height_ = rotating_.GetHeightM();
    forgetPixelsM();
}

void DuRotateBtnCL::RescaledM(int, int)
{
    background_.RescaleM(PictureScaleM());
    rotating_.RescaleM(PictureScaleM().AnywhereM());
    if (m_hWnd != nullptr) {
        clientRgnM(&windowRgn_);
        shapeM();
        showAngleM();
    }
}

BOOL DuRotateBtnCL::OnEraseBkgnd(CDC* dc)
{
    drawBkM(dc);
    return CStatic::OnEraseBkgnd(dc);
}

void DuRotateBtnCL::OnPaint()
{
    CPaintDC dc(this);
    drawRotM(&dc, angle_);
}

void DuRotateBtnCL::pressM(CPoint point)
{
    if (hitRgn_.PtInRegion(point)) {
        beginClickM();
    }
}

void DuRotateBtnCL::releaseM(CPoint point, Side side)
{
    endClickM([this, point, side] {
        if (hitRgn_.PtInRegion(point)) {
            turnM(side);
        }
    });
}

void DuRotateBtnCL::keyReleaseM()
{
    endClickM([this] { turnM(Left); });
}

void DuRotateBtnCL::turnM(Side side)
{
    if (stepM(side)) {
        postToParentM(ButtonActionMsg, counter_);
        showAngleM();
    }
}

void DuRotateBtnCL::showAngleM()
{
    redrawNeeded_ = true;
    InvalidateRgn(&windowRgn_, TRUE);
}

ControlValueCL DuRotateBtnCL::ReadValueM() const
{
    ControlValueCL value;
    if (m_hWnd != nullptr) {
        value.real = angle_;
        value.number = counter_;
    }
    return value;
}

bool DuRotateBtnCL::WriteValueM(const ControlValueCL& value)
{
    const float angle = value.real.value_or(angle_);
    // The present angle may be out of the range.
    if (m_hWnd == nullptr || !value.IsOfM(RealPart | NumberPart) || !(angle == angle_ || isInRangeM(angle))) {
        return false;
    }
    angle_ = angle;
    counter_ = value.number.value_or(counter_);
    showAngleM();
    return true;
}

bool DuRotateBtnCL::stepM(Side side)
{
    const float next = slAngleAfterStep(angle_, signs_[side], stepAngle_);
    if (!isInRangeM(angle_) || !isInRangeM(next)) {
        return false;
    }
    angle_ = next;
    // At the end of the ints the counter goes round.
    counter_ = static_cast<int>(static_cast<unsigned>(counter_) + static_cast<unsigned>(increments_[side]));
    return true;
}

void DuRotateBtnCL::OnLButtonDown(UINT, CPoint point)
{
    pressM(point);
}

void DuRotateBtnCL::OnRButtonDown(UINT, CPoint point)
{
    pressM(point);
}

void DuRotateBtnCL::OnLButtonUp(UINT, CPoint point)
{
    releaseM(point, Left);
}

void DuRotateBtnCL::OnRButtonUp(UINT, CPoint point)
{
    releaseM(point, Right);
}
