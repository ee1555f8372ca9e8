#pragma once
#include "baselib/gbk.h"
#include "toolkit/wide_text.h"
#include "toolkit/wnd.h"

// How the classes of controls speak to their windows. Each text goes to the window as UTF-16: of two members
// of one name the one for GBK hands its text, made wide, to the other. A null text counts as empty.

// A number that may be negative, as a message parameter.
inline WPARAM AfxWordOf(int value)
{
    return static_cast<WPARAM>(static_cast<INT_PTR>(value));
}

// As a message parameter. The text must outlive the message.
inline LPARAM AfxTextOf(LPCWSTR text)
{
    return reinterpret_cast<LPARAM>(text == nullptr ? L"" : text);
}

// -1 without a window, so that a caller's loop over items ends.
inline int AfxSendInt(const CWnd& control, UINT message, int wParam = 0, LPARAM lParam = 0)
{
    return control.m_hWnd != nullptr
        ? static_cast<int>(control.SendMessage(message, AfxWordOf(wParam), lParam))
        : -1;
}

// For messages that take or give something of the system by its handle.
template <class HandleTP>
HandleTP AfxSendHandle(const CWnd& control, UINT message, WPARAM wParam = 0, HandleTP handle = nullptr)
{
    return reinterpret_cast<HandleTP>(control.SendMessage(message, wParam, reinterpret_cast<LPARAM>(handle)));
}
