#pragma once
#include "support/bmp_file.h"
#include "support/temp_file.h"
#include <filesystem>

// A .bmp file of so many pixels, all of them 0, that takes next to no room on the disk.
class LargePictureCL : public TempFile
{
public:
    LargePictureCL(int bits, int width, int height)
        : TempFile(headersOf(bits, width, height), ".bmp")
    {
        const auto stride
            = (static_cast<std::uintmax_t>(width) * static_cast<std::uintmax_t>(bits) + 31) / 32 * 4;
        std::filesystem::resize_file(
            path(), std::filesystem::file_size(path()) + stride * static_cast<std::uintmax_t>(height));
    }

private:
    static std::string headersOf(int bits, int width, int height)
    {
        BmpFile file;
        file.width = width;
        file.height = height;
        file.bits = bits;
        file.palette.resize(bits <= 8 ? std::size_t { 1 } << bits : 0);
        const std::vector<unsigned char> bytes = file.bytes();
        return { bytes.begin(), bytes.end() };
    }
};
