#pragma once
#include "toolkit/life.h"
#include "toolkit/platform.h"

// Gives the next window created by this thread to wnd, by take.
class CreationHookCL
{
public:
    typedef void (*TakeTP)(CWnd* wnd, HWND made);
    enum When
    {
        AtFirst, // Before the window gets its first message.
        WhenSeen // As late as nobody can tell the difference: a hook costs more than a plain window does.
    };
    CreationHookCL(CWnd* wnd, TakeTP take, HWND parent = nullptr, UINT id = 0, When when = AtFirst);
    ~CreationHookCL();
    CreationHookCL(const CreationHookCL&) = delete;
    CreationHookCL& operator=(const CreationHookCL&) = delete;
    bool HasCaughtM() const { return hasCaught_; }
    // The window made, or null. WhenSeen: takes it, unless it has been taken or wnd is gone: then it goes
    // too.
    HWND MadeM(HWND made);
    CWnd* WndM() const { return life_.WndM(); } // null: gone
    // The innermost that has caught a child of that parent with that id and is not through yet; null: none.
    static const CreationHookCL* FindM(HWND parent, UINT id);
    // WhenSeen: somebody asks for the object of this window, or the parent is told of it. True: it has just
    // been taken.
    enum Why
    {
        IsAskedFor,
        IsTold
    };
    static bool SeeM(HWND made, Why why);

private:
    void takeM(HWND made);
    static LRESULT CALLBACK procM(int code, WPARAM wParam, LPARAM lParam);
    LRESULT catchM(WPARAM wParam, LPARAM lParam); // The hook's answer.
    LifeCL life_;
    TakeTP take_;
    HWND parent_;
    UINT id_;
    HHOOK hook_ = nullptr;
    When when_;
    bool hasCaught_ = false;
    CreationHookCL* outer_;
};
