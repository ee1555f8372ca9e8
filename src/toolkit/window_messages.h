#pragma once

// The map lines of the window messages: each unpacks wParam and lParam once, into the handler's arguments.
#define AFX_WINDOW(message, ...) AFX_ENTRY(message, 0, 0, 0, __VA_ARGS__)
#define AFX_PLAIN(message, handler) AFX_WINDOW(message, self->handler(); return true;)
#define AFX_MOUSE(message, handler)                                                                          \
    AFX_WINDOW(message, self->handler(static_cast<UINT>(m.wParam), CPoint(m.lParam)); return true;)
#define AFX_KEY(message, handler)                                                                            \
    AFX_WINDOW(message,                                                                                      \
               self->handler(static_cast<UINT>(m.wParam), static_cast<UINT>(LOWORD(m.lParam)),               \
                   static_cast<UINT>(HIWORD(m.lParam)));                                                     \
               return true;)
#define AFX_OTHER_WND(value) CWnd::FromHandle(reinterpret_cast<HWND>(value))
#define AFX_SCROLL(message, handler)                                                                         \
    AFX_WINDOW(message,                                                                                      \
               self->handler(static_cast<UINT>(LOWORD(m.wParam)), static_cast<UINT>(HIWORD(m.wParam)),       \
                   static_cast<CScrollBar*>(AFX_OTHER_WND(m.lParam)));                                       \
               return true;)

#define ON_WM_NCCREATE()                                                                                     \
    AFX_WINDOW(WM_NCCREATE, m.result = self->OnNcCreate(reinterpret_cast<LPCREATESTRUCT>(m.lParam));         \
               return true;)
#define ON_WM_CREATE()                                                                                       \
    AFX_WINDOW(WM_CREATE, m.result = self->OnCreate(reinterpret_cast<LPCREATESTRUCT>(m.lParam)); return true;)
#define ON_WM_DESTROY() AFX_PLAIN(WM_DESTROY, OnDestroy)
#define ON_WM_NCDESTROY() AFX_PLAIN(WM_NCDESTROY, OnNcDestroy)
#define ON_WM_CLOSE() AFX_PLAIN(WM_CLOSE, OnClose)
#define ON_WM_PAINT() AFX_PLAIN(WM_PAINT, OnPaint)
#define ON_WM_NCPAINT() AFX_PLAIN(WM_NCPAINT, OnNcPaint)
#define ON_WM_ERASEBKGND()                                                                                   \
    AFX_WINDOW(WM_ERASEBKGND, AfxDcLoan dc(reinterpret_cast<HDC>(m.wParam));                                 \
               m.result = self->OnEraseBkgnd(&dc); return true;)
#define ON_WM_TIMER() AFX_WINDOW(WM_TIMER, self->OnTimer(m.wParam); return true;)
#define ON_WM_MOVE() AFX_WINDOW(WM_MOVE, CPoint at(m.lParam); self->OnMove(at.x, at.y); return true;)
#define ON_WM_SIZE()                                                                                         \
    AFX_WINDOW(WM_SIZE,                                                                                      \
               self->OnSize(static_cast<UINT>(m.wParam), static_cast<int>(LOWORD(m.lParam)),                 \
                   static_cast<int>(HIWORD(m.lParam)));                                                      \
               return true;)
#define ON_WM_WINDOWPOSCHANGING()                                                                            \
    AFX_WINDOW(WM_WINDOWPOSCHANGING, self->OnWindowPosChanging(reinterpret_cast<WINDOWPOS*>(m.lParam));      \
               return true;)
#define ON_WM_WINDOWPOSCHANGED()                                                                             \
    AFX_WINDOW(WM_WINDOWPOSCHANGED, self->OnWindowPosChanged(reinterpret_cast<WINDOWPOS*>(m.lParam));        \
               return true;)
#define ON_WM_GETMINMAXINFO()                                                                                \
    AFX_WINDOW(WM_GETMINMAXINFO, self->OnGetMinMaxInfo(reinterpret_cast<MINMAXINFO*>(m.lParam)); return true;)
#define ON_WM_SHOWWINDOW()                                                                                   \
    AFX_WINDOW(WM_SHOWWINDOW, self->OnShowWindow(static_cast<BOOL>(m.wParam), static_cast<UINT>(m.lParam));  \
               return true;)
#define ON_WM_ENABLE() AFX_WINDOW(WM_ENABLE, self->OnEnable(static_cast<BOOL>(m.wParam)); return true;)
#define ON_WM_ACTIVATE()                                                                                     \
    AFX_WINDOW(WM_ACTIVATE,                                                                                  \
               self->OnActivate(static_cast<UINT>(LOWORD(m.wParam)), AFX_OTHER_WND(m.lParam),                \
                   static_cast<BOOL>(HIWORD(m.wParam)));                                                     \
               return true;)
#define ON_WM_SETFOCUS() AFX_WINDOW(WM_SETFOCUS, self->OnSetFocus(AFX_OTHER_WND(m.wParam)); return true;)
#define ON_WM_KILLFOCUS() AFX_WINDOW(WM_KILLFOCUS, self->OnKillFocus(AFX_OTHER_WND(m.wParam)); return true;)
#define ON_WM_CAPTURECHANGED()                                                                               \
    AFX_WINDOW(WM_CAPTURECHANGED, self->OnCaptureChanged(AFX_OTHER_WND(m.lParam)); return true;)
#define ON_WM_CANCELMODE() AFX_PLAIN(WM_CANCELMODE, OnCancelMode)
#define ON_WM_SETCURSOR()                                                                                    \
    AFX_WINDOW(WM_SETCURSOR,                                                                                 \
               m.result = self->OnSetCursor(AFX_OTHER_WND(m.wParam), static_cast<UINT>(LOWORD(m.lParam)),    \
                   static_cast<UINT>(HIWORD(m.lParam)));                                                     \
               return true;)
#define ON_WM_MOUSEACTIVATE()                                                                                \
    AFX_WINDOW(WM_MOUSEACTIVATE,                                                                             \
               m.result = self->OnMouseActivate(AFX_OTHER_WND(m.wParam),                                     \
                   static_cast<UINT>(LOWORD(m.lParam)), static_cast<UINT>(HIWORD(m.lParam)));                \
               return true;)
#define ON_WM_NCHITTEST()                                                                                    \
    AFX_WINDOW(WM_NCHITTEST, m.result = self->OnNcHitTest(CPoint(m.lParam)); return true;)
#define ON_WM_GETDLGCODE() AFX_WINDOW(WM_GETDLGCODE, m.result = self->OnGetDlgCode(); return true;)
#define ON_WM_CHAR() AFX_KEY(WM_CHAR, OnChar)
#define ON_WM_KEYDOWN() AFX_KEY(WM_KEYDOWN, OnKeyDown)
#define ON_WM_KEYUP() AFX_KEY(WM_KEYUP, OnKeyUp)
#define ON_WM_SYSKEYDOWN() AFX_KEY(WM_SYSKEYDOWN, OnSysKeyDown)
#define ON_WM_SYSKEYUP() AFX_KEY(WM_SYSKEYUP, OnSysKeyUp)
#define ON_WM_SYSCOMMAND()                                                                                   \
    AFX_WINDOW(WM_SYSCOMMAND, self->OnSysCommand(static_cast<UINT>(m.wParam), m.lParam); return true;)
#define ON_WM_MOUSEMOVE() AFX_MOUSE(WM_MOUSEMOVE, OnMouseMove)
#define ON_WM_LBUTTONDOWN() AFX_MOUSE(WM_LBUTTONDOWN, OnLButtonDown)
#define ON_WM_LBUTTONUP() AFX_MOUSE(WM_LBUTTONUP, OnLButtonUp)
#define ON_WM_LBUTTONDBLCLK() AFX_MOUSE(WM_LBUTTONDBLCLK, OnLButtonDblClk)
#define ON_WM_RBUTTONDOWN() AFX_MOUSE(WM_RBUTTONDOWN, OnRButtonDown)
#define ON_WM_RBUTTONUP() AFX_MOUSE(WM_RBUTTONUP, OnRButtonUp)
#define ON_WM_RBUTTONDBLCLK() AFX_MOUSE(WM_RBUTTONDBLCLK, OnRButtonDblClk)
#define ON_WM_MBUTTONDOWN() AFX_MOUSE(WM_MBUTTONDOWN, OnMButtonDown)
#define ON_WM_MBUTTONUP() AFX_MOUSE(WM_MBUTTONUP, OnMButtonUp)
#define ON_WM_MOUSELEAVE() AFX_PLAIN(WM_MOUSELEAVE, OnMouseLeave)
#define ON_WM_MOUSEWHEEL()                                                                                   \
    AFX_WINDOW(WM_MOUSEWHEEL,                                                                                \
               m.result = self->OnMouseWheel(static_cast<UINT>(LOWORD(m.wParam)),                            \
                   static_cast<short>(HIWORD(m.wParam)), CPoint(m.lParam));                                  \
               return true;)
#define ON_WM_CONTEXTMENU()                                                                                  \
    AFX_WINDOW(WM_CONTEXTMENU, self->OnContextMenu(AFX_OTHER_WND(m.wParam), CPoint(m.lParam)); return true;)
#define ON_WM_HSCROLL() AFX_SCROLL(WM_HSCROLL, OnHScroll)
#define ON_WM_VSCROLL() AFX_SCROLL(WM_VSCROLL, OnVScroll)
#define ON_WM_DRAWITEM()                                                                                     \
    AFX_WINDOW(WM_DRAWITEM,                                                                                  \
               self->OnDrawItem(static_cast<int>(m.wParam), reinterpret_cast<LPDRAWITEMSTRUCT>(m.lParam));   \
               m.result = TRUE; return true;)
#define ON_WM_MEASUREITEM()                                                                                  \
    AFX_WINDOW(                                                                                              \
        WM_MEASUREITEM,                                                                                      \
        self->OnMeasureItem(static_cast<int>(m.wParam), reinterpret_cast<LPMEASUREITEMSTRUCT>(m.lParam));    \
        m.result = TRUE; return true;)
#define ON_WM_CTLCOLOR()                                                                                     \
    AFX_WINDOW(WM_CTLCOLOR, AfxDcLoan dc(reinterpret_cast<HDC>(m.wParam));                                   \
               m.result = reinterpret_cast<LRESULT>(self->OnCtlColor(&dc, AFX_OTHER_WND(m.lParam), m.id));   \
               return true;)
// No brush: the child leaves its colours to the parent.
#define ON_WM_CTLCOLOR_REFLECT()                                                                             \
    AFX_WINDOW(WM_REFLECT_BASE + WM_CTLCOLOR, AfxDcLoan dc(reinterpret_cast<HDC>(m.wParam));                 \
               m.result = reinterpret_cast<LRESULT>(self->CtlColor(&dc, m.id)); return m.result != 0;)
#define ON_WM_HSCROLL_REFLECT()                                                                              \
    AFX_WINDOW(WM_REFLECT_BASE + WM_HSCROLL,                                                                 \
               self->HScroll(static_cast<UINT>(LOWORD(m.wParam)), static_cast<UINT>(HIWORD(m.wParam)));      \
               return true;)
#define ON_WM_VSCROLL_REFLECT()                                                                              \
    AFX_WINDOW(WM_REFLECT_BASE + WM_VSCROLL,                                                                 \
               self->VScroll(static_cast<UINT>(LOWORD(m.wParam)), static_cast<UINT>(HIWORD(m.wParam)));      \
               return true;)
#define ON_WM_PARENTNOTIFY_REFLECT()                                                                         \
    AFX_WINDOW(WM_REFLECT_BASE + WM_PARENTNOTIFY, self->ParentNotify(static_cast<UINT>(m.wParam), m.lParam); \
               return true;)
