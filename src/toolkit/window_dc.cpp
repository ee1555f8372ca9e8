#include "toolkit/window_dc.h"
#include "toolkit/wnd.h"

IMPLEMENT_DYNAMIC(CPaintDC, CDC)
IMPLEMENT_DYNAMIC(CClientDC, CDC)
IMPLEMENT_DYNAMIC(CWindowDC, CDC)

// Here, not with the others of their class: the windows know contexts, so those must not know windows.
CWnd* CDC::GetWindow() const
{
    return CWnd::FromHandle(::WindowFromDC(m_hDC));
}

int CDC::ExcludeUpdateRgn(CWnd* window)
{
    return ::ExcludeUpdateRgn(m_hDC, window->m_hWnd);
}

CPaintDC::CPaintDC(CWnd* window)
    : m_hWnd(window->m_hWnd)
{
    Attach(::BeginPaint(m_hWnd, &m_ps));
}

CPaintDC::~CPaintDC()
{
    Detach();
    ::EndPaint(m_hWnd, &m_ps);
}

CClientDC::CClientDC(CWnd* window)
    : m_hWnd(window == nullptr ? nullptr : window->m_hWnd)
{
    Attach(::GetDC(m_hWnd));
}

CClientDC::~CClientDC()
{
    ::ReleaseDC(m_hWnd, Detach());
}

CWindowDC::CWindowDC(CWnd* window)
    : m_hWnd(window == nullptr ? nullptr : window->m_hWnd)
{
    Attach(::GetWindowDC(m_hWnd));
}

CWindowDC::~CWindowDC()
{
    ::ReleaseDC(m_hWnd, Detach());
}
