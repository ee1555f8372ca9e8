#pragma once
#include "toolkit/common_control.h"

// A bar that fills while work goes on.
class PANELKIT_API CProgressCtrl : public CWnd
{
    DECLARE_DYNAMIC(CProgressCtrl)
public:
    BOOL Create(DWORD style, const RECT& rect, CWnd* parent, UINT id);
    // From low to high.
    void SetRange(short low, short high) { SetRange32(low, high); }
    void SetRange32(int low, int high) { SendMessage(PBM_SETRANGE32, AfxWordOf(low), high); }
    void GetRange(int& low, int& high) const;
    // Results of the setters: what was before.
    int GetPos() const { return static_cast<int>(SendMessage(PBM_GETPOS)); }
    int SetPos(int at) { return static_cast<int>(SendMessage(PBM_SETPOS, AfxWordOf(at))); }
    int OffsetPos(int by) { return static_cast<int>(SendMessage(PBM_DELTAPOS, AfxWordOf(by))); }
    int SetStep(int step)
    {
        return static_cast<int>(SendMessage(PBM_SETSTEP, AfxWordOf(step)));
    } // 10 at first
    int GetStep() const { return static_cast<int>(SendMessage(PBM_GETSTEP)); }
    int StepIt() { return static_cast<int>(SendMessage(PBM_STEPIT)); } // past the end: from the beginning
    COLORREF SetBkColor(COLORREF color)
    {
        return static_cast<COLORREF>(SendMessage(PBM_SETBKCOLOR, 0, color));
    }
    COLORREF GetBkColor() const { return static_cast<COLORREF>(SendMessage(PBM_GETBKCOLOR)); }
    COLORREF SetBarColor(COLORREF color)
    {
        return static_cast<COLORREF>(SendMessage(PBM_SETBARCOLOR, 0, color));
    }
    COLORREF GetBarColor() const { return static_cast<COLORREF>(SendMessage(PBM_GETBARCOLOR)); }
    // With PBS_MARQUEE: moves a piece of the bar, a step in so many milliseconds.
    BOOL SetMarquee(BOOL on, int interval)
    {
        return SendMessage(PBM_SETMARQUEE, AfxWordOf(on), interval) != 0;
    }
};
