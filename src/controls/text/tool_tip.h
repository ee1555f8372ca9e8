#pragma once
#include "toolkit/toolkit.h"

// A small window that shows one line of help over a rectangle and closes itself 1.5 seconds after it was last
// asked to, or when clicked; it never takes the focus. The object outlives its windows. Texts are GBK.
class PANELKIT_API uToolTipCtrl : public CWnd
{
public:
    // Registers the window class, once in the process, before the first ShowHelpM. 1 if it is there, else 0.
    int InitialM();
    // Shows the text over the rectangle in screen coordinates; the owner may be null and is not kept alive.
    // While the text and the owner stay the same, so does the place. 1, or 0 without a text or when no window
    // can be created.
    int ShowHelpM(CWnd* owner, const CRect& rect, const char* text);
    // Takes over the context's font as a Chinese one. Painting doesn't use it.
    void initFontM(CDC* dc);
    // That font; the control keeps it.
    const LOGFONTA& GetFontM() const { return font_; }
    CWnd* GetOwner() const { return FromHandle(ownerWindow_); } // The one it was created for; may be null.

protected:
    afx_msg void OnTimer(UINT_PTR id);
    afx_msg void OnPaint();
    afx_msg void OnLButtonDown(UINT flags, CPoint at);
    afx_msg int OnMouseActivate(CWnd* top, UINT hit, UINT message);
    DECLARE_MESSAGE_MAP()

private:
    LOGFONTA font_ {};
    CWnd* owner_ { nullptr };
    CString text_;
    unsigned shownAt_ { 0 }; // The system's tick count, which wraps around.
    HWND ownerWindow_ { nullptr };
};
