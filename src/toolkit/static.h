#pragma once
#include "toolkit/control_message.h"

// A text or a picture. The setters give the picture before, which stays the caller's as the new one does.
class PANELKIT_API CStatic : public CWnd
{
    DECLARE_DYNAMIC(CStatic)
public:
    BOOL Create(LPCSTR text, DWORD style, const RECT& rect, CWnd* parent, UINT id = 0xFFFF);
    AFX_WIDE_TEXT BOOL Create(
        const WideTP* text, DWORD style, const RECT& rect, CWnd* parent, UINT id = 0xFFFF)
    {
        return CWnd::Create("Static", text, style, rect, parent, id);
    }
    HBITMAP SetBitmap(HBITMAP bitmap) { return AfxSendHandle(*this, STM_SETIMAGE, IMAGE_BITMAP, bitmap); }
    HBITMAP GetBitmap() const { return AfxSendHandle<HBITMAP>(*this, STM_GETIMAGE, IMAGE_BITMAP); }
    HICON SetIcon(HICON icon) { return AfxSendHandle(*this, STM_SETIMAGE, IMAGE_ICON, icon); }
    HICON GetIcon() const { return AfxSendHandle<HICON>(*this, STM_GETIMAGE, IMAGE_ICON); }
    HCURSOR SetCursor(HCURSOR cursor) { return AfxSendHandle(*this, STM_SETIMAGE, IMAGE_CURSOR, cursor); }
    HCURSOR GetCursor() const { return AfxSendHandle<HCURSOR>(*this, STM_GETIMAGE, IMAGE_CURSOR); }
    HENHMETAFILE SetEnhMetaFile(HENHMETAFILE file)
    {
        return AfxSendHandle(*this, STM_SETIMAGE, IMAGE_ENHMETAFILE, file);
    }
    HENHMETAFILE GetEnhMetaFile() const
    {
        return AfxSendHandle<HENHMETAFILE>(*this, STM_GETIMAGE, IMAGE_ENHMETAFILE);
    }

    virtual void DrawItem(LPDRAWITEMSTRUCT) { } // of SS_OWNERDRAW

protected:
    BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result) override;
};
