#include "controls/buttons/standard_button.h"
#include "controls/buttons/standard_button_record.h"

template class PANELKIT_API Arr<DuStandardButtonCL>;

BEGIN_MESSAGE_MAP(DuStandardButtonCL, CButton)
ON_WM_SETFOCUS()
ON_CONTROL_REFLECT(BN_CLICKED, &DuStandardButtonCL::onClickedM)
END_MESSAGE_MAP()

int DVrStandardButtonCL::InitStandardButtonM(DuStandardButtonCL* control) const
{
    if (InitCommonCtrlM(control) == 0) {
        return 0;
    }
    control->SetDefaultM(default_);
    control->SetTextM(text_.TextM());
    return 1;
}

int DuStandardButtonCL::Create(CWnd* parent)
{
    const int result = CaptionedCL::Create(parent);
    if (result == 1 && default_ == 1) {
        answerEnterM(::GetParent(m_hWnd)); // The application may have deleted the object of the parent.
    }
    return result;
}

// The style alone makes a default button of a template only: a dialog sends Enter to the id that it knows,
// at first that of an OK button.
void DuStandardButtonCL::answerEnterM(HWND dialog) const
{
    if (::GetClassLongPtrW(dialog, GCW_ATOM) != reinterpret_cast<ULONG_PTR>(WC_DIALOG)) {
        return; // To any other window the messages mean something else.
    }
    const int known = LOWORD(::SendMessageW(dialog, DM_GETDEFID, 0, 0));
    const HWND old = ::GetDlgItem(dialog, known);
    if (old == nullptr || (::SendMessageW(old, WM_GETDLGCODE, 0, 0) & DLGC_DEFPUSHBUTTON) == 0) {
        ::SendMessageW(dialog, DM_SETDEFID, static_cast<WPARAM>(GetFunctionIDM()), 0);
    }
}

BOOL DuStandardButtonCL::PreCreateWindow(CREATESTRUCT& create)
{
    create.style |= WS_CHILD | WS_VISIBLE | WS_TABSTOP;
    create.style |= default_ == 1 ? BS_DEFPUSHBUTTON : BS_PUSHBUTTON;
    return CButton::PreCreateWindow(create);
}
