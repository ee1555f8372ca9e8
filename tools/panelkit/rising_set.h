#pragma once
#include <algorithm>
#include <set>
#include <vector>

// A set of what mostly comes in rising order, as ids do: then in one block of memory.
template <class T> class RisingSetCL
{
public:
    void AddM(const T& item)
    {
        if (rising_.empty() || rising_.back() < item) {
            rising_.push_back(item);
        } else if (!HasM(item)) {
            others_.insert(item);
        }
    }
    bool HasM(const T& item) const
    {
        return (!rising_.empty() && rising_.back() == item)
            || std::binary_search(rising_.begin(), rising_.end(), item) || others_.count(item) > 0;
    }
    void ClearM()
    {
        rising_.clear();
        others_.clear();
    }

private:
    std::vector<T> rising_;
    std::set<T> others_;
};
