#include "toolkit/hot_key_ctrl.h"

IMPLEMENT_DYNAMIC(CHotKeyCtrl, CWnd)

BOOL CHotKeyCtrl::Create(DWORD style, const RECT& rect, CWnd* parent, UINT id)
{
    NeedCommonControls();
    return CWnd::Create("msctls_hotkey32", nullptr, style, rect, parent, id);
}

void CHotKeyCtrl::GetHotKey(WORD& key, WORD& modifiers) const
{
    const DWORD packed = GetHotKey();
    key = LOBYTE(packed);
    modifiers = HIBYTE(packed);
}
