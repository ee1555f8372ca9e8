#include "controls/text/spin_button.h"
#include "controls/base/leaving.h"
#include "controls/base/messages.h"

BEGIN_MESSAGE_MAP(DuSpinButtonCL, CSpinButtonCtrl)
ON_WM_SETFOCUS()
ON_WM_LBUTTONDOWN()
ON_WM_LBUTTONDBLCLK()
ON_NOTIFY_REFLECT(UDN_DELTAPOS, &DuSpinButtonCL::OnDeltapos)
END_MESSAGE_MAP()

DuSpinButtonCL& DuSpinButtonCL::operator=(const DuSpinButtonCL& other)
{
    if (this != &other) {
        DestroyWindow();
        DControlCommonCL::operator=(other);
        InitialCommonM(nullptr);
    }
    return *this;
}

int DuSpinButtonCL::Create(const RECT& rect, CWnd* parent)
{
    const BOOL created = CSpinButtonCtrl::Create(0, rect, parent, static_cast<UINT>(GetFunctionIDM()));
    if (created) {
        InitialCommonM(this);
    }
    return created;
}

BOOL DuSpinButtonCL::PreCreateWindow(CREATESTRUCT& create)
{
    create.style |= WS_CHILD | WS_VISIBLE | UDS_ALIGNRIGHT | UDS_ARROWKEYS;
    return CSpinButtonCtrl::PreCreateWindow(create);
}

void DuSpinButtonCL::OnSetFocus(CWnd* oldFocus)
{
    CSpinButtonCtrl::OnSetFocus(oldFocus);
    if (slIsEntered(m_hWnd)) {
        ::PostMessageW(::GetParent(m_hWnd), FocusGainedMsg, static_cast<WPARAM>(GetFunctionIDM()), 0);
    }
}

// The platform gives the edit the focus at a press. A field with a bad value keeps it instead: the message
// took the release of the mouse, and the arrow would step on and on.
bool DuSpinButtonCL::reachesEditM()
{
    const HWND window = m_hWnd;
    const auto edit = reinterpret_cast<HWND>(SendMessage(UDM_GETBUDDY));
    const HWND before = ::GetFocus();
    if (before == edit || before == nullptr || !::IsWindowEnabled(edit)) {
        return true;
    }
    ::SetFocus(edit);
    return ::IsWindow(window) && ::GetFocus() != before;
}

void DuSpinButtonCL::OnLButtonDown(UINT flags, CPoint point)
{
    if (reachesEditM()) {
        CSpinButtonCtrl::OnLButtonDown(flags, point);
    }
}

void DuSpinButtonCL::OnLButtonDblClk(UINT flags, CPoint point)
{
    if (reachesEditM()) {
        CSpinButtonCtrl::OnLButtonDblClk(flags, point);
    }
}

void DuSpinButtonCL::OnDeltapos(NMHDR* notification, LRESULT* result)
{
    *result = 0;
    const int delta = reinterpret_cast<const NMUPDOWN*>(notification)->iDelta;
    ::SendMessageW(reinterpret_cast<HWND>(SendMessage(UDM_GETBUDDY)), SpinClickMsg,
        static_cast<WPARAM>(static_cast<INT_PTR>(delta)), 0);
}
