#include "pictures/resampling.h"
#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <vector>

namespace {

// Red, green and blue weighted by how much of the pixel is covered, and that.
using CoveredPixelTP = std::array<float, 4>;

struct TapCL
{
    int at;
    float weight;
};

// What a pixel of the result is made of along one direction. The weights of one sum up to 1.
class TapsCL
{
public:
    TapsCL(int from, int to)
    {
        starts_.reserve(static_cast<std::size_t>(to) + 1);
        for (int i = 0; i < to; ++i) {
            starts_.push_back(taps_.size());
            if (from > to) {
                averageM(i, from, to);
            } else {
                cubicM(i, from, to);
            }
        }
        starts_.push_back(taps_.size());
    }
    const TapCL* FirstM(int to) const { return taps_.data() + starts_[static_cast<std::size_t>(to)]; }
    const TapCL* EndM(int to) const { return FirstM(to + 1); }

private:
    void averageM(int i, int from, int to)
    {
        const double step = static_cast<double>(from) / to;
        const double begin = i * step;
        const double end = begin + step;
        for (int at = static_cast<int>(begin); at < from && at < end; ++at) {
            const double covered = std::min(end, at + 1.0) - std::max<double>(begin, at);
            if (covered > 0) {
                taps_.push_back({ at, static_cast<float>(covered / step) });
            }
        }
    }
    void cubicM(int i, int from, int to)
    {
        const double centre = (i + 0.5) * from / to - 0.5;
        const int before = static_cast<int>(std::floor(centre));
        const double t = centre - before;
        const double weights[] = { ((2 - t) * t - 1) * t / 2, ((3 * t - 5) * t * t + 2) / 2,
            ((4 - 3 * t) * t + 1) * t / 2, (t - 1) * t * t / 2 };
        for (int k = 0; k < 4; ++k) {
            if (weights[k] != 0) {
                taps_.push_back({ std::clamp(before - 1 + k, 0, from - 1), static_cast<float>(weights[k]) });
            }
        }
    }

    std::vector<TapCL> taps_;
    std::vector<std::size_t> starts_;
};

CoveredPixelTP coveredPixel(std::uint32_t pixel, std::int64_t key)
{
    if ((pixel & 0xFFFFFF) == key) {
        return {};
    }
    return { static_cast<float>(pixel >> 16 & 0xFF), static_cast<float>(pixel >> 8 & 0xFF),
        static_cast<float>(pixel & 0xFF), 1 };
}

std::uint32_t colourOf(const CoveredPixelTP& pixel, std::int64_t key)
{
    if (key != NoKey && pixel[3] < 0.5F) {
        return static_cast<std::uint32_t>(key);
    }
    std::uint32_t colour = 0;
    for (std::size_t i = 0; i < 3; ++i) {
        const float part = std::clamp(pixel[i] / pixel[3], 0.0F, 255.0F);
        colour = colour << 8 | static_cast<std::uint32_t>(part + 0.5F);
    }
    return colour == key ? colour ^ 1 : colour;
}

void addTo(CoveredPixelTP& sum, const CoveredPixelTP& pixel, float weight)
{
    for (std::size_t i = 0; i < sum.size(); ++i) {
        sum[i] += pixel[i] * weight;
    }
}

} // namespace

void slResample(const PixelBlockCL& picture, const PixelBlockCL& onto, std::int64_t key)
{
    const bool isEmpty = picture.pixels == nullptr;
    slResampleRows(
        isEmpty ? 0 : picture.width, picture.height,
        [&picture](int y) {
            return picture.pixels + static_cast<std::size_t>(y) * static_cast<std::size_t>(picture.width);
        },
        onto, key);
}

void slResampleRows(int fromWidth, int fromHeight, CallRefCL<const std::uint32_t*(int y)> rowAt,
    const PixelBlockCL& onto, std::int64_t key)
{
    if (onto.pixels == nullptr || onto.width <= 0 || onto.height <= 0) {
        return;
    }
    const auto width = static_cast<std::size_t>(onto.width);
    if (fromWidth <= 0 || fromHeight <= 0) {
        std::fill_n(onto.pixels, width * static_cast<std::size_t>(onto.height),
            key == NoKey ? 0 : static_cast<std::uint32_t>(key));
        return;
    }
    const TapsCL across(fromWidth, onto.width);
    const TapsCL down(fromHeight, onto.height);
    // A row of the picture at the width of the block serves all rows of the block that it takes part in: at
    // most as many as a pixel has taps are kept.
    std::vector<std::vector<CoveredPixelTP>> rows(static_cast<std::size_t>(fromHeight));
    int kept = 0;
    std::vector<CoveredPixelTP> sums(width);
    for (int y = 0; y < onto.height; ++y) {
        std::fill(sums.begin(), sums.end(), CoveredPixelTP {});
        int first = fromHeight;
        for (const TapCL* tap = down.FirstM(y); tap != down.EndM(y); ++tap) {
            std::vector<CoveredPixelTP>& row = rows[static_cast<std::size_t>(tap->at)];
            first = std::min(first, tap->at);
            if (row.empty()) {
                const std::uint32_t* const pixels = rowAt(tap->at);
                row.resize(width);
                for (int x = 0; x < onto.width; ++x) {
                    for (const TapCL* of = across.FirstM(x); of != across.EndM(x); ++of) {
                        addTo(
                            row[static_cast<std::size_t>(x)], coveredPixel(pixels[of->at], key), of->weight);
                    }
                }
            }
            for (std::size_t x = 0; x < width; ++x) {
                addTo(sums[x], row[x], tap->weight);
            }
        }
        for (; kept < first; ++kept) {
            std::vector<CoveredPixelTP>().swap(rows[static_cast<std::size_t>(kept)]);
        }
        for (std::size_t x = 0; x < width; ++x) {
            onto.pixels[static_cast<std::size_t>(y) * width + x] = colourOf(sums[x], key);
        }
    }
}
