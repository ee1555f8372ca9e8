#include "controls/text/spin_edit.h"
#include "controls/base/styles.h"
#include "controls/text/spin_edit_record.h"

template class PANELKIT_API Arr<DuSpinEditCL>;

BEGIN_MESSAGE_MAP(DuSpinEditCL, CEdit)
ON_WM_CHAR()
ON_WM_SETFOCUS()
ON_WM_KILLFOCUS()
ON_WM_CREATE()
ON_MESSAGE(SpinClickMsg, &DuSpinEditCL::onSpinClickM)
ON_MESSAGE(CheckValueMsg, &DuSpinEditCL::onCheckValM)
END_MESSAGE_MAP()

namespace {

CRect rectInParent(HWND window)
{
    CRect rect;
    ::GetWindowRect(window, &rect);
    ::MapWindowPoints(nullptr, ::GetParent(window), reinterpret_cast<POINT*>(&rect), 2);
    return rect;
}

} // namespace

int DVrSpinEditCL::InitSpinEditM(DuSpinEditCL* control) const
{
    if (InitCommonCtrlM(control) == 0) {
        return 0;
    }
    control->SetAlignModeM(alignMode_);
    control->SetDataTypeM(dataType_, decimals_);
    control->SetRangeM(range_);
    control->SetInitValM(initial_);
    control->SetStepM(step_);
    control->SetSpinLenM(spinWidth_);
    control->SetWinIdxM(editWindowIndex_);
    control->SpinButtonM().SetFunctionIDM(spinFunctionId_);
    return 1;
}

int DVrSpinEditCL::GiveLengthsM(DuSpinEditCL* control) const
{
    return RecordCL::GiveLengthsM(control) == 1 ? control->SetSpinLenM(spinWidth_) : 0;
}

int DuSpinEditArr::Create(CWnd* parent)
{
    return untilFailureM([parent](DuSpinEditCL& control) {
        const int result = control.Create(parent);
        if (result == 1) {
            control.DispEditM();
        }
        return result;
    });
}

int DuSpinEditCL::Create(CWnd* parent)
{
    spinButton_.DestroyWindow();                     // They belong to the window before.
    if (createM(parent) != 1 || m_hWnd == nullptr) { // The application may have destroyed it at once.
        return 0;
    }
    CRect rect;
    GetClientRect(&rect);
    rect.left = rect.right - slWindowLength(spinWidth_);
    const int result = spinButton_.Create(rect, parent);
    if (result == 1) {
        spinButton_.SetBuddy(this);
        noteJointM(describedRectM());
        if (platformWidth_ != 0 && PictureScaleM().PercentM() != 100) {
            joinM(describedRectM());
        }
    }
    return result;
}

// How the arrows stand at the field, as the platform has joined them; place: what both have together. A
// platform that gives arrows a width of its own means that of 100 %.
void DuSpinEditCL::noteJointM(const CRect& place)
{
    const CRect field = rectInParent(m_hWnd);
    const CRect arrows = rectInParent(spinButton_.m_hWnd);
    joint_ = { arrows.left - field.right, arrows.top - field.top, arrows.right - place.right,
        arrows.bottom - field.bottom };
    platformWidth_ = arrows.Width() == slWindowLength(spinWidth_) ? 0 : arrows.Width();
}

// Puts both into a place as they were joined.
void DuSpinEditCL::joinM(const CRect& place)
{
    const ScaleCL scale(PictureScaleM().PercentM());
    const int width = platformWidth_ != 0 ? scale.SizeM(platformWidth_) : slWindowLength(spinWidth_);
    const int right = place.right + joint_.right;
    const CRect arrows(right - width, place.top + joint_.top, right, place.bottom + joint_.bottom);
    CRect field = place;
    field.right = arrows.left - joint_.left;
    constexpr UINT Flags = SWP_NOZORDER | SWP_NOACTIVATE | SWP_NOREDRAW;
    ::SetWindowPos(m_hWnd, nullptr, field.left, field.top, field.Width(), field.Height(), Flags);
    ::SetWindowPos(
        spinButton_.m_hWnd, nullptr, arrows.left, arrows.top, arrows.Width(), arrows.Height(), Flags);
}

void DuSpinEditCL::RescaledM(int, int)
{
    if (m_hWnd != nullptr && spinButton_.GetSafeHwnd() != nullptr) {
        joinM(rectInParent(m_hWnd)); // The field has all of it now.
    }
}

BOOL DuSpinEditCL::PreCreateWindow(CREATESTRUCT& create)
{
    create.style
        |= WS_CHILD | WS_VISIBLE | WS_CLIPSIBLINGS | WS_CLIPCHILDREN | WS_GROUP | WS_TABSTOP | ES_AUTOHSCROLL;
    slSetAlignment(create, alignMode_);
    return CEdit::PreCreateWindow(create);
}

int DuSpinEditCL::OnCreate(LPCREATESTRUCT create)
{
    const int result = CEdit::OnCreate(create);
    if (result != -1) {
        catchUpM();
    }
    return result;
}

void DuSpinEditCL::DelItemM()
{
    spinButton_.DestroyWindow();
    ControlCL::DelItemM();
}

int DuSpinEditCL::SetItemCmdM(int command)
{
    int result = 0;
    const bool isThere = slOutlives(this, [&] { result = ControlCL::SetItemCmdM(command); });
    if (isThere && result == 1 && spinButton_.GetSafeHwnd() != nullptr) {
        if (command == 1 || command == 2) {
            spinButton_.EnableWindow(command == 1);
        } else if (command == 3 || command == 4) {
            spinButton_.ShowWindow(command == 3 ? SW_SHOW : SW_HIDE);
        }
    }
    return result;
}

int DuSpinEditCL::SetDataTypeM(int type, int decimals)
{
    constexpr int Unknown = 0;
    value_.SetTypeM(type == TextType ? Unknown : type, decimals);
    return 1;
}

int DuSpinEditCL::SetStepM(const simpleValD& step)
{
    switch (value_.GetTypeM()) {
    case IntegerType:
        step_.NumberM() = step.number;
        return 1;
    case RealType:
        step_.RealM() = step.real;
        return 1;
    default:
        return 0;
    }
}

// No check code says that the value is to be written: callers rely on their output staying as it is.
int DuSpinEditCL::GetCurValM(simpleValD*)
{
    if (m_hWnd == nullptr) {
        return Unreadable;
    }
    char text[TextSize];
    GetWindowText(text, TextSize);
    return value_.ReadM(text);
}

ControlValueCL DuSpinEditCL::ReadValueM() const
{
    if (m_hWnd == nullptr) {
        return {};
    }
    char text[TextSize];
    GetWindowText(text, TextSize);
    return value_.ReadAsM(text);
}

bool DuSpinEditCL::WriteValueM(const ControlValueCL& value)
{
    return m_hWnd != nullptr && value_.TakeM(value) && DispEditM() == 1;
}

int DuSpinEditCL::DispEditM()
{
    char text[TextSize];
    const int result = value_.ShowM(text, TextSize);
    if (result == 1 && m_hWnd != nullptr) {
        SetWindowText(text);
    }
    return result;
}

void DuSpinEditCL::OnChar(UINT character, UINT repeats, UINT flags)
{
    if (value_.AcceptsM(character)) {
        CEdit::OnChar(character, repeats, flags);
    }
}

void DuSpinEditCL::OnKillFocus(CWnd* newFocus)
{
    const HWND window = m_hWnd;
    CEdit::OnKillFocus(newFocus);
    // The parent hears of it from the platform, and may have destroyed this object.
    if (::IsWindow(window) && slIsLeft(window) && tellCheckedM()) {
        postToParentM(WM_KILLFOCUS);
    }
}
