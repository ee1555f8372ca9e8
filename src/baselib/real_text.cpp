#include "baselib/real_text.h"
#include "baselib/exact_decimal.h"
#include <algorithm>
#include <cfloat>
#include <cstring>

namespace {

bool isDecimalDigit(char byte)
{
    return byte >= '0' && byte <= '9';
}

DecimalCL readDecimal(const char* at, const char* end)
{
    DecimalCL decimal;
    std::int64_t power = -1; // Of ten, of the last digit before the point.
    bool isBehindPoint = false;
    for (; at < end && (isDecimalDigit(*at) || *at == '.'); ++at) {
        if (*at == '.') {
            isBehindPoint = true;
            continue;
        }
        const bool counts = decimal.count > 0 || *at != '0';
        if (isBehindPoint ? !counts : counts) {
            power += isBehindPoint ? -1 : 1;
        }
        if (counts && decimal.count < DecimalCL::Most) {
            decimal.digits[decimal.count++] = *at;
        } else if (*at != '0') {
            decimal.hasMore = true;
        }
    }
    if (at < end) {
        ++at;
        const bool isNegative = at < end && *at == '-';
        at += at < end && (isNegative || *at == '+') ? 1 : 0;
        std::int64_t exponent = 0;
        for (; at < end && isDecimalDigit(*at); ++at) {
            exponent = std::min<std::int64_t>(exponent * 10 + (*at - '0'), INT64_MAX / 20);
        }
        power += isNegative ? -exponent : exponent;
    }
    decimal.power = static_cast<int>(std::clamp<std::int64_t>(power, -1000, 1000));
    return decimal;
}

// Near enough to be no more than a few steps off: in double precision.
BinaryCL nearbyValue(const DecimalCL& decimal)
{
    double value = 0;
    const int used = std::min(decimal.count, 15);
    for (int i = 0; i < used; ++i) {
        value = value * 10 + (decimal.digits[i] - '0');
    }
    for (int power = decimal.power - used + 1; power != 0; power += power < 0 ? 1 : -1) {
        value = power < 0 ? value / 10 : value * 10;
    }
    const auto most = static_cast<double>(FLT_MAX);
    return slBinaryOf(static_cast<float>(std::min(value, most)));
}

BinaryCL nextUp(const BinaryCL& binary)
{
    return binary.mantissa == BinaryCL::HiddenBit * 2 - 1
        ? BinaryCL { BinaryCL::HiddenBit, binary.exponent + 1 }
        : BinaryCL { binary.mantissa + 1, binary.exponent };
}

BinaryCL nextDown(const BinaryCL& binary)
{
    return binary.mantissa == BinaryCL::HiddenBit && binary.exponent > BinaryCL::LeastExponent
        ? BinaryCL { BinaryCL::HiddenBit * 2 - 1, binary.exponent - 1 }
        : BinaryCL { binary.mantissa - 1, binary.exponent };
}

// The exact answer, whatever the number of digits.
bool nearestExactly(const char* at, const char* end, float* value)
{
    const DecimalCL decimal = readDecimal(at, end);
    *value = 0;
    if (decimal.count == 0 || decimal.power < -50) {
        return decimal.count == 0;
    }
    if (decimal.power > 50) {
        *value = FLT_MAX;
        return false;
    }
    BinaryCL found = nearbyValue(decimal);
    for (;;) {
        const int up = slCompareDecimals(decimal, slDecimalOf(slHalfwayUp(found)));
        if (up < 0 || (up == 0 && !slIsOdd(found))) {
            break;
        }
        found = nextUp(found);
        if (found.exponent > BinaryCL::MostExponent) {
            *value = FLT_MAX;
            return false;
        }
    }
    while (found.mantissa > 0) {
        const int down = slCompareDecimals(decimal, slDecimalOf(slHalfwayDown(found)));
        if (down > 0 || (down == 0 && !slIsOdd(found))) {
            break;
        }
        found = nextDown(found);
    }
    *value = slRealOf(found);
    return found.mantissa > 0;
}

} // namespace

const char* slReadShortReal(const char* at, const char* end, float* value)
{
    static constexpr double Powers[]
        = { 1, 1e1, 1e2, 1e3, 1e4, 1e5, 1e6, 1e7, 1e8, 1e9, 1e10, 1e11, 1e12, 1e13, 1e14, 1e15 };
    constexpr int MostBytes = 16;
    const char* const sure = end - at > MostBytes ? at + MostBytes : end;
    const char* const begin = at;
    std::uint64_t digits = 0;
    for (; at < sure && isDecimalDigit(*at); ++at) {
        digits = digits * 10 + static_cast<std::uint64_t>(*at - '0');
    }
    std::ptrdiff_t behindPoint = 0;
    std::ptrdiff_t count = at - begin;
    if (at < sure && *at == '.') {
        const char* const point = ++at;
        for (; at < sure && isDecimalDigit(*at); ++at) {
            digits = digits * 10 + static_cast<std::uint64_t>(*at - '0');
        }
        behindPoint = at - point;
        count += behindPoint;
    }
    const bool mayGoOn = at < end && (at == sure || *at == 'e' || *at == 'E');
    if (count == 0 || mayGoOn || digits >= std::uint64_t { 1 } << 53) {
        return nullptr;
    }
    const double whole = static_cast<double>(digits);
    const double quotient = behindPoint > 0 ? whole / Powers[behindPoint] : whole;
    // As a double it is off by less than two of its last bits. Where that may decide, this doesn't know.
    std::uint64_t bits = 0;
    std::memcpy(&bits, &quotient, sizeof bits);
    constexpr std::uint64_t Half = std::uint64_t { 1 } << 28;
    const std::uint64_t below = bits & (Half * 2 - 1);
    *value = static_cast<float>(quotient);
    return below < Half - 2 || below > Half + 2 ? at : nullptr;
}

bool slNearestReal(const char* at, const char* end, float* value)
{
    return slReadShortReal(at, end, value) == end || nearestExactly(at, end, value);
}
