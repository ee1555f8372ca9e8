#include "toolkit/life.h"
#include "toolkit/thread_state.h"
#include <utility>

LifeCL::LifeCL(CWnd* wnd)
    : LifeCL(wnd, ThreadStateCL::ThisM())
{
}

LifeCL::LifeCL(CWnd* wnd, ThreadStateCL& state)
    : wnd_(wnd)
    , innermost_(&state.lives)
    , outer_(std::exchange(*innermost_, this))
{
}

LifeCL::~LifeCL()
{
    *innermost_ = outer_;
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
