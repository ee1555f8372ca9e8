#include "toolkit/date_time_ctrl.h"

IMPLEMENT_DYNAMIC(CDateTimeCtrl, CWnd)

BOOL CDateTimeCtrl::Create(DWORD style, const RECT& rect, CWnd* parent, UINT id)
{
    NeedCommonControls();
    return CWnd::Create("SysDateTimePick32", nullptr, style, rect, parent, id);
}

DWORD CDateTimeCtrl::GetTime(LPSYSTEMTIME time) const
{
    return static_cast<DWORD>(SendMessage(DTM_GETSYSTEMTIME, 0, reinterpret_cast<LPARAM>(time)));
}

BOOL CDateTimeCtrl::SetTime(LPSYSTEMTIME time)
{
    SYSTEMTIME none = {}; // Some versions want one even where it doesn't count.
    const WPARAM kind = time == nullptr ? GDT_NONE : GDT_VALID;
    return SendMessage(DTM_SETSYSTEMTIME, kind, reinterpret_cast<LPARAM>(time == nullptr ? &none : time))
        != 0;
}

BOOL CDateTimeCtrl::SetFormat(LPCSTR format)
{
    const std::wstring wide = slGbkToShown(format);
    return SetFormat(format == nullptr ? static_cast<LPCWSTR>(nullptr) : wide.c_str());
}

DWORD CDateTimeCtrl::GetRange(LPSYSTEMTIME ends) const
{
    return static_cast<DWORD>(SendMessage(DTM_GETRANGE, 0, reinterpret_cast<LPARAM>(ends)));
}

BOOL CDateTimeCtrl::SetRange(DWORD which, LPSYSTEMTIME ends)
{
    return SendMessage(DTM_SETRANGE, which, reinterpret_cast<LPARAM>(ends)) != 0;
}
