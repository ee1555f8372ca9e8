#pragma once
#include <algorithm>
#include <array>
#include <cstddef>
#include <random>
#include <string>
#include <vector>

using Colour = std::array<unsigned char, 3>;

// A picture buffer for tests: rows in buffer order.
struct Pixels
{
    int w { 0 };
    int h { 0 };
    std::vector<unsigned char> bytes;

    Pixels() = default;
    Pixels(int width, int height, const Colour& colour = { 255, 255, 255 })
        : w(width)
        , h(height)
    {
        for (int i = 0; i < w * h; ++i) {
            bytes.insert(bytes.end(), colour.begin(), colour.end());
        }
    }

    // Rows of '#' (black) and anything else (white), in buffer order.
    static Pixels fromRows(const std::vector<std::string>& rows)
    {
        Pixels pixels(static_cast<int>(rows[0].size()), static_cast<int>(rows.size()));
        for (int y = 0; y < pixels.h; ++y) {
            for (int x = 0; x < pixels.w; ++x) {
                if (rows[static_cast<std::size_t>(y)][static_cast<std::size_t>(x)] == '#') {
                    pixels.set(x, y, { 0, 0, 0 });
                }
            }
        }
        return pixels;
    }

    // The same rows seen from the top.
    Pixels upsideDown() const
    {
        Pixels other(w, h);
        for (int y = 0; y < h; ++y) {
            const auto from = bytes.begin() + static_cast<std::ptrdiff_t>(h - 1 - y) * w * 3;
            std::copy(from, from + w * 3, other.bytes.begin() + static_cast<std::ptrdiff_t>(y) * w * 3);
        }
        return other;
    }

    const unsigned char* at(int x, int y) const { return &bytes[(static_cast<std::size_t>(y) * w + x) * 3]; }
    void set(int x, int y, const Colour& colour)
    {
        std::copy(colour.begin(), colour.end(), &bytes[(static_cast<std::size_t>(y) * w + x) * 3]);
    }
};

// Blocks and noise in a few shades around the key, so that every way of being transparent comes up.
inline Pixels randomPicture(std::mt19937* random, int most, const Colour& key)
{
    Pixels pixels(1 + static_cast<int>((*random)() % most), 1 + static_cast<int>((*random)() % most));
    const int noise = static_cast<int>((*random)() % 100);
    const auto shade = [&] {
        Colour colour = key;
        for (unsigned char& part : colour) {
            const int value = part + static_cast<int>((*random)() % 3) - 1;
            part = static_cast<unsigned char>(std::min(255, std::max(0, value)));
        }
        return (*random)() % 4 == 0 ? Colour { 0, 0, 0 } : colour;
    };
    Colour block = shade();
    for (int y = 0; y < pixels.h; ++y) {
        for (int x = 0; x < pixels.w; ++x) {
            if (static_cast<int>((*random)() % 100) < noise) {
                block = shade();
            }
            pixels.set(x, y, block);
        }
    }
    return pixels;
}

inline Colour randomKey(std::mt19937* random)
{
    Colour key;
    for (unsigned char& part : key) {
        part = static_cast<unsigned char>((*random)() % 3 == 0 ? 255 : (*random)());
    }
    return key;
}
