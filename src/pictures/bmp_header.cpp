#include "pictures/bmp_header.h"
#include <algorithm>
#include <climits>

namespace {

constexpr std::size_t FileHeaderSize = 14;
constexpr std::uint32_t CoreHeaderSize = 12;
constexpr std::uint32_t ShortestOs2HeaderSize = 16;
constexpr std::uint32_t InfoHeaderSize = 40;
constexpr std::uint32_t Os2HeaderSize = 64;
constexpr std::uint32_t LongestHeaderSize = 124;

// Reads fields of an information header that may be cut short: what it doesn't hold is 0.
struct InfoReader
{
    const BmpBytes& file;
    std::uint32_t headerSize;

    std::uint16_t word(std::uint32_t at) const
    {
        return at + 2 <= headerSize ? file.word(FileHeaderSize + at) : 0;
    }
    std::uint32_t dword(std::uint32_t at) const
    {
        return at + 4 <= headerSize ? file.dword(FileHeaderSize + at) : 0;
    }
};

bool isKnownCoding(const BmpHeader& header)
{
    switch (header.coding) {
    case BmpCoding::Rgb:
        return true;
    case BmpCoding::Rle8:
        return header.bits == 8;
    case BmpCoding::Rle4:
        return header.bits == 4;
    case BmpCoding::BitFields:
    case BmpCoding::AlphaBitFields:
        return header.bits == 16 || header.bits == 32;
    }
    return false;
}

bool isKnownDepth(int bits)
{
    return bits == 1 || bits == 4 || bits == 8 || bits == 16 || bits == 24 || bits == 32;
}

// False when the mask's bits don't stand together.
bool setField(std::uint32_t mask, BmpField* field)
{
    *field = BmpField {};
    if (mask == 0) {
        return true;
    }
    while ((mask & 1U) == 0) {
        mask >>= 1;
        ++field->shift;
    }
    while ((mask & 1U) != 0) {
        mask >>= 1;
        ++field->length;
    }
    return mask == 0;
}

// The usual places of the components; the masks of BitFields follow a plain header and stand inside a longer
// one.
bool readFields(const BmpBytes& file, std::uint32_t headerSize, BmpHeader* header, std::size_t* headersEnd)
{
    std::uint32_t masks[3] = { 0x7C00, 0x03E0, 0x001F };
    if (header->bits == 32) {
        masks[0] = 0xFF0000;
        masks[1] = 0x00FF00;
        masks[2] = 0x0000FF;
    }
    if (header->coding == BmpCoding::BitFields || header->coding == BmpCoding::AlphaBitFields) {
        const std::size_t masksAt = FileHeaderSize + InfoHeaderSize;
        if (headerSize < InfoHeaderSize || headerSize == Os2HeaderSize) {
            return false;
        }
        if (headerSize < InfoHeaderSize + sizeof(masks)) {
            *headersEnd = masksAt + (header->coding == BmpCoding::AlphaBitFields ? 16 : 12);
        }
        if (!file.holds(masksAt, sizeof(masks))) {
            return false;
        }
        for (int i = 0; i < 3; ++i) {
            masks[i] = file.dword(masksAt + static_cast<std::size_t>(i) * 4);
        }
    }
    if ((masks[0] | masks[1] | masks[2]) == 0) {
        return false;
    }
    if ((masks[0] & masks[1]) != 0 || (masks[0] & masks[2]) != 0 || (masks[1] & masks[2]) != 0) {
        return false;
    }
    for (int i = 0; i < 3; ++i) {
        if (!setField(masks[i], &header->fields[i])) {
            return false;
        }
    }
    return true;
}

// The colours announced stand behind the headers, even where pixels already begin there.
void readPalette(
    const BmpBytes& file, std::size_t at, std::size_t entrySize, std::uint32_t announced, BmpHeader* header)
{
    const std::size_t most = std::size_t { 1 } << header->bits;
    const std::size_t count = announced == 0 ? most : std::min<std::size_t>(announced, most);
    for (std::size_t i = 0; i < count; ++i, at += entrySize) {
        const auto byte = [&](std::size_t k) { return file.holds(at + k, 1) ? file.data[at + k] : 0; };
        header->palette[i] = BmpColour { static_cast<unsigned char>(byte(2)),
            static_cast<unsigned char>(byte(1)), static_cast<unsigned char>(byte(0)) };
    }
}

// Sizes and coding; false when a size is 0 or has no counterpart among the positive numbers.
bool readShape(const InfoReader& info, BmpHeader* header)
{
    if (info.headerSize == CoreHeaderSize) {
        header->width = info.word(4);
        header->height = info.word(6);
        header->bits = info.word(10);
    } else {
        header->width = static_cast<std::int32_t>(info.dword(4));
        header->height = static_cast<std::int32_t>(info.dword(8));
        header->bits = info.word(14);
        header->coding = static_cast<BmpCoding>(info.dword(16));
        header->codesSize = info.dword(20);
    }
    if (header->width < 1 || header->height == 0 || header->height == INT_MIN) {
        return false;
    }
    header->topDown = header->height < 0;
    header->height = header->topDown ? -header->height : header->height;
    return isKnownDepth(header->bits) && isKnownCoding(*header);
}

} // namespace

std::uint16_t BmpBytes::word(std::size_t at) const
{
    return static_cast<std::uint16_t>(data[at] | data[at + 1] << 8);
}

std::uint32_t BmpBytes::dword(std::size_t at) const
{
    return word(at) | static_cast<std::uint32_t>(word(at + 2)) << 16;
}

bool slReadBmpHeader(const BmpBytes& file, BmpHeader* header)
{
    *header = BmpHeader {};
    if (!file.holds(0, FileHeaderSize + 4) || file.data[0] != 'B' || file.data[1] != 'M') {
        return false;
    }
    const std::uint32_t headerSize = file.dword(FileHeaderSize);
    const bool known = headerSize == CoreHeaderSize
        || (headerSize >= ShortestOs2HeaderSize && headerSize <= LongestHeaderSize);
    if (!known || !file.holds(FileHeaderSize, headerSize)) {
        return false;
    }
    const InfoReader info { file, headerSize };
    if (!readShape(info, header)) {
        return false;
    }
    std::size_t headersEnd = FileHeaderSize + headerSize;
    if ((header->bits == 16 || header->bits == 32) && !readFields(file, headerSize, header, &headersEnd)) {
        return false;
    }
    header->pixelsAt = file.dword(10);
    if (header->pixelsAt < headersEnd || header->pixelsAt >= file.size) {
        return false;
    }
    if (header->bits <= 8) {
        const std::size_t entrySize = headerSize == CoreHeaderSize ? 3 : 4;
        readPalette(file, headersEnd, entrySize, info.dword(32), header);
    }
    return true;
}

bool slCanPlatformLoadBmp(const BmpBytes& file)
{
    const std::uint32_t headerSize = file.holds(0, FileHeaderSize + 4) ? file.dword(FileHeaderSize) : 0;
    const bool known = headerSize == InfoHeaderSize || headerSize == 108 || headerSize == LongestHeaderSize;
    if (!known || !file.holds(FileHeaderSize, headerSize)) {
        return false;
    }
    const InfoReader info { file, headerSize };
    BmpHeader header;
    readShape(info, &header); // Whatever the coding is, it takes the room of plain rows.
    if (header.width < 1 || header.height < 1 || header.topDown || !isKnownDepth(header.bits)
        || header.coding == BmpCoding::AlphaBitFields) {
        return false;
    }
    std::size_t colours = std::min<std::size_t>(info.dword(32), 256);
    if (colours == 0 && header.bits <= 8) {
        colours = std::size_t { 1 } << header.bits;
    }
    const std::size_t masks = header.coding == BmpCoding::BitFields && headerSize == InfoHeaderSize ? 12 : 0;
    const std::size_t headersEnd = FileHeaderSize + headerSize + masks + colours * 4;
    const std::uint32_t offset = file.dword(10);
    header.pixelsAt = offset == 0 || offset == FileHeaderSize ? headersEnd : offset;
    if (headersEnd > file.size || header.pixelsAt < FileHeaderSize || header.pixelsAt > file.size) {
        return false;
    }
    // Beyond these it counts wrong, or crashes.
    if (header.stride() > INT_MAX / static_cast<std::size_t>(header.height)) {
        return false;
    }
    return header.isRunCoded() ? header.codesSize != 0 && file.holds(header.pixelsAt, header.codesSize)
                               : header.holdsRows(file);
}
