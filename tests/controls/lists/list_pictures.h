#pragma once
#include "support/bmp_file.h"
#include "support/temp_file.h"
#include <string>

// A .bmp file of one colour, 0xRRGGBB.
class PictureFile : public TempFile
{
public:
    PictureFile(int width, int height, std::uint32_t colour)
        : TempFile(bytesOf(width, height, colour), ".bmp")
    {
    }

private:
    static std::string bytesOf(int width, int height, std::uint32_t colour)
    {
        BmpFile file;
        file.width = width;
        file.height = height;
        for (int y = 0; y < height; ++y) {
            file.addRow(std::vector<std::uint32_t>(static_cast<size_t>(width), colour));
        }
        const std::vector<unsigned char> bytes = file.bytes();
        return { bytes.begin(), bytes.end() };
    }
};
