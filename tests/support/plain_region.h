#pragma once
#include "support/plain_walk.h"
#include "support/random_picture.h"
#include <windows.h>

// The pixel-exact region in its plain steps: one subtraction for each run of a column.
inline HRGN plainPixelRegion(const Pixels& picture, const Colour& key)
{
    const HRGN rgn = ::CreateRectRgn(0, 0, picture.w, picture.h);
    const auto cut = [&](int x, int from, int to) {
        const HRGN run = ::CreateRectRgn(x, from, x + 1, to + 1);
        ::CombineRgn(rgn, rgn, run, RGN_DIFF);
        ::DeleteObject(run);
    };
    for (int x = 0; x < picture.w; ++x) {
        int begin = -1;
        for (int y = 0; y < picture.h; ++y) {
            const unsigned char* pixel = picture.at(x, picture.h - 1 - y);
            if (pixel[0] >= key[0] && pixel[1] >= key[1] && pixel[2] >= key[2]) {
                begin = begin < 0 ? y : begin;
                if (y == picture.h - 1) {
                    cut(x, begin, y);
                }
            } else if (begin >= 0) {
                cut(x, begin, y);
                begin = -1;
            }
        }
    }
    return rgn;
}

// The region that the walk encloses: one polygon of all its points but the last.
inline HRGN plainTracedRegion(const Pixels& picture)
{
    Points walk = PlainWalk(picture, picture.bytes.size(), true).run();
    std::vector<POINT> points;
    for (const Point& point : walk) {
        points.push_back(POINT { point.first, point.second });
    }
    points.pop_back();
    return ::CreatePolygonRgn(points.data(), static_cast<int>(points.size()), ALTERNATE);
}

// A black square with about that many white specks of one to four pixels height on it.
inline Pixels noisyPicture(int size, int specks)
{
    std::mt19937 random(5);
    Pixels picture(size, size, { 0, 0, 0 });
    for (int i = 0; i < specks; ++i) {
        const int x = static_cast<int>(random() % static_cast<unsigned>(size));
        const int y = static_cast<int>(random() % static_cast<unsigned>(size));
        const int end = std::min(size, y + 1 + static_cast<int>(random() % 4));
        for (int row = y; row < end; ++row) {
            picture.set(x, row, { 255, 255, 255 });
        }
    }
    return picture;
}
