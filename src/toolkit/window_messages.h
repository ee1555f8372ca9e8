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

// What several of the lines below have in common: how they unpack wParam and lParam.
#define AFX_BARE(message, handler) AFX_WINDOW(message, m.result = self->handler(); return true;)
#define AFX_SIDE(message, handler)                                                                           \
    AFX_WINDOW(message, self->handler(static_cast<UINT>(m.wParam), reinterpret_cast<LPRECT>(m.lParam));      \
               m.result = TRUE; return true;)
#define AFX_STYLE(message, handler)                                                                          \
    AFX_WINDOW(                                                                                              \
        message, self->handler(static_cast<int>(m.wParam), reinterpret_cast<LPSTYLESTRUCT>(m.lParam));       \
        return true;)
#define AFX_OTHER(message, handler) AFX_WINDOW(message, self->handler(AFX_OTHER_WND(m.wParam)); return true;)
#define AFX_SIDE_BUTTON(message, handler)                                                                    \
    AFX_WINDOW(message,                                                                                      \
               self->handler(static_cast<UINT>(LOWORD(m.wParam)), static_cast<UINT>(HIWORD(m.wParam)),       \
                   CPoint(m.lParam));                                                                        \
               m.result = TRUE; return true;)
#define AFX_TO_ITEM(message, handler)                                                                        \
    AFX_WINDOW(message,                                                                                      \
               m.result = self->handler(static_cast<UINT>(LOWORD(m.wParam)),                                 \
                   static_cast<CListBox*>(AFX_OTHER_WND(m.lParam)), static_cast<UINT>(HIWORD(m.wParam)));    \
               return true;)
#define AFX_MENU(value) CMenu::FromHandle(reinterpret_cast<HMENU>(value))

#define ON_WM_QUERYENDSESSION() AFX_BARE(WM_QUERYENDSESSION, OnQueryEndSession)
#define ON_WM_ENDSESSION()                                                                                   \
    AFX_WINDOW(WM_ENDSESSION, self->OnEndSession(static_cast<BOOL>(m.wParam)); return true;)
#define ON_WM_COPYDATA()                                                                                     \
    AFX_WINDOW(                                                                                              \
        WM_COPYDATA,                                                                                         \
        m.result = self->OnCopyData(AFX_OTHER_WND(m.wParam), reinterpret_cast<COPYDATASTRUCT*>(m.lParam));   \
        return true;)
#define ON_WM_DROPFILES()                                                                                    \
    AFX_WINDOW(WM_DROPFILES, self->OnDropFiles(reinterpret_cast<HDROP>(m.wParam)); return true;)
#define ON_WM_HELPINFO()                                                                                     \
    AFX_WINDOW(WM_HELP, m.result = self->OnHelpInfo(reinterpret_cast<HELPINFO*>(m.lParam)); return true;)
#define ON_WM_MOVING() AFX_SIDE(WM_MOVING, OnMoving)
#define ON_WM_SIZING() AFX_SIDE(WM_SIZING, OnSizing)
#define ON_WM_ENTERSIZEMOVE() AFX_PLAIN(WM_ENTERSIZEMOVE, OnEnterSizeMove)
#define ON_WM_EXITSIZEMOVE() AFX_PLAIN(WM_EXITSIZEMOVE, OnExitSizeMove)
#define ON_WM_STYLECHANGING() AFX_STYLE(WM_STYLECHANGING, OnStyleChanging)
#define ON_WM_STYLECHANGED() AFX_STYLE(WM_STYLECHANGED, OnStyleChanged)
#define ON_WM_QUERYOPEN() AFX_BARE(WM_QUERYOPEN, OnQueryOpen)
#define ON_WM_QUERYDRAGICON()                                                                                \
    AFX_WINDOW(WM_QUERYDRAGICON, m.result = reinterpret_cast<LRESULT>(self->OnQueryDragIcon()); return true;)
#define ON_WM_ACTIVATEAPP()                                                                                  \
    AFX_WINDOW(                                                                                              \
        WM_ACTIVATEAPP, self->OnActivateApp(static_cast<BOOL>(m.wParam), static_cast<DWORD>(m.lParam));      \
        return true;)
#define ON_WM_CHILDACTIVATE() AFX_PLAIN(WM_CHILDACTIVATE, OnChildActivate)
#define ON_WM_DEADCHAR() AFX_KEY(WM_DEADCHAR, OnDeadChar)
#define ON_WM_SYSCHAR() AFX_KEY(WM_SYSCHAR, OnSysChar)
#define ON_WM_SYSDEADCHAR() AFX_KEY(WM_SYSDEADCHAR, OnSysDeadChar)
#define ON_WM_MOUSEHOVER() AFX_MOUSE(WM_MOUSEHOVER, OnMouseHover)
#define ON_WM_MBUTTONDBLCLK() AFX_MOUSE(WM_MBUTTONDBLCLK, OnMButtonDblClk)
#define ON_WM_XBUTTONDOWN() AFX_SIDE_BUTTON(WM_XBUTTONDOWN, OnXButtonDown)
#define ON_WM_XBUTTONUP() AFX_SIDE_BUTTON(WM_XBUTTONUP, OnXButtonUp)
#define ON_WM_XBUTTONDBLCLK() AFX_SIDE_BUTTON(WM_XBUTTONDBLCLK, OnXButtonDblClk)
#define ON_WM_MOUSEHWHEEL()                                                                                  \
    AFX_WINDOW(WM_MOUSEHWHEEL,                                                                               \
               self->OnMouseHWheel(static_cast<UINT>(LOWORD(m.wParam)),                                      \
                   static_cast<short>(HIWORD(m.wParam)), CPoint(m.lParam));                                  \
               return true;)
#define ON_WM_NCACTIVATE()                                                                                   \
    AFX_WINDOW(WM_NCACTIVATE, m.result = self->OnNcActivate(static_cast<BOOL>(m.wParam)); return true;)
#define ON_WM_NCCALCSIZE()                                                                                   \
    AFX_WINDOW(                                                                                              \
        WM_NCCALCSIZE,                                                                                       \
        self->OnNcCalcSize(static_cast<BOOL>(m.wParam), reinterpret_cast<NCCALCSIZE_PARAMS*>(m.lParam));     \
        return true;)
#define ON_WM_NCMOUSEMOVE() AFX_MOUSE(WM_NCMOUSEMOVE, OnNcMouseMove)
#define ON_WM_NCLBUTTONDOWN() AFX_MOUSE(WM_NCLBUTTONDOWN, OnNcLButtonDown)
#define ON_WM_NCLBUTTONUP() AFX_MOUSE(WM_NCLBUTTONUP, OnNcLButtonUp)
#define ON_WM_NCLBUTTONDBLCLK() AFX_MOUSE(WM_NCLBUTTONDBLCLK, OnNcLButtonDblClk)
#define ON_WM_NCRBUTTONDOWN() AFX_MOUSE(WM_NCRBUTTONDOWN, OnNcRButtonDown)
#define ON_WM_NCRBUTTONUP() AFX_MOUSE(WM_NCRBUTTONUP, OnNcRButtonUp)
#define ON_WM_NCRBUTTONDBLCLK() AFX_MOUSE(WM_NCRBUTTONDBLCLK, OnNcRButtonDblClk)
#define ON_WM_NCMBUTTONDOWN() AFX_MOUSE(WM_NCMBUTTONDOWN, OnNcMButtonDown)
#define ON_WM_NCMBUTTONUP() AFX_MOUSE(WM_NCMBUTTONUP, OnNcMButtonUp)
#define ON_WM_NCMBUTTONDBLCLK() AFX_MOUSE(WM_NCMBUTTONDBLCLK, OnNcMButtonDblClk)
#define ON_WM_INITMENU() AFX_WINDOW(WM_INITMENU, self->OnInitMenu(AFX_MENU(m.wParam)); return true;)
#define ON_WM_INITMENUPOPUP()                                                                                \
    AFX_WINDOW(WM_INITMENUPOPUP,                                                                             \
               self->OnInitMenuPopup(AFX_MENU(m.wParam), static_cast<UINT>(LOWORD(m.lParam)),                \
                   static_cast<BOOL>(HIWORD(m.lParam)));                                                     \
               return true;)
#define ON_WM_MENUSELECT()                                                                                   \
    AFX_WINDOW(WM_MENUSELECT,                                                                                \
               self->OnMenuSelect(static_cast<UINT>(LOWORD(m.wParam)), static_cast<UINT>(HIWORD(m.wParam)),  \
                   reinterpret_cast<HMENU>(m.lParam));                                                       \
               return true;)
#define ON_WM_MENUCHAR()                                                                                     \
    AFX_WINDOW(WM_MENUCHAR,                                                                                  \
               m.result = self->OnMenuChar(static_cast<UINT>(LOWORD(m.wParam)),                              \
                   static_cast<UINT>(HIWORD(m.wParam)), AFX_MENU(m.lParam));                                 \
               return true;)
#define ON_WM_ENTERMENULOOP()                                                                                \
    AFX_WINDOW(WM_ENTERMENULOOP, self->OnEnterMenuLoop(static_cast<BOOL>(m.wParam)); return true;)
#define ON_WM_EXITMENULOOP()                                                                                 \
    AFX_WINDOW(WM_EXITMENULOOP, self->OnExitMenuLoop(static_cast<BOOL>(m.wParam)); return true;)
#define ON_WM_ENTERIDLE()                                                                                    \
    AFX_WINDOW(WM_ENTERIDLE, self->OnEnterIdle(static_cast<UINT>(m.wParam), AFX_OTHER_WND(m.lParam));        \
               return true;)
#define ON_WM_SYSCOLORCHANGE() AFX_PLAIN(WM_SYSCOLORCHANGE, OnSysColorChange)
#define ON_WM_SETTINGCHANGE()                                                                                \
    AFX_WINDOW(WM_SETTINGCHANGE,                                                                             \
               self->OnSettingChange(static_cast<UINT>(m.wParam), reinterpret_cast<LPCWSTR>(m.lParam));      \
               return true;)
#define ON_WM_FONTCHANGE() AFX_PLAIN(WM_FONTCHANGE, OnFontChange)
#define ON_WM_TIMECHANGE() AFX_PLAIN(WM_TIMECHANGE, OnTimeChange)
#define ON_WM_DISPLAYCHANGE()                                                                                \
    AFX_WINDOW(WM_DISPLAYCHANGE,                                                                             \
               self->OnDisplayChange(static_cast<UINT>(m.wParam), static_cast<int>(LOWORD(m.lParam)),        \
                   static_cast<int>(HIWORD(m.lParam)));                                                      \
               return true;)
#define ON_WM_DEVICECHANGE()                                                                                 \
    AFX_WINDOW(                                                                                              \
        WM_DEVICECHANGE,                                                                                     \
        m.result = self->OnDeviceChange(static_cast<UINT>(m.wParam), static_cast<DWORD_PTR>(m.lParam));      \
        return true;)
#define ON_WM_QUERYNEWPALETTE() AFX_BARE(WM_QUERYNEWPALETTE, OnQueryNewPalette)
#define ON_WM_PALETTEISCHANGING() AFX_OTHER(WM_PALETTEISCHANGING, OnPaletteIsChanging)
#define ON_WM_PALETTECHANGED() AFX_OTHER(WM_PALETTECHANGED, OnPaletteChanged)
#define ON_WM_DRAWCLIPBOARD() AFX_PLAIN(WM_DRAWCLIPBOARD, OnDrawClipboard)
#define ON_WM_CHANGECBCHAIN()                                                                                \
    AFX_WINDOW(WM_CHANGECBCHAIN,                                                                             \
               self->OnChangeCbChain(reinterpret_cast<HWND>(m.wParam), reinterpret_cast<HWND>(m.lParam));    \
               return true;)
#define ON_WM_DESTROYCLIPBOARD() AFX_PLAIN(WM_DESTROYCLIPBOARD, OnDestroyClipboard)
#define ON_WM_RENDERFORMAT()                                                                                 \
    AFX_WINDOW(WM_RENDERFORMAT, self->OnRenderFormat(static_cast<UINT>(m.wParam)); return true;)
#define ON_WM_RENDERALLFORMATS() AFX_PLAIN(WM_RENDERALLFORMATS, OnRenderAllFormats)
#define ON_WM_COMPAREITEM()                                                                                  \
    AFX_WINDOW(WM_COMPAREITEM,                                                                               \
               m.result = self->OnCompareItem(                                                               \
                   static_cast<int>(m.wParam), reinterpret_cast<LPCOMPAREITEMSTRUCT>(m.lParam));             \
               return true;)
#define ON_WM_DELETEITEM()                                                                                   \
    AFX_WINDOW(                                                                                              \
        WM_DELETEITEM,                                                                                       \
        self->OnDeleteItem(static_cast<int>(m.wParam), reinterpret_cast<LPDELETEITEMSTRUCT>(m.lParam));      \
        m.result = TRUE; return true;)
#define ON_WM_CHARTOITEM() AFX_TO_ITEM(WM_CHARTOITEM, OnCharToItem)
#define ON_WM_VKEYTOITEM() AFX_TO_ITEM(WM_VKEYTOITEM, OnVKeyToItem)
#define ON_WM_PARENTNOTIFY()                                                                                 \
    AFX_WINDOW(WM_PARENTNOTIFY, self->OnParentNotify(static_cast<UINT>(m.wParam), m.lParam); return true;)
// -1 from CharToItem and VKeyToItem: the list box does what it does anyway.
#define ON_WM_CHARTOITEM_REFLECT()                                                                           \
    AFX_WINDOW(WM_REFLECT_BASE + WM_CHARTOITEM,                                                              \
               m.result                                                                                      \
               = self->CharToItem(static_cast<UINT>(LOWORD(m.wParam)), static_cast<UINT>(HIWORD(m.wParam))); \
               return true;)
#define ON_WM_VKEYTOITEM_REFLECT()                                                                           \
    AFX_WINDOW(WM_REFLECT_BASE + WM_VKEYTOITEM,                                                              \
               m.result                                                                                      \
               = self->VKeyToItem(static_cast<UINT>(LOWORD(m.wParam)), static_cast<UINT>(HIWORD(m.wParam))); \
               return true;)

#define ON_WM_DRAWITEM_REFLECT()                                                                             \
    AFX_WINDOW(WM_REFLECT_BASE + WM_DRAWITEM, self->DrawItem(reinterpret_cast<LPDRAWITEMSTRUCT>(m.lParam));  \
               m.result = TRUE; return true;)
#define ON_WM_MEASUREITEM_REFLECT()                                                                          \
    AFX_WINDOW(WM_REFLECT_BASE + WM_MEASUREITEM,                                                             \
               self->MeasureItem(reinterpret_cast<LPMEASUREITEMSTRUCT>(m.lParam));                           \
               m.result = TRUE; return true;)
#define ON_WM_COMPAREITEM_REFLECT()                                                                          \
    AFX_WINDOW(WM_REFLECT_BASE + WM_COMPAREITEM,                                                             \
               m.result = self->CompareItem(reinterpret_cast<LPCOMPAREITEMSTRUCT>(m.lParam));                \
               return true;)
#define ON_WM_DELETEITEM_REFLECT()                                                                           \
    AFX_WINDOW(                                                                                              \
        WM_REFLECT_BASE + WM_DELETEITEM, self->DeleteItem(reinterpret_cast<LPDELETEITEMSTRUCT>(m.lParam));   \
        m.result = TRUE; return true;)
