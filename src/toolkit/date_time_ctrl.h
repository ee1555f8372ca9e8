#pragma once
#include "toolkit/common_control.h"

// A date or a time that the user picks.
class PANELKIT_API CDateTimeCtrl : public CWnd
{
    DECLARE_DYNAMIC(CDateTimeCtrl)
public:
    BOOL Create(DWORD style, const RECT& rect, CWnd* parent, UINT id);
    DWORD GetTime(LPSYSTEMTIME time) const;    // GDT_VALID, or GDT_NONE: the field is unchecked
    BOOL SetTime(LPSYSTEMTIME time = nullptr); // null: unchecks the field (DTS_SHOWNONE)
    BOOL SetFormat(LPCSTR format);             // null: the platform's own
    AFX_WIDE_TEXT BOOL SetFormat(const WideTP* format)
    {
        return SendMessage(DTM_SETFORMATW, 0, reinterpret_cast<LPARAM>(format)) != 0;
    }
    // Both ends: two dates; GDTR_MIN and GDTR_MAX say which of them there are.
    DWORD GetRange(LPSYSTEMTIME ends) const;
    BOOL SetRange(DWORD which, LPSYSTEMTIME ends);
    COLORREF GetMonthCalColor(int which) const
    {
        return static_cast<COLORREF>(SendMessage(DTM_GETMCCOLOR, AfxWordOf(which)));
    }
    COLORREF SetMonthCalColor(int which, COLORREF color)
    {
        return static_cast<COLORREF>(SendMessage(DTM_SETMCCOLOR, AfxWordOf(which), color));
    }
};
