#pragma once
#include "toolkit/platform.h"
#include <cstddef>
#include <utility>
#include <vector>

// Unites regions of about equal size, as the digits of a counter carry over: only a few exist at a time.
class RegionUnionCL
{
public:
    void AddM(HRGN piece)
    {
        std::size_t level = 0;
        while (!levels_.empty() && levels_.back().second == level) {
            unite(levels_.back().first, piece);
            piece = levels_.back().first;
            levels_.pop_back();
            ++level;
        }
        levels_.emplace_back(piece, level);
    }

    // All of them; an empty region when there is none.
    HRGN TakeM()
    {
        HRGN whole = ::CreateRectRgn(0, 0, 0, 0);
        while (!levels_.empty()) {
            unite(levels_.back().first, whole);
            whole = levels_.back().first;
            levels_.pop_back();
        }
        return whole;
    }

private:
    static void unite(HRGN into, HRGN other)
    {
        ::CombineRgn(into, into, other, RGN_OR);
        ::DeleteObject(other);
    }

    std::vector<std::pair<HRGN, std::size_t>> levels_;
};
