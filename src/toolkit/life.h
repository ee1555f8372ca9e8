#pragma once

class CWnd;

// Tells whether a window object still lives after code that may have destroyed it.
class LifeCL
{
public:
    explicit LifeCL(CWnd* wnd);
    ~LifeCL();
    LifeCL(const LifeCL&) = delete;
    LifeCL& operator=(const LifeCL&) = delete;
    bool IsAliveM() const { return wnd_ != nullptr; }
    CWnd* WndM() const { return wnd_; }   // null: gone
    static void ForgetM(const CWnd* wnd); // the object goes

private:
    CWnd* wnd_;
    LifeCL* outer_;
};
