#include "baselib/gbk.h"
#include "toolkit/app.h"
#include "toolkit/wnd.h"
#include <utility>

namespace {

HWND descendantM(HWND parent, int id, bool permanentOnly)
{
    const HWND direct = ::GetDlgItem(parent, id);
    if (direct != nullptr && (!permanentOnly || CWnd::FromHandlePermanent(direct) != nullptr)) {
        return direct;
    }
    for (HWND child = ::GetTopWindow(parent); child != nullptr; child = ::GetNextWindow(child, GW_HWNDNEXT)) {
        if (const HWND found = descendantM(child, id, permanentOnly)) {
            return found;
        }
    }
    return nullptr;
}

bool isChildWindowM(HWND hWnd)
{
    return (::GetWindowLongPtrW(hWnd, GWL_STYLE) & WS_CHILD) != 0;
}

} // namespace

CWnd* WndRelationsCL::FindWindow(LPCSTR className, LPCSTR title)
{
    std::wstring wideClass = slGbkToShown(className);
    std::wstring wideTitle = slGbkToShown(title);
    return FromHandle(::FindWindowW(
        className == nullptr ? nullptr : wideClass.c_str(), title == nullptr ? nullptr : wideTitle.c_str()));
}

CWnd* WndRelationsCL::SetParent(CWnd* parent)
{
    return FromHandle(::SetParent(m_hWnd, handleOfM(parent)));
}

CWnd* WndRelationsCL::GetNextDlgTabItem(CWnd* from, BOOL previous) const
{
    return FromHandle(::GetNextDlgTabItem(m_hWnd, handleOfM(from), previous));
}

CWnd* WndRelationsCL::GetNextDlgGroupItem(CWnd* from, BOOL previous) const
{
    return FromHandle(::GetNextDlgGroupItem(m_hWnd, handleOfM(from), previous));
}

CWnd* WndRelationsCL::FindWindowEx(HWND parent, HWND after, LPCSTR className, LPCSTR title)
{
    const std::wstring wideTitle = slGbkToShown(title);
    return FromHandle(::FindWindowExW(
        parent, after, WindowClassNameCL(className), title == nullptr ? nullptr : wideTitle.c_str()));
}

CWnd* WndRelationsCL::GetOwner() const
{
    return owner_ != nullptr ? FromHandle(owner_) : GetParent();
}

void WndRelationsCL::SetOwner(CWnd* owner)
{
    owner_ = handleOfM(owner);
}

CWnd* WndRelationsCL::GetTopLevelOwner() const
{
    HWND at = m_hWnd;
    while (const HWND above = isChildWindowM(at) ? ::GetParent(at) : ::GetWindow(at, GW_OWNER)) {
        at = above;
    }
    return FromHandle(at);
}

CWnd* WndRelationsCL::GetParentOwner() const
{
    HWND at = m_hWnd;
    while (at != nullptr && isChildWindowM(at)) {
        at = ::GetParent(at);
    }
    return FromHandle(at);
}

CWnd* WndRelationsCL::GetSafeOwner(CWnd* parent, HWND* topLevel)
{
    CWnd* mainWnd = parent == nullptr ? AfxGetMainWnd() : nullptr;
    HWND owner = handleOfM(parent == nullptr ? mainWnd : parent);
    while (owner != nullptr && isChildWindowM(owner)) {
        owner = ::GetParent(owner);
    }
    HWND top = owner;
    while (top != nullptr && ::GetParent(top) != nullptr) {
        top = ::GetParent(top);
    }
    if (topLevel != nullptr) {
        *topLevel = top;
    }
    return FromHandle(owner != nullptr && parent == nullptr ? ::GetLastActivePopup(owner) : owner);
}

CWnd* WndRelationsCL::GetDescendantWindow(int id, BOOL permanentOnly) const
{
    return FromHandle(descendantM(m_hWnd, id, permanentOnly != FALSE));
}

void WndRelationsCL::CreateCaret(CBitmap* bitmap)
{
    ::CreateCaret(m_hWnd, bitmap == nullptr ? nullptr : static_cast<HBITMAP>(*bitmap), 0, 0);
}

void WndRelationsCL::CreateGrayCaret(int width, int height)
{
    ::CreateCaret(m_hWnd, reinterpret_cast<HBITMAP>(1), width, height); // as the system knows it
}

CPoint WndRelationsCL::GetCaretPos()
{
    POINT at = {};
    ::GetCaretPos(&at);
    return at;
}

void WndRelationsCL::WinHelp(DWORD_PTR data, UINT command)
{
    const std::wstring file = slGbkToShown(AfxGetAppName()) + L".HLP";
    ::WinHelpW(GetTopLevelParent()->m_hWnd, file.c_str(), command, data);
}
