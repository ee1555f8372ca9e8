#include "controls/animation/normal_animate.h"
#include "controls/animation/normal_animate_record.h"
#include "controls/base/styles.h"

template class PANELKIT_API Arr<DuNormalAnimateCL>;

BEGIN_MESSAGE_MAP(DuNormalAnimateCL, CStatic)
ON_WM_CREATE()
ON_WM_TIMER()
ON_WM_PAINT()
ON_WM_LBUTTONDOWN()
ON_WM_LBUTTONUP()
ON_WM_LBUTTONDBLCLK() // The second of two fast presses is a press like any other.
ON_WM_SETFOCUS()
END_MESSAGE_MAP()

namespace {

constexpr UINT_PTR FrameTimer = 0;
constexpr COLORREF White = 0xFFFFFF;

} // namespace

int DVrNormalAnimateCL::InitNormalAnimateM(DuNormalAnimateCL* control) const
{
    if (InitCommonCtrlM(control) == 0) {
        return 0;
    }
    control->SetInitBmpNumM(frames_.GetAvailableNumM());
    slEachText(frames_, [control](int, const char* file) { control->AddBmpM(file); });
    control->SetCtrlModeM(controlMode_);
    control->SetTimeLapM(timeLapse_);
    control->SetSunkenM(sunken_);
    control->SetNotifyM(notify_);
    if (controlMode_ == 1) {
        control->SetFirstIdxM();
    }
    return 1;
}

BOOL DuNormalAnimateCL::PreCreateWindow(CREATESTRUCT& create)
{
    create.style |= WS_CHILD | WS_VISIBLE;
    slSetSunken(create, sunken_);
    return CStatic::PreCreateWindow(create);
}

void DuNormalAnimateCL::PreSubclassWindow()
{
    if (notify_ == 1) {
        ModifyStyle(0, SS_NOTIFY);
    }
    CStatic::PreSubclassWindow();
}

int DuNormalAnimateCL::AddBmpM(const char* file)
{
    return file == nullptr || *file == '\0' ? 0 : appendPictureM(&frames_, file);
}

int DuNormalAnimateCL::SetBmpM(int index, const char* file)
{
    return file == nullptr || *file == '\0' ? 0 : frames_.SetBitmapM(index, file, PictureScaleM());
}

int DuNormalAnimateCL::SetCtrlModeM(int mode)
{
    if (mode != Automatic && mode != Manual) {
        return 0;
    }
    controlMode_ = mode;
    if (mode == Manual) {
        current_ = 0;
        invalidateM(true);
    }
    return 1;
}

int DuNormalAnimateCL::SetFirstIdxM()
{
    current_ = frames_.GetFirstIdxM();
    invalidateM(false);
    return current_ >= 0 ? 1 : 0;
}

int DuNormalAnimateCL::DispBmpM(int index)
{
    if (controlMode_ != Manual) {
        return 0;
    }
    current_ = index;
    invalidateM(true);
    return 1;
}

int DuNormalAnimateCL::GetCurIdxM(int* out) const
{
    if (current_ < 0 || out == nullptr) {
        return 0;
    }
    *out = current_;
    return 1;
}

int DuNormalAnimateCL::RedrawWindowM()
{
    if (current_ == -1) {
        return 0;
    }
    if (m_hWnd != nullptr) {
        RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW);
    }
    return 1;
}

int DuNormalAnimateCL::DelAllBmpM()
{
    deleteFramesM();
    invalidateInParentM();
    return 1;
}

int DuNormalAnimateCL::OnCreate(LPCREATESTRUCT create)
{
    if (CStatic::OnCreate(create) == -1) {
        return -1;
    }
    if (playsM()) {
        KillTimer(FrameTimer);
        SetTimer(FrameTimer, static_cast<UINT>(timeLapse_));
    }
    return 0;
}

void DuNormalAnimateCL::OnTimer(UINT_PTR id)
{
    if (playsM()) {
        const int next = current_ >= 0 ? frames_.GetNextIdxM(current_) : -1;
        current_ = next >= 0 ? next : frames_.GetFirstIdxM();
        RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW);
    }
    CStatic::OnTimer(id);
}

void DuNormalAnimateCL::OnPaint()
{
    CPaintDC dc(this);
    CRect client;
    GetClientRect(&client);
    const int size[2] = { client.Width(), client.Height() };
    if (frames_.GetAvailableNumM() > 0 && current_ != -1
        && frames_.DrawBitmapM(current_, &dc, 0, 0, &size) == 1) {
        return;
    }
    // Composed off the screen, then copied in one step.
    CBitmap bitmap;
    CDC memory;
    if (bitmap.CreateCompatibleBitmap(&dc, size[0], size[1]) && memory.CreateCompatibleDC(&dc)) {
        const HGDIOBJ previous = ::SelectObject(memory.m_hDC, bitmap.m_hObject);
        memory.FillSolidRect(&client, White);
        dc.BitBlt(0, 0, size[0], size[1], &memory, 0, 0, SRCCOPY);
        ::SelectObject(memory.m_hDC, previous);
    }
}

void DuNormalAnimateCL::OnLButtonDown(UINT flags, CPoint point)
{
    beginClickM();
    CStatic::OnLButtonDown(flags, point); // The static's own click notification.
}

void DuNormalAnimateCL::OnLButtonUp(UINT, CPoint point)
{
    endClickM([this, point] {
        CRect client;
        GetClientRect(&client);
        if (client.PtInRect(point)) {
            postToParentM(AnimationClickedMsg);
        }
    });
}

void DuNormalAnimateCL::keyPressM()
{
    beginClickM();
    const WPARAM notification = MAKEWPARAM(GetFunctionIDM(), STN_CLICKED);
    ::SendMessageW(::GetParent(m_hWnd), WM_COMMAND, notification, reinterpret_cast<LPARAM>(m_hWnd));
}

void DuNormalAnimateCL::keyReleaseM()
{
    endClickM([this] { postToParentM(AnimationClickedMsg); });
}

CSize DuNormalAnimateCL::pictureSizeM() const
{
    int size[2] {};
    frames_.GetBmpSizeM(current_, size);
    return { size[0], size[1] };
}
