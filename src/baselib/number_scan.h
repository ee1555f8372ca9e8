#pragma once
#include "baselib/number_text.h"
#include <cstdint>

// The library's own reading, inline: what it does for each of the many values of a file.

// The first byte that is no blank. What slIsBlank says, with one comparison for most bytes.
inline const char* slSkipBlanks(const char* at, const char* end)
{
    constexpr std::uint64_t Blanks = 0x100003E01; // Space, tab to CR, NUL.
    while (at < end && static_cast<unsigned char>(*at) <= ' '
        && (Blanks >> static_cast<unsigned char>(*at) & 1) != 0) {
        ++at;
    }
    return at;
}

// Eight bytes as one number, the first one lowest: compilers make one load of it, written like this.
inline std::uint64_t slEightBytes(const char* at)
{
    const auto byte = [at](int i) { return std::uint64_t { static_cast<unsigned char>(at[i]) } << 8 * i; };
    return byte(0) | byte(1) | byte(2) | byte(3) | byte(4) | byte(5) | byte(6) | byte(7);
}

// How many bytes slScanShortInt and slFindLineEnd look at at once.
constexpr int slScannedAtOnce = 8;

// As slReadInt for one to seven digits without a sign: null for all else, *value unchanged. slScannedAtOnce
// bytes are there. Nothing but branches finds out how long a number is: the processor, which foresees most of
// them, is at the next value before it has this one.
inline const char* slScanShortInt(const char* at, int* value)
{
    const auto digitAt = [at](int i) { return static_cast<unsigned>(at[i]) - '0'; };
    unsigned whole = digitAt(0);
    if (whole > 9) {
        return nullptr;
    }
#pragma GCC unroll 7
    for (int i = 1; i < slScannedAtOnce; ++i) {
        if (digitAt(i) > 9) {
            *value = static_cast<int>(whole);
            return at + i;
        }
        whole = whole * 10 + digitAt(i);
    }
    return nullptr;
}

// The first line feed, if no NUL is in front of it; null for all else, and where it isn't found before
// `sure`. From there on slScannedAtOnce bytes are there.
inline const char* slFindLineEnd(const char* at, const char* sure)
{
    constexpr std::uint64_t Ones = 0x0101010101010101;
    // The high bits of the bytes that are 0, right up to the first of them.
    const auto zeros = [](std::uint64_t bytes) { return (bytes - Ones) & ~bytes & Ones * 0x80; };
    for (; at < sure; at += slScannedAtOnce) {
        const std::uint64_t bytes = slEightBytes(at);
        const std::uint64_t ends = zeros(bytes ^ Ones * '\n') | zeros(bytes);
        if (ends != 0) {
            at += __builtin_ctzll(ends) / 8;
            return *at == '\n' ? at : nullptr;
        }
    }
    return nullptr;
}
