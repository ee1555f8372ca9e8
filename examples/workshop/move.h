// How the machine moves: it speeds up evenly, runs, and slows down as it began.
#pragma once

// Millimetres and seconds.
struct MotionCL
{
    double maxSpeed { 400 };
    double acceleration { 2000 };
    double startSpeed { 20 };
    double travelX { 841 };
    double travelY { 594 };
};

// One way from rest to rest.
class MoveCL
{
public:
    MoveCL() = default; // To nowhere.
    // factor: the part of the greatest speed that may be reached.
    MoveCL(const MotionCL& motion, double factor, double distance);

    double DurationM() const { return duration_; }
    double PeakM() const { return peak_; } // The greatest speed that is reached.
    double SpeedM(double time) const;      // 0 before and after the move.
    double DistanceM(double time) const;   // From its beginning; at its end all of it.

private:
    double first_ { 0 }; // The speed that it begins with at once.
    double peak_ { 0 };
    double acceleration_ { 1 };
    double rampTime_ { 0 }; // Of speeding up, and of slowing down.
    double duration_ { 0 };
    double distance_ { 0 };
};
