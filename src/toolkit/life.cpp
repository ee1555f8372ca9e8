#include "toolkit/life.h"
#include "toolkit/thread_state.h"

LifeCL::LifeCL(CWnd* wnd)
    : wnd_(wnd)
{
    ThreadStateCL& state = ThreadStateCL::ThisM();
    outer_ = state.lives;
    state.lives = this;
}

LifeCL::~LifeCL()
{
    ThreadStateCL::ThisM().lives = outer_;
}

void LifeCL::ForgetM(const CWnd* wnd)
{
    ThreadStateCL* state = ThreadStateCL::KnownM();
    for (LifeCL* at = state == nullptr ? nullptr : state->lives; at != nullptr; at = at->outer_) {
        if (at->wnd_ == wnd) {
            at->wnd_ = nullptr;
        }
    }
}
