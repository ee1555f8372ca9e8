#pragma once
#include <algorithm>
#include <chrono>
#include <vector>

inline double secondsSince(std::chrono::steady_clock::time_point begin)
{
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - begin).count();
}

inline double median(std::vector<double> times)
{
    std::sort(times.begin(), times.end());
    const std::size_t half = times.size() / 2;
    return times.size() % 2 == 1 ? times[half] : (times[half - 1] + times[half]) / 2;
}
