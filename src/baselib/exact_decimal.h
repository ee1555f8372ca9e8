#pragma once
#include <cstdint>

// Single-precision values and decimal numbers without any rounding, for real_text.h.

// A decimal number: its digits, none a leading 0, and the power of ten of the first one.
struct DecimalCL
{
    static constexpr int Most = 128; // More than any single or what lies between two of them has.
    char digits[Most];
    int count { 0 };
    int power { 0 };
    bool hasMore { false }; // Digits other than 0 were left off.
};

// A value that isn't negative: mantissa * 2^exponent.
struct BinaryCL
{
    static constexpr int LeastExponent = -149; // At a mantissa that is a whole number.
    static constexpr int MostExponent = 104;
    static constexpr std::uint32_t HiddenBit = 1U << 23;

    std::uint32_t mantissa;
    int exponent;
};

BinaryCL slBinaryOf(float value); // Without its sign; finite.
float slRealOf(const BinaryCL& binary);
DecimalCL slDecimalOf(const BinaryCL& binary);                 // Of 0: no digits.
int slCompareDecimals(const DecimalCL& a, const DecimalCL& b); // Below, at or above 0: as a is to b.

// Halfway from a value to the next larger and the next smaller one.
BinaryCL slHalfwayUp(const BinaryCL& binary);
BinaryCL slHalfwayDown(const BinaryCL& binary);

inline bool slIsOdd(const BinaryCL& binary)
{
    return binary.mantissa % 2 != 0;
}
