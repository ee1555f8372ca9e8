#include "pictures/rotation.h"
#include <algorithm>
#include <cfloat>
#include <cmath>
#include <vector>

namespace {

constexpr std::uint32_t White = 0xFFFFFF;
constexpr float Pi = 3.1415925F;
constexpr float RoundUpAbove = 0.4F;
constexpr float LargestPlace = 2147483520.0F; // The largest one that fits an int.

// Where pixels may come to, the limits left out. Exact for every size: what is visible is asked of the value,
// not of the place, as the limits of huge pictures are no exact numbers.
struct LimitsCL
{
    // 1 or 0; 0 for what is no number.
    int HoldM(float value) const { return static_cast<int>(value > least) & static_cast<int>(value < most); }
    // Cut toward zero, rounded up only above a threshold; some place or other for a value beyond the limits,
    // which need not fit an int.
    int PlaceM(float value) const
    {
        const float within = std::min(std::max(least, value), farthest);
        const int whole = static_cast<int>(within);
        return whole + static_cast<int>(within - static_cast<float>(whole) > RoundUpAbove);
    }

    float least;
    float most;
    float farthest { std::min(most, LargestPlace) };
};

// What a turn is made of.
struct TurnCL
{
    TurnCL(const int position[2], const int centre[2], float angle)
        // Positions of a file may be any ints: their difference needs more room.
        : dx(std::int64_t { centre[0] } - position[0])
        , dy(std::int64_t { centre[1] } - position[1])
    {
        const float radians = angle * Pi / 180.0F;
        sine = static_cast<float>(std::sin(static_cast<double>(radians)));
        cosine = static_cast<float>(std::cos(static_cast<double>(radians)));
    }

    std::int64_t dx; // From the picture's corner to the centre.
    std::int64_t dy;
    float sine;
    float cosine;
};

// The part of the new places that only the columns decide.
template <std::size_t Count> struct ColumnsCL
{
    float x[Count] {};
    float y[Count] {};
};

// The places from 0 to a limit between the least and the most of some values, and a little around them.
class RangeCL
{
public:
    void AddM(double value)
    {
        least_ = std::min(least_, value);
        most_ = std::max(most_, value);
    }
    int FirstM(double slack, int limit) const { return placeM(least_ - slack, limit); }
    int EndM(double slack, int limit) const { return placeM(most_ + slack + 1, limit); }

private:
    static int placeM(double value, int limit)
    {
        return static_cast<int>(std::clamp(value, 0.0, static_cast<double>(limit)));
    }
    double least_ { DBL_MAX };
    double most_ { -DBL_MAX };
};

} // namespace

void slDrawRotated(const PixelBlockCL& picture, const PixelBlockCL& onto, const int position[2],
    const int centre[2], float angle)
{
    if (onto.width == picture.width && onto.height == picture.height) {
        slDrawRotatedPart({ picture.pixels, 0, 0, picture.width, picture.height },
            { onto.pixels, 0, 0, onto.width, onto.height }, picture.width, picture.height, position, centre,
            angle);
    }
}

void slDrawRotatedPart(const PixelPartCL& picture, const PixelPartCL& onto, int width, int height,
    const int position[2], const int centre[2], float angle)
{
    if (picture.pixels == nullptr || onto.pixels == nullptr || position == nullptr || centre == nullptr
        || picture.width <= 0 || picture.height <= 0) {
        return;
    }
    const TurnCL turn(position, centre, angle);
    // The places of a row are found many at once, as compilers do when they know how many.
    constexpr std::size_t AtOnce = 16;
    const std::size_t blocks = (static_cast<std::size_t>(picture.width) + AtOnce - 1) / AtOnce;
    std::vector<ColumnsCL<AtOnce>> columns(blocks);
    for (int i = 0; i < picture.width; ++i) {
        const auto x = static_cast<float>(picture.left + i - turn.dx);
        ColumnsCL<AtOnce>& block = columns[static_cast<std::size_t>(i) / AtOnce];
        block.x[static_cast<std::size_t>(i) % AtOnce] = turn.cosine * x;
        block.y[static_cast<std::size_t>(i) % AtOnce] = turn.sine * x;
    }
    const auto offsetX = static_cast<float>(turn.dx);
    const auto offsetY = static_cast<float>(turn.dy);
    // A little more than the places that can be seen.
    const LimitsCL across { -3.0F, static_cast<float>(width) + 2.0F };
    const LimitsCL down { static_cast<float>(width - height) - 2.0F, static_cast<float>(width) + 2.0F };
    const PixelPartCL seen = onto; // No pixel that is written changes it.
    const std::uint32_t* from = picture.pixels;
    for (int j = 0; j < picture.height; ++j) {
        const auto y = static_cast<float>(turn.dy - (picture.top + j));
        const float rowX = turn.sine * y;
        const float rowY = turn.cosine * y;
        auto left = static_cast<std::size_t>(picture.width);
        for (const ColumnsCL<AtOnce>& block : columns) {
            int column[AtOnce];
            int row[AtOnce];
            int isSeen[AtOnce];
            for (std::size_t i = 0; i < AtOnce; ++i) {
                const float newX = block.x[i] - rowX + offsetX;
                const float newY = block.y[i] + rowY + offsetY;
                isSeen[i] = across.HoldM(newX) & down.HoldM(newY);
                column[i] = across.PlaceM(newX) - seen.left;
                row[i] = width - down.PlaceM(newY) - seen.top;
            }
            const std::size_t count = std::min(AtOnce, left);
            left -= count;
            for (std::size_t i = 0; i < count; ++i) {
                const std::uint32_t pixel = *from++ & White;
                if (pixel == White || isSeen[i] == 0 || row[i] < 0 || row[i] >= seen.height) {
                    continue;
                }
                std::uint32_t* const to = seen.pixels + static_cast<std::ptrdiff_t>(row[i]) * seen.width;
                const int px = column[i];
                if (px >= 0 && px < seen.width) {
                    to[px] = pixel;
                }
                if (px + 1 >= 0 && px + 1 < seen.width) {
                    to[px + 1] = pixel;
                }
            }
        }
    }
}

PixelPartCL slPartToRotate(
    const PixelPartCL& onto, int width, int height, const int position[2], const int centre[2], float angle)
{
    const TurnCL turn(position, centre, angle);
    if (!std::isfinite(turn.sine) || !std::isfinite(turn.cosine)) {
        return { nullptr, 0, 0, 0, 0 };
    }
    // The corners of what is seen, turned back; with what rounding to places and in single precision shifts.
    const auto dx = static_cast<double>(turn.dx);
    const auto dy = static_cast<double>(turn.dy);
    const double size = std::abs(dx) + std::abs(dy) + width + height;
    const double slack = 4 + size / (1 << 19);
    const double xs[] = { onto.left - slack - dx, onto.left + onto.width + slack - dx };
    const double ys[] = { width - onto.top - onto.height - slack - dy, width - onto.top + slack - dy };
    RangeCL columns;
    RangeCL rows;
    for (const double x : xs) {
        for (const double y : ys) {
            columns.AddM(dx + turn.cosine * x + turn.sine * y);
            rows.AddM(dy + turn.sine * x - turn.cosine * y);
        }
    }
    const int left = columns.FirstM(slack, width);
    const int top = rows.FirstM(slack, height);
    return { nullptr, left, top, columns.EndM(slack, width) - left, rows.EndM(slack, height) - top };
}

float slAngleAfterStep(float angle, int sign, float step)
{
    return std::trunc(static_cast<float>(sign) * step + angle);
}
