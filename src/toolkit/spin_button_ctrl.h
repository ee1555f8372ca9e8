#pragma once
#include "toolkit/common_control.h"

// A pair of arrows, alone or beside the field (its buddy) whose number it changes.
class PANELKIT_API CSpinButtonCtrl : public CWnd
{
    DECLARE_DYNAMIC(CSpinButtonCtrl)
public:
    BOOL Create(DWORD style, const RECT& rect, CWnd* parent, UINT id);
    CWnd* SetBuddy(CWnd* buddy); // result: the buddy before
    CWnd* GetBuddy() const { return CWnd::FromHandle(reinterpret_cast<HWND>(SendMessage(UDM_GETBUDDY))); }
    void SetRange(short low, short high) { SendMessage(UDM_SETRANGE, 0, MAKELPARAM(high, low)); }
    void SetRange32(int low, int high) { SendMessage(UDM_SETRANGE32, static_cast<WPARAM>(low), high); }

    // From where to where it goes.
    void GetRange(int& low, int& high) const { GetRange32(low, high); }
    void GetRange32(int& low, int& high) const;
    DWORD GetRange() const
    {
        return static_cast<DWORD>(SendMessage(UDM_GETRANGE));
    } // low word: the upper end
    // Results of the setters: the position before.
    int SetPos(int at) { return static_cast<short>(SendMessage(UDM_SETPOS, 0, MAKELPARAM(at, 0))); }
    int GetPos() const { return static_cast<short>(LOWORD(SendMessage(UDM_GETPOS))); }
    int SetPos32(int at) { return static_cast<int>(SendMessage(UDM_SETPOS32, 0, at)); }
    int GetPos32(LPBOOL isWrong = nullptr) const; // wrong: the buddy shows no number of the range
    int SetBase(int base) { return static_cast<int>(SendMessage(UDM_SETBASE, AfxWordOf(base))); } // 10 or 16
    UINT GetBase() const { return static_cast<UINT>(SendMessage(UDM_GETBASE)); }
    BOOL SetAccel(int count, UDACCEL* steps);
    UINT GetAccel(int most, UDACCEL* steps) const; // result: how many there are
};
