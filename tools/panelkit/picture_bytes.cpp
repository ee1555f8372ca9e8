#include "picture_bytes.h"
#include <array>

namespace {

void addBigEndian(std::string& to, std::uint32_t value)
{
    for (int shift = 24; shift >= 0; shift -= 8) {
        to += static_cast<char>(value >> shift);
    }
}

void addLittleEndian(std::string& to, std::uint32_t value, int bytes)
{
    for (int i = 0; i < bytes; ++i) {
        to += static_cast<char>(value >> (8 * i));
    }
}

std::uint32_t cyclicSumOf(const std::string& bytes)
{
    static const std::array<std::uint32_t, 256> table = [] {
        constexpr std::uint32_t Polynomial = 0xEDB88320;
        std::array<std::uint32_t, 256> made {};
        for (std::uint32_t i = 0; i < 256; ++i) {
            made[i] = i;
            for (int bit = 0; bit < 8; ++bit) {
                made[i] = made[i] >> 1 ^ ((made[i] & 1) != 0 ? Polynomial : 0);
            }
        }
        return made;
    }();
    std::uint32_t sum = 0xFFFFFFFF;
    for (const char byte : bytes) {
        sum = sum >> 8 ^ table[(sum ^ static_cast<unsigned char>(byte)) & 0xFF];
    }
    return ~sum;
}

// What it says must be short enough for a length of 32 bits, as any window is.
void addChunk(std::string& png, const char* name, const std::string& data)
{
    addBigEndian(png, static_cast<std::uint32_t>(data.size()));
    const std::string summed = name + data;
    png += summed;
    addBigEndian(png, cyclicSumOf(summed));
}

} // namespace

std::string pngOf(const PicturePixelsCL& picture)
{
    std::string header;
    addBigEndian(header, static_cast<std::uint32_t>(picture.width));
    addBigEndian(header, static_cast<std::uint32_t>(picture.height));
    header.append("\x08\x02\0\0\0", 5); // Eight bits each of red, green and blue; rows from the top.
    std::string rows;
    rows.reserve((picture.pixels.size() * 3) + static_cast<std::size_t>(picture.height));
    auto pixel = picture.pixels.begin();
    for (int y = 0; y < picture.height; ++y) {
        rows += '\0'; // Dialogs are flat: rows as they are pack better than their differences.
        for (int x = 0; x < picture.width; ++x, ++pixel) {
            rows += static_cast<char>(*pixel >> 16);
            rows += static_cast<char>(*pixel >> 8);
            rows += static_cast<char>(*pixel);
        }
    }
    std::string png = "\x89PNG\r\n\x1A\n";
    addChunk(png, "IHDR", header);
    addChunk(png, "IDAT", packed(rows));
    addChunk(png, "IEND", "");
    return png;
}

std::string bmpOf(const PicturePixelsCL& picture)
{
    constexpr std::uint32_t Headers = 14 + 40;
    const std::size_t rowSize = ((static_cast<std::size_t>(picture.width) * 3) + 3) / 4 * 4;
    const auto size = static_cast<std::uint32_t>(rowSize * static_cast<std::size_t>(picture.height));
    std::string bmp = "BM";
    bmp.reserve(Headers + size);
    for (const std::uint32_t value : { Headers + size, 0U, Headers, 40U,
             static_cast<std::uint32_t>(picture.width), static_cast<std::uint32_t>(picture.height) }) {
        addLittleEndian(bmp, value, 4);
    }
    addLittleEndian(bmp, 1, 2); // Planes.
    addLittleEndian(bmp, 24, 2);
    for (const std::uint32_t value : { 0U, size, 0U, 0U, 0U, 0U }) { // Not packed, no resolution, no palette.
        addLittleEndian(bmp, value, 4);
    }
    for (int y = picture.height - 1; y >= 0; --y) {
        const std::size_t begin = bmp.size();
        const std::uint32_t* pixel
            = picture.pixels.data() + (static_cast<std::size_t>(y) * static_cast<std::size_t>(picture.width));
        for (int x = 0; x < picture.width; ++x) {
            addLittleEndian(bmp, *pixel++, 3);
        }
        bmp.resize(begin + rowSize);
    }
    return bmp;
}
