#pragma once
#include "records/fields.h"

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

// Scales every length of the records that it sees: rectangles by their edges, columns of a table one behind
// the other, all others on their own.
class PANELKIT_API ScalingCL : public FieldVisitorCL
{
public:
    explicit ScalingCL(const ScaleCL& scale)
        : scale_(scale)
    {
    }
    void LengthM(const char* name, int& value, Along along) override;
    void LengthPairM(const char* name, int (&xy)[2]) override;
    void ListM(const char* name, int rows,
        const std::function<void(FieldVisitorCL& visitor, int row)>& see) override;

private:
    ScaleCL scale_;
    int corner_[2] {}; // Of the record at hand, as the file has it.
};
