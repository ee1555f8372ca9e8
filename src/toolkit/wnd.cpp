#include "toolkit/wnd.h"
#include "baselib/gbk.h"
#include "toolkit/app.h"
#include "toolkit/creation_hook.h"
#include "toolkit/life.h"
#include "toolkit/module.h"
#include "toolkit/text.h"
#include "toolkit/thread_state.h"
#include <new>
#include <utility>

IMPLEMENT_DYNAMIC(CWnd, CCmdTarget)

const CWnd CWnd::wndTop(HWND_TOP);
const CWnd CWnd::wndBottom(HWND_BOTTOM);
const CWnd CWnd::wndTopMost(HWND_TOPMOST);
const CWnd CWnd::wndNoTopMost(HWND_NOTOPMOST);

bool CWnd::isPlaceM() const
{
    return m_hWnd == HWND_TOP || m_hWnd == HWND_BOTTOM || m_hWnd == HWND_TOPMOST || m_hWnd == HWND_NOTOPMOST;
}

CWnd::~CWnd()
{
    if (!isPlaceM()) {
        // Handlers of the derived class are out of reach already; those of this class end the window in
        // order.
        CWnd::DestroyWindow();
    }
    LifeCL::ForgetM(this);
    ThreadStateCL* state = ThreadStateCL::KnownM();
    if (state != nullptr && state->thread != nullptr && state->thread->m_pMainWnd == this) {
        state->thread->m_pMainWnd = nullptr;
    }
}

CWnd* WndCallsCL::FromHandle(HWND hWnd)
{
    CWnd* permanent = FromHandlePermanent(hWnd);
    return permanent != nullptr ? permanent : ThreadStateCL::ThisM().wnds.GetM<CWnd, &CWnd::m_hWnd>(hWnd);
}

CWnd* WndCallsCL::FromHandlePermanent(HWND hWnd)
{
    const WndMapCL& permanent = ThreadStateCL::ThisM().permanent;
    CWnd* const found = permanent.FindM(hWnd);
    return found == nullptr && CreationHookCL::SeeM(hWnd, CreationHookCL::IsAskedFor) ? permanent.FindM(hWnd)
                                                                                      : found;
}

BOOL CWnd::Attach(HWND hWnd)
{
    ASSERT(m_hWnd == nullptr);
    if (hWnd == nullptr) {
        return FALSE;
    }
    m_hWnd = hWnd;
    ThreadStateCL::ThisM().permanent.PutM(hWnd, this);
    return TRUE;
}

HWND CWnd::Detach()
{
    HWND hWnd = std::exchange(m_hWnd, nullptr);
    WNDPROC oldProc = std::exchange(oldProc_, nullptr);
    if (hWnd != nullptr) {
        ThreadStateCL& state = ThreadStateCL::ThisM();
        state.permanent.RemoveM(hWnd, this);
        if (oldProc == nullptr || !::IsWindow(hWnd)) {
            return hWnd;
        }
        if (reinterpret_cast<WNDPROC>(::GetWindowLongPtrW(hWnd, GWLP_WNDPROC)) == AfxWndProc) {
            ::SetWindowLongPtrW(hWnd, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(oldProc));
        } else {
            try {
                state.left[hWnd] = oldProc; // somebody's procedure goes on calling ours
            } catch (const std::bad_alloc&) {
                // Destructors come here. The system's own procedure takes the messages then.
            }
        }
    }
    return hWnd;
}

void CWnd::takeMessagesM()
{
    PreSubclassWindow();
    auto& left = ThreadStateCL::ThisM().left;
    const auto place = left.find(m_hWnd);
    if (place != left.end()) {
        // Still below somebody's procedure: a second place above it would make the two call each other.
        oldProc_ = place->second;
        left.erase(place);
        return;
    }
    auto old = reinterpret_cast<WNDPROC>(
        ::SetWindowLongPtrW(m_hWnd, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(AfxWndProc)));
    oldProc_ = old == AfxWndProc ? ::DefWindowProcW : old;
}

BOOL CWnd::SubclassWindow(HWND hWnd)
{
    if (!Attach(hWnd)) {
        return FALSE;
    }
    takeMessagesM();
    return TRUE;
}

void CWnd::takeMadeM(CWnd* wnd, HWND made)
{
    wnd->SubclassWindow(made);
}

void CWnd::takeLateM(CWnd* wnd, HWND made)
{
    const LifeCL life(wnd);
    wnd->SubclassWindow(made);
    if (life.IsAliveM() && wnd->m_hWnd == made) {
        wnd->catchUpM();
    }
}

BOOL CWnd::SubclassDlgItem(UINT id, CWnd* parent)
{
    return SubclassWindow(::GetDlgItem(parent->m_hWnd, static_cast<int>(id)));
}

bool CWnd::letGoOfWindowM()
{
    LifeCL life(this);
    DestroyWindow();
    return life.IsAliveM() && m_hWnd == nullptr;
}

BOOL CWnd::createM(DWORD exStyle, LPCWSTR className, LPCWSTR title, DWORD style, int x, int y, int width,
    int height, HWND parent, HMENU idOrMenu, LPVOID param)
{
    if (!letGoOfWindowM()) {
        return FALSE;
    }
    CREATESTRUCT cs = {};
    cs.dwExStyle = exStyle;
    cs.lpszClass = className;
    cs.lpszName = title == nullptr ? L"" : title;
    cs.style = static_cast<LONG>(style);
    cs.x = x;
    cs.y = y;
    cs.cx = width;
    cs.cy = height;
    cs.hwndParent = parent;
    cs.hMenu = idOrMenu;
    cs.hInstance = AfxGetInstanceHandle();
    cs.lpCreateParams = param;
    LifeCL life(this);
    HWND made = nullptr;
    bool hasCaught = false;
    if (PreCreateWindow(cs)) {
        const bool isLate = (cs.style & WS_CHILD) != 0 && !hearsCreationM();
        CreationHookCL hook(this, isLate ? &CWnd::takeLateM : &CWnd::takeMadeM, cs.hwndParent,
            static_cast<UINT>(reinterpret_cast<UINT_PTR>(cs.hMenu)),
            isLate ? CreationHookCL::WhenSeen : CreationHookCL::AtFirst);
        made = hook.MadeM(
            ::CreateWindowExW(cs.dwExStyle, cs.lpszClass, cs.lpszName, static_cast<DWORD>(cs.style), cs.x,
                cs.y, cs.cx, cs.cy, cs.hwndParent, cs.hMenu, cs.hInstance, cs.lpCreateParams));
        if (made == nullptr) {
            AfxLogFailure(
                "CreateWindowEx", IS_INTRESOURCE(cs.lpszClass) ? nullptr : WideToGbk(cs.lpszClass).c_str());
        }
        hasCaught = hook.HasCaughtM();
    }
    // A window that came and went has called PostNcDestroy itself.
    if (made == nullptr && !hasCaught && life.IsAliveM()) {
        PostNcDestroy();
    }
    return made != nullptr;
}

BOOL CWnd::CreateEx(DWORD exStyle, LPCSTR className, LPCSTR title, DWORD style, int x, int y, int width,
    int height, HWND parent, HMENU idOrMenu, LPVOID param)
{
    return createM(exStyle, WindowClassNameCL(className), slGbkToShown(title).c_str(), style, x, y, width,
        height, parent, idOrMenu, param);
}

BOOL CWnd::CreateEx(DWORD exStyle, LPCSTR className, LPCSTR title, DWORD style, const RECT& rect,
    CWnd* parent, UINT id, LPVOID param)
{
    return CreateEx(exStyle, className, title, style, rect.left, rect.top, rect.right - rect.left,
        rect.bottom - rect.top, handleOfM(parent), idM(id), param);
}

BOOL CWnd::Create(
    LPCSTR className, LPCSTR title, DWORD style, const RECT& rect, CWnd* parent, UINT id, LPVOID param)
{
    ASSERT((style & WS_POPUP) == 0);
    return CreateEx(0, className, title, style | WS_CHILD, rect, parent, id, param);
}

BOOL CWnd::DestroyWindow()
{
    HWND hWnd = m_hWnd;
    if (hWnd == nullptr) {
        return FALSE;
    }
    LifeCL life(this);
    BOOL done = ::DestroyWindow(hWnd);
    // Only attached, not subclassed: nobody has told this object that its window is gone.
    if (life.IsAliveM() && m_hWnd == hWnd && !::IsWindow(hWnd)) {
        Detach();
    }
    return done;
}

BOOL CWnd::PreCreateWindow(CREATESTRUCT& cs)
{
    if (cs.lpszClass == nullptr) {
        cs.lpszClass = AfxDefaultWndClass();
    }
    return TRUE;
}

void CWnd::OnNcDestroy()
{
    LifeCL life(this);
    Default();
    if (life.IsAliveM()) {
        windowGoneM();
    }
}

void CWnd::windowGoneM()
{
    ThreadStateCL& state = ThreadStateCL::ThisM();
    if (state.thread != nullptr && state.thread->m_pMainWnd == this) {
        state.thread->MainWndGone();
    }
    // No message comes any more: the window's procedure may stay.
    const HWND window = std::exchange(m_hWnd, nullptr);
    oldProc_ = nullptr;
    endPassesBy_ = false;
    state.permanent.RemoveM(window, this);
    state.left.erase(window);
    PostNcDestroy();
}
