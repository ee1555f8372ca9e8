#pragma once
#include "baselib/number_text.h"
#include <cstdint>
#ifdef __SSE2__
#include <emmintrin.h>
#endif

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

// How many bytes slScanShortInt and slFindLineEnd may look at at once.
constexpr int slScannedAtOnce = 16;

// As slReadInt for one to seven digits without a sign: null for all else, *value unchanged. Eight bytes are
// there. Nothing but branches finds out how long a number is: the processor, which foresees most of
// them, is at the next value before it has this one.
inline const char* slScanShortInt(const char* at, int* value)
{
    const auto digitAt = [at](int i) { return static_cast<unsigned>(at[i]) - '0'; };
    unsigned whole = digitAt(0);
    if (whole > 9) {
        return nullptr;
    }
#pragma GCC unroll 7
    for (int i = 1; i < 8; ++i) {
        if (digitAt(i) > 9) {
            *value = static_cast<int>(whole);
            return at + i;
        }
        whole = whole * 10 + digitAt(i);
    }
    return nullptr;
}

#ifdef __SSE2__

// Where the first line feed or NUL of so many bytes is.
constexpr int slLineBytes = 16;
inline int slLineOrTextEnd(const char* at)
{
    const __m128i bytes = _mm_loadu_si128(reinterpret_cast<const __m128i*>(at));
    const __m128i ends = _mm_or_si128(
        _mm_cmpeq_epi8(bytes, _mm_set1_epi8('\n')), _mm_cmpeq_epi8(bytes, _mm_setzero_si128()));
    const int found = _mm_movemask_epi8(ends);
    return found != 0 ? __builtin_ctz(static_cast<unsigned>(found)) : slLineBytes;
}

#else

constexpr int slLineBytes = 8;
inline int slLineOrTextEnd(const char* at)
{
    const auto byte = [at](int i) { return std::uint64_t { static_cast<unsigned char>(at[i]) } << 8 * i; };
    const std::uint64_t bytes
        = byte(0) | byte(1) | byte(2) | byte(3) | byte(4) | byte(5) | byte(6) | byte(7); // One load.
    constexpr std::uint64_t Ones = 0x0101010101010101;
    // The high bits of the bytes that are 0, right up to the first of them.
    const auto zeros = [](std::uint64_t all) { return (all - Ones) & ~all & Ones * 0x80; };
    const std::uint64_t ends = zeros(bytes ^ Ones * '\n') | zeros(bytes);
    return ends != 0 ? __builtin_ctzll(ends) / 8 : slLineBytes;
}

#endif

// The first line feed, if no NUL is in front of it; null for all else, and where it isn't found before
// `sure`. From there on slScannedAtOnce bytes are there.
inline const char* slFindLineEnd(const char* at, const char* sure)
{
    for (; at < sure; at += slLineBytes) {
        const int end = slLineOrTextEnd(at);
        if (end < slLineBytes) {
            return at[end] == '\n' ? at + end : nullptr;
        }
    }
    return nullptr;
}
