#include "controls/buttons/bmp_button.h"
#include "controls/buttons/bmp_button_record.h"
#include "pictures/hit_region.h"

template class PANELKIT_API Arr<DuBmpButtonCL>;

BEGIN_MESSAGE_MAP(DuBmpButtonCL, CStatic)
ON_WM_CREATE()
ON_WM_PAINT()
ON_WM_MOUSEMOVE()
ON_WM_LBUTTONDOWN()
ON_WM_LBUTTONUP()
ON_WM_LBUTTONDBLCLK() // The second of two fast presses is a press like any other.
ON_WM_SETFOCUS()
ON_WM_CANCELMODE()
END_MESSAGE_MAP()

int DVrBmpButtonCL::InitBmpButtonM(DuBmpButtonCL* control) const
{
    if (InitCommonCtrlM(control) == 0) {
        return 0;
    }
    control->SetBtnBmpM(normal_.TextM(), pressed_.TextM(), released_.TextM(), disabled_.TextM());
    giveRegionM(control);
    return 1;
}

void DVrBmpButtonCL::giveRegionM(DuBmpButtonCL* control) const
{
    control->GetBtnRgnM()->GenerateRgnFromBitmapM(
        region_.TextM(), HitRegionKey, HitRegionMode, control->PictureScaleM());
}

int DVrBmpButtonCL::GiveLengthsM(DuBmpButtonCL* control) const
{
    if (RecordCL::GiveLengthsM(control) == 0) {
        return 0;
    }
    control->GetBtnRgnM()->DeleteObject();
    giveRegionM(control);
    return 1;
}

int DuBmpButtonCL::SetBtnBmpM(
    const char* normal, const char* pressed, const char* released, const char* disabled)
{
    const char* const files[StatusCount] = { normal, pressed, released, disabled };
    for (int i = 0; i < StatusCount; ++i) {
        if (files[i] != nullptr && *files[i] != '\0') {
            pictures_[i].LoadScaledM(files[i], PictureScaleM());
        }
    }
    return 1;
}

int DuBmpButtonCL::SetBtnStatusM(BUTTON_STATUS status)
{
    status_ = status;
    if (m_hWnd != nullptr) {
        EnableWindow(status != ButtonDisabled);
        InvalidateRgn(&drawRgn_, TRUE);
    }
    return 1;
}

void DuBmpButtonCL::destroyM()
{
    buttonRgn_.DeleteObject();
    drawRgn_.DeleteObject();
    for (DVrBitmapCL& picture : pictures_) {
        picture.DelItemM();
    }
}

void DuBmpButtonCL::DelItemM()
{
    PictureStaticCL::DelItemM();
    destroyM();
}

int DuBmpButtonCL::OnCreate(LPCREATESTRUCT create)
{
    if (CStatic::OnCreate(create) == -1) {
        return -1;
    }
    if (drawRgn_.GetSafeHandle() == nullptr) {
        clientRgnM(&drawRgn_);
        clipWindowM(drawRgn_);
    }
    if (buttonRgn_.GetSafeHandle() == nullptr) {
        clientRgnM(&buttonRgn_);
    }
    if (status_ == ButtonDisabled) {
        EnableWindow(FALSE);
    }
    return 0;
}

void DuBmpButtonCL::RescaledM(int, int)
{
    for (DVrBitmapCL& picture : pictures_) {
        picture.RescaleM(PictureScaleM());
    }
    if (m_hWnd != nullptr) {
        clientRgnM(&drawRgn_);
        clipWindowM(drawRgn_);
        if (buttonRgn_.GetSafeHandle() == nullptr) {
            clientRgnM(&buttonRgn_);
        }
        invalidateM(true);
    }
}

void DuBmpButtonCL::OnPaint()
{
    CPaintDC dc(this);
    if (status_ >= 0 && status_ < StatusCount) {
        pictures_[status_].DrawBitmapM(&dc, 0, 0, nullptr);
    }
}

CSize DuBmpButtonCL::pictureSizeM() const
{
    const bool hasPicture = status_ >= 0 && status_ < StatusCount;
    return hasPicture ? CSize(pictures_[status_].GetWidthM(), pictures_[status_].GetHeightM()) : CSize();
}

void DuBmpButtonCL::OnMouseMove(UINT, CPoint)
{
    // Nothing changes under the pointer.
}

void DuBmpButtonCL::OnLButtonDown(UINT, CPoint)
{
    if (!holdsMouseM()) {
        beforePress_ = status_;
    }
    SetCapture();
    status_ = ButtonPressed;
    postToParentM(ButtonDownMsg);
    Invalidate(FALSE);
}

void DuBmpButtonCL::OnLButtonUp(UINT, CPoint)
{
    endClickM([this] {
        status_ = ButtonReleased;
        postToParentM(ButtonActionMsg);
        Invalidate(FALSE);
    });
}

void DuBmpButtonCL::OnCancelMode()
{
    if (holdsMouseM() && status_ == ButtonPressed) {
        status_ = beforePress_;
        Invalidate(FALSE);
    }
    PictureStaticCL::OnCancelMode();
}
