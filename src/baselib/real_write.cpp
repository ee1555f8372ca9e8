#include "baselib/exact_decimal.h"
#include "baselib/real_text.h"
#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace {

// Rounds to so many digits, 0 too, halves to even. The power grows where all are nines.
void roundTo(DecimalCL* decimal, int count)
{
    if (count >= decimal->count) {
        return;
    }
    if (count < 0) {
        decimal->count = 0;
        return;
    }
    const char* const rest = decimal->digits + count;
    const char* const end = decimal->digits + decimal->count;
    const bool isMoreThanHalf
        = *rest > '5' || (*rest == '5' && std::any_of(rest + 1, end, [](char c) { return c != '0'; }));
    const bool isEven = count == 0 || (rest[-1] - '0') % 2 == 0;
    const bool isUp = isMoreThanHalf || (*rest == '5' && !isEven);
    decimal->count = count;
    if (!isUp) {
        return;
    }
    while (decimal->count > 0 && decimal->digits[decimal->count - 1] == '9') {
        --decimal->count;
    }
    if (decimal->count > 0) {
        ++decimal->digits[decimal->count - 1];
    } else {
        decimal->digits[0] = '1';
        decimal->count = 1;
        ++decimal->power;
    }
}

// The fewest digits that read back as the value; of those the nearest to it.
DecimalCL shortestDecimal(const BinaryCL& binary)
{
    const DecimalCL exact = slDecimalOf(binary);
    const DecimalCL low = slDecimalOf(slHalfwayDown(binary));
    const DecimalCL high = slDecimalOf(slHalfwayUp(binary));
    const int atBound = slIsOdd(binary) ? 0 : 1;
    for (int count = 1;; ++count) {
        DecimalCL rounded = exact;
        roundTo(&rounded, count);
        if (slCompareDecimals(rounded, low) + atBound > 0 && slCompareDecimals(rounded, high) - atBound < 0) {
            return rounded;
        }
        // Below a power of two the bound is nearer than above it.
        DecimalCL up = exact;
        up.count = std::min(count, exact.count);
        roundTo(&up, up.count);
        if (count < exact.count) {
            for (int i = count; i-- > 0;) {
                if (up.digits[i] != '9') {
                    ++up.digits[i];
                    break;
                }
                up.digits[i] = '0';
            }
            if (slCompareDecimals(up, low) > 0 && slCompareDecimals(up, high) - atBound < 0) {
                return up;
            }
        }
    }
}

char* writeDigits(char* to, const DecimalCL& decimal, int from, int until)
{
    for (int i = from; i < until; ++i) {
        *to++ = i >= 0 && i < decimal.count ? decimal.digits[i] : '0';
    }
    return to;
}

// With that many digits behind the point.
char* writePlain(char* to, const DecimalCL& decimal, int decimals)
{
    const int whole = decimal.count > 0 ? decimal.power + 1 : 0;
    to = whole > 0 ? writeDigits(to, decimal, 0, whole) : (*to = '0', to + 1);
    if (decimals > 0) {
        *to++ = '.';
        to = writeDigits(to, decimal, whole, whole + decimals);
    }
    return to;
}

char* writeScientific(char* to, const DecimalCL& decimal)
{
    *to++ = decimal.digits[0];
    if (decimal.count > 1) {
        *to++ = '.';
        to = writeDigits(to, decimal, 1, decimal.count);
    }
    *to++ = 'e';
    *to++ = decimal.power < 0 ? '-' : '+';
    const int power = std::abs(decimal.power);
    *to++ = static_cast<char>('0' + power / 10);
    *to++ = static_cast<char>('0' + power % 10);
    return to;
}

char* writeSign(char* to, float value)
{
    *to = '-';
    return std::signbit(value) ? to + 1 : to;
}

char* writeNotFinite(char* to, float value)
{
    return std::copy_n(std::isnan(value) ? "nan" : "inf", 3, to);
}

} // namespace

char* slWriteShortest(char* to, float value)
{
    to = writeSign(to, value);
    if (!std::isfinite(value)) {
        return writeNotFinite(to, value);
    }
    const BinaryCL binary = slBinaryOf(value);
    if (binary.mantissa == 0) {
        *to++ = '0';
        return to;
    }
    DecimalCL shortest = shortestDecimal(binary);
    while (shortest.digits[shortest.count - 1] == '0') {
        --shortest.count;
    }
    const int decimals = std::max(0, shortest.count - 1 - shortest.power);
    char plain[64];
    char scientific[64];
    // A whole number is written to its last digit.
    const char* const plainEnd = writePlain(plain, decimals == 0 ? slDecimalOf(binary) : shortest, decimals);
    const char* const scientificEnd = writeScientific(scientific, shortest);
    return plainEnd - plain <= scientificEnd - scientific
        ? std::copy(plain, const_cast<char*>(plainEnd), to)
        : std::copy(scientific, const_cast<char*>(scientificEnd), to);
}

char* slWriteFixed(char* to, float value, int decimals)
{
    to = writeSign(to, value);
    if (!std::isfinite(value)) {
        return writeNotFinite(to, value);
    }
    DecimalCL decimal = slDecimalOf(slBinaryOf(value));
    roundTo(&decimal, decimal.power + 1 + decimals);
    return writePlain(to, decimal, decimals);
}
