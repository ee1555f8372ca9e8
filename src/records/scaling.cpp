#include "records/scaling.h"
#include <algorithm>
#include <climits>
#include <cstdint>
#include <string_view>

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

// The widths of a table's columns stand one behind the other.
class ColumnsScalingCL : public FieldVisitorCL
{
public:
    explicit ColumnsScalingCL(const ScaleCL& scale)
        : scale_(scale)
    {
    }
    void LengthM(const char*, int& value, Along) override
    {
        const int begin = end_;
        end_ = toInt(std::int64_t { end_ } + value);
        value = scale_.LengthM(begin, value);
    }

private:
    ScaleCL scale_;
    int end_ { 0 };
};

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

void ScalingCL::LengthM(const char*, int& value, Along)
{
    value = scale_.SizeM(value);
}

void ScalingCL::LengthPairM(const char* name, int (&xy)[2])
{
    const bool isCorner = name == std::string_view("position");
    const bool isSize = name == std::string_view("size");
    for (int i = 0; i < 2; ++i) {
        if (isSize) {
            xy[i] = scale_.LengthM(corner_[i], xy[i]);
        } else {
            corner_[i] = isCorner ? xy[i] : corner_[i];
            xy[i] = scale_.PlaceM(xy[i]);
        }
    }
}

void ScalingCL::ListM(const char*, int rows, const std::function<void(FieldVisitorCL& visitor, int row)>& see)
{
    ColumnsScalingCL columns(scale_);
    for (int i = 0; i < rows; ++i) {
        see(columns, i);
    }
}
