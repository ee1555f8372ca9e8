#include "toolkit/app.h"
#include "toolkit/module.h"
#include "toolkit/text.h"
#include "toolkit/thread_state.h"
#include <cstdlib>
#include <cstring>
#include <utility>

IMPLEMENT_DYNAMIC(CWinThread, CCmdTarget)
IMPLEMENT_DYNAMIC(CWinApp, CWinThread)

BEGIN_MESSAGE_MAP(CWinThread, CCmdTarget)
END_MESSAGE_MAP()

namespace {

CWinApp* theApplication = nullptr; // one a program, seen from all its threads

std::string programNameM()
{
    wchar_t path[MAX_PATH] = {};
    ::GetModuleFileNameW(nullptr, path, MAX_PATH);
    std::wstring name(path);
    name.erase(0, name.find_last_of(L"\\/") + 1);
    return WideToGbk(name.substr(0, name.rfind(L'.')).c_str());
}

} // namespace

CWinThread::CWinThread()
{
    ThreadStateCL& state = ThreadStateCL::ThisM();
    outer_ = std::exchange(state.thread, this);
}

CWinThread::~CWinThread()
{
    ThreadStateCL& state = ThreadStateCL::ThisM();
    if (state.thread == this) {
        state.thread = outer_;
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

CWinApp::CWinApp(LPCSTR name)
    : m_pszAppName(::strdup(name == nullptr ? programNameM().c_str() : name))
    , m_hInstance(::GetModuleHandleW(nullptr))
{
    theApplication = this;
}

CWinApp::~CWinApp()
{
    if (theApplication == this) {
        theApplication = nullptr;
    }
    std::free(const_cast<char*>(m_pszAppName));
}

HICON CWinApp::LoadIcon(UINT id) const
{
    return ::LoadIconW(AfxGetResourceHandle(), MAKEINTRESOURCEW(id));
}

CWinApp* AfxGetApp()
{
    return theApplication;
}

CWinThread* AfxGetThread()
{
    ThreadStateCL& state = ThreadStateCL::ThisM();
    if (state.thread == nullptr) {
        state.ownThread = std::make_unique<CWinThread>();
    }
    return state.thread;
}

CWnd* AfxGetMainWnd()
{
    return AfxGetThread()->GetMainWnd();
}

LPCSTR AfxGetAppName()
{
    if (theApplication != nullptr && theApplication->m_pszAppName != nullptr) {
        return theApplication->m_pszAppName;
    }
    static const std::string name = programNameM();
    return name.c_str();
}

BOOL AfxPreTranslateMessage(MSG* message)
{
    return AfxGetThread()->PreTranslateMessage(message);
}

int AfxWinMain(HINSTANCE instance, HINSTANCE, LPSTR commandLine, int show)
{
    CWinApp* app = AfxGetApp();
    ASSERT(app != nullptr);
    app->m_hInstance = instance;
    app->m_lpCmdLine = commandLine;
    app->m_nCmdShow = show;
    return app->InitInstance() ? app->Run() : app->ExitInstance();
}
