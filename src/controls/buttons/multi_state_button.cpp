#include "controls/buttons/multi_state_button.h"
#include "controls/buttons/multi_state_button_record.h"
#include "pictures/hit_region.h"
#include <cstring>

template class PANELKIT_API Arr<DuMultiStateButtonCL>;

BEGIN_MESSAGE_MAP(DuMultiStateButtonCL, CStatic)
ON_WM_CREATE()
ON_WM_PAINT()
ON_WM_LBUTTONDOWN()
ON_WM_LBUTTONUP()
ON_WM_LBUTTONDBLCLK() // The second of two fast presses is a press like any other.
ON_WM_SETFOCUS()
END_MESSAGE_MAP()

int DVrMultiStateButtonCL::InitMultiStateButtonM(DuMultiStateButtonCL* control) const
{
    if (InitCommonCtrlM(control) == 0) {
        return 0;
    }
    if (!region_.EmptyM() && std::strcmp(region_.TextM(), "NULL") != 0) {
        control->GetButtonRgnM()->GenerateRgnFromBitmapM(
            region_.TextM(), HitRegionKey, HitRegionMode, control->PictureScaleM());
    }
    if (statuses_.GetAvailableNumM() > 0) {
        control->SetInitBmpNumM(statuses_.GetAvailableNumM());
        for (int i = statuses_.GetFirstIdxM(); i >= 0; i = statuses_.GetNextIdxM(i)) {
            control->AddStatusM(statuses_[i], files_.GetItemPM(i)->TextM());
        }
        control->SetInitStatusM(initialStatus_);
    }
    return 1;
}

int DuMultiStateButtonCL::SetInitBmpNumM(int n)
{
    if (n >= 1) {
        pictures_.InitialSizeM(n);
    }
    return 1;
}

int DuMultiStateButtonCL::AddStatusM(int status, const char* file)
{
    if (file == nullptr || *file == '\0') {
        return 0;
    }
    statuses_.AddItemM(status);
    appendPictureM(&pictures_, file);
    return 1;
}

int DuMultiStateButtonCL::indexOfM(int status) const
{
    int i = statuses_.GetFirstIdxM();
    while (i >= 0 && statuses_[i] != status) {
        i = statuses_.GetNextIdxM(i);
    }
    return i;
}

int DuMultiStateButtonCL::pictureOfM(int index) const
{
    if (statuses_.CheckAvailableM(index) == 0) {
        return -1;
    }
    int picture = pictures_.GetFirstIdxM();
    for (int i = statuses_.GetFirstIdxM(); i >= 0 && i < index && picture >= 0;
         i = statuses_.GetNextIdxM(i)) {
        picture = pictures_.GetNextIdxM(picture);
    }
    return picture;
}

int DuMultiStateButtonCL::SetInitStatusM(int status)
{
    if (statuses_.GetAvailableNumM() == 0) {
        return status == 1 ? 1 : 0;
    }
    const int found = indexOfM(status);
    if (found < 0) {
        return 0;
    }
    current_ = found;
    return 1;
}

int DuMultiStateButtonCL::SetCurStatusM(int status)
{
    const int result = statuses_.GetAvailableNumM() > 0 ? SetInitStatusM(status) : 0;
    invalidateM(true);
    return result;
}

int DuMultiStateButtonCL::GetCurStatusM(int* out) const
{
    if (out == nullptr) {
        return 0;
    }
    if (statuses_.CheckAvailableM(current_) == 1) {
        statuses_.GetItemM(out, current_);
    }
    return 1;
}

ControlValueCL DuMultiStateButtonCL::ReadValueM() const
{
    ControlValueCL value;
    if (m_hWnd != nullptr && statuses_.CheckAvailableM(current_) == 1) {
        value.number = statuses_[current_];
    }
    return value;
}

bool DuMultiStateButtonCL::WriteValueM(const ControlValueCL& value)
{
    return m_hWnd != nullptr && value.IsOfM(NumberPart) && SetCurStatusM(*value.number) == 1;
}

int DuMultiStateButtonCL::DelStatusM(int status)
{
    const int index = indexOfM(status);
    const int picture = pictureOfM(index);
    if (index >= 0) {
        statuses_.DelItemM(index);
    }
    if (picture >= 0) {
        pictures_.DelItemM(picture);
    }
    return index >= 0 && picture >= 0 ? 1 : 0;
}

int DuMultiStateButtonCL::DelAllM()
{
    statuses_.DelAllM();
    pictures_.DelAllM();
    current_ = -1;
    if (drawRgn_.GetSafeHandle() != nullptr) {
        invalidateInParentM();
    }
    return 1;
}

void DuMultiStateButtonCL::DelItemM()
{
    PictureStaticCL::DelItemM();
    buttonRgn_.DeleteObject();
    drawRgn_.DeleteObject();
    DelAllM();
}

int DuMultiStateButtonCL::InitRgnM()
{
    // A region that was traced before there was a window gives way as well: the whole button takes clicks.
    if (m_hWnd != nullptr && drawRgn_.GetSafeHandle() == nullptr) {
        clientRgnM(&drawRgn_);
        clientRgnM(&buttonRgn_);
        clipWindowM(drawRgn_);
    }
    return 1;
}

void DuMultiStateButtonCL::RescaledM(int, int)
{
    pictures_.RescaleM(PictureScaleM());
    if (m_hWnd != nullptr) {
        drawRgn_.DeleteObject();
        InitRgnM();
        invalidateM(true);
    }
}

int DuMultiStateButtonCL::OnCreate(LPCREATESTRUCT create)
{
    if (CStatic::OnCreate(create) == -1) {
        return -1;
    }
    InitRgnM();
    return 0;
}

void DuMultiStateButtonCL::OnPaint()
{
    CPaintDC dc(this);
    const int picture = pictureOfM(current_);
    if (picture >= 0) {
        pictures_.DrawBitmapM(picture, &dc, 0, 0, nullptr);
    }
}

void DuMultiStateButtonCL::OnLButtonDown(UINT, CPoint point)
{
    if (buttonRgn_.PtInRegion(point)) {
        beginClickM();
    }
}

void DuMultiStateButtonCL::OnLButtonUp(UINT, CPoint point)
{
    endClickM([this, point] {
        if (buttonRgn_.PtInRegion(point)) {
            goOnM(true);
        }
    });
    Invalidate(TRUE);
}

void DuMultiStateButtonCL::goOnM(bool forward)
{
    if (statuses_.GetAvailableNumM() == 0) {
        return;
    }
    int next = -1;
    if (forward) {
        next = statuses_.GetNextIdxM(current_);
        next = next >= 0 ? next : statuses_.GetFirstIdxM();
    } else { // The last one before the current, else the last of all.
        for (int i = statuses_.GetFirstIdxM(); i >= 0; i = statuses_.GetNextIdxM(i)) {
            next = i < current_ || next < 0 || next >= current_ ? i : next;
        }
    }
    current_ = next;
    postToParentM(ButtonActionMsg, current_);
}

void DuMultiStateButtonCL::keyReleaseM()
{
    endClickM([this] { goOnM(true); });
    Invalidate(TRUE);
}

void DuMultiStateButtonCL::keyTurnM(bool forward)
{
    goOnM(forward);
    Invalidate(TRUE);
}

CSize DuMultiStateButtonCL::pictureSizeM() const
{
    int size[2] {};
    pictures_.GetBmpSizeM(pictureOfM(current_), size);
    return { size[0], size[1] };
}
