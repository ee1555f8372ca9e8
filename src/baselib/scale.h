#pragma once
#include "baselib/api.h"

// Lengths at another scale than the file's. Edges are what is rounded, not sizes: what touches goes on
// touching, and equal gaps differ by a pixel at most.
class PANELKIT_API ScaleCL
{
public:
    // percent: 100 changes nothing; below 1 counts as 100.
    explicit ScaleCL(int percent = 100)
        : percent_(percent > 0 ? percent : 100)
    {
    }
    int PercentM() const { return percent_; }
    // A distance in pixels from the origin, at the nearest pixel; halves go up. Beyond an int: the limit.
    int PlaceM(int distance) const;
    // The length of what begins at `begin`, such that its end is where PlaceM puts it.
    int LengthM(int begin, int length) const;
    // A height or width on its own: none that is there vanishes.
    int SizeM(int length) const;

private:
    int percent_;
};
