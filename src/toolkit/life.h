#pragma once

class CWnd;
struct ThreadStateCL;

// Tells whether a window object still lives after code that may have destroyed it. For the library's own
// sources; on one thread, as a local variable, so that lives nest.
class LifeCL
{
public:
    explicit LifeCL(
        CWnd* wnd); // Watches that object, which stays its owner's; null: nothing, as if it were gone.
    LifeCL(CWnd* wnd, ThreadStateCL& state); // The same for those who know their thread's state.
    ~LifeCL();                               // Watches no more.
    LifeCL(const LifeCL&) = delete;
    LifeCL& operator=(const LifeCL&) = delete;
    bool IsAliveM() const { return wnd_ != nullptr; } // Whether the object has not been destroyed meanwhile.
    CWnd* WndM() const { return wnd_; }               // The object; null: gone.
    static void ForgetM(const CWnd* wnd); // The object goes: whoever watches it hears it. Null: nothing.

private:
    CWnd* wnd_;
    LifeCL** innermost_; // Of this thread.
    LifeCL* outer_;
};
