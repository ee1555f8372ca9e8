#pragma once
#include "support/random_picture.h"
#include <algorithm>
#include <climits>
#include <utility>
#include <vector>

using Point = std::pair<int, int>;
using Points = std::vector<Point>;

// The walk along the boundary of the first black figure in its plainest form. Ends after `most` points where
// the walk doesn't; or, if it looks back, with the first step that it has made before.
class PlainWalk
{
public:
    PlainWalk(const Pixels& picture, std::size_t most, bool looksBack = false)
        : picture_(picture)
        , most_(most)
        , looksBack_(looksBack)
    {
    }

    Points run()
    {
        Points out;
        Point first;
        if (!findFirst(&first)) {
            return out;
        }
        out.push_back(first);
        const Point marker(INT_MIN + 1, INT_MIN + 1);
        Point prev = marker;
        Point current = first;
        Point next = marker;
        int dir = 0;
        std::vector<std::pair<Point, int>> steps;
        while (next != first && out.size() < most_ && findNext(prev, current, &dir, &next)) {
            out.push_back(next);
            const auto step = std::make_pair(next, dir);
            if (looksBack_ && std::find(steps.begin(), steps.end(), step) != steps.end()) {
                break;
            }
            steps.push_back(step);
            prev = current;
            current = next;
        }
        return out;
    }

private:
    bool inBuffer(const Point& p) const { return p.second * picture_.w + p.first < picture_.w * picture_.h; }
    bool isBlack(const Point& p) const
    {
        const unsigned char* pixel
            = &picture_.bytes[static_cast<std::size_t>(p.second * picture_.w + p.first) * 3];
        return pixel[0] == 0 && pixel[1] == 0 && pixel[2] == 0;
    }
    bool isAvailable(const Point& p) const
    {
        return p.first >= 0 && p.second >= 0 && p.second < picture_.w && p.second < picture_.h;
    }
    bool findFirst(Point* first) const
    {
        for (int i = 0; i < picture_.w * picture_.h; ++i) {
            *first = Point(i % picture_.w, i / picture_.w);
            if (isBlack(*first)) {
                return true;
            }
        }
        return false;
    }
    bool isOnBoundary(const Point& p) const
    {
        if (!inBuffer(p) || !isBlack(p)) {
            return false;
        }
        for (int dx = -1; dx <= 1; ++dx) {
            for (int dy = -1; dy <= 1; ++dy) {
                const Point q(p.first + dx, p.second + dy);
                if (isAvailable(q) && inBuffer(q) && !isBlack(q)) {
                    return true;
                }
            }
        }
        return false;
    }
    bool findNext(const Point& prev, const Point& current, int* dir, Point* next) const
    {
        static const Point directions[4] = { { 1, 0 }, { 0, 1 }, { -1, 0 }, { 0, -1 } };
        for (int i = 0; i < 8; ++i) {
            const Point p(current.first + directions[*dir].first, current.second + directions[*dir].second);
            if (isAvailable(p) && p != prev && isOnBoundary(p)) {
                *next = p;
                return true;
            }
            *dir = (*dir + 1) % 4;
        }
        return false;
    }

    const Pixels& picture_;
    std::size_t most_;
    bool looksBack_;
};

// A corridor of white between black windings, w by w pixels, w even.
inline Pixels spiral(int w)
{
    const Colour black { 0, 0, 0 };
    Pixels picture(w, w);
    int left = 1;
    int top = 1;
    int right = w - 2;
    int bottom = w - 2;
    int x = left;
    int y = top;
    const auto lineTo = [&](int toX, int toY) {
        while (x != toX || y != toY) {
            picture.set(x, y, black);
            x += (toX > x) - (toX < x);
            y += (toY > y) - (toY < y);
        }
        picture.set(x, y, black);
    };
    while (right - left >= 4) {
        lineTo(right, y);
        lineTo(x, bottom);
        lineTo(left, y);
        top += 2;
        lineTo(x, top);
        left += 2;
        right -= 2;
        bottom -= 2;
    }
    return picture;
}
