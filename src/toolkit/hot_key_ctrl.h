#pragma once
#include "toolkit/common_control.h"

// A field for a combination of keys: a virtual key code with HOTKEYF_ modifiers.
class PANELKIT_API CHotKeyCtrl : public CWnd
{
    DECLARE_DYNAMIC(CHotKeyCtrl)
public:
    BOOL Create(DWORD style, const RECT& rect, CWnd* parent, UINT id);
    void SetHotKey(WORD key, WORD modifiers) { SendMessage(HKM_SETHOTKEY, MAKEWORD(key, modifiers)); }
    DWORD GetHotKey() const { return static_cast<DWORD>(SendMessage(HKM_GETHOTKEY)); } // low byte: the key
    void GetHotKey(WORD& key, WORD& modifiers) const;
    // Which combinations (HKCOMB_) are refused, and the modifiers that stand in for those.
    void SetRules(WORD refused, WORD modifiers)
    {
        SendMessage(HKM_SETRULES, refused, MAKELPARAM(modifiers, 0));
    }
};
