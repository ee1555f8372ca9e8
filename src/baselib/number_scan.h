#pragma once
#include "baselib/number_text.h"
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

// Eight bytes as one number, the first one lowest: compilers make one load of it, written like this.
inline std::uint64_t slEightBytes(const char* at)
{
    const auto byte = [at](int i) { return std::uint64_t { static_cast<unsigned char>(at[i]) } << 8 * i; };
    return byte(0) | byte(1) | byte(2) | byte(3) | byte(4) | byte(5) | byte(6) | byte(7);
}

// The number of eight digits: the bytes are their values, the last digit highest. All are added up at once:
// by twos, by fours, by eights.
inline std::uint64_t slJoinedDigits(std::uint64_t digits)
{
    digits = digits * 10 + (digits >> 8);
    return ((digits & 0x000000FF000000FF) * (100 + (std::uint64_t { 1000000 } << 32))
               + (digits >> 16 & 0x000000FF000000FF) * (1 + (std::uint64_t { 10000 } << 32)))
        >> 32;
}

// As slReadInt for one to seven digits without a sign, if they are not the last eight bytes: null for all
// else, *value unchanged. Without a loop: numbers of changing lengths would mislead the processor, and most
// of a file are such numbers.
inline const char* slScanShortInt(const char* at, const char* end, int* value)
{
    constexpr std::uint64_t Ones = 0x0101010101010101;
    if (end - at < 8) {
        return nullptr;
    }
    const std::uint64_t bytes = slEightBytes(at) ^ Ones * '0'; // A digit has become its value.
    // The high bits of those that are no digits, right up to the first of them.
    const std::uint64_t others = (bytes | (bytes + Ones * (0x80 - 10))) & Ones * 0x80;
    if (others == 0 || (others & 0x80) != 0) {
        return nullptr;
    }
    const int digitBits = __builtin_ctzll(others) - 7;
    *value = static_cast<int>(slJoinedDigits(bytes << (64 - digitBits)));
    return at + digitBits / 8;
}

// As slReadInt; value is not null.
inline const char* slScanInt(const char* at, const char* end, int* value)
{
    const char* const numberEnd = slScanShortInt(at, end, value);
    return numberEnd != nullptr ? numberEnd : slReadInt(at, end, value);
}
