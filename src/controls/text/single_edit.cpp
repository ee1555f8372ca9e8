#include "controls/text/single_edit.h"
#include "baselib/gbk.h"
#include "controls/base/styles.h"
#include "controls/text/single_edit_record.h"

template class PANELKIT_API Arr<DuSingleEditCL>;

BEGIN_MESSAGE_MAP(DuSingleEditCL, CEdit)
ON_WM_CREATE()
ON_WM_CHAR()
ON_WM_KILLFOCUS()
ON_WM_SETFOCUS()
ON_WM_CTLCOLOR_REFLECT()
ON_MESSAGE(CheckValueMsg, &DuSingleEditCL::onCheckValM)
END_MESSAGE_MAP()

int DVrSingleEditCL::InitSingleEditM(DuSingleEditCL* control) const
{
    if (InitCommonCtrlM(control) == 0) {
        return 0;
    }
    control->SetAlignModeM(alignMode_);
    control->SetDataTypeM(dataType_, decimals_);
    control->SetRangeM(range_);
    const bool isNoText = dataType_ == TextType && slIsNullWord(initial_.text) != 0;
    control->SetInitValM(isNoText ? simpleValD() : initial_);
    control->SetPasswordM(password_);
    control->SetEdgeM(edge_);
    control->SetReadOnlyM(readOnly_);
    return 1; // The colour is for applications to apply; the control stays white.
}

void DuSingleEditCL::DelItemM()
{
    ControlCL::DelItemM();
    background_.DeleteBrushM();
}

BOOL DuSingleEditCL::PreCreateWindow(CREATESTRUCT& create)
{
    create.style |= WS_CHILD | WS_VISIBLE | WS_GROUP | WS_TABSTOP | ES_AUTOHSCROLL;
    slSetEdge(create, edge_);
    slSetReadOnly(create, readOnly_);
    slSetAlignment(create, alignMode_);
    if (password_ == 1) {
        create.style |= ES_PASSWORD;
    }
    return CEdit::PreCreateWindow(create);
}

int DuSingleEditCL::SetDataTypeM(int type, int decimals)
{
    value_.SetTypeM(type, decimals);
    return 1;
}

int DuSingleEditCL::GetCurValM(simpleValD* value)
{
    const CheckCode code = checkValueM();
    if (code == ValidValue && value != nullptr) {
        value_.GetValueM(value);
    }
    return code;
}

int DuSingleEditCL::SetCurValM(simpleValD value)
{
    value_.SetValueM(value);
    return DispEditM();
}

int DuSingleEditCL::GetValueM(int* value)
{
    const bool isValid = value != nullptr && checkValueM() == ValidValue;
    if (isValid) {
        *value = value_.IntM();
    }
    return isValid ? 1 : 0;
}

int DuSingleEditCL::GetValueM(float* value)
{
    const bool isValid = value != nullptr && checkValueM() == ValidValue;
    if (isValid) {
        *value = value_.RealM();
    }
    return isValid ? 1 : 0;
}

int DuSingleEditCL::GetValueM(char* text)
{
    const bool isValid = text != nullptr && checkValueM() == ValidValue;
    if (isValid) {
        slCopyText(text, TextSize, value_.TextM());
    }
    return isValid ? 1 : 0;
}

int DuSingleEditCL::SetValueM(int value)
{
    value_.SetIntM(value);
    DispEditM();
    return 1;
}

int DuSingleEditCL::SetValueM(float value)
{
    value_.SetRealM(value);
    DispEditM();
    return 1;
}

int DuSingleEditCL::SetValueM(const char* text)
{
    if (text == nullptr) {
        return 0;
    }
    value_.SetTextM(text);
    DispEditM();
    return 1;
}

ControlValueCL DuSingleEditCL::ReadValueM() const
{
    if (m_hWnd == nullptr) {
        return {};
    }
    char text[TextSize];
    GetWindowText(text, TextSize);
    return value_.ReadAsM(text);
}

bool DuSingleEditCL::WriteValueM(const ControlValueCL& value)
{
    return m_hWnd != nullptr && value_.TakeM(value) && DispEditM() == 1;
}

int DuSingleEditCL::DispEditM()
{
    char text[TextSize];
    const int result = value_.ShowM(text, TextSize);
    if (result == 1 && m_hWnd != nullptr) {
        SetWindowText(text);
    }
    return result;
}

// Reads the window's text into the value. Without a window nothing can be read.
CheckCode DuSingleEditCL::checkValueM()
{
    if (m_hWnd == nullptr) {
        return Unreadable;
    }
    char text[TextSize];
    GetWindowText(text, TextSize);
    return value_.ReadM(text);
}

// What the user is told on leaving; the messages that name the type are those of the check request.
MessageTextId DuSingleEditCL::leftMessageM(CheckCode code) const
{
    if (code == Unreadable) {
        return BadValueMessage;
    }
    return value_.GetTypeM() == TextType ? TextTooLongMessage
        : code == BelowMinimum           ? NumberTooSmallMessage
                                         : NumberTooLargeMessage;
}

bool DuSingleEditCL::tellM(MessageTextId message)
{
    return slTellRefusal(this, refusal_, { SingleEditCaption, MB_OK, false }, value_.MessageM(message));
}

int DuSingleEditCL::OnCreate(LPCREATESTRUCT create)
{
    const int result = CEdit::OnCreate(create);
    if (result != -1) {
        DispEditM();
    }
    return result;
}

void DuSingleEditCL::OnChar(UINT character, UINT repeat, UINT flags)
{
    if (value_.AcceptsM(character)) {
        CEdit::OnChar(character, repeat, flags);
    }
}

void DuSingleEditCL::OnSetFocus(CWnd* oldFocus)
{
    CEdit::OnSetFocus(oldFocus); // No report: unlike other controls.
}

void DuSingleEditCL::OnKillFocus(CWnd* newFocus)
{
    const HWND window = m_hWnd;
    CEdit::OnKillFocus(newFocus);
    // The parent hears of it from the platform, and may have destroyed this object; so below.
    if (!::IsWindow(window) || !slIsLeft(window)) {
        return;
    }
    const CheckCode code = checkValueM();
    if (code == ValidValue) {
        postToParentM(ValueReportMsg, 0);
        return;
    }
    if (code != Unreadable) {
        value_.ForceM(code);
        DispEditM();
    }
    if (::IsWindow(window) && tellM(leftMessageM(code))) {
        const ValidationPauseCL reporting(::GetParent(m_hWnd));
        sendToParentM(ValueReportMsg, -1);
    }
}

LRESULT DuSingleEditCL::onCheckValM(WPARAM, LPARAM)
{
    const CheckCode code = checkValueM();
    if (code != ValidValue) {
        tellM(value_.FaultM(code));
    }
    return 0;
}
