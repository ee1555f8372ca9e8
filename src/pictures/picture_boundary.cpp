#include "pictures/picture_boundary.h"
#include "baselib/take_back.h"
#include "pictures/picture_pixels.h"
#include <climits>
#include <cstdint>
#include <unordered_set>
#include <vector>

namespace {

constexpr int NoPlace = INT_MIN + 1;
constexpr int Tries = 8;
constexpr int Neighbours[8][2]
    = { { 1, 0 }, { 1, 1 }, { 0, 1 }, { -1, 1 }, { -1, 0 }, { -1, -1 }, { 0, -1 }, { 1, -1 } };

// Null when p lies outside the buffer.
const unsigned char* pixelAt(const int* p, int w, int h, const unsigned char* pixels)
{
    if (pixels == nullptr || p == nullptr || w < 1 || h < 1 || p[0] < 0 || p[1] < 0) {
        return nullptr;
    }
    const std::int64_t number = static_cast<std::int64_t>(p[1]) * w + p[0];
    return number < static_cast<std::int64_t>(w) * h ? pixels + number * 3 : nullptr;
}

// The steps of a walk: where it stands and where it came from decide all that follows. Of a picture of usual
// size each step has a bit; the steps of larger ones, and places beyond a row's end, are listed.
class WalkMemory
{
public:
    WalkMemory(int w, int h)
        : width_(w)
        , steps_(static_cast<std::int64_t>(w) * h > MostPixels ? 0 : static_cast<std::size_t>(w) * h * 4)
    {
    }

    // False when this step was made before. dir: along one of the axes.
    bool remember(const int* place, const int* dir)
    {
        const std::size_t direction = dir[0] != 0 ? (dir[0] > 0 ? 0 : 1) : (dir[1] > 0 ? 2 : 3);
        if (steps_.empty() || place[0] >= width_) {
            return listed_
                .insert(static_cast<std::uint64_t>(place[1]) << 34U
                    | static_cast<std::uint64_t>(place[0]) << 2U | direction)
                .second;
        }
        const std::size_t pixel = static_cast<std::size_t>(place[1]) * static_cast<std::size_t>(width_)
            + static_cast<std::size_t>(place[0]);
        const bool isNew = !steps_[pixel * 4 + direction];
        steps_[pixel * 4 + direction] = true;
        return isNew;
    }

private:
    static constexpr std::int64_t MostPixels = 1 << 24;

    int width_;
    std::vector<bool> steps_;
    std::unordered_set<std::uint64_t> listed_;
};

} // namespace

int slGetFirstPntOnBound(const unsigned char* colour, int w, int h, const unsigned char* pixels, int* first)
{
    if (first == nullptr) {
        return 0;
    }
    for (int y = 0; y < h && pixels != nullptr; ++y) {
        for (int x = 0; x < w; ++x) {
            const int place[2] = { x, y };
            if (slIsSamePixel4D(pixelAt(place, w, h, pixels), colour) != 0) {
                first[0] = x;
                first[1] = y;
                return 1;
            }
        }
    }
    return 0;
}

int slIsOnBound(const int* p, const unsigned char* /*key*/, const unsigned char* colour, int w, int h,
    const unsigned char* pixels)
{
    const unsigned char* const own = pixelAt(p, w, h, pixels);
    if (own == nullptr || slIsSamePixel4D(own, colour) == 0) {
        return 0;
    }
    for (const auto& step : Neighbours) {
        const int place[2] = { p[0] + step[0], p[1] + step[1] };
        const unsigned char* const neighbour
            = slIsAvailPosi(place, w, h) != 0 ? pixelAt(place, w, h, pixels) : nullptr;
        if (neighbour != nullptr && slIsSamePixel4D(neighbour, colour) == 0) {
            return 1;
        }
    }
    return 0;
}

int slGetNextPntOnBound(const unsigned char* colour, int w, int h, const unsigned char* pixels,
    const int* prev, const int* current, int* dir, int* next)
{
    if (prev == nullptr || current == nullptr || dir == nullptr || next == nullptr) {
        return 0;
    }
    for (int i = 0; i < Tries; ++i, slGetNextAxisDirect(dir)) {
        const int place[2] = { current[0] + dir[0], current[1] + dir[1] };
        if (slIsAvailPosi(place, w, h) != 0 && slIsSameInt2D(place, prev) == 0
            && slIsOnBound(place, colour, colour, w, h, pixels) != 0) {
            next[0] = place[0];
            next[1] = place[1];
            return 1;
        }
    }
    return 0;
}

int slGenBitMapBoundary(const unsigned char* /*key*/, const unsigned char* colour, int w, int h,
    const unsigned char* pixels, Int2DArr* out)
{
    if (out == nullptr) {
        return 0;
    }
    int first[2] = { NoPlace, NoPlace };
    if (slGetFirstPntOnBound(colour, w, h, pixels, first) == 0) {
        return 1;
    }
    WalkMemory memory(w, h);
    TakeBackCL half([out, bound = out->GetBoundM()] {
        while (out->GetBoundM() > bound) {
            out->DelItemM(out->GetBoundM() - 1);
        }
    });
    out->AddItemM(first);
    int prev[2] = { NoPlace, NoPlace };
    int current[2] = { first[0], first[1] };
    int next[2] = { NoPlace, NoPlace };
    int dir[2] = { 1, 0 };
    // Each pixel is entered at most once from each side; only places beyond a row's end could exceed that.
    const std::int64_t most = static_cast<std::int64_t>(w) * h * 4;
    std::int64_t count = 1;
    bool fresh = true;
    while (fresh && slIsSameInt2D(next, first) == 0
        && slGetNextPntOnBound(colour, w, h, pixels, prev, current, dir, next) != 0) {
        out->AddItemM(next);
        fresh = memory.remember(next, dir) && ++count <= most;
        for (int i = 0; i < 2; ++i) {
            prev[i] = current[i];
            current[i] = next[i];
        }
    }
    half.KeepM();
    return 1;
}
