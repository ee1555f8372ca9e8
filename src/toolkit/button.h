#pragma once
#include "toolkit/control_message.h"

// Push buttons, check boxes, radio buttons and group boxes. The setters of pictures give the one before,
// which stays the caller's as the new one does.
class PANELKIT_API CButton : public CWnd
{
    DECLARE_DYNAMIC(CButton)
public:
    BOOL Create(LPCSTR caption, DWORD style, const RECT& rect, CWnd* parent, UINT id);
    AFX_WIDE_TEXT BOOL Create(const WideTP* caption, DWORD style, const RECT& rect, CWnd* parent, UINT id)
    {
        return CWnd::Create("Button", caption, style, rect, parent, id);
    }
    void SetCheck(int check) { SendMessage(BM_SETCHECK, AfxWordOf(check)); }
    int GetCheck() const { return static_cast<int>(SendMessage(BM_GETCHECK)); }
    void SetState(BOOL pressed) { SendMessage(BM_SETSTATE, AfxWordOf(pressed)); }
    UINT GetState() const { return static_cast<UINT>(SendMessage(BM_GETSTATE)); }
    void SetButtonStyle(UINT style, BOOL redraw = TRUE) { SendMessage(BM_SETSTYLE, style, redraw); }

    // The BS_ part of the window style.
    UINT GetButtonStyle() const { return GetStyle() & 0xFFFF; }
    HBITMAP SetBitmap(HBITMAP bitmap) { return AfxSendHandle(*this, BM_SETIMAGE, IMAGE_BITMAP, bitmap); }
    HBITMAP GetBitmap() const { return AfxSendHandle<HBITMAP>(*this, BM_GETIMAGE, IMAGE_BITMAP); }
    HICON SetIcon(HICON icon) { return AfxSendHandle(*this, BM_SETIMAGE, IMAGE_ICON, icon); }
    HICON GetIcon() const { return AfxSendHandle<HICON>(*this, BM_GETIMAGE, IMAGE_ICON); }
    HCURSOR SetCursor(HCURSOR cursor) { return AfxSendHandle(*this, BM_SETIMAGE, IMAGE_CURSOR, cursor); }
    HCURSOR GetCursor() const { return AfxSendHandle<HCURSOR>(*this, BM_GETIMAGE, IMAGE_CURSOR); }

    virtual void DrawItem(LPDRAWITEMSTRUCT) { } // of BS_OWNERDRAW

protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result) override;
};
