#pragma once
#include <algorithm>
#include <functional>
#include <vector>

// Sorts what comes in a few rising rows, as sections have their records: stable, in little time for few rows.
template <class T, class LessTP = std::less<T>> void sortRows(std::vector<T>& items, LessTP less = LessTP())
{
    std::vector<typename std::vector<T>::iterator> ends { items.begin() };
    while (ends.back() != items.end()) {
        ends.push_back(std::is_sorted_until(ends.back(), items.end(), less));
    }
    for (std::size_t width = 1; width + 1 < ends.size(); width *= 2) {
        for (std::size_t i = 0; i + width < ends.size() - 1; i += 2 * width) {
            std::inplace_merge(
                ends[i], ends[i + width], ends[std::min(i + 2 * width, ends.size() - 1)], less);
        }
    }
}
