#pragma once
#include "dialog/basic_dialog.h"
#include "toolkit/life.h"

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

    KindsCL& KindsM() const { return *kinds_; }
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
