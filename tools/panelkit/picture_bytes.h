#pragma once
#include <cstdint>
#include <string>
#include <vector>

// Pixels 0xRRGGBB (the top byte counts for nothing), the top row first, without gaps; one at least.
struct PicturePixelsCL
{
    int width;
    int height;
    std::vector<std::uint32_t> pixels;
};
// The same as the bytes of a file. No library of the window system writes them: starting that takes longer
// than showing a dialog.
std::string pngOf(const PicturePixelsCL& picture); // 24 bits a pixel.
std::string bmpOf(const PicturePixelsCL& picture); // The same.

// In the form in which PNG keeps them: what is there twice, once. What reads zlib's streams reads it.
std::string packed(const std::string& bytes);
