#include "toolkit/app.h"
#include "toolkit/thread_state.h"
#include <cstdio>
#include <cstdlib>
#include <cstring>

IMPLEMENT_DYNAMIC(CWinThread, CCmdTarget)
IMPLEMENT_DYNAMIC(CWinApp, CWinThread)

BEGIN_MESSAGE_MAP(CWinThread, CCmdTarget)
END_MESSAGE_MAP()

namespace {

CWinApp* theApplication = nullptr;  // one a program, seen from all its threads
HINSTANCE resourceModule = nullptr; // null: the program itself

std::string programNameM()
{
    wchar_t path[MAX_PATH] = {};
    ::GetModuleFileNameW(nullptr, path, MAX_PATH);
    std::wstring name(path);
    name.erase(0, name.find_last_of(L"\\/") + 1);
    return WideToGbk(name.substr(0, name.rfind(L'.')).c_str());
}

HWND messageBoxOwnerM()
{
    CWnd* mainWnd = AfxGetMainWnd();
    HWND owner = mainWnd != nullptr && mainWnd->m_hWnd != nullptr ? mainWnd->m_hWnd : ::GetActiveWindow();
    // The box must be modal to the popup in front, such as an open dialog.
    return owner == nullptr ? nullptr : ::GetLastActivePopup(::GetAncestor(owner, GA_ROOT));
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

BOOL CWinThread::PreTranslateMessage(MSG* message)
{
    if (message->hwnd == nullptr) {
        return FALSE;
    }
    HWND mainWnd = m_pMainWnd == nullptr ? nullptr : m_pMainWnd->m_hWnd;
    return CWnd::WalkPreTranslateTree(mainWnd, message);
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

HINSTANCE AfxGetInstanceHandle()
{
    return ::GetModuleHandleW(nullptr);
}

HINSTANCE AfxGetResourceHandle()
{
    return resourceModule == nullptr ? AfxGetInstanceHandle() : resourceModule;
}

void AfxSetResourceHandle(HINSTANCE module)
{
    resourceModule = module;
}

int AfxMessageBox(LPCSTR text, UINT type, UINT)
{
    return ::MessageBoxW(
        messageBoxOwnerM(), slGbkToShown(text).c_str(), slGbkToShown(AfxGetAppName()).c_str(), type);
}

int AfxMessageBox(UINT textId, UINT type, UINT helpId)
{
    const wchar_t* text = nullptr;
    int length = ::LoadStringW(AfxGetResourceHandle(), textId, reinterpret_cast<LPWSTR>(&text), 0);
    return AfxMessageBox(WideToGbk(text, length).c_str(), type, helpId);
}

BOOL AfxRegisterClass(WNDCLASSW* windowClass)
{
    WNDCLASSW known = {};
    if (::GetClassInfoW(windowClass->hInstance, windowClass->lpszClassName, &known)) {
        return TRUE;
    }
    return ::RegisterClassW(windowClass) != 0;
}

LPCSTR AfxRegisterWndClass(UINT style, HCURSOR cursor, HBRUSH background, HICON icon)
{
    static thread_local char name[96];
    std::snprintf(name, sizeof name, "AfxWnd:%x:%p:%p:%p", style, static_cast<void*>(cursor),
        static_cast<void*>(background), static_cast<void*>(icon));
    std::wstring wideName = slGbkToShown(name);
    WNDCLASSW look = {};
    look.style = style;
    look.lpfnWndProc = ::DefWindowProcW;
    look.hInstance = AfxGetInstanceHandle();
    look.hCursor = cursor;
    look.hbrBackground = background;
    look.hIcon = icon;
    look.lpszClassName = wideName.c_str();
    return AfxRegisterClass(&look) ? name : nullptr;
}

LPCWSTR AfxDefaultWndClass()
{
    static const wchar_t* const name = L"AfxWnd";
    WNDCLASSW plain = {};
    plain.style = CS_DBLCLKS;
    plain.lpfnWndProc = ::DefWindowProcW;
    plain.hInstance = AfxGetInstanceHandle();
    plain.hCursor = ::LoadCursorW(nullptr, IDC_ARROW);
    plain.lpszClassName = name;
    AfxRegisterClass(&plain);
    return name;
}

void AfxLogFailure(LPCSTR call, LPCSTR argument)
{
    char line[160];
    std::snprintf(line, sizeof line, "toolkit: %s(%.60s) failed, error %lu\n", call,
        argument == nullptr ? "" : argument, ::GetLastError());
    ::OutputDebugStringA(line);
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
