#pragma once
#include "toolkit/wnd_calls.h"

class CScrollBar;

// A window among others: its parents and children, the focus, its scroll bars, its menus, its caret.
class PANELKIT_API WndRelationsCL : public WndCallsCL
{
public:
    CWnd* SetCapture() { return FromHandle(::SetCapture(m_hWnd)); }
    static CWnd* GetCapture() { return FromHandle(::GetCapture()); }
    CWnd* SetFocus() { return FromHandle(::SetFocus(m_hWnd)); }
    static CWnd* GetFocus() { return FromHandle(::GetFocus()); }
    CWnd* SetActiveWindow() { return FromHandle(::SetActiveWindow(m_hWnd)); }
    static CWnd* GetActiveWindow() { return FromHandle(::GetActiveWindow()); }
    BOOL SetForegroundWindow() { return ::SetForegroundWindow(m_hWnd); }
    static CWnd* GetForegroundWindow() { return FromHandle(::GetForegroundWindow()); }
    static CWnd* GetDesktopWindow() { return FromHandle(::GetDesktopWindow()); }
    // Null stands for any class or title.
    static CWnd* FindWindow(LPCSTR className, LPCSTR title);
    AFX_WIDE_TEXT static CWnd* FindWindow(const WideTP* className, LPCWSTR title)
    {
        return FromHandle(::FindWindowW(className, title));
    }
    AFX_WIDE_TEXT static CWnd* FindWindow(std::nullptr_t, const WideTP* title)
    {
        return FromHandle(::FindWindowW(nullptr, title));
    }
    static CWnd* FindWindowEx(HWND parent, HWND after, LPCSTR className, LPCSTR title);
    static CWnd* WindowFromPoint(POINT point) { return FromHandle(::WindowFromPoint(point)); }
    CWnd* ChildWindowFromPoint(POINT point) const
    {
        return FromHandle(::ChildWindowFromPoint(m_hWnd, point));
    }
    CWnd* ChildWindowFromPoint(POINT point, UINT flags) const
    {
        return FromHandle(::ChildWindowFromPointEx(m_hWnd, point, flags));
    }

    CWnd* GetParent() const { return FromHandle(::GetParent(m_hWnd)); }
    CWnd* SetParent(CWnd* parent);
    CWnd* GetOwner() const;     // as SetOwner said, else the parent
    void SetOwner(CWnd* owner); // not kept: who gets the notifications; null: the parent again
    CWnd* GetAncestor(UINT which) const { return FromHandle(::GetAncestor(m_hWnd, which)); }

    // The topmost of its parents, itself if it has none.
    CWnd* GetTopLevelParent() const { return GetAncestor(GA_ROOT); }
    // The same along parents and owners.
    CWnd* GetTopLevelOwner() const;
    CWnd* GetParentOwner() const; // the nearest that is no child window
    // The window to own a popup: the given one's or the main window's, or what is in front of it. *topLevel
    // gets the top-level window that was taken for granted.
    static CWnd* GetSafeOwner(CWnd* parent = nullptr, HWND* topLevel = nullptr);
    CWnd* GetWindow(UINT which) const { return FromHandle(::GetWindow(m_hWnd, which)); }

    // GW_HWNDNEXT: behind it in the stacking order, GW_HWNDPREV: before it.
    CWnd* GetNextWindow(UINT which = GW_HWNDNEXT) const { return GetWindow(which); }
    CWnd* GetTopWindow() const { return FromHandle(::GetTopWindow(m_hWnd)); }
    CWnd* GetLastActivePopup() const { return FromHandle(::GetLastActivePopup(m_hWnd)); }
    BOOL IsChild(const CWnd* wnd) const { return ::IsChild(m_hWnd, handleOfM(wnd)); }
    CWnd* GetDlgItem(int id) const { return FromHandle(::GetDlgItem(m_hWnd, id)); }
    void GetDlgItem(int id, HWND* to) const { *to = ::GetDlgItem(m_hWnd, id); }
    int GetDlgCtrlID() const { return ::GetDlgCtrlID(m_hWnd); }
    int SetDlgCtrlID(int id) { return static_cast<int>(::SetWindowLongPtrW(m_hWnd, GWLP_ID, id)); }
    CWnd* GetNextDlgTabItem(CWnd* from, BOOL previous = FALSE) const;
    CWnd* GetNextDlgGroupItem(CWnd* from, BOOL previous = FALSE) const;
    // The first with that id among children and theirs; permanentOnly: one with an object of its own.
    CWnd* GetDescendantWindow(int id, BOOL permanentOnly = FALSE) const;

    // Of the scroll bar SB_HORZ or SB_VERT; where there is a control for it (GetScrollBarCtrl), of that.
    int GetScrollPos(int bar) const;
    int SetScrollPos(int bar, int at, BOOL redraw = TRUE);
    void GetScrollRange(int bar, LPINT low, LPINT high) const;
    void SetScrollRange(int bar, int low, int high, BOOL redraw = TRUE);
    BOOL GetScrollInfo(int bar, LPSCROLLINFO info, UINT mask = SIF_ALL); // sets its size and mask too
    BOOL SetScrollInfo(int bar, LPSCROLLINFO info, BOOL redraw = TRUE);
    int GetScrollLimit(int bar); // the greatest position, pages taken into account
    void ShowScrollBar(UINT bar, BOOL show = TRUE) { ::ShowScrollBar(m_hWnd, static_cast<int>(bar), show); }
    BOOL EnableScrollBar(int bar, UINT arrows = ESB_ENABLE_BOTH)
    {
        return ::EnableScrollBar(m_hWnd, static_cast<UINT>(bar), arrows);
    }
    void EnableScrollBarCtrl(int bar, BOOL enable = TRUE);
    virtual CScrollBar* GetScrollBarCtrl(int bar) const; // null: the window's own bar
    BOOL GetScrollBarInfo(LONG object, SCROLLBARINFO* info) const
    {
        return ::GetScrollBarInfo(m_hWnd, object, info);
    }
    // Where the window is shown; the children move along.
    void ScrollWindow(int dx, int dy, LPCRECT rect = nullptr, LPCRECT clip = nullptr)
    {
        ::ScrollWindow(m_hWnd, dx, dy, rect, clip);
    }
    int ScrollWindowEx(
        int dx, int dy, LPCRECT rect, LPCRECT clip, CRgn* updateRegion, LPRECT update, UINT flags);

    CMenu* GetMenu() const { return CMenu::FromHandle(::GetMenu(m_hWnd)); } // null: none
    BOOL SetMenu(CMenu* menu);                                              // not owned; null: no menu
    void DrawMenuBar() { ::DrawMenuBar(m_hWnd); }
    CMenu* GetSystemMenu(BOOL revert) const { return CMenu::FromHandle(::GetSystemMenu(m_hWnd, revert)); }
    BOOL HiliteMenuItem(CMenu* menu, UINT item, UINT flags);
    BOOL GetMenuBarInfo(LONG object, LONG item, MENUBARINFO* info) const
    {
        return ::GetMenuBarInfo(m_hWnd, object, item, info);
    }

    void CreateCaret(CBitmap* bitmap);
    void CreateSolidCaret(int width, int height) { ::CreateCaret(m_hWnd, nullptr, width, height); }
    void CreateGrayCaret(int width, int height);
    static CPoint GetCaretPos();
    static void SetCaretPos(POINT at) { ::SetCaretPos(at.x, at.y); }
    void ShowCaret() { ::ShowCaret(m_hWnd); }
    void HideCaret() { ::HideCaret(m_hWnd); }

    UINT_PTR SetTimer(UINT_PTR id, UINT milliseconds, TIMERPROC proc = nullptr)
    {
        return ::SetTimer(m_hWnd, id, milliseconds, proc);
    }
    BOOL KillTimer(UINT_PTR id) { return ::KillTimer(m_hWnd, id); }
    BOOL IsDialogMessage(MSG* message) { return ::IsDialogMessageW(m_hWnd, message); }
    void DragAcceptFiles(BOOL accept = TRUE) { ::DragAcceptFiles(m_hWnd, accept); }
    BOOL OpenClipboard() { return ::OpenClipboard(m_hWnd); }
    static CWnd* GetClipboardOwner() { return FromHandle(::GetClipboardOwner()); }
    static CWnd* GetOpenClipboardWindow() { return FromHandle(::GetOpenClipboardWindow()); }
    static CWnd* GetClipboardViewer() { return FromHandle(::GetClipboardViewer()); }
    HWND SetClipboardViewer() { return ::SetClipboardViewer(m_hWnd); }
    BOOL ChangeClipboardChain(HWND next) { return ::ChangeClipboardChain(m_hWnd, next); }
    DWORD GetWindowContextHelpId() const { return ::GetWindowContextHelpId(m_hWnd); }
    BOOL SetWindowContextHelpId(DWORD id) { return ::SetWindowContextHelpId(m_hWnd, id); }
    virtual void WinHelp(DWORD_PTR data, UINT command = HELP_CONTEXT); // of the help file of the application

private:
    struct BarCL
    {
        HWND hWnd;
        int number;
    };
    BarCL barM(int bar) const;
    HWND scrollBarHandleM(int bar) const; // null: the window's own

    HWND owner_ = nullptr;
};
