#include "pictures/bmp_reader.h"
#include "baselib/file.h"
#include "baselib/helpers.h"
#include "pictures/bmp_header.h"
#include "pictures/bmp_indices.h"
#include <climits>
#include <memory>
#include <vector>

namespace {

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
        return header_.bits <= 8 ? decodeIndices(pixels) : decodeRows(pixels);
    }

private:
    static Buffer allocate(std::uint64_t pixels)
    {
        return Buffer(static_cast<unsigned char*>(slMalloc(static_cast<std::size_t>(pixels) * 3)));
    }

    Buffer decodeIndices(std::uint64_t pixels) const
    {
        std::vector<unsigned char> indices;
        if (!slDecodeBmpIndices(file_, header_, &indices)) {
            return nullptr;
        }
        Buffer buffer = allocate(pixels);
        unsigned char* to = buffer.get();
        if (to == nullptr) {
            return nullptr;
        }
        for (const unsigned char index : indices) {
            const BmpColour& colour = header_.palette[index];
            *to++ = colour.red;
            *to++ = colour.green;
            *to++ = colour.blue;
        }
        return buffer;
    }

    Buffer decodeRows(std::uint64_t pixels) const
    {
        if (!header_.holdsRows(file_)) {
            return nullptr;
        }
        Buffer buffer = allocate(pixels);
        for (std::size_t y = 0; buffer != nullptr && y < height_; ++y) {
            const unsigned char* from = file_.data + header_.pixelsAt + y * header_.stride();
            const std::size_t row = header_.topDown ? height_ - 1 - y : y;
            decodeRow(from, buffer.get() + row * width_ * 3);
        }
        return buffer;
    }

    void decodeRow(const unsigned char* from, unsigned char* to) const
    {
        if (header_.bits == 24) {
            for (const unsigned char* const end = to + width_ * 3; to != end; to += 3, from += 3) {
                to[0] = from[2];
                to[1] = from[1];
                to[2] = from[0];
            }
            return;
        }
        const std::size_t size = static_cast<std::size_t>(header_.bits) / 8;
        for (std::size_t x = 0; x < width_; ++x, to += 3) {
            const BmpBytes pixel { from + x * size, size };
            const std::uint32_t value = size == 2 ? pixel.word(0) : pixel.dword(0);
            for (int i = 0; i < 3; ++i) {
                to[i] = component(value, header_.fields[i]);
            }
        }
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
