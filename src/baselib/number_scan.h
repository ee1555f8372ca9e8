#pragma once
#include <algorithm>
#include <climits>
#include <cstdint>

// The library's own reading, inline: what it does for each of the many values of a file.

// What slIsBlank says, with one comparison for most bytes.
inline const char* slSkipBlanks(const char* at, const char* end)
{
    constexpr std::uint64_t Blanks = 0x100003E01; // Space, tab to CR, NUL.
    while (at < end && static_cast<unsigned char>(*at) <= ' '
        && (Blanks >> static_cast<unsigned char>(*at) & 1) != 0) {
        ++at;
    }
    return at;
}

// As slReadInt; value is not null.
inline const char* slScanInt(const char* at, const char* end, int* value)
{
    const bool isNegative = at < end && *at == '-';
    const char* digit = at < end && (isNegative || *at == '+') ? at + 1 : at;
    const char* const digits = digit;
    const auto numberAt
        = [](const char* place) { return static_cast<unsigned char>(*place) - unsigned { '0' }; };
    unsigned magnitude = 0;
    const char* const sure = end - digit > 9 ? digit + 9 : end; // So many fit, whatever they are.
    for (; digit < sure && numberAt(digit) <= 9; ++digit) {
        magnitude = magnitude * 10 + numberAt(digit);
    }
    if (digit == digits) {
        return at;
    }
    std::int64_t whole = magnitude;
    for (; digit < end && numberAt(digit) <= 9; ++digit) {
        whole = std::min<std::int64_t>(whole * 10 + numberAt(digit), std::int64_t { INT_MAX } + 1);
    }
    *value = static_cast<int>(isNegative ? -whole : std::min<std::int64_t>(whole, INT_MAX));
    return digit;
}
