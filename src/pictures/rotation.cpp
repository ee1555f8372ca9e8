#include "pictures/rotation.h"
#include <cmath>
#include <vector>

namespace {

constexpr std::uint32_t White = 0xFFFFFF;
constexpr float Pi = 3.1415925F;
constexpr float RoundUpAbove = 0.4F;

// Cuts toward zero; rounds up only above the threshold. The value must be in the range of int.
int placeOf(float value)
{
    const int whole = static_cast<int>(value);
    return value - static_cast<float>(whole) > RoundUpAbove ? whole + 1 : whole;
}

} // namespace

void slDrawRotated(const PixelBlockCL& picture, const PixelBlockCL& onto, const int position[2],
    const int centre[2], float angle)
{
    if (picture.pixels == nullptr || onto.pixels == nullptr || position == nullptr || centre == nullptr) {
        return;
    }
    const int width = picture.width;
    const int height = picture.height;
    if (width <= 0 || height <= 0 || onto.width != width || onto.height != height) {
        return;
    }
    const float radians = angle * Pi / 180.0F;
    const auto sine = static_cast<float>(std::sin(static_cast<double>(radians)));
    const auto cosine = static_cast<float>(std::cos(static_cast<double>(radians)));
    // Positions of a file may be any ints: their difference needs more room.
    const std::int64_t dx = std::int64_t { centre[0] } - position[0];
    const std::int64_t dy = std::int64_t { centre[1] } - position[1];
    const auto offsetX = static_cast<float>(dx);
    const auto offsetY = static_cast<float>(dy);
    // The part of the new place that only the column decides.
    std::vector<float> columnX(static_cast<std::size_t>(width));
    std::vector<float> columnY(static_cast<std::size_t>(width));
    for (int i = 0; i < width; ++i) {
        const auto x = static_cast<float>(i - dx);
        columnX[static_cast<std::size_t>(i)] = cosine * x;
        columnY[static_cast<std::size_t>(i)] = sine * x;
    }
    // A little more than the places that can be seen: what is farther away need not, and if huge must not,
    // become an int.
    const auto leastX = -3.0F;
    const auto mostX = static_cast<float>(width) + 2.0F;
    const auto leastY = static_cast<float>(width - height) - 2.0F;
    const auto mostY = static_cast<float>(width) + 2.0F;
    const std::uint32_t* from = picture.pixels;
    for (int j = 0; j < height; ++j) {
        const auto y = static_cast<float>(dy - j);
        const float rowX = sine * y;
        const float rowY = cosine * y;
        for (int i = 0; i < width; ++i, ++from) {
            const std::uint32_t pixel = *from & White;
            if (pixel == White) {
                continue;
            }
            const float x = columnX[static_cast<std::size_t>(i)] - rowX + offsetX;
            const float newY = columnY[static_cast<std::size_t>(i)] + rowY + offsetY;
            if (!(x > leastX && x < mostX && newY > leastY && newY < mostY)) {
                continue;
            }
            const int px = placeOf(x);
            const int row = width - placeOf(newY);
            if (row < 0 || row >= height) {
                continue;
            }
            std::uint32_t* const to = onto.pixels + static_cast<std::ptrdiff_t>(row) * width;
            if (px >= 0 && px < width) {
                to[px] = pixel;
            }
            if (px + 1 >= 0 && px + 1 < width) {
                to[px + 1] = pixel;
            }
        }
    }
}

float slAngleAfterStep(float angle, int sign, float step)
{
    return std::trunc(static_cast<float>(sign) * step + angle);
}
