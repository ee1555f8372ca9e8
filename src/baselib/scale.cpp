#include "baselib/scale.h"
#include <algorithm>
#include <climits>
#include <cstdint>

namespace {

int toInt(std::int64_t value)
{
    return static_cast<int>(std::clamp<std::int64_t>(value, INT_MIN, INT_MAX));
}

std::int64_t scaled(std::int64_t distance, int percent)
{
    const std::int64_t doubled = distance * percent * 2 + 100; // Half a pixel more, to be cut.
    return doubled / 200 - (doubled % 200 < 0 ? 1 : 0);
}

} // namespace

int ScaleCL::PlaceM(int distance) const
{
    return toInt(scaled(distance, percent_));
}

int ScaleCL::LengthM(int begin, int length) const
{
    return toInt(scaled(std::int64_t { begin } + length, percent_) - scaled(begin, percent_));
}

int ScaleCL::SizeM(int length) const
{
    const int size = PlaceM(length);
    return size == 0 && length != 0 ? (length > 0 ? 1 : -1) : size;
}
