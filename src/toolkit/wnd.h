#pragma once
#include "toolkit/dc.h"
#include "toolkit/message_map.h"

class CScrollBar;

// Window procedure of all windows that belong to objects.
PANELKIT_API LRESULT CALLBACK AfxWndProc(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam);

// One window. Destroying the object destroys its window; when the window goes first, m_hWnd becomes null and
// PostNcDestroy is the last call on the object. Until it has a window it may be moved by its bytes.
class PANELKIT_API CWnd : public CCmdTarget
{
    DECLARE_DYNAMIC(CWnd)
public:
    CWnd() = default;
    ~CWnd() override;

    HWND m_hWnd = nullptr;
    HWND GetSafeHwnd() const { return m_hWnd; }
    operator HWND() const { return m_hWnd; }
    BOOL operator==(const CWnd& other) const { return m_hWnd == other.m_hWnd; }
    BOOL operator!=(const CWnd& other) const { return m_hWnd != other.m_hWnd; }

    // Places in the stacking order, for SetWindowPos.
    static const CWnd wndTop;
    static const CWnd wndBottom;
    static const CWnd wndTopMost;
    static const CWnd wndNoTopMost;

    // The object that owns the window, else a temporary one that lives at least until the thread idles.
    static CWnd* FromHandle(HWND hWnd);
    static CWnd* FromHandlePermanent(HWND hWnd); // null: no object owns it
    BOOL Attach(HWND hWnd);                      // without taking its messages
    HWND Detach();                  // gives the window back as it was before Attach or SubclassWindow
    BOOL SubclassWindow(HWND hWnd); // from now on its messages come to this object
    BOOL SubclassDlgItem(UINT id, CWnd* parent);
    HWND UnsubclassWindow() { return Detach(); }

    // A window that the object still has is destroyed first. Texts are GBK. FALSE: PreCreateWindow or
    // WM_CREATE refused, or the system did.
    BOOL CreateEx(DWORD exStyle, LPCSTR className, LPCSTR title, DWORD style, int x, int y, int width,
        int height, HWND parent, HMENU idOrMenu, LPVOID param = nullptr);
    BOOL CreateEx(DWORD exStyle, LPCSTR className, LPCSTR title, DWORD style, const RECT& rect, CWnd* parent,
        UINT id, LPVOID param = nullptr);
    BOOL Create(LPCSTR className, LPCSTR title, DWORD style, const RECT& rect, CWnd* parent, UINT id,
        LPVOID param = nullptr); // a child window
    virtual BOOL DestroyWindow();
    virtual BOOL PreCreateWindow(
        CREATESTRUCT& cs); // may change what the window is made with; FALSE: no window
    virtual void PreSubclassWindow() { }

    DWORD GetStyle() const { return static_cast<DWORD>(::GetWindowLongPtrW(m_hWnd, GWL_STYLE)); }
    DWORD GetExStyle() const { return static_cast<DWORD>(::GetWindowLongPtrW(m_hWnd, GWL_EXSTYLE)); }
    // swpFlags other than 0: SetWindowPos with them follows. FALSE: nothing changed.
    BOOL ModifyStyle(DWORD remove, DWORD add, UINT swpFlags = 0);
    BOOL ModifyStyleEx(DWORD remove, DWORD add, UINT swpFlags = 0);

    LRESULT SendMessage(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const
    {
        return ::SendMessageW(m_hWnd, message, wParam, lParam);
    }
    BOOL PostMessage(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const
    {
        return ::PostMessageW(m_hWnd, message, wParam, lParam);
    }
    LRESULT SendDlgItemMessage(int id, UINT message, WPARAM wParam = 0, LPARAM lParam = 0)
    {
        return ::SendDlgItemMessageW(m_hWnd, id, message, wParam, lParam);
    }
    static const MSG* GetCurrentMessage(); // the one being handled

    // Lengths and sizes count GBK bytes; a cut text never ends in half a character.
    void SetWindowText(LPCSTR text);
    int GetWindowText(LPSTR to, int size) const; // result: bytes copied, without the final zero
    void GetWindowText(CString& to) const;
    int GetWindowTextLength() const;
    void SetDlgItemText(int id, LPCSTR text);
    int GetDlgItemText(int id, LPSTR to, int size) const;
    int GetDlgItemText(int id, CString& to) const;
    void SetDlgItemInt(int id, UINT value, BOOL isSigned = TRUE)
    {
        ::SetDlgItemInt(m_hWnd, id, value, isSigned);
    }
    UINT GetDlgItemInt(int id, BOOL* ok = nullptr, BOOL isSigned = TRUE) const
    {
        return ::GetDlgItemInt(m_hWnd, id, ok, isSigned);
    }
    void CheckDlgButton(int id, UINT check) { ::CheckDlgButton(m_hWnd, id, check); }
    UINT IsDlgButtonChecked(int id) const { return ::IsDlgButtonChecked(m_hWnd, id); }
    void CheckRadioButton(int first, int last, int checked)
    {
        ::CheckRadioButton(m_hWnd, first, last, checked);
    }
    void SetFont(CFont* font, BOOL redraw = TRUE); // null: the system's
    CFont* GetFont() const;
    HICON SetIcon(HICON icon, BOOL big);
    int MessageBox(LPCSTR text, LPCSTR caption = nullptr, UINT type = MB_OK); // null: the application's name

    BOOL ShowWindow(int show) { return ::ShowWindow(m_hWnd, show); }
    BOOL IsWindowVisible() const { return ::IsWindowVisible(m_hWnd); }
    BOOL EnableWindow(BOOL enable = TRUE) { return ::EnableWindow(m_hWnd, enable); }
    BOOL IsWindowEnabled() const { return ::IsWindowEnabled(m_hWnd); }
    BOOL IsIconic() const { return ::IsIconic(m_hWnd); }
    BOOL IsZoomed() const { return ::IsZoomed(m_hWnd); }
    void MoveWindow(int x, int y, int w, int h, BOOL redraw = TRUE)
    {
        ::MoveWindow(m_hWnd, x, y, w, h, redraw);
    }
    void MoveWindow(LPCRECT rect, BOOL redraw = TRUE);
    BOOL SetWindowPos(const CWnd* after, int x, int y, int width, int height, UINT flags);
    void CenterWindow(CWnd* over = nullptr); // null: its parent or owner, else the screen
    void BringWindowToTop() { ::BringWindowToTop(m_hWnd); }
    int SetWindowRgn(HRGN region, BOOL redraw) { return ::SetWindowRgn(m_hWnd, region, redraw); }
    int GetWindowRgn(HRGN region) const { return ::GetWindowRgn(m_hWnd, region); }
    void GetClientRect(LPRECT rect) const { ::GetClientRect(m_hWnd, rect); }
    void GetWindowRect(LPRECT rect) const { ::GetWindowRect(m_hWnd, rect); }
    void ClientToScreen(LPPOINT point) const { ::ClientToScreen(m_hWnd, point); }
    void ClientToScreen(LPRECT rect) const;
    void ScreenToClient(LPPOINT point) const { ::ScreenToClient(m_hWnd, point); }
    void ScreenToClient(LPRECT rect) const;
    void MapWindowPoints(CWnd* to, LPPOINT points, UINT count) const;
    void MapWindowPoints(CWnd* to, LPRECT rect) const;

    void Invalidate(BOOL erase = TRUE) { ::InvalidateRect(m_hWnd, nullptr, erase); }
    void InvalidateRect(LPCRECT rect, BOOL erase = TRUE) { ::InvalidateRect(m_hWnd, rect, erase); }
    void InvalidateRgn(CRgn* region, BOOL erase = TRUE);
    void ValidateRect(LPCRECT rect) { ::ValidateRect(m_hWnd, rect); }
    BOOL GetUpdateRect(LPRECT rect, BOOL erase = FALSE) { return ::GetUpdateRect(m_hWnd, rect, erase); }
    void UpdateWindow() { ::UpdateWindow(m_hWnd); }
    void SetRedraw(BOOL redraw = TRUE) { SendMessage(WM_SETREDRAW, static_cast<WPARAM>(redraw)); }
    BOOL RedrawWindow(LPCRECT rect = nullptr, CRgn* region = nullptr,
        UINT flags = RDW_INVALIDATE | RDW_UPDATENOW | RDW_ERASE);
    CDC* GetDC() { return CDC::FromHandle(::GetDC(m_hWnd)); }
    CDC* GetWindowDC() { return CDC::FromHandle(::GetWindowDC(m_hWnd)); }
    int ReleaseDC(CDC* dc);
    CDC* BeginPaint(LPPAINTSTRUCT paint) { return CDC::FromHandle(::BeginPaint(m_hWnd, paint)); }
    void EndPaint(LPPAINTSTRUCT paint) { ::EndPaint(m_hWnd, paint); }

    UINT_PTR SetTimer(UINT_PTR id, UINT milliseconds, TIMERPROC proc = nullptr)
    {
        return ::SetTimer(m_hWnd, id, milliseconds, proc);
    }
    BOOL KillTimer(UINT_PTR id) { return ::KillTimer(m_hWnd, id); }
    CWnd* SetCapture() { return FromHandle(::SetCapture(m_hWnd)); }
    static CWnd* GetCapture() { return FromHandle(::GetCapture()); }
    CWnd* SetFocus() { return FromHandle(::SetFocus(m_hWnd)); }
    static CWnd* GetFocus() { return FromHandle(::GetFocus()); }
    CWnd* SetActiveWindow() { return FromHandle(::SetActiveWindow(m_hWnd)); }
    static CWnd* GetActiveWindow() { return FromHandle(::GetActiveWindow()); }
    BOOL SetForegroundWindow() { return ::SetForegroundWindow(m_hWnd); }
    static CWnd* GetDesktopWindow() { return FromHandle(::GetDesktopWindow()); }
    static CWnd* FindWindow(LPCSTR className, LPCSTR title);
    static CWnd* WindowFromPoint(POINT point) { return FromHandle(::WindowFromPoint(point)); }

    CWnd* GetParent() const { return FromHandle(::GetParent(m_hWnd)); }
    CWnd* SetParent(CWnd* parent);
    CWnd* GetOwner() const { return GetParent(); }
    CWnd* GetTopLevelParent() const { return FromHandle(::GetAncestor(m_hWnd, GA_ROOT)); }
    CWnd* GetWindow(UINT which) const { return FromHandle(::GetWindow(m_hWnd, which)); }
    CWnd* GetNextWindow(UINT which = GW_HWNDNEXT) const { return GetWindow(which); }
    CWnd* GetTopWindow() const { return FromHandle(::GetTopWindow(m_hWnd)); }
    CWnd* GetLastActivePopup() const { return FromHandle(::GetLastActivePopup(m_hWnd)); }
    BOOL IsChild(const CWnd* wnd) const { return ::IsChild(m_hWnd, wnd->m_hWnd); }
    CWnd* GetDlgItem(int id) const { return FromHandle(::GetDlgItem(m_hWnd, id)); }
    int GetDlgCtrlID() const { return ::GetDlgCtrlID(m_hWnd); }
    int SetDlgCtrlID(int id) { return static_cast<int>(::SetWindowLongPtrW(m_hWnd, GWLP_ID, id)); }
    CWnd* GetNextDlgTabItem(CWnd* from, BOOL previous = FALSE) const;
    int GetScrollPos(int bar) const { return ::GetScrollPos(m_hWnd, bar); }
    int SetScrollPos(int bar, int at, BOOL redraw = TRUE) { return ::SetScrollPos(m_hWnd, bar, at, redraw); }
    void SetScrollRange(int bar, int low, int high, BOOL redraw = TRUE)
    {
        ::SetScrollRange(m_hWnd, bar, low, high, redraw);
    }
    void ShowScrollBar(UINT bar, BOOL show = TRUE) { ::ShowScrollBar(m_hWnd, static_cast<int>(bar), show); }

    virtual LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam);
    virtual LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam);
    virtual BOOL PreTranslateMessage(MSG* message); // TRUE: dealt with
    static BOOL WalkPreTranslateTree(HWND stop, MSG* message);
    BOOL SendChildNotifyLastMsg(LRESULT* result = nullptr); // offers the current message to its child
    BOOL IsDialogMessage(MSG* message) { return ::IsDialogMessageW(m_hWnd, message); }

protected:
    virtual BOOL OnWndMsg(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result);
    virtual BOOL OnCommand(WPARAM wParam, LPARAM lParam);
    virtual BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* result);
    // A notification of this control, before its parent sees it. TRUE: the parent doesn't.
    virtual BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result);
    virtual void PostNcDestroy() { } // the window is gone; may delete the object
    // Destroys a window that the object still has, before it gets another. False: the object went along, or
    // the window stays.
    bool letGoOfWindowM();
    static void takeMadeM(CWnd* wnd, HWND made); // the window that was asked for, before its first message
    LRESULT Default();                           // what would happen to the current message without a handler

    // Unless they say otherwise, handlers of the base hand the current message on as it came.
    afx_msg BOOL OnNcCreate(LPCREATESTRUCT) { return static_cast<BOOL>(Default()); }
    afx_msg int OnCreate(LPCREATESTRUCT) { return static_cast<int>(Default()); }
    afx_msg void OnDestroy() { Default(); }
    afx_msg void OnNcDestroy(); // lets the window go, then PostNcDestroy
    afx_msg void OnClose() { Default(); }
    afx_msg void OnPaint() { Default(); }
    afx_msg void OnNcPaint() { Default(); }
    afx_msg BOOL OnEraseBkgnd(CDC*) { return static_cast<BOOL>(Default()); }
    afx_msg void OnTimer(UINT_PTR) { Default(); }
    afx_msg void OnMove(int, int) { Default(); }
    afx_msg void OnSize(UINT, int, int) { Default(); }
    afx_msg void OnWindowPosChanging(WINDOWPOS*) { Default(); }
    afx_msg void OnWindowPosChanged(WINDOWPOS*) { Default(); }
    afx_msg void OnGetMinMaxInfo(MINMAXINFO*) { Default(); }
    afx_msg void OnShowWindow(BOOL, UINT) { Default(); }
    afx_msg void OnEnable(BOOL) { Default(); }
    afx_msg void OnActivate(UINT, CWnd*, BOOL) { Default(); }
    afx_msg void OnSetFocus(CWnd*) { Default(); }
    afx_msg void OnKillFocus(CWnd*) { Default(); }
    afx_msg void OnCaptureChanged(CWnd*) { Default(); }
    afx_msg void OnCancelMode() { Default(); }
    afx_msg BOOL OnSetCursor(CWnd*, UINT, UINT) { return static_cast<BOOL>(Default()); }
    afx_msg int OnMouseActivate(CWnd*, UINT, UINT) { return static_cast<int>(Default()); }
    afx_msg LRESULT OnNcHitTest(CPoint) { return Default(); }
    afx_msg UINT OnGetDlgCode() { return static_cast<UINT>(Default()); }
    afx_msg void OnChar(UINT, UINT, UINT) { Default(); }
    afx_msg void OnKeyDown(UINT, UINT, UINT) { Default(); }
    afx_msg void OnKeyUp(UINT, UINT, UINT) { Default(); }
    afx_msg void OnSysKeyDown(UINT, UINT, UINT) { Default(); }
    afx_msg void OnSysKeyUp(UINT, UINT, UINT) { Default(); }
    afx_msg void OnSysCommand(UINT, LPARAM) { Default(); }
    afx_msg void OnMouseMove(UINT, CPoint) { Default(); }
    afx_msg void OnLButtonDown(UINT, CPoint) { Default(); }
    afx_msg void OnLButtonUp(UINT, CPoint) { Default(); }
    afx_msg void OnLButtonDblClk(UINT, CPoint) { Default(); }
    afx_msg void OnRButtonDown(UINT, CPoint) { Default(); }
    afx_msg void OnRButtonUp(UINT, CPoint) { Default(); }
    afx_msg void OnRButtonDblClk(UINT, CPoint) { Default(); }
    afx_msg void OnMButtonDown(UINT, CPoint) { Default(); }
    afx_msg void OnMButtonUp(UINT, CPoint) { Default(); }
    afx_msg void OnMouseLeave() { Default(); }
    afx_msg BOOL OnMouseWheel(UINT, short, CPoint) { return static_cast<BOOL>(Default()); }
    afx_msg void OnContextMenu(CWnd*, CPoint) { Default(); }
    afx_msg void OnHScroll(UINT, UINT, CScrollBar*) { Default(); }
    afx_msg void OnVScroll(UINT, UINT, CScrollBar*) { Default(); }
    afx_msg void OnDrawItem(int, LPDRAWITEMSTRUCT) { Default(); }
    afx_msg void OnMeasureItem(int, LPMEASUREITEMSTRUCT) { Default(); }
    afx_msg HBRUSH OnCtlColor(CDC*, CWnd*, UINT) { return reinterpret_cast<HBRUSH>(Default()); }
    DECLARE_MESSAGE_MAP()

private:
    friend struct WindowMessageCL;
    explicit CWnd(HWND place)
        : m_hWnd(place)
    {
    }
    bool isPlaceM() const; // one of wndTop and its kin, or empty
    void takeMessagesM();
    BOOL reflectM(HWND child, UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result);
    HWND measuredChildM(UINT id) const;
    bool dispatchM(AFX_MESSAGE& m);

    WNDPROC oldProc_ = nullptr; // null: the object doesn't get the window's messages
};
