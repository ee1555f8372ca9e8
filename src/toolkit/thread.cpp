#include "toolkit/thread.h"
#include "toolkit/module.h"
#include "toolkit/thread_state.h"
#include <cstdlib>
#include <memory>
#include <new>
#include <process.h>
#include <utility>

IMPLEMENT_DYNAMIC(CWinThread, CCmdTarget)

BEGIN_MESSAGE_MAP(CWinThread, CCmdTarget)
END_MESSAGE_MAP()

CWinThread::~CWinThread()
{
    ThreadStateCL* state = ThreadStateCL::KnownM();
    if (state != nullptr && state->thread == this) {
        state->thread = outer_;
    }
    if (m_hThread != nullptr) {
        ::CloseHandle(m_hThread);
    }
}

void CWinThread::becomeCurrentM()
{
    m_nThreadID = ::GetCurrentThreadId();
    outer_ = std::exchange(ThreadStateCL::ThisM().thread, this);
}

BOOL CWinThread::CreateThread(DWORD flags, UINT stack, LPSECURITY_ATTRIBUTES security)
{
    ASSERT(m_hThread == nullptr);
    // It may be gone before the call returns, so it begins to run only when all about it is noted.
    unsigned id = 0;
    m_hThread = reinterpret_cast<HANDLE>(
        ::_beginthreadex(security, stack, &CWinThread::runM, this, flags | CREATE_SUSPENDED, &id));
    if (m_hThread == nullptr) {
        AfxLogFailure("_beginthreadex", nullptr);
        return FALSE;
    }
    m_nThreadID = id;
    if ((flags & CREATE_SUSPENDED) == 0) {
        ResumeThread();
    }
    return TRUE;
}

unsigned __stdcall CWinThread::runM(void* thread)
{
    CWinThread* self = static_cast<CWinThread*>(thread);
    self->becomeCurrentM();
    if (self->proc_ != nullptr) {
        AfxEndThread(self->proc_(self->param_));
    }
    AfxEndThread(static_cast<UINT>(self->InitInstance() ? self->Run() : self->ExitInstance()));
}

void CWinThread::Delete()
{
    if (m_bAutoDelete) {
        delete this;
    }
}

void CWinThread::MainWndGone()
{
    m_pMainWnd = nullptr;
    if (isRunning_) {
        ::PostQuitMessage(0);
    }
}

int CWinThread::Run()
{
    LoopCL loop(true);
    isRunning_ = true;
    LONG idleCount = 0;
    for (;;) {
        MSG next;
        while (!::PeekMessageW(&next, nullptr, 0, 0, PM_NOREMOVE) && OnIdle(idleCount)) {
            ++idleCount;
        }
        idleCount = 0;
        if (!PumpMessage()) {
            break;
        }
    }
    isRunning_ = false;
    return ExitInstance();
}

int CWinThread::ExitInstance()
{
    return m_nExitCode;
}

BOOL CWinThread::PumpMessage()
{
    MSG message;
    BOOL got = ::GetMessageW(&message, nullptr, 0, 0);
    if (got <= 0) {
        m_nExitCode = got == 0 ? static_cast<int>(message.wParam) : -1;
        return FALSE;
    }
    if (!PreTranslateMessage(&message)) {
        ::TranslateMessage(&message);
        ::DispatchMessageW(&message);
    }
    return TRUE;
}

BOOL CWinThread::OnIdle(LONG)
{
    ThreadStateCL::ThisM().CleanTemporariesM();
    return FALSE;
}

BOOL CWinThread::dispatchThreadMessageM(const MSG& message)
{
    const AFX_MSGMAP_ENTRY* entry = findEntryM(message.message, 0, 0);
    if (entry == nullptr) {
        return FALSE;
    }
    AFX_MESSAGE m = { message.message, message.wParam, message.lParam, 0, 0, 0, nullptr };
    try {
        return entry->pfn(this, m);
    } catch (...) {
        AfxAnswerException(message);
        return TRUE;
    }
}

LRESULT CWinThread::ProcessWndProcException(CException* e, const MSG* message)
{
    switch (message->message) {
    case WM_CREATE:
        return -1;
    case WM_PAINT:
        ::ValidateRect(message->hwnd, nullptr); // else it would come again at once
        return 0;
    default:
        if (!e->IsKindOf(RUNTIME_CLASS(CUserException))) {
            e->ReportError(MB_OK | MB_ICONEXCLAMATION);
        }
        return message->message == WM_COMMAND ? TRUE : 0;
    }
}

LRESULT AfxAnswerException(const MSG& message)
{
    try {
        throw;
    } catch (CException* e) {
        LRESULT result = 0;
        try {
            result = AfxGetThread()->ProcessWndProcException(e, &message);
        } catch (...) {
            AfxLogFailure("ProcessWndProcException threw an exception", nullptr);
        }
        e->Delete();
        return result;
    } catch (const std::bad_alloc&) {
        ThreadStateCL::ThisM().hasLackedMemory = true;
        AfxLogFailure("a message handler found no memory", nullptr);
    } catch (...) {
        AfxLogFailure("a message handler threw an exception", nullptr);
    }
    if (message.message == WM_PAINT) {
        ::ValidateRect(message.hwnd, nullptr); // else it would come again at once
    }
    return message.message == WM_CREATE ? -1 : 0;
}

CWinThread* AfxGetThread()
{
    ThreadStateCL& state = ThreadStateCL::ThisM();
    if (state.thread == nullptr) {
        auto made = std::make_unique<CWinThread>();
        made->becomeCurrentM();
        state.ownThread = std::move(made);
    }
    return state.thread;
}

CWnd* AfxGetMainWnd()
{
    return AfxGetThread()->GetMainWnd();
}

namespace {

CWinThread* startThreadM(
    std::unique_ptr<CWinThread> thread, int priority, UINT stack, DWORD flags, LPSECURITY_ATTRIBUTES security)
{
    if (thread == nullptr || !thread->CreateThread(flags | CREATE_SUSPENDED, stack, security)) {
        return nullptr;
    }
    CWinThread* const started = thread.release(); // its own from now on
    started->SetThreadPriority(priority);
    if ((flags & CREATE_SUSPENDED) == 0) {
        started->ResumeThread();
    }
    return started;
}

} // namespace

CWinThread* AfxBeginThread(
    AFX_THREADPROC proc, LPVOID param, int priority, UINT stack, DWORD flags, LPSECURITY_ATTRIBUTES security)
{
    auto thread = std::make_unique<CWinThread>(proc, param);
    return startThreadM(std::move(thread), priority, stack, flags, security);
}

CWinThread* AfxBeginThread(
    CRuntimeClass* threadClass, int priority, UINT stack, DWORD flags, LPSECURITY_ATTRIBUTES security)
{
    std::unique_ptr<CWinThread> thread(static_cast<CWinThread*>(threadClass->CreateObject()));
    return startThreadM(std::move(thread), priority, stack, flags, security);
}

void AfxEndThread(UINT exitCode, BOOL deletes)
{
    ThreadStateCL& state = ThreadStateCL::ThisM();
    CWinThread* thread = std::exchange(state.thread, nullptr);
    if (deletes && thread != nullptr && thread != state.ownThread.get()) {
        thread->Delete();
    }
    ::_endthreadex(exitCode);
    std::abort(); // for the compiler, which takes the call for one that returns
}

BOOL AfxPreTranslateMessage(MSG* message)
{
    return AfxGetThread()->PreTranslateMessage(message);
}
