// Traces the outlines of pictures and cuts their transparent parts out, or brings them to other sizes. Run by
// scripts/fuzz with the corpus in fuzz/corpus/regions. The first four bytes of an input are the sizes, and
// which of the two; the rest is the colours of the pixels, two bits each.
#include "containers/int2d_arr.h"
#include "pictures/picture_boundary.h"
#include "pictures/picture_edges.h"
#include "pictures/picture_pixels.h"
#include "pictures/resampling.h"
#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <vector>

namespace {

constexpr unsigned char Colours[4][3]
    = { { 255, 255, 255 }, { 0, 0, 0 }, { 200, 30, 30 }, { 254, 255, 255 } };

void expect(bool holds)
{
    if (!holds) {
        std::abort();
    }
}

// Every opaque pixel lies in just one of the rectangles, which lie in the picture.
void checkRects(int w, int h, const std::vector<unsigned char>& pixels)
{
    std::vector<int> covered(static_cast<std::size_t>(w) * static_cast<std::size_t>(h));
    for (const PictureRect& rect : slFindOpaqueRects(w, h, pixels.data(), Colours[0])) {
        expect(rect.left >= 0 && rect.top >= 0 && rect.left < rect.right && rect.top < rect.bottom
            && rect.right <= w && rect.bottom <= h);
        for (int y = rect.top; y < rect.bottom; ++y) {
            for (int x = rect.left; x < rect.right; ++x) {
                ++covered[static_cast<std::size_t>(y * w + x)];
            }
        }
    }
    for (const int times : covered) {
        expect(times <= 1);
    }
}

void trace(int w, int h, const std::vector<unsigned char>& pixels)
{
    Int2DArr lists[4];
    slFindHorizonEdgeM(w, h, pixels.data(), Colours[0], &lists[0], &lists[1]);
    slFindVerticalEdgeM(w, h, pixels.data(), Colours[0], &lists[2], &lists[3]);
    for (const unsigned char* const colour : Colours) {
        Int2DArr walk;
        slGenBitMapBoundary(Colours[0], colour, w, h, pixels.data(), &walk);
    }
    checkRects(w, h, pixels);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    if (size < 5) {
        return 0;
    }
    const int w = 1 + data[0] % 48;
    const int h = 1 + data[1] % 48;
    const auto count = static_cast<std::size_t>(w) * static_cast<std::size_t>(h);
    const auto colourOf
        = [=](std::size_t i) { return Colours[data[4 + i / 4 % (size - 4)] >> 2 * (i % 4) & 3]; };
    if (data[1] / 48 % 2 == 0) {
        std::vector<unsigned char> pixels(3 * count);
        for (std::size_t i = 0; i < count; ++i) {
            std::copy_n(colourOf(i), 3, &pixels[3 * i]);
        }
        trace(w, h, pixels);
        return 0;
    }
    std::vector<std::uint32_t> block(count);
    for (std::size_t i = 0; i < count; ++i) {
        const unsigned char* const colour = colourOf(i);
        block[i] = static_cast<std::uint32_t>(colour[0] << 16 | colour[1] << 8 | colour[2]);
    }
    const int otherW = 1 + data[2] % 64;
    const int otherH = 1 + data[3] % 64;
    std::vector<std::uint32_t> onto(static_cast<std::size_t>(otherW) * static_cast<std::size_t>(otherH));
    slResample({ block.data(), w, h }, { onto.data(), otherW, otherH }, data[0] >= 128 ? 0xFFFFFF : NoKey);
    return 0;
}
