#include "dialog/basic_dialog.h"
#include "baselib/gbk.h"
#include "dialog/reading_diagnostics.h"
#include "toolkit/life.h"

namespace {

constexpr UINT StartPeriod = 50; // Milliseconds.

// An empty dialog.
constexpr struct
{
    DLGTEMPLATE header { WS_POPUP | WS_CAPTION | WS_SYSMENU, 0, 0, 0, 0, 100, 100 };
    WORD menu { 0 };
    WORD windowClass { 0 };
    WORD title { 0 };
} EmptyTemplate {};

// What the window system tells the parents of a window that is destroyed by itself.
void tellParentsM(HWND child)
{
    const auto tells = [](HWND window) {
        return (::GetWindowLongW(window, GWL_STYLE) & WS_CHILD) != 0
            && (::GetWindowLongW(window, GWL_EXSTYLE) & WS_EX_NOPARENTNOTIFY) == 0;
    };
    const WPARAM what = MAKEWPARAM(WM_DESTROY, ::GetDlgCtrlID(child));
    for (HWND at = child; tells(at);) {
        at = ::GetParent(at);
        if (at == nullptr) {
            break;
        }
        ::SendMessageW(at, WM_PARENTNOTIFY, what, reinterpret_cast<LPARAM>(child));
    }
}

} // namespace

IMPLEMENT_DYNCREATE(DuBasicDialogCL, CDialog)

BEGIN_MESSAGE_MAP(DuBasicDialogCL, CDialog)
ON_WM_PAINT()
ON_WM_TIMER()
END_MESSAGE_MAP()

DuBasicDialogCL::DuBasicDialogCL() = default;

DuBasicDialogCL::DuBasicDialogCL(int templateId, CWnd* parent)
    : CDialog(static_cast<UINT>(templateId), parent)
{
}

DuBasicDialogCL::~DuBasicDialogCL() = default;

int DuBasicDialogCL::SetConfigFileM(const char* path)
{
    if (path == nullptr || *path == '\0') {
        return 0;
    }
    slCopyText(configFile_, TextSize, path);
    return 1;
}

int DuBasicDialogCL::CreateM(CWnd* parent)
{
    return CreateIndirect(&EmptyTemplate.header, parent) ? 1 : 0;
}

int DuBasicDialogCL::DoModalM(CWnd* parent)
{
    InitModalIndirect(&EmptyTemplate.header, parent);
    return static_cast<int>(DoModal());
}

BOOL DuBasicDialogCL::OnInitDialog()
{
    DestroyM();
    stretch_ = {}; // That of a window before.
    InitDlgM(this, 1);
    CDialog::OnInitDialog(); // The host's data exchange finds the controls.
    timerId_ = SetTimer(StartTimer, StartPeriod, nullptr);
    return TRUE;
}

void DuBasicDialogCL::DestroyM()
{
    const ValidationPauseCL destroying(m_hWnd);
    std::apply([](auto&... kind) { ((kind.controls.DelAllM(), kind.records.DelAllM()), ...); }, kinds_);
    index_.ForgetM();
    bound_ = {};
    font_.DeleteObject();
}

BOOL DuBasicDialogCL::DestroyWindow()
{
    const LifeCL life(this);
    const bool isParted = partM();
    if (!life.IsAliveM()) {
        return TRUE;
    }
    if (!isParted) {
        DestroyM();
        return CDialog::DestroyWindow();
    }
    const ValidationPauseCL destroying(m_hWnd);
    isParted_ = true;
    const BOOL done = CDialog::DestroyWindow();
    if (life.IsAliveM()) { // PostNcDestroy may have deleted it.
        isParted_ = false;
        DestroyM();
    }
    return done;
}

// Prepares for the controls' windows to go with the dialog's, in one call where each for itself would be
// many: those that have something to say while they go are destroyed, for the others the dialog is told that
// they go. False: all are to be destroyed one by one, as the focus or the mouse would wander through them.
bool DuBasicDialogCL::partM()
{
    const auto holds = [this](HWND window) { return window != nullptr && ::IsChild(m_hWnd, window); };
    if (m_hWnd == nullptr || parentM() != m_hWnd || holds(::GetFocus()) || holds(::GetCapture())) {
        return false;
    }
    const LifeCL life(this);
    const ValidationPauseCL destroying(m_hWnd);
    eachControlsM([this, &life](auto row, auto& controls) {
        for (int i = 0; life.IsAliveM() && i < controls.GetBoundM(); ++i) {
            const auto& control = controls.ControlAtM(i);
            const bool goesAlong = decltype(row)::CanM(GoesQuietly) && slIsJust(control)
                && control.m_hWnd != nullptr && ::GetAncestor(control.m_hWnd, GA_PARENT) == m_hWnd;
            if (goesAlong) {
                tellParentsM(control.m_hWnd);
            } else {
                controls.DelItemM(i);
            }
        }
    });
    return life.IsAliveM() && m_hWnd != nullptr;
}

void DuBasicDialogCL::EndDialog(int result)
{
    const ValidationPauseCL ending(m_hWnd);
    CDialog::EndDialog(result);
}

int DuBasicDialogCL::DrawBkGroundM(CDC* dc, int x, int y)
{
    if (dc == nullptr) {
        return 0;
    }
    if (background_.GetWidthM() == 0) {
        return 0;
    }
    background_.DrawBitmapM(dc, x, y, nullptr);
    return 1;
}

void DuBasicDialogCL::OnPaint()
{
    CPaintDC dc(this);
    leaveOutOpaqueM(dc.m_hDC);
    DrawBkGroundM(&dc, 0, 0);
}

void DuBasicDialogCL::OnTimer(UINT_PTR id)
{
    if (id == StartTimer) {
        ShowWindow(SW_SHOW);
        if (timerId_ != 0) {
            KillTimer(timerId_);
        }
    }
    CDialog::OnTimer(id);
}
