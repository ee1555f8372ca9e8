#include "baselib/helpers.h"
#include "controls/base/control_common.h"

namespace {

int truncated(float value)
{
    // The casts of values that no int holds are undefined; these saturate, a NaN is 0.
    if (value >= 2147483648.0F) {
        return 2147483647;
    }
    if (value < -2147483648.0F) {
        return -2147483647 - 1;
    }
    return value == value ? static_cast<int>(value) : 0;
}

} // namespace

CRect DControlCommonCL::describedRectM() const
{
    const int left = slWindowLength(position_[0]);
    const int top = slWindowLength(position_[1]);
    return CRect(left, top, left + slWindowLength(size_[0]), top + slWindowLength(size_[1]));
}

bool DControlCommonCL::hasWindowM() const
{
    return window_ != nullptr && ::IsWindow(window_->GetSafeHwnd());
}

CRect DControlCommonCL::inParentM(CRect rect) const
{
    CWnd* parent = window_->GetParent();
    if (parent != nullptr) {
        parent->ScreenToClient(&rect);
    }
    return rect;
}

CRect DControlCommonCL::clientRectM() const
{
    if (!hasWindowM()) {
        return CRect(0, 0, 0, 0);
    }
    CRect rect;
    window_->GetClientRect(&rect);
    window_->ClientToScreen(&rect);
    return inParentM(rect);
}

CRect DControlCommonCL::windowRectM() const
{
    if (!hasWindowM()) {
        return CRect(0, 0, 0, 0);
    }
    CRect rect;
    window_->GetWindowRect(&rect);
    return inParentM(rect);
}

void DControlCommonCL::placeM(const CRect& rect)
{
    if (hasWindowM()) {
        window_->MoveWindow(rect.left, rect.top, rect.Width(), rect.Height(), TRUE);
    }
}

void DControlCommonCL::SetVisibleM(int visible)
{
    if (hasWindowM()) {
        window_->ShowWindow(visible != 0 ? SW_SHOW : SW_HIDE);
    }
}

void DControlCommonCL::SetPosM(int top, int left)
{
    const CRect rect = windowRectM();
    MoveM(left - rect.left, top - rect.top);
}

void DControlCommonCL::SetWidthM(int width)
{
    CRect rect = windowRectM();
    rect.right = rect.left + width;
    placeM(rect);
}

void DControlCommonCL::SetHeightM(int height)
{
    CRect rect = windowRectM();
    rect.bottom = rect.top + height;
    placeM(rect);
}

void DControlCommonCL::MoveM(int dx, int dy)
{
    CRect rect = windowRectM();
    rect.OffsetRect(dx, dy);
    placeM(rect);
}

void DControlCommonCL::SetCenterM(const CPoint& centre)
{
    SetPosM(centre.y - GetHeightM() / 2, centre.x - GetWidthM() / 2);
}

void DControlCommonCL::AlignLeftM(DControlCommonCL* other)
{
    if (other == nullptr) {
        return;
    }
    other->SetPosM(other->GetTopM(), GetLeftM());
}

void DControlCommonCL::AlignCenterHorizonM(DControlCommonCL* other)
{
    if (other == nullptr) {
        return;
    }
    const int half = slRound(static_cast<float>(GetHeightM()) * 0.5F);
    const int otherHalf = slRound(static_cast<float>(other->GetHeightM()) * 0.5F);
    other->SetPosM(half + GetTopM() - otherHalf, other->GetLeftM());
}

void DControlCommonCL::AlignCenterVerticalM(DControlCommonCL* other)
{
    if (other == nullptr) {
        return;
    }
    const int half = slRound(static_cast<float>(GetWidthM()) * 0.5F);
    const int otherHalf = slRound(static_cast<float>(other->GetWidthM()) * 0.5F);
    other->SetLeftM(half + GetLeftM() - otherHalf);
}

void DControlCommonCL::UpdatePositionM(float left, float top, float width, float height)
{
    position_[0] = truncated(left);
    position_[1] = truncated(top);
    size_[0] = truncated(width);
    size_[1] = truncated(height);
}

void DControlCommonCL::UpdatePositionM()
{
    CRect parent(0, 0, 0, 0);
    if (hasWindowM() && window_->GetParent() != nullptr) {
        window_->GetParent()->GetClientRect(&parent);
    }
    const CRect rect = clientRectM();
    const auto share = [](int part, int whole) {
        return whole != 0 ? static_cast<float>(part) / static_cast<float>(whole) : 0.0F;
    };
    UpdatePositionM(share(rect.left, parent.Width()), share(rect.top, parent.Height()),
        share(rect.Width(), parent.Width()), share(rect.Height(), parent.Height()));
}
