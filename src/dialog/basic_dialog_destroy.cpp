// Destroying: the controls by themselves, or with the dialog's window.
#include "dialog/basic_dialog.h"

namespace {

bool isQuietM(HWND window)
{
    return (::GetWindowLongW(window, GWL_EXSTYLE) & WS_EX_NOPARENTNOTIFY) != 0;
}

bool tellsParentM(HWND window)
{
    return (::GetWindowLongW(window, GWL_STYLE) & WS_CHILD) != 0 && !isQuietM(window);
}

// What the window system tells the parents of a child of the dialog that is destroyed by itself. isPart:
// whether the dialog tells a window above it in turn.
void tellParentsM(HWND child, HWND dialog, bool isPart)
{
    if (isQuietM(child)) {
        return;
    }
    const WPARAM what = MAKEWPARAM(WM_DESTROY, ::GetDlgCtrlID(child));
    const auto tell = [child, what](HWND window) {
        ::SendMessageW(window, WM_PARENTNOTIFY, what, reinterpret_cast<LPARAM>(child));
    };
    tell(dialog);
    for (HWND at = dialog; isPart && tellsParentM(at) && ::GetParent(at) != nullptr;) {
        at = ::GetParent(at);
        tell(at);
    }
}

// Takes the windows of controls that somebody is about: none of them counts any more.
template <class KindsTP> void endKinds(KindsTP& kinds)
{
    std::apply([](auto&... kind) { (kind.controls.DelAllVirtualM(), ...); }, kinds);
}

} // namespace

DuBasicDialogCL::~DuBasicDialogCL()
{
    if (turns_ > 0) { // They keep the controls, not the windows.
        endKinds(kinds_->all);
    }
}

void DuBasicDialogCL::DestroyM()
{
    const ValidationPauseCL destroying(m_hWnd);
    const LifeCL life(this);
    if (turns_ > 0) {
        leaveKindsM();
    } else {
        const TurnCL turn(this);
        std::apply(
            [&turn](auto&... kind) {
                ((turn.IsOverM() || (kind.controls.DelAllM(), kind.records.DelAllM(), true)), ...);
            },
            turn.KindsM().all);
        if (turn.IsOverM()) {
            return;
        }
        index_.ForgetM();
        bound_ = {};
    }
    if (life.IsAliveM()) {
        font_.DeleteObject();
    }
}

// Leaves controls and records to the turns that are about them, for others.
void DuBasicDialogCL::leaveKindsM()
{
    const auto kinds = std::make_shared<KindsCL>();
    slEachKind([this, &kinds](auto row) {
        using MembersTP = KindMembersCL<decltype(row)>;
        std::get<MembersTP>(kinds->all).make = std::get<MembersTP>(kinds_->all).make;
    });
    const auto left = std::exchange(kinds_, kinds);
    index_.ForgetM();
    bound_ = {};
    endKinds(left->all);
}

BOOL DuBasicDialogCL::DestroyWindow()
{
    const LifeCL life(this);
    const bool isParted = partM();
    if (life.IsAliveM() && !isParted) {
        DestroyM();
    }
    if (!life.IsAliveM()) {
        return TRUE;
    }
    const ValidationPauseCL destroying(m_hWnd);
    isParted_ = isParted;
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
    constexpr DWORD SystemDialogAtom = 0x8002; // Of the class #32770.
    const bool isPart = tellsParentM(m_hWnd);
    const LifeCL life(this);
    const TurnCL turn(this);
    const ValidationPauseCL destroying(m_hWnd);
    tellsItself_ = ::GetClassLongW(m_hWnd, GCW_ATOM) == SystemDialogAtom;
    eachControlsM([this, &turn, isPart](auto row, auto& controls) {
        for (int i = 0; !turn.IsOverM() && i < controls.GetBoundM(); ++i) {
            const auto& control = controls.ControlAtM(i);
            const bool goesAlong = decltype(row)::CanM(GoesQuietly) && slIsJust(control)
                && control.m_hWnd != nullptr && ::GetAncestor(control.m_hWnd, GA_PARENT) == m_hWnd;
            if (goesAlong) {
                if constexpr (decltype(row)::CanM(GoesUnheard)) {
                    controls.ControlAtM(i).PassEndByM();
                }
                tellParentsM(control.m_hWnd, m_hWnd, isPart);
            } else {
                controls.DelItemM(i);
            }
        }
    });
    if (life.IsAliveM()) {
        tellsItself_ = false;
    }
    return !turn.IsOverM() && m_hWnd != nullptr;
}
