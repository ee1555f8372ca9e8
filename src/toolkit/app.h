#pragma once
#include "toolkit/message_map.h"

class CWnd;

// A thread that shows windows: its main window and its message loop. Each thread has one, made on demand
// where the application constructs none, so a host with a loop of its own can still name its main window.
class PANELKIT_API CWinThread : public CCmdTarget
{
    DECLARE_DYNAMIC(CWinThread)
public:
    CWinThread(); // becomes the thread object of the calling thread
    ~CWinThread() override;

    CWnd* m_pMainWnd = nullptr; // not owned; becomes null, and ends Run, when its window is destroyed
    virtual CWnd* GetMainWnd() { return m_pMainWnd; }
    virtual BOOL InitInstance() { return FALSE; } // FALSE: nothing to run
    virtual int Run(); // until WM_QUIT; its exit code is the result of ExitInstance
    virtual int ExitInstance();
    virtual BOOL PreTranslateMessage(MSG* message); // TRUE: dealt with
    virtual BOOL PumpMessage(); // waits for one message and deals with it; FALSE: it was WM_QUIT
    // The queue is empty. Drops the temporary objects made since the loop began. TRUE: call again.
    virtual BOOL OnIdle(LONG count);
    void MainWndGone();
    int ExitCode() const { return m_nExitCode; }

protected:
    DECLARE_MESSAGE_MAP()
    int m_nExitCode = 0;

private:
    CWinThread* outer_;
    bool isRunning_ = false;
};

class PANELKIT_API CWinApp : public CWinThread
{
    DECLARE_DYNAMIC(CWinApp)
public:
    explicit CWinApp(LPCSTR name = nullptr); // null: named after the program file
    ~CWinApp() override;

    LPCSTR m_pszAppName; // title of message boxes, GBK; on the heap of malloc, freed with this object
    HINSTANCE m_hInstance;
    LPSTR m_lpCmdLine = nullptr;
    int m_nCmdShow = SW_SHOWNORMAL;
    BOOL InitInstance() override { return TRUE; }
    HICON LoadIcon(UINT id) const;
    HCURSOR LoadStandardCursor(LPCWSTR id) const { return ::LoadCursorW(nullptr, id); }
};

PANELKIT_API CWinApp* AfxGetApp();       // null: the program has none
PANELKIT_API CWinThread* AfxGetThread(); // of the calling thread, never null
PANELKIT_API CWnd* AfxGetMainWnd();      // of the calling thread; null: none named
PANELKIT_API LPCSTR AfxGetAppName();

// For message loops that are not the toolkit's: TRUE when a window has dealt with the message.
PANELKIT_API BOOL AfxPreTranslateMessage(MSG* message);
// The body of WinMain for an application object.
PANELKIT_API int AfxWinMain(HINSTANCE instance, HINSTANCE previous, LPSTR commandLine, int show);
