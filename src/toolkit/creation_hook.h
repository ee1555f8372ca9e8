#pragma once
#include "toolkit/life.h"
#include "toolkit/platform.h"

// Gives the next window created by this thread to wnd, by take, before that window gets its first message.
class CreationHookCL
{
public:
    typedef void (*TakeTP)(CWnd* wnd, HWND made);
    CreationHookCL(CWnd* wnd, TakeTP take, HWND parent = nullptr, UINT id = 0);
    ~CreationHookCL();
    CreationHookCL(const CreationHookCL&) = delete;
    CreationHookCL& operator=(const CreationHookCL&) = delete;
    bool HasCaughtM() const { return hasCaught_; }
    CWnd* WndM() const { return life_.WndM(); } // null: gone
    // The innermost that has caught a child of that parent with that id and is not through yet; null: none.
    static const CreationHookCL* FindM(HWND parent, UINT id);

private:
    static LRESULT CALLBACK procM(int code, WPARAM wParam, LPARAM lParam);
    LRESULT catchM(WPARAM wParam, LPARAM lParam); // The hook's answer.
    LifeCL life_;
    TakeTP take_;
    HWND parent_;
    UINT id_;
    HHOOK hook_;
    bool hasCaught_ = false;
    CreationHookCL* outer_;
};
