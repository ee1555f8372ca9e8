#include "form/hosted_dialog.h"
#include "baselib/gbk.h"
#include "controls/base/leaving.h"

namespace {

constexpr UINT_PTR FirstFormTimer = 0x10000; // Above those of the host.

void PANELKIT_CALL tellDiagnostic(const DiagnosticCL& what, void* context)
{
    const auto& options = *static_cast<const panelkit_options*>(context);
    const std::string file = slGbkToUtf8(what.file);
    const std::string message = slGbkToUtf8(what.message);
    const panelkit_diagnostic diagnostic { sizeof diagnostic, what.line, what.column, what.code, file.c_str(),
        message.c_str() };
    try {
        options.diagnostics(&diagnostic, options.diagnostics_user);
    } catch (...) {
        ::OutputDebugStringW(L"panelkit: a diagnostics callback threw an exception\n");
    }
}

} // namespace

HostedDialogCL::HostedDialogCL(panelkit_dialog* handle, const panelkit_options& options)
    : handle_(handle)
    , options_(options)
    , lastTimer_(FirstFormTimer)
{
    if (options_.diagnostics != nullptr) {
        SetDiagnosticsM(&tellDiagnostic, &options_);
    }
}

bool HostedDialogCL::BuildM(const std::string& path, HWND owner)
{
    SetConfigFileM(path.c_str());
    return CreateM(owner != nullptr ? CWnd::FromHandle(owner) : nullptr) != 0 && HasWindowM();
}

BOOL HostedDialogCL::OnInitDialog()
{
    DuBasicDialogCL::OnInitDialog();
    KillTimer(StartTimer); // The application says when it is shown,
    return FALSE;          // and the focus stays where it is until then.
}

void HostedDialogCL::OpenM()
{
    isOpen_ = true;
    ShowWindow(SW_SHOW);
}

int HostedDialogCL::RunM()
{
    const HWND owner = ::GetWindow(m_hWnd, GW_OWNER);
    const HWND root = owner != nullptr ? ::GetAncestor(owner, GA_ROOT) : nullptr;
    if (root != nullptr && ::IsWindowEnabled(root)) {
        ::EnableWindow(root, FALSE);
        disabledOwner_ = root;
    }
    OpenM();
    while (isOpen_) {
        if (slHandleMessage(true) == 0) {
            CloseM(-1);
        }
    }
    return isDoomed_ ? -1 : result_;
}

void HostedDialogCL::CloseM(int result)
{
    if (!isOpen_) {
        return;
    }
    isOpen_ = false;
    result_ = result;
    {
        const ValidationPauseCL closing(m_hWnd);
        // First of all: else the system would activate some other program's window.
        if (disabledOwner_ != nullptr) {
            ::EnableWindow(disabledOwner_, TRUE);
            disabledOwner_ = nullptr;
        }
        if (HasWindowM()) {
            ShowWindow(SW_HIDE);
            PostMessage(WM_NULL, 0, 0); // A loop may be waiting.
        }
    }
    tellM(PANELKIT_EVENT_CLOSED, 0, 0, result);
}

void HostedDialogCL::DoomM()
{
    isDoomed_ = true;
    CloseM(-1);
}

void HostedDialogCL::askToCloseM(int result)
{
    if (isOpen_ && tellM(PANELKIT_EVENT_CLOSING, 0, 0, result) == 0) {
        CloseM(result);
    }
}

void HostedDialogCL::endUseM(UseCL::By by)
{
    if (--uses_ > 0 || !isDoomed_) {
        return;
    }
    // A message may come from inside a control, which must not go before it has handled its own.
    if (by == UseCL::ByMessage && HasWindowM()) {
        PostMessage(WM_CLOSE, 0, 0);
        return;
    }
    uses_ = 1; // The last messages of the window are no reason to begin again.
    if (HasWindowM()) {
        DestroyWindow();
    }
    delete this;
}

bool HostedDialogCL::StartTimerM(int timer, int milliseconds)
{
    StopTimerM(timer);
    if (SetTimer(++lastTimer_, static_cast<UINT>(milliseconds), nullptr) == 0) {
        return false;
    }
    timers_[lastTimer_] = timer;
    return true;
}

bool HostedDialogCL::StopTimerM(int timer)
{
    for (auto running = timers_.begin(); running != timers_.end(); ++running) {
        if (running->second == timer) {
            KillTimer(running->first);
            timers_.erase(running);
            return true;
        }
    }
    return false;
}

int slHandleMessage(bool waits)
{
    MSG message;
    if (!::PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
        if (!waits) {
            return -1;
        }
        AfxGetThread()->OnIdle(0);
        if (::GetMessageW(&message, nullptr, 0, 0) < 0) {
            return -1;
        }
    }
    if (message.message == WM_QUIT) {
        ::PostQuitMessage(static_cast<int>(message.wParam)); // The loops outside must end too.
        return 0;
    }
    if (!AfxPreTranslateMessage(&message)) {
        ::TranslateMessage(&message);
        ::DispatchMessageW(&message);
    }
    return 1;
}
