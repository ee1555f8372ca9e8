#pragma once
#include "dialog/basic_dialog.h"
#include "toolkit/life.h"

// How the host goes through its controls, and what may end that: private members of DuBasicDialogCL, whose
// header brings them.

// While the host builds, moves or destroys its controls. The application hears of that, and may meanwhile
// delete the host, have it destroy its controls or build others, or destroy the window that they are in.
// Controls and records as they were lie where they are until the end of the turn, without windows if they
// have gone; whoever finds the turn over touches nothing else of the host.
class DuBasicDialogCL::TurnCL
{
public:
    // window: the one with the controls; null: any.
    explicit TurnCL(DuBasicDialogCL* host, HWND window = nullptr)
        : life_(host)
        , host_(host)
        , kinds_(host->kinds_)
        , window_(window)
    {
        ++host->turns_;
    }
    TurnCL(const TurnCL&) = delete;
    TurnCL& operator=(const TurnCL&) = delete;
    ~TurnCL()
    {
        if (life_.IsAliveM()) {
            --host_->turns_;
        }
    }

    KindsCL& KindsM() const { return *kinds_; } // The controls and records as the turn found them.
    // Whether the host is gone, or has other controls, or the window is gone.
    bool IsOverM() const
    {
        return !life_.IsAliveM() || host_->kinds_ != kinds_ || (window_ != nullptr && !::IsWindow(window_));
    }

private:
    const LifeCL life_;
    DuBasicDialogCL* const host_;
    const std::shared_ptr<KindsCL> kinds_;
    const HWND window_;
};

// Calls see(row, controls) with the runtime array of every kind, in member order. What it does may have the
// application delete the host: then there are no more.
template <class FunctionTP> void DuBasicDialogCL::eachControlsM(FunctionTP&& see)
{
    if (isParted_) {
        return;
    }
    const LifeCL life(this);
    slEachKind([this, &see, &life](auto row) {
        if (life.IsAliveM()) {
            see(row, this->template membersM<decltype(row)>().controls);
        }
    });
}

// Calls see(row, control) for the first control with that id: the first array in member order that holds one.
// Whether there is one.
template <class FunctionTP> bool DuBasicDialogCL::withControlM(int id, FunctionTP&& see)
{
    int wanted = 0;
    void* const found = findM(id, &wanted);
    if (found != nullptr) {
        int number = 0;
        slEachKind([&](auto row) {
            if (number++ == wanted) {
                see(row, *static_cast<typename decltype(row)::Controls::ControlTP*>(found));
            }
        });
    }
    return found != nullptr;
}
