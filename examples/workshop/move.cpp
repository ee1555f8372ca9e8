#include "move.h"

#include <algorithm>
#include <cmath>

MoveCL::MoveCL(const MotionCL& motion, double factor, double distance)
    : acceleration_(motion.acceleration)
    , distance_(distance)
{
    const double fastest = motion.maxSpeed * factor;
    first_ = std::min(motion.startSpeed, fastest);
    // A short way is over before the greatest speed is reached.
    peak_ = std::min(fastest, std::sqrt(first_ * first_ + acceleration_ * distance));
    rampTime_ = (peak_ - first_) / acceleration_;
    const double rampDistance = (first_ + peak_) / 2 * rampTime_;
    duration_ = peak_ > 0 ? 2 * rampTime_ + (distance - 2 * rampDistance) / peak_ : 0;
}

double MoveCL::SpeedM(double time) const
{
    if (time < 0 || time > duration_) {
        return 0;
    }
    const double sinceAnEnd = std::min(time, duration_ - time);
    return std::min(peak_, first_ + acceleration_ * sinceAnEnd);
}

double MoveCL::DistanceM(double time) const
{
    if (time >= duration_) {
        return distance_;
    }
    const double ramp = std::clamp(time, 0.0, rampTime_);
    const double cruise = std::clamp(time - rampTime_, 0.0, duration_ - 2 * rampTime_);
    const double brake = std::max(time - (duration_ - rampTime_), 0.0);
    return first_ * ramp + acceleration_ * ramp * ramp / 2 + peak_ * cruise + peak_ * brake
        - acceleration_ * brake * brake / 2;
}
