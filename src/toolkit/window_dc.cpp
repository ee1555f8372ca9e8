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
    : hWnd_(window->m_hWnd)
{
    Attach(::BeginPaint(hWnd_, &m_ps));
}

CPaintDC::~CPaintDC()
{
    Detach();
    ::EndPaint(hWnd_, &m_ps);
}

CClientDC::CClientDC(CWnd* window)
    : hWnd_(window == nullptr ? nullptr : window->m_hWnd)
{
    Attach(::GetDC(hWnd_));
}

CClientDC::~CClientDC()
{
    ::ReleaseDC(hWnd_, Detach());
}

CWindowDC::CWindowDC(CWnd* window)
    : hWnd_(window == nullptr ? nullptr : window->m_hWnd)
{
    Attach(::GetWindowDC(hWnd_));
}

CWindowDC::~CWindowDC()
{
    ::ReleaseDC(hWnd_, Detach());
}
