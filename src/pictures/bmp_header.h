#pragma once
#include <climits>
#include <cstddef>
#include <cstdint>

// The bytes of a file, for reading little-endian numbers within bounds.
struct BmpBytes
{
    const unsigned char* data { nullptr };
    std::size_t size { 0 };

    // Whether count bytes stand at position at.
    bool holds(std::size_t at, std::size_t count) const { return at <= size && count <= size - at; }
    std::uint16_t word(std::size_t at) const;
    std::uint32_t dword(std::size_t at) const;
};

constexpr std::size_t BmpHeadersSize = 14 + 124 + 16 + 1024; // The longest, with masks and a palette.

enum class BmpCoding : std::uint32_t
{
    Rgb = 0,
    Rle8 = 1,
    Rle4 = 2,
    BitFields = 3,
    AlphaBitFields = 6
};

// Where one colour component stands in a pixel of 16 or 32 bits; length 0: nowhere, its value is 0.
struct BmpField
{
    int shift { 0 };
    int length { 0 };
};

struct BmpColour
{
    unsigned char red { 0 };
    unsigned char green { 0 };
    unsigned char blue { 0 };
};

// What the headers of a .bmp file say, checked: within the limits below everything can be relied on.
struct BmpHeader
{
    int width { 0 };  // 1..
    int height { 0 }; // 1..
    bool topDown { false };
    int bits { 0 }; // 1, 4, 8, 16, 24 or 32 a pixel.
    BmpCoding coding { BmpCoding::Rgb };
    std::size_t pixelsAt { 0 };  // Behind the headers, within the file.
    BmpField fields[3];          // Red, green, blue; for 16 and 32 bits.
    std::size_t codesSize { 0 }; // Bytes of the runs as the header says; 0: it doesn't.
    BmpColour palette[256];      // Black for indices without a colour.

    bool isRunCoded() const { return coding == BmpCoding::Rle8 || coding == BmpCoding::Rle4; }
    // More than a buffer of three bytes a pixel, or a region made of one, is given room for.
    bool hasTooManyPixels() const
    {
        return static_cast<std::uint64_t>(width) * static_cast<std::uint64_t>(height) > INT_MAX / 3;
    }
    // Bytes of a row of pixels that aren't run-length coded, and whether the file holds them all.
    std::size_t stride() const
    {
        return (static_cast<std::size_t>(width) * static_cast<std::size_t>(bits) + 31) / 32 * 4;
    }
    bool holdsRows(const BmpBytes& file) const
    {
        return stride() <= (file.size - pixelsAt) / static_cast<std::size_t>(height);
    }
};

// Reads the file header and any of the information headers: 12 bytes (OS/2 1), 16 to 64 bytes (OS/2 2 and
// the usual 40), 108 and 124 bytes (versions 4 and 5). Returns false when the file cannot be a picture of a
// kind that is read here, or when its numbers contradict each other or the file's size.
// Only the first BmpHeadersSize bytes are looked at: no more need to be in memory.
bool slReadBmpHeader(const BmpBytes& file, BmpHeader* header);

// Whether the platform's loader can be given the file: it reads what the headers announce without asking for
// the file's end, and doesn't know pictures stored from the top, runs of unknown size, rows of more than
// INT_MAX bytes in all and the headers of OS/2. As much is looked at. Less strict than slReadBmpHeader where
// the loader makes something of it, e.g. of masks with gaps.
bool slCanPlatformLoadBmp(const BmpBytes& file);
