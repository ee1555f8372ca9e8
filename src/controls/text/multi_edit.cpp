#include "controls/text/multi_edit.h"
#include "controls/base/styles.h"
#include "controls/base/window_text.h"
#include "controls/text/multi_edit_record.h"
#include <cstring>

template class PANELKIT_API Arr<DuMultiEditCL>;

BEGIN_MESSAGE_MAP(DuMultiEditCL, CEdit)
ON_CONTROL_REFLECT(EN_CHANGE, &DuMultiEditCL::OnChange)
ON_WM_SETFOCUS()
ON_WM_CTLCOLOR_REFLECT()
END_MESSAGE_MAP()

int DVrMultiEditCL::InitMultiEditM(DuMultiEditCL* control) const
{
    if (InitCommonCtrlM(control) == 0) {
        return 0;
    }
    control->SetAlignModeM(alignMode_);
    control->SetMaxNumM(maxNum_); // Before the text, which is dropped whole if it is not shorter.
    control->SetInitTextM(text_.TextM());
    control->SetReadOnlyM(readOnly_);
    control->SetEdgeM(edge_);
    control->SetBkColorM(bkColour_);
    return 1;
}

int DuMultiEditCL::Create(CWnd* parent)
{
    const int result = createM(parent);
    if (result == 1) {
        SetWindowText(text_.TextM());
    }
    return result;
}

void DuMultiEditCL::DelItemM()
{
    ControlCL::DelItemM();
    background_.DeleteBrushM();
}

BOOL DuMultiEditCL::PreCreateWindow(CREATESTRUCT& create)
{
    create.style |= WS_CHILD | WS_VISIBLE | WS_VSCROLL | WS_TABSTOP | ES_WANTRETURN | ES_MULTILINE;
    slSetEdge(create, edge_);
    slSetReadOnly(create, readOnly_);
    slSetAlignment(create, alignMode_);
    return CEdit::PreCreateWindow(create);
}

int DuMultiEditCL::SetMaxNumM(int bytes)
{
    if (bytes < 1) {
        return 0;
    }
    maxNum_ = bytes;
    return 1;
}

int DuMultiEditCL::storeM(const char* text, size_t atLeast)
{
    const size_t length = text == nullptr ? 0 : std::strlen(text);
    if (text == nullptr || length < atLeast || length >= static_cast<size_t>(maxNum_)) {
        return 0;
    }
    return text_.SetM(text);
}

int DuMultiEditCL::SetTextM(const char* text)
{
    const int stored = storeM(text, 0);
    if (stored == 1 && m_hWnd != nullptr) {
        SetWindowText(text_.TextM());
    }
    return stored;
}

ControlValueCL DuMultiEditCL::ReadValueM() const
{
    ControlValueCL value;
    if (m_hWnd != nullptr && !originals_.EmptyM()) {
        value.text = *originals_.AtM(0);
    } else if (m_hWnd != nullptr) {
        value.text = slTextOfWindow(m_hWnd);
    }
    return value;
}

bool DuMultiEditCL::WriteValueM(const ControlValueCL& value)
{
    if (m_hWnd == nullptr || !value.IsOfM(TextPart)
        || value.text->GbkM().size() >= static_cast<size_t>(maxNum_)) {
        return false;
    }
    return ::SetWindowTextW(m_hWnd, value.text->WideM().c_str()) != FALSE;
}

int DuMultiEditCL::GetTextM(char* text) const
{
    if (text == nullptr) {
        return 0;
    }
    std::strcpy(text, text_.TextM());
    return 1;
}

LRESULT DuMultiEditCL::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    const HWND window = m_hWnd;
    const LRESULT result = ControlCL::WindowProc(message, wParam, lParam);
    // The platform reports every change of a multi-line window but a whole new text.
    const bool isNewText = message == WM_SETTEXT || message == EM_SETHANDLE;
    if (isNewText && CWnd::FromHandlePermanent(window) == this) {
        OnChange();
    }
    return result;
}

void DuMultiEditCL::TranslateM(const TranslatorTP& translate)
{
    const ValueTextCL original = text_.TextM();
    const ValueTextCL shown = m_hWnd != nullptr && readOnly_ == 1 ? translate(original) : nullptr;
    if (!shown.IsNoneM()) {
        ::SetWindowTextW(m_hWnd, shown.WideM().c_str());
        text_.SetM(original.GbkM().c_str());
        originals_.PutM(0, original);
    }
}

void DuMultiEditCL::OnChange()
{
    originals_.ClearM();
    CString text;
    GetWindowText(text);
    text_.SetM(text);
}
