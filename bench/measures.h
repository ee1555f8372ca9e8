#pragma once
#include "timing.h"
#include <cstdio>
#include <string>

// One line a measure, as scripts/bench collects them.
inline void tell(const std::string& name, double value, const char* unit, const char* better = "lower")
{
    std::printf("{\"name\":\"%s\",\"value\":%.3f,\"unit\":\"%s\",\"better\":\"%s\"}\n", name.c_str(), value,
        unit, better);
    std::fflush(stdout);
}

// The median of the ratios of two rounds each: what the machine does meanwhile meets both sides, and of two
// rounds each side was first in one.
inline double ratioOf(const std::vector<double>& mine, const std::vector<double>& other)
{
    std::vector<double> ratios;
    for (std::size_t round = 1; round < mine.size() && round < other.size(); round += 2) {
        ratios.push_back((mine[round - 1] + mine[round]) / (other[round - 1] + other[round]));
    }
    return median(ratios);
}

// How many times as long `mine` takes as `other`; both were taken in turn.
inline void tellRatio(
    const std::string& name, const std::vector<double>& mine, const std::vector<double>& other)
{
    std::fprintf(stderr, "%s: %.1f ms, %.1f ms\n", name.c_str(), median(mine) * 1000, median(other) * 1000);
    tell(name, ratioOf(mine, other), "x");
}

// How many times as fast as the plain version; both were taken in turn.
inline void tellSpeedup(
    const std::string& name, const std::vector<double>& plain, const std::vector<double>& mine)
{
    std::fprintf(
        stderr, "%s: plain %.1f ms, %.1f ms\n", name.c_str(), median(plain) * 1000, median(mine) * 1000);
    tell(name, ratioOf(plain, mine), "x", "higher");
}

template <class FunctionTP> double secondsOf(FunctionTP&& run)
{
    const auto begin = std::chrono::steady_clock::now();
    run();
    return secondsSince(begin);
}

#ifdef _WIN32
#include <windows.h>

// Lets a trace of the server's requests say where a part begins and ends: it shows the names that are asked
// for.
inline void markRequest(const std::string& name)
{
    ::OpenEventA(SYNCHRONIZE, FALSE, name.c_str());
}

template <class FunctionTP> void markTrace(const std::string& name, FunctionTP&& run)
{
    markRequest("panelkit-begin-" + name);
    run();
    markRequest("panelkit-end-" + name);
}
#endif
