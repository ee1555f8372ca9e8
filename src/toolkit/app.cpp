#include "toolkit/app.h"
#include "baselib/gbk.h"
#include "toolkit/text.h"
#include "toolkit/thread_state.h"
#include <cstdlib>
#include <cstring>

IMPLEMENT_DYNAMIC(CWinApp, CWinThread)

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

// Nested calls show one hourglass; the outermost puts back the cursor that was there.
void waitM(int change)
{
    ThreadStateCL& state = ThreadStateCL::ThisM();
    const int before = state.waits;
    state.waits = before + change < 0 ? 0 : before + change;
    if (state.waits > 0) {
        const HCURSOR old = ::SetCursor(::LoadCursorW(nullptr, IDC_WAIT));
        if (before == 0) {
            state.beforeWait = old;
        }
    } else if (before > 0) {
        ::SetCursor(state.beforeWait);
    }
}

void doWaitM(int change)
{
    if (theApplication != nullptr) {
        theApplication->DoWaitCursor(change);
    } else {
        waitM(change);
    }
}

} // namespace

CWinApp::CWinApp(LPCSTR name)
    : m_pszAppName(::strdup(name == nullptr ? programNameM().c_str() : name))
    , m_pszProfileName(::strdup((std::string(m_pszAppName) + ".INI").c_str()))
    , m_hInstance(::GetModuleHandleW(nullptr))
{
    becomeCurrentM();
    theApplication = this;
}

CWinApp::~CWinApp()
{
    if (theApplication == this) {
        theApplication = nullptr;
    }
    std::free(const_cast<char*>(m_pszAppName));
    std::free(const_cast<char*>(m_pszProfileName));
    std::free(const_cast<char*>(m_pszRegistryKey));
}

HICON CWinApp::LoadIcon(UINT id) const
{
    return ::LoadIconW(AfxGetResourceHandle(), MAKEINTRESOURCEW(id));
}

HICON CWinApp::LoadIcon(LPCSTR name) const
{
    return ::LoadIconW(AfxGetResourceHandle(), slGbkToShown(name).c_str());
}

HCURSOR CWinApp::LoadCursor(UINT id) const
{
    return ::LoadCursorW(AfxGetResourceHandle(), MAKEINTRESOURCEW(id));
}

HCURSOR CWinApp::LoadCursor(LPCSTR name) const
{
    return ::LoadCursorW(AfxGetResourceHandle(), slGbkToShown(name).c_str());
}

void CWinApp::DoWaitCursor(int change)
{
    waitM(change);
}

CWaitCursor::CWaitCursor()
{
    doWaitM(1);
}

CWaitCursor::~CWaitCursor()
{
    doWaitM(-1);
}

void CWaitCursor::Restore()
{
    doWaitM(0);
}

// Here, not with the others of its class: the application is a target too.
void CCmdTarget::BeginWaitCursor()
{
    doWaitM(1);
}

void CCmdTarget::EndWaitCursor()
{
    doWaitM(-1);
}

void CCmdTarget::RestoreWaitCursor()
{
    doWaitM(0);
}

CWinApp* AfxGetApp()
{
    return theApplication;
}

LPCSTR AfxGetAppName()
{
    if (theApplication != nullptr && theApplication->m_pszAppName != nullptr) {
        return theApplication->m_pszAppName;
    }
    static const std::string name = programNameM();
    return name.c_str();
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
