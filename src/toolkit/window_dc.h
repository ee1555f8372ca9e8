#pragma once
#include "toolkit/dc.h"

// Inside a paint handler only.
class PANELKIT_API CPaintDC : public CDC
{
    DECLARE_DYNAMIC(CPaintDC)
public:
    explicit CPaintDC(CWnd* window);
    ~CPaintDC() override;
    PAINTSTRUCT m_ps = {};

protected:
    HWND m_hWnd;
};

class PANELKIT_API CClientDC : public CDC
{
    DECLARE_DYNAMIC(CClientDC)
public:
    explicit CClientDC(CWnd* window); // null: the screen
    ~CClientDC() override;

protected:
    HWND m_hWnd;
};

class PANELKIT_API CWindowDC : public CDC
{
    DECLARE_DYNAMIC(CWindowDC)
public:
    explicit CWindowDC(CWnd* window); // null: the screen
    ~CWindowDC() override;

protected:
    HWND m_hWnd;
};
