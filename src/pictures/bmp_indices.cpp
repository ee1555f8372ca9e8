#include "pictures/bmp_indices.h"
#include "pictures/bmp_rle.h"
#include <utility>

namespace {

// A few codes may announce a large empty picture: no more pixels than these for a file are believed.
constexpr std::uint64_t RunPixelsAtLeast = 1U << 20;
constexpr std::uint64_t RunPixelsPerByte = 256;

void unpackRows(const BmpBytes& file, const BmpHeader& header, unsigned char* to)
{
    const std::size_t bits = static_cast<std::size_t>(header.bits);
    const std::size_t width = static_cast<std::size_t>(header.width);
    const std::size_t height = static_cast<std::size_t>(header.height);
    for (std::size_t y = 0; y < height; ++y) {
        const std::size_t row = header.topDown ? height - 1 - y : y;
        const unsigned char* from = file.data + header.pixelsAt + row * header.stride();
        for (std::size_t x = 0; x < width; ++x) {
            const unsigned place = static_cast<unsigned>(8 - bits - x * bits % 8);
            *to++ = static_cast<unsigned char>(from[x * bits / 8] >> place & ((1 << bits) - 1));
        }
    }
}

} // namespace

bool slAnnouncesTooMuch(const BmpBytes& file, const BmpHeader& header)
{
    const std::uint64_t pixels
        = static_cast<std::uint64_t>(header.width) * static_cast<std::uint64_t>(header.height);
    return header.hasTooManyPixels()
        || (header.isRunCoded() ? pixels > RunPixelsAtLeast + RunPixelsPerByte * file.size
                                : !header.holdsRows(file));
}

bool slDecodeBmpIndices(const BmpBytes& file, const BmpHeader& header, std::vector<unsigned char>* indices)
{
    if (slAnnouncesTooMuch(file, header)) {
        return false;
    }
    if (indices == nullptr) {
        return !header.isRunCoded() || slDecodeBmpRuns(file, header, nullptr);
    }
    std::vector<unsigned char> found(
        static_cast<std::size_t>(header.width) * static_cast<std::size_t>(header.height));
    if (!header.isRunCoded()) {
        unpackRows(file, header, found.data());
    } else if (!slDecodeBmpRuns(file, header, found.data())) {
        return false;
    }
    *indices = std::move(found);
    return true;
}
