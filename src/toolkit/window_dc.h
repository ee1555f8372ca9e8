#pragma once
#include "toolkit/dc.h"

// Inside a paint handler only.
class PANELKIT_API CPaintDC : public CDC
{
    DECLARE_DYNAMIC(CPaintDC)
public:
    // Begins the painting of the window; the end of the object ends it.
    explicit CPaintDC(CWnd* window);
    ~CPaintDC() override;
    PAINTSTRUCT m_ps = {}; // what BeginPaint said

protected:
    HWND m_hWnd; // whose context it is
};

// The context of a window's client area.
class PANELKIT_API CClientDC : public CDC
{
    DECLARE_DYNAMIC(CClientDC)
public:
    explicit CClientDC(CWnd* window); // null: the screen
    ~CClientDC() override;

protected:
    HWND m_hWnd; // whose context it is
};

// The context of a whole window, frame included.
class PANELKIT_API CWindowDC : public CDC
{
    DECLARE_DYNAMIC(CWindowDC)
public:
    explicit CWindowDC(CWnd* window); // null: the screen
    ~CWindowDC() override;

protected:
    HWND m_hWnd; // whose context it is
};
