#pragma once
#include "toolkit/exceptions.h"
#include "toolkit/message_map.h"

class CWnd;

typedef UINT (*AFX_THREADPROC)(LPVOID); // the result is the thread's exit code

// A thread: one that works through a function, or one that shows windows, with its main window and message
// loop. The object of the calling thread is made on demand where the application constructs none, so a host
// with a loop of its own can still name its main window.
class PANELKIT_API CWinThread : public CCmdTarget
{
    DECLARE_DYNAMIC(CWinThread)
public:
    CWinThread() = default;
    CWinThread(AFX_THREADPROC proc, LPVOID param)
        : proc_(proc)
        , param_(param)
    {
    }
    ~CWinThread() override; // closes m_hThread

    HANDLE m_hThread = nullptr; // of a thread begun by CreateThread
    DWORD m_nThreadID = 0;
    BOOL m_bAutoDelete = TRUE; // the object goes with the end of its thread
    operator HANDLE() const { return m_hThread; }
    // Begins the thread on which this object then runs. flags: CREATE_SUSPENDED or 0; stack in bytes, 0 for
    // the program's usual. FALSE: the system refused.
    BOOL CreateThread(DWORD flags = 0, UINT stack = 0, LPSECURITY_ATTRIBUTES security = nullptr);
    DWORD SuspendThread() { return ::SuspendThread(m_hThread); }
    DWORD ResumeThread() { return ::ResumeThread(m_hThread); }
    int GetThreadPriority() { return ::GetThreadPriority(m_hThread); }
    BOOL SetThreadPriority(int priority) { return ::SetThreadPriority(m_hThread, priority); }
    // For ON_THREAD_MESSAGE. FALSE: the thread has no queue yet, or is gone.
    BOOL PostThreadMessage(UINT message, WPARAM wParam, LPARAM lParam)
    {
        return ::PostThreadMessageW(m_nThreadID, message, wParam, lParam);
    }

    CWnd* m_pMainWnd = nullptr; // not owned; becomes null, and ends Run, when its window is destroyed
    // That window; null: none.
    virtual CWnd* GetMainWnd() { return m_pMainWnd; }
    virtual BOOL InitInstance() { return FALSE; } // FALSE: nothing to run
    virtual int Run(); // until WM_QUIT; its exit code is the result of ExitInstance
    // At the end of Run; the exit code.
    virtual int ExitInstance();
    virtual BOOL PreTranslateMessage(MSG* message); // TRUE: dealt with
    virtual BOOL PumpMessage(); // waits for one message and deals with it; FALSE: it was WM_QUIT
    // The queue is empty. Drops the temporary objects made since the loop began. TRUE: call again.
    virtual BOOL OnIdle(LONG count);
    // A handler has thrown an exception, which is deleted afterwards; the result is the message's. Here
    // WM_CREATE fails, WM_PAINT validates the window, else the user is told, but of a CUserException.
    virtual LRESULT ProcessWndProcException(CException* e, const MSG* message);
    virtual void Delete(); // at the end of the thread
    // Called when that window is destroyed.
    void MainWndGone();
    // What WM_QUIT said.
    int ExitCode() const { return m_nExitCode; }

protected:
    DECLARE_MESSAGE_MAP()
    int m_nExitCode = 0;   // what WM_QUIT said
    void becomeCurrentM(); // the object of the calling thread

private:
    friend PANELKIT_API CWinThread* AfxGetThread();
    static unsigned __stdcall runM(void* thread);
    BOOL dispatchThreadMessageM(const MSG& message);

    AFX_THREADPROC proc_ = nullptr; // null: InitInstance and Run
    LPVOID param_ = nullptr;
    CWinThread* outer_ = nullptr;
    bool isRunning_ = false;
};

PANELKIT_API CWinThread* AfxGetThread(); // of the calling thread, never null
PANELKIT_API CWnd* AfxGetMainWnd();      // of the calling thread; null: none named

// Begins a thread, by a function or by an object of the class (DECLARE_DYNCREATE). The object goes by itself
// at the end: who waits for the thread begins it suspended, and sets m_bAutoDelete or copies the handle.
// Null: the system refused.
PANELKIT_API CWinThread* AfxBeginThread(AFX_THREADPROC proc, LPVOID param,
    int priority = THREAD_PRIORITY_NORMAL, UINT stack = 0, DWORD flags = 0,
    LPSECURITY_ATTRIBUTES security = nullptr);
PANELKIT_API CWinThread* AfxBeginThread(CRuntimeClass* threadClass, int priority = THREAD_PRIORITY_NORMAL,
    UINT stack = 0, DWORD flags = 0, LPSECURITY_ATTRIBUTES security = nullptr);
// Ends the calling thread, which AfxBeginThread or CreateThread has begun. deletes: its object too.
[[noreturn]] PANELKIT_API void AfxEndThread(UINT exitCode, BOOL deletes = TRUE);

// For message loops that are not the toolkit's: TRUE when a window has dealt with the message.
PANELKIT_API BOOL AfxPreTranslateMessage(MSG* message);

// Inside a catch block of whatever the handler of the message has thrown: the message's result.
LRESULT AfxAnswerException(const MSG& message);
