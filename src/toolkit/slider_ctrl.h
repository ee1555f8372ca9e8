#pragma once
#include "toolkit/common_control.h"
#include "toolkit/control_objects.h"

// A thumb to move along a channel with marks (tics).
class PANELKIT_API CSliderCtrl : public CWnd
{
    DECLARE_DYNAMIC(CSliderCtrl)
public:
    BOOL Create(DWORD style, const RECT& rect, CWnd* parent, UINT id);
    int GetPos() const { return sentM(TBM_GETPOS); }
    void SetPos(int at) { SendMessage(TBM_SETPOS, TRUE, at); }
    int GetRangeMin() const { return sentM(TBM_GETRANGEMIN); }
    int GetRangeMax() const { return sentM(TBM_GETRANGEMAX); }

    // From where to where it goes.
    void GetRange(int& low, int& high) const;
    void SetRangeMin(int low, BOOL redraw = FALSE) { SendMessage(TBM_SETRANGEMIN, AfxWordOf(redraw), low); }
    void SetRangeMax(int high, BOOL redraw = FALSE) { SendMessage(TBM_SETRANGEMAX, AfxWordOf(redraw), high); }

    // The same; redraw: at once.
    void SetRange(int low, int high, BOOL redraw = FALSE);
    void VerifyPos() { SetPos(GetPos()); } // within the range again
    // What an arrow key and a page key move. Results of the setters: what was before.
    int GetLineSize() const { return sentM(TBM_GETLINESIZE); }
    int SetLineSize(int size) { return sentM(TBM_SETLINESIZE, 0, size); }
    int GetPageSize() const { return sentM(TBM_GETPAGESIZE); }
    int SetPageSize(int size) { return sentM(TBM_SETPAGESIZE, 0, size); }

    // With TBS_ENABLESELRANGE.
    void GetSelection(int& first, int& end) const;
    void SetSelection(int first, int end);
    void ClearSel(BOOL redraw = FALSE) { SendMessage(TBM_CLEARSEL, AfxWordOf(redraw)); }

    UINT GetNumTics() const { return static_cast<UINT>(SendMessage(TBM_GETNUMTICS)); }
    DWORD* GetTicArray() const { return reinterpret_cast<DWORD*>(SendMessage(TBM_GETPTICS)); } // the window's
    int GetTic(int index) const { return sentM(TBM_GETTIC, index); }       // -1: no such mark
    int GetTicPos(int index) const { return sentM(TBM_GETTICPOS, index); } // pixel; -1: no such mark
    BOOL SetTic(int at) { return SendMessage(TBM_SETTIC, 0, at) != 0; }
    void SetTicFreq(int every) { SendMessage(TBM_SETTICFREQ, AfxWordOf(every)); } // with TBS_AUTOTICKS
    void ClearTics(BOOL redraw = FALSE) { SendMessage(TBM_CLEARTICS, AfxWordOf(redraw)); }

    void GetChannelRect(LPRECT rect) const
    {
        SendMessage(TBM_GETCHANNELRECT, 0, reinterpret_cast<LPARAM>(rect));
    }
    void GetThumbRect(LPRECT rect) const { SendMessage(TBM_GETTHUMBRECT, 0, reinterpret_cast<LPARAM>(rect)); }
    int GetThumbLength() const { return sentM(TBM_GETTHUMBLENGTH); }
    void SetThumbLength(int length) { SendMessage(TBM_SETTHUMBLENGTH, AfxWordOf(length)); } // TBS_FIXEDLENGTH
    CWnd* GetBuddy(BOOL before = TRUE) const; // the window left of it or above; else right of it or below
    CWnd* SetBuddy(CWnd* buddy, BOOL before = TRUE); // result: the buddy there before
    CToolTipCtrl* GetToolTips() const { return AfxToolTipsOf(AfxSendHandle<HWND>(*this, TBM_GETTOOLTIPS)); }
    void SetToolTips(CToolTipCtrl* tips);
    int SetTipSide(int side) { return sentM(TBM_SETTIPSIDE, side); } // TBTS_; result: the one before

private:
    int sentM(UINT message, int wParam = 0, LPARAM lParam = 0) const
    {
        return static_cast<int>(SendMessage(message, AfxWordOf(wParam), lParam));
    }
};
