#include "pictures/bmp_rows.h"
#include "baselib/file.h"
#include "pictures/bmp_indices.h"

namespace {

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

} // namespace

std::unique_ptr<char[]> slReadBmpFile(const char* file, std::size_t* size)
{
    *size = 0;
    unsigned char headers[BmpHeadersSize] {};
    BmpHeader header;
    const bool isThere = file != nullptr && slReadFileBeginning(file, headers, sizeof headers, size) > 0;
    if (!isThere || !slReadBmpHeader({ headers, *size }, &header) || header.hasTooManyPixels()) {
        *size = 0;
        return nullptr;
    }
    return slReadFile(file, size);
}

int slJudgeBmp(const BmpBytes& file, std::size_t held)
{
    BmpHeader header;
    if (!slReadBmpHeader(file, &header) || header.hasTooManyPixels()) {
        return 0;
    }
    if (!header.isRunCoded()) {
        return header.holdsRows(file) ? 1 : 0;
    }
    if (held < file.size) {
        return -1;
    }
    return slDecodeBmpIndices(file, header, nullptr) ? 1 : 0;
}

int slJudgeShownBmp(const BmpBytes& file, std::size_t held)
{
    const int judgement = slJudgeBmp(file, held);
    BmpHeader header;
    return judgement == 0 && slReadBmpHeader(file, &header) && slAnnouncesTooMuch(file, header)
            && slCanPlatformLoadBmp(file)
        ? 1
        : judgement;
}

BmpRowsCL::BmpRowsCL(const BmpBytes& file)
    : file_(file)
{
    if (!slReadBmpHeader(file, &header_) || header_.hasTooManyPixels()) {
        return;
    }
    isGood_ = header_.isRunCoded() ? slDecodeBmpIndices(file_, header_, &indices_) : header_.holdsRows(file_);
}

void BmpRowsCL::ReadRowM(int y, unsigned char* to) const
{
    const auto width = static_cast<std::size_t>(header_.width);
    const auto row = static_cast<std::size_t>(header_.topDown ? header_.height - 1 - y : y);
    const unsigned char* from = file_.data + header_.pixelsAt + row * header_.stride();
    if (header_.bits > 8) {
        readColoursM(from, to);
        return;
    }
    if (header_.isRunCoded()) {
        from = indices_.data() + static_cast<std::size_t>(y) * width; // The lowest row first.
    }
    for (std::size_t x = 0; x < width; ++x) {
        const BmpColour& colour = header_.palette[indexM(from, x)];
        *to++ = colour.red;
        *to++ = colour.green;
        *to++ = colour.blue;
    }
}

unsigned BmpRowsCL::indexM(const unsigned char* row, std::size_t x) const
{
    if (header_.bits == 8 || header_.isRunCoded()) {
        return row[x];
    }
    const auto bits = static_cast<std::size_t>(header_.bits);
    const auto place = static_cast<unsigned>(8 - bits - x * bits % 8);
    return row[x * bits / 8] >> place & ((1U << bits) - 1);
}

void BmpRowsCL::readColoursM(const unsigned char* from, unsigned char* to) const
{
    const auto width = static_cast<std::size_t>(header_.width);
    if (header_.bits == 24) {
        for (const unsigned char* const end = to + width * 3; to != end; to += 3, from += 3) {
            to[0] = from[2];
            to[1] = from[1];
            to[2] = from[0];
        }
        return;
    }
    const std::size_t size = static_cast<std::size_t>(header_.bits) / 8;
    for (std::size_t x = 0; x < width; ++x, to += 3) {
        const BmpBytes pixel { from + x * size, size };
        const std::uint32_t value = size == 2 ? pixel.word(0) : pixel.dword(0);
        for (int i = 0; i < 3; ++i) {
            to[i] = component(value, header_.fields[i]);
        }
    }
}
