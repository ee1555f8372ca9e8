#pragma once
#include <cstdint>
#include <string>
#include <utility>
#include <vector>

// Makes the bytes of .bmp files of every kind, good and broken, field by field.
struct BmpFile
{
    std::uint32_t headerSize { 40 };
    std::int32_t width { 1 };
    std::int32_t height { 1 }; // Negative: top-down.
    int bits { 24 };
    std::uint32_t coding { 0 };
    std::uint32_t codesSize { 0 }; // What the header says of the bytes of its pixels.
    std::uint32_t coloursUsed { 0 };
    std::vector<std::uint32_t> masks;   // Red, green, blue (and alpha).
    std::vector<std::uint32_t> palette; // 0xRRGGBB.
    std::vector<unsigned char> pixels;  // As they stand in the file.
    int offsetError { 0 };

    std::vector<unsigned char> bytes() const
    {
        std::vector<unsigned char> out;
        const bool masksInside = headerSize >= 52 && headerSize != 64;
        const std::size_t entrySize = headerSize == 12 ? 3 : 4;
        const std::size_t offset
            = 14 + headerSize + (masksInside ? 0 : masks.size() * 4) + palette.size() * entrySize;
        out.push_back('B');
        out.push_back('M');
        put(&out, static_cast<std::uint32_t>(offset + pixels.size()), 4);
        put(&out, 0, 4);
        put(&out, static_cast<std::uint32_t>(offset) + static_cast<std::uint32_t>(offsetError), 4);
        putInfo(&out, masksInside);
        if (!masksInside) {
            for (std::uint32_t mask : masks) {
                put(&out, mask, 4);
            }
        }
        for (std::uint32_t colour : palette) {
            put(&out, colour, static_cast<int>(entrySize));
        }
        out.insert(out.end(), pixels.begin(), pixels.end());
        return out;
    }

    // Appends a row of pixel values (palette indices or 0xRRGGBB or raw), filled up to 4 bytes.
    void addRow(const std::vector<std::uint32_t>& values)
    {
        const std::size_t begin = pixels.size();
        if (bits < 8) {
            pixels.resize(begin + (values.size() * static_cast<std::size_t>(bits) + 7) / 8);
            for (std::size_t x = 0; x < values.size(); ++x) {
                const std::size_t bit = x * static_cast<std::size_t>(bits);
                const std::size_t place = 8 - static_cast<std::size_t>(bits) - bit % 8;
                pixels[begin + bit / 8] |= static_cast<unsigned char>(values[x] << place);
            }
        } else {
            for (std::uint32_t value : values) {
                put(&pixels, value, bits / 8);
            }
        }
        pixels.resize(begin + (pixels.size() - begin + 3) / 4 * 4);
    }

    static void put(std::vector<unsigned char>* out, std::uint32_t value, int size)
    {
        for (int i = 0; i < size; ++i) {
            out->push_back(static_cast<unsigned char>(value >> (8 * i)));
        }
    }

private:
    void putInfo(std::vector<unsigned char>* out, bool masksInside) const
    {
        const std::size_t begin = out->size();
        put(out, headerSize, 4);
        put(out, static_cast<std::uint32_t>(width), headerSize == 12 ? 2 : 4);
        put(out, static_cast<std::uint32_t>(height), headerSize == 12 ? 2 : 4);
        put(out, 1, 2);
        put(out, static_cast<std::uint32_t>(bits), 2);
        put(out, coding, 4);
        put(out, codesSize, 4);
        put(out, 2835, 4);
        put(out, 2835, 4);
        put(out, coloursUsed, 4);
        put(out, 0, 4);
        if (masksInside) {
            for (std::uint32_t mask : masks) {
                put(out, mask, 4);
            }
        }
        out->resize(begin + headerSize);
    }
};

// A run-length coded picture of 4 or 8 bits in which each index has a colour of its own.
inline BmpFile codedBmp(int bits, int width, int height, std::vector<unsigned char> codes)
{
    BmpFile file;
    file.width = width;
    file.height = height;
    file.bits = bits;
    file.coding = bits == 8 ? 1 : 2;
    for (std::uint32_t i = 0; i < 1U << bits; ++i) {
        file.palette.push_back(i << 16 | 0x4000 | i);
    }
    file.pixels = std::move(codes);
    return file;
}

// Good files of every kind that is read, with their names: for comparisons, truncation and fuzzing.
inline std::vector<std::pair<std::string, BmpFile>> allBmpKinds(int width = 13, int height = 7)
{
    std::vector<std::pair<std::string, BmpFile>> kinds;
    std::uint32_t state = 12345;
    const auto random = [&state] {
        state = state * 1664525U + 1013904223U;
        return state >> 8;
    };
    const auto plain = [&](const std::string& name, BmpFile file) {
        file.width = width;
        if (file.bits <= 8) {
            const std::size_t colours
                = file.coloursUsed != 0 ? file.coloursUsed : std::size_t { 1 } << file.bits;
            for (std::size_t i = 0; i < colours; ++i) {
                file.palette.push_back(random() & 0xFFFFFF);
            }
        }
        for (int y = 0; y < height; ++y) {
            std::vector<std::uint32_t> row;
            for (int x = 0; x < width; ++x) {
                const std::uint32_t value = random() << 16 ^ random();
                row.push_back(
                    file.bits <= 8 ? value % static_cast<std::uint32_t>(file.palette.size()) : value);
            }
            file.addRow(row);
        }
        file.height = file.height < 0 ? -height : height;
        kinds.emplace_back(name, file);
    };
    for (int bits : { 1, 4, 8, 16, 24, 32 }) {
        BmpFile file;
        file.bits = bits;
        const std::string name = std::to_string(bits) + "bit";
        plain(name, file);
        file.height = -1;
        plain(name + "-topdown", file);
        for (std::uint32_t header : { 12U, 64U, 108U, 124U }) {
            if (header != 12 || (bits != 16 && bits != 32)) {
                file.height = 1;
                file.headerSize = header;
                plain(name + "-header" + std::to_string(header), file);
            }
        }
    }
    BmpFile few;
    few.bits = 8;
    few.coloursUsed = 17;
    plain("8bit-17colours", few);
    BmpFile masked;
    masked.coding = 3;
    masked.bits = 16;
    masked.masks = { 0xF800, 0x07E0, 0x001F };
    plain("16bit-565", masked);
    masked.headerSize = 108;
    masked.masks = { 0x0F00, 0x00F0, 0x000F, 0xF000 };
    plain("16bit-4444-header108", masked);
    masked.headerSize = 40;
    masked.bits = 32;
    masked.masks = { 0x000000FF, 0x0000FF00, 0x00FF0000 };
    plain("32bit-reversed", masked);
    masked.headerSize = 124;
    masked.masks = { 0x3FF00000, 0x000FFC00, 0x000003FF };
    plain("32bit-101010-header124", masked);

    BmpFile runs;
    runs.width = 6;
    runs.height = 4;
    runs.bits = 8;
    runs.coding = 1;
    for (std::uint32_t i = 0; i < 256; ++i) {
        runs.palette.push_back((i * 0x030507) & 0xFFFFFF);
    }
    runs.pixels = { 6, 7, 0, 0, 0, 3, 1, 2, 3, 0, 3, 9, 0, 0, 0, 2, 2, 1, 0, 4, 5, 6, 7, 8, 0, 1 };
    kinds.emplace_back("rle8", runs);
    runs.bits = 4;
    runs.coding = 2;
    runs.palette.resize(16);
    runs.pixels
        = { 6, 0x7A, 0, 0, 0, 5, 0x12, 0x34, 0x50, 0, 1, 0x90, 0, 0, 0, 2, 1, 0, 3, 0x4C, 0, 0, 0, 1 };
    kinds.emplace_back("rle4", runs);
    return kinds;
}
