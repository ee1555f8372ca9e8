#include "toolkit/spin_button_ctrl.h"

IMPLEMENT_DYNAMIC(CSpinButtonCtrl, CWnd)

BOOL CSpinButtonCtrl::Create(DWORD style, const RECT& rect, CWnd* parent, UINT id)
{
    NeedCommonControls();
    return CWnd::Create("msctls_updown32", nullptr, style, rect, parent, id);
}

CWnd* CSpinButtonCtrl::SetBuddy(CWnd* buddy)
{
    HWND handle = buddy == nullptr ? nullptr : buddy->m_hWnd;
    return CWnd::FromHandle(
        reinterpret_cast<HWND>(SendMessage(UDM_SETBUDDY, reinterpret_cast<WPARAM>(handle))));
}

void CSpinButtonCtrl::GetRange32(int& low, int& high) const
{
    SendMessage(UDM_GETRANGE32, reinterpret_cast<WPARAM>(&low), reinterpret_cast<LPARAM>(&high));
}

int CSpinButtonCtrl::GetPos32(LPBOOL isWrong) const
{
    return static_cast<int>(SendMessage(UDM_GETPOS32, 0, reinterpret_cast<LPARAM>(isWrong)));
}

BOOL CSpinButtonCtrl::SetAccel(int count, UDACCEL* steps)
{
    return SendMessage(UDM_SETACCEL, static_cast<WPARAM>(count), reinterpret_cast<LPARAM>(steps)) != 0;
}

UINT CSpinButtonCtrl::GetAccel(int most, UDACCEL* steps) const
{
    return static_cast<UINT>(SendMessage(UDM_GETACCEL, AfxWordOf(most), reinterpret_cast<LPARAM>(steps)));
}
