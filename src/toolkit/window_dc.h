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

private:
    HWND hWnd_;
};

class PANELKIT_API CClientDC : public CDC
{
    DECLARE_DYNAMIC(CClientDC)
public:
    explicit CClientDC(CWnd* window); // null: the screen
    ~CClientDC() override;

private:
    HWND hWnd_;
};

class PANELKIT_API CWindowDC : public CDC
{
    DECLARE_DYNAMIC(CWindowDC)
public:
    explicit CWindowDC(CWnd* window); // null: the screen
    ~CWindowDC() override;

private:
    HWND hWnd_;
};
