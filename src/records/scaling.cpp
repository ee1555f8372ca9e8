#include "records/scaling.h"
#include <algorithm>
#include <climits>
#include <cstdint>
#include <string_view>

namespace {

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
        end_ = static_cast<int>(std::clamp<std::int64_t>(std::int64_t { end_ } + value, INT_MIN, INT_MAX));
        value = scale_.LengthM(begin, value);
    }

private:
    ScaleCL scale_;
    int end_ { 0 };
};

} // namespace

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
