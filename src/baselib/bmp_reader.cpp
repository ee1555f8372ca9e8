#include "baselib/bmp_reader.h"
#include "baselib/bmp_header.h"
#include "baselib/bmp_rle.h"
#include "baselib/file.h"
#include "baselib/helpers.h"
#include <climits>
#include <memory>
#include <vector>

namespace {

// A few codes may announce a large empty picture: no more pixels than these for a file are believed.
constexpr std::uint64_t RunPixelsAtLeast = 1U << 20;
constexpr std::uint64_t RunPixelsPerByte = 256;

struct BufferDeleter
{
    void operator()(unsigned char* buffer) const { slFree(buffer); }
};
using Buffer = std::unique_ptr<unsigned char, BufferDeleter>;

// The top 8 bits of a component, short ones repeated so that the largest value becomes 255.
unsigned char component(std::uint32_t pixel, const BmpField& field)
{
    if (field.length == 0) {
        return 0;
    }
    std::uint32_t value = pixel << (32 - field.shift - field.length) >> (32 - field.length);
    value = field.length > 8 ? value >> (field.length - 8) : value << (8 - field.length);
    for (int length = field.length; length < 8; length *= 2) {
        value |= value >> length;
    }
    return static_cast<unsigned char>(value);
}

class PixelDecoder
{
public:
    PixelDecoder(const BmpBytes& file, const BmpHeader& header)
        : file_(file)
        , header_(header)
        , width_(static_cast<std::size_t>(header.width))
        , height_(static_cast<std::size_t>(header.height))
    {
    }

    Buffer decode() const
    {
        const std::uint64_t pixels = static_cast<std::uint64_t>(width_) * height_;
        if (pixels > INT_MAX / 3) {
            return nullptr;
        }
        return isRunCoded() ? decodeRuns(pixels) : decodeRows(pixels);
    }

private:
    bool isRunCoded() const { return header_.coding == BmpCoding::Rle8 || header_.coding == BmpCoding::Rle4; }
    static Buffer allocate(std::uint64_t pixels)
    {
        return Buffer(static_cast<unsigned char*>(slMalloc(static_cast<std::size_t>(pixels) * 3)));
    }

    Buffer decodeRuns(std::uint64_t pixels) const
    {
        if (pixels > RunPixelsAtLeast + RunPixelsPerByte * file_.size) {
            return nullptr;
        }
        std::vector<unsigned char> indices(static_cast<std::size_t>(pixels));
        if (!slDecodeBmpRuns(file_, header_, indices.data())) {
            return nullptr;
        }
        Buffer buffer = allocate(pixels);
        unsigned char* to = buffer.get();
        for (unsigned char index : indices) {
            if (to == nullptr || !putIndex(index, to)) {
                return nullptr;
            }
            to += 3;
        }
        return buffer;
    }

    Buffer decodeRows(std::uint64_t pixels) const
    {
        const std::size_t stride = (width_ * static_cast<std::size_t>(header_.bits) + 31) / 32 * 4;
        if (stride > (file_.size - header_.pixelsAt) / height_) {
            return nullptr;
        }
        Buffer buffer = allocate(pixels);
        for (std::size_t y = 0; y < height_; ++y) {
            const unsigned char* from = file_.data + header_.pixelsAt + y * stride;
            const std::size_t row = header_.topDown ? height_ - 1 - y : y;
            if (buffer == nullptr || !decodeRow(from, buffer.get() + row * width_ * 3)) {
                return nullptr;
            }
        }
        return buffer;
    }

    bool decodeRow(const unsigned char* from, unsigned char* to) const
    {
        if (header_.bits <= 8) {
            return decodeIndices(from, to);
        }
        if (header_.bits == 24) {
            for (const unsigned char* const end = to + width_ * 3; to != end; to += 3, from += 3) {
                to[0] = from[2];
                to[1] = from[1];
                to[2] = from[0];
            }
            return true;
        }
        const std::size_t size = static_cast<std::size_t>(header_.bits) / 8;
        for (std::size_t x = 0; x < width_; ++x, to += 3) {
            const BmpBytes pixel { from + x * size, size };
            const std::uint32_t value = size == 2 ? pixel.word(0) : pixel.dword(0);
            for (int i = 0; i < 3; ++i) {
                to[i] = component(value, header_.fields[i]);
            }
        }
        return true;
    }

    bool decodeIndices(const unsigned char* from, unsigned char* to) const
    {
        const std::size_t bits = static_cast<std::size_t>(header_.bits);
        for (std::size_t x = 0; x < width_; ++x, to += 3) {
            const unsigned place = static_cast<unsigned>(8 - bits - x * bits % 8);
            if (!putIndex(from[x * bits / 8] >> place & ((1 << bits) - 1), to)) {
                return false;
            }
        }
        return true;
    }

    bool putIndex(int index, unsigned char* to) const
    {
        if (index >= header_.paletteSize) {
            return false;
        }
        to[0] = header_.palette[index].red;
        to[1] = header_.palette[index].green;
        to[2] = header_.palette[index].blue;
        return true;
    }

    const BmpBytes& file_;
    const BmpHeader& header_;
    std::size_t width_;
    std::size_t height_;
};

} // namespace

int slDecodeBmp(const void* data, std::size_t size, int* w, int* h, unsigned char** pixels)
{
    if (w == nullptr || h == nullptr || pixels == nullptr) {
        return 0;
    }
    *w = 0;
    *h = 0;
    *pixels = nullptr;
    const BmpBytes file { static_cast<const unsigned char*>(data), data != nullptr ? size : 0 };
    BmpHeader header;
    if (!slReadBmpHeader(file, &header)) {
        return 0;
    }
    Buffer buffer = PixelDecoder(file, header).decode();
    if (buffer == nullptr) {
        return 0;
    }
    *w = header.width;
    *h = header.height;
    *pixels = buffer.release();
    return 1;
}

int slLoadBmpTexture(const char* file, int* w, int* h, unsigned char** pixels)
{
    std::size_t size = 0;
    const std::unique_ptr<char[]> bytes = file != nullptr ? slReadFile(file, &size) : nullptr;
    return slDecodeBmp(bytes.get(), size, w, h, pixels);
}

int slLoadBmpPicture3D(const char* file, int* w, int* h, unsigned char** pixels)
{
    return slLoadBmpTexture(file, w, h, pixels);
}
