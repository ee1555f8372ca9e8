#pragma once
#include "toolkit/window_class.h"
#include "toolkit/wnd_handlers.h"

class CDataExchange;

// Window procedure of all windows that belong to objects.
PANELKIT_API LRESULT CALLBACK AfxWndProc(HWND hWnd, UINT message, WPARAM wParam, LPARAM lParam);

// One window. Destroying the object destroys its window; when the window goes first, m_hWnd becomes null and
// PostNcDestroy is the last call on the object. Until it has a window it may be moved by its bytes.
class PANELKIT_API CWnd : public WndHandlersCL
{
    DECLARE_DYNAMIC(CWnd)
public:
    CWnd() = default;
    ~CWnd() override;

    // Places in the stacking order, for SetWindowPos.
    static const CWnd wndTop;
    static const CWnd wndBottom;
    static const CWnd wndTopMost;
    static const CWnd wndNoTopMost;

    BOOL Attach(HWND hWnd);         // without taking its messages
    HWND Detach();                  // gives the window back as it was before Attach or SubclassWindow
    BOOL SubclassWindow(HWND hWnd); // from now on its messages come to this object
    BOOL SubclassDlgItem(UINT id, CWnd* parent); // the same for a control of the parent
    // As Detach.
    HWND UnsubclassWindow() { return Detach(); }

    // A window that the object still has is destroyed first. Texts are GBK, or wide; a class name may be an
    // atom (MAKEINTATOM) or what AfxRegisterWndClass gives. FALSE: PreCreateWindow or WM_CREATE refused, or
    // the system did.
    BOOL CreateEx(DWORD exStyle, LPCSTR className, LPCSTR title, DWORD style, int x, int y, int width,
        int height, HWND parent, HMENU idOrMenu, LPVOID param = nullptr);
    BOOL CreateEx(DWORD exStyle, LPCSTR className, LPCSTR title, DWORD style, const RECT& rect, CWnd* parent,
        UINT id, LPVOID param = nullptr);
    AFX_WIDE_TEXT BOOL CreateEx(DWORD exStyle, const WideTP* className, LPCWSTR title, DWORD style, int x,
        int y, int width, int height, HWND parent, HMENU idOrMenu, LPVOID param = nullptr)
    {
        return createM(exStyle, className, title, style, x, y, width, height, parent, idOrMenu, param);
    }
    AFX_WIDE_TEXT BOOL CreateEx(DWORD exStyle, const WideTP* className, LPCWSTR title, DWORD style,
        const RECT& rect, CWnd* parent, UINT id, LPVOID param = nullptr)
    {
        return createM(exStyle, className, title, style, rect.left, rect.top, rect.right - rect.left,
            rect.bottom - rect.top, handleOfM(parent), idM(id), param);
    }
    AFX_WIDE_TEXT BOOL CreateEx(DWORD exStyle, LPCSTR className, const WideTP* title, DWORD style, int x,
        int y, int width, int height, HWND parent, HMENU idOrMenu, LPVOID param = nullptr)
    {
        return createM(exStyle, WindowClassNameCL(className), title, style, x, y, width, height, parent,
            idOrMenu, param);
    }
    AFX_WIDE_TEXT BOOL CreateEx(DWORD exStyle, LPCSTR className, const WideTP* title, DWORD style,
        const RECT& rect, CWnd* parent, UINT id, LPVOID param = nullptr)
    {
        return createM(exStyle, WindowClassNameCL(className), title, style, rect.left, rect.top,
            rect.right - rect.left, rect.bottom - rect.top, handleOfM(parent), idM(id), param);
    }
    BOOL Create(LPCSTR className, LPCSTR title, DWORD style, const RECT& rect, CWnd* parent, UINT id,
        LPVOID param = nullptr); // a child window
    AFX_WIDE_TEXT BOOL Create(LPCSTR className, const WideTP* title, DWORD style, const RECT& rect,
        CWnd* parent, UINT id, LPVOID param = nullptr)
    {
        return CreateEx(0, className, title, style | WS_CHILD, rect, parent, id, param);
    }
    AFX_WIDE_TEXT BOOL Create(const WideTP* className, LPCWSTR title, DWORD style, const RECT& rect,
        CWnd* parent, UINT id, LPVOID param = nullptr)
    {
        return CreateEx(0, className, title, style | WS_CHILD, rect, parent, id, param);
    }
    virtual BOOL DestroyWindow();
    virtual BOOL PreCreateWindow(
        CREATESTRUCT& cs);               // may change what the window is made with; FALSE: no window
    virtual void PreSubclassWindow() { } // the window is there, its first message still to come

    // Every message of the window: the map and the virtual handlers, then DefWindowProc.
    virtual LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam);
    // What the window does with a message by itself.
    virtual LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam);
    virtual BOOL PreTranslateMessage(MSG* message); // TRUE: dealt with
    // Asks PreTranslateMessage of the objects from the message's window up to `stop`. TRUE: one dealt with
    // it.
    static BOOL WalkPreTranslateTree(HWND stop, MSG* message);
    BOOL SendChildNotifyLastMsg(LRESULT* result = nullptr); // offers the current message to its child

    // Moves what the controls show into the members that DoDataExchange names, or back for FALSE. Meanwhile
    // the controls' notifications do not reach this window. FALSE: a value was bad, the user has been told.
    BOOL UpdateData(BOOL saveAndValidate = TRUE);
    // Asks the handlers of ON_UPDATE_COMMAND_UI how the controls are to look; those that nobody knows are
    // disabled if wanted.
    void UpdateDialogControls(CCmdTarget* target, BOOL disableIfNoHandler);

    // A message loop until EndModalLoop; its result. flags: MLF_SHOWONIDLE shows the window when nothing is
    // left to do.
    int RunModalLoop(DWORD flags = 0);

    // Whether that loop goes on.
    virtual BOOL ContinueModal() { return modal_ == Modal::Running; }
    // Ends it; result: that of RunModalLoop.
    virtual void EndModalLoop(int result);

protected:
    // Whether a handler of the map, OnCommand or OnNotify dealt with the message; *result is its result.
    virtual BOOL OnWndMsg(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result);
    // WM_COMMAND, before the map. TRUE: dealt with.
    virtual BOOL OnCommand(WPARAM wParam, LPARAM lParam);
    // The same for WM_NOTIFY.
    virtual BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* result);
    // A notification of this control, before its parent sees it. TRUE: the parent doesn't.
    virtual BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result);
    // Names the members that go with controls, by DDX_ and DDV_ functions (ddx.h).
    virtual void DoDataExchange(CDataExchange*) { }
    virtual void PostNcDestroy() { } // the window is gone; may delete the object
    afx_msg void OnNcDestroy();      // lets the window go, then PostNcDestroy
    // Destroys a window that the object still has, before it gets another. False: the object went along, or
    // the window stays.
    bool letGoOfWindowM();
    static void takeMadeM(CWnd* wnd, HWND made); // the window that was asked for, before its first message
    // Whether the object is to hear what its window is told while it is being made. false: it gets the window
    // only then, yet before anybody can ask for it, and catchUpM does what its handlers would have done.
    virtual bool hearsCreationM() const { return true; }
    virtual void catchUpM() { }
    // From now on what the window is told when it goes, WM_DESTROY and WM_NCDESTROY, passes the object by
    // until it has gone. For objects that would do nothing about it.
    void passEndByM() { endPassesBy_ = true; }
    // EndModalLoop counts from the beginning, which may lie before the window, to the end.
    void beginModalM();

    // Whether it has begun and not been ended.
    bool isModalM() const { return modal_ != Modal::No; }
    int endModalM(); // what EndModalLoop said, else -1
    DECLARE_MESSAGE_MAP()

private:
    friend class WndHandlersCL;
    friend struct WindowMessageCL;
    explicit CWnd(HWND place) { m_hWnd = place; }
    bool isPlaceM() const; // one of wndTop and its kin, or empty
    void takeMessagesM();
    static void takeLateM(CWnd* wnd, HWND made);
    static HMENU idM(UINT id) { return reinterpret_cast<HMENU>(static_cast<UINT_PTR>(id)); }
    BOOL createM(DWORD exStyle, LPCWSTR className, LPCWSTR title, DWORD style, int x, int y, int width,
        int height, HWND parent, HMENU idOrMenu, LPVOID param);
    BOOL reflectM(HWND child, UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result);
    HWND askingChildM(UINT message, WPARAM wParam, LPARAM lParam) const;
    HWND measuredChildM(UINT id) const;
    void updateMenuM(CMenu* menu);
    bool drawMenuM(UINT message, LPARAM lParam);
    bool dispatchM(AFX_MESSAGE& m);
    void windowGoneM();

    WNDPROC oldProc_ = nullptr; // null: the object doesn't get the window's messages
    enum class Modal
    {
        No,
        Running,
        Ended
    } modal_
        = Modal::No;
    int modalResult_ = -1;
    bool endPassesBy_ = false;
};

#define MLF_NOIDLEMSG 0x0001  // without effect: the loop sends no WM_ENTERIDLE
#define MLF_NOKICKIDLE 0x0002 // without effect
#define MLF_SHOWONIDLE 0x0004 // the window is shown when nothing is left to do
