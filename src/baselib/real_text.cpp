#include "baselib/real_text.h"
#include <algorithm>
#include <cfloat>
#include <cmath>
#include <cstdint>
#include <cstring>

namespace {

constexpr int LeastExponent = -149; // Of two, at a mantissa that is a whole number.
constexpr int MostExponent = 104;
constexpr std::uint32_t HiddenBit = 1U << 23;

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
    std::uint32_t mantissa;
    int exponent;
};

BinaryCL binaryOf(float value)
{
    std::uint32_t bits = 0;
    std::memcpy(&bits, &value, sizeof bits);
    const std::uint32_t fraction = bits & (HiddenBit - 1);
    const int exponent = static_cast<int>(bits >> 23 & 0xFF);
    return exponent == 0 ? BinaryCL { fraction, LeastExponent }
                         : BinaryCL { fraction | HiddenBit, exponent + LeastExponent - 1 };
}

float realOf(const BinaryCL& binary)
{
    const std::uint32_t exponent
        = binary.mantissa < HiddenBit ? 0 : static_cast<std::uint32_t>(binary.exponent - LeastExponent + 1);
    const std::uint32_t bits = exponent << 23 | (binary.mantissa & (HiddenBit - 1));
    float value = 0;
    std::memcpy(&value, &bits, sizeof value);
    return value;
}

// A whole number of up to 126 digits, nine in a part, the lowest part first.
class WholeNumberCL
{
public:
    explicit WholeNumberCL(std::uint32_t value)
    {
        parts_[0] = value % Base;
        parts_[1] = value / Base;
        count_ = 2;
    }
    void MultiplyM(std::uint32_t factor)
    {
        std::uint64_t carry = 0;
        for (int i = 0; i < count_; ++i) {
            carry += std::uint64_t { parts_[i] } * factor;
            parts_[i] = static_cast<std::uint32_t>(carry % Base);
            carry /= Base;
        }
        while (carry != 0) {
            parts_[count_++] = static_cast<std::uint32_t>(carry % Base);
            carry /= Base;
        }
    }
    void WriteM(DecimalCL* to) const
    {
        char all[MostParts * 9];
        char* at = all + sizeof all;
        for (int i = 0; i < count_; ++i) {
            std::uint32_t part = parts_[i];
            for (int digit = 0; digit < 9; ++digit, part /= 10) {
                *--at = static_cast<char>('0' + part % 10);
            }
        }
        at = std::find_if(at, all + sizeof all, [](char c) { return c != '0'; });
        to->count = static_cast<int>(all + sizeof all - at);
        std::copy(at, all + sizeof all, to->digits);
    }

private:
    static constexpr std::uint32_t Base = 1000000000;
    static constexpr int MostParts = 14;
    std::uint32_t parts_[MostParts] {};
    int count_;
};

// Exactly. Of 0: no digits.
DecimalCL decimalOf(const BinaryCL& binary)
{
    WholeNumberCL whole(binary.mantissa);
    // Each halving is a factor of five and a digit behind the point.
    const std::uint32_t factor = binary.exponent < 0 ? 5 : 2;
    const int mostAtOnce = 12;
    const int factors = std::abs(binary.exponent);
    for (int left = factors; left > 0; left -= mostAtOnce) {
        std::uint32_t product = 1;
        for (int i = std::min(left, mostAtOnce); i > 0; --i) {
            product *= factor;
        }
        whole.MultiplyM(product);
    }
    DecimalCL decimal;
    whole.WriteM(&decimal);
    decimal.power = decimal.count - 1 - (binary.exponent < 0 ? factors : 0);
    return decimal;
}

// Below, at or above 0: as a is to b.
int compare(const DecimalCL& a, const DecimalCL& b)
{
    if (a.count == 0 || b.count == 0) {
        return (a.count != 0 ? 1 : 0) - (b.count != 0 ? 1 : 0);
    }
    if (a.power != b.power) {
        return a.power < b.power ? -1 : 1;
    }
    for (int i = 0; i < std::max(a.count, b.count); ++i) {
        const int digit = i < a.count ? a.digits[i] : '0';
        const int other = i < b.count ? b.digits[i] : '0';
        if (digit != other) {
            return digit - other;
        }
    }
    return (a.hasMore ? 1 : 0) - (b.hasMore ? 1 : 0);
}

// Halfway from a value to the next larger and the next smaller one.
BinaryCL halfwayUp(const BinaryCL& binary)
{
    return { binary.mantissa * 2 + 1, binary.exponent - 1 };
}
BinaryCL halfwayDown(const BinaryCL& binary)
{
    // The values below a power of two stand twice as dense.
    return binary.mantissa == HiddenBit && binary.exponent > LeastExponent
        ? BinaryCL { binary.mantissa * 4 - 1, binary.exponent - 2 }
        : BinaryCL { binary.mantissa * 2 - 1, binary.exponent - 1 };
}

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
    return binaryOf(static_cast<float>(std::min(value, most)));
}

BinaryCL nextUp(const BinaryCL& binary)
{
    return binary.mantissa == HiddenBit * 2 - 1 ? BinaryCL { HiddenBit, binary.exponent + 1 }
                                                : BinaryCL { binary.mantissa + 1, binary.exponent };
}

BinaryCL nextDown(const BinaryCL& binary)
{
    return binary.mantissa == HiddenBit && binary.exponent > LeastExponent
        ? BinaryCL { HiddenBit * 2 - 1, binary.exponent - 1 }
        : BinaryCL { binary.mantissa - 1, binary.exponent };
}

bool isOdd(const BinaryCL& binary)
{
    return binary.mantissa % 2 != 0;
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
        const int up = compare(decimal, decimalOf(halfwayUp(found)));
        if (up < 0 || (up == 0 && !isOdd(found))) {
            break;
        }
        found = nextUp(found);
        if (found.exponent > MostExponent) {
            *value = FLT_MAX;
            return false;
        }
    }
    while (found.mantissa > 0) {
        const int down = compare(decimal, decimalOf(halfwayDown(found)));
        if (down > 0 || (down == 0 && !isOdd(found))) {
            break;
        }
        found = nextDown(found);
    }
    *value = realOf(found);
    return found.mantissa > 0;
}

// The few digits that nearly all texts have, by one division. False: not certain.
bool nearestOfFewDigits(const char* at, const char* end, float* value)
{
    static constexpr double Powers[]
        = { 1, 1e1, 1e2, 1e3, 1e4, 1e5, 1e6, 1e7, 1e8, 1e9, 1e10, 1e11, 1e12, 1e13, 1e14, 1e15 };
    if (end - at > 16) {
        return false;
    }
    std::uint64_t digits = 0;
    const char* point = nullptr;
    for (; at < end; ++at) {
        if (isDecimalDigit(*at)) {
            digits = digits * 10 + static_cast<std::uint64_t>(*at - '0');
        } else if (*at == '.') {
            point = at + 1;
        } else {
            return false;
        }
    }
    if (digits >= std::uint64_t { 1 } << 53) {
        return false;
    }
    const double quotient = static_cast<double>(digits) / Powers[point != nullptr ? end - point : 0];
    // As a double it is off by less than two of its last bits. Where that may decide, this doesn't know.
    std::uint64_t bits = 0;
    std::memcpy(&bits, &quotient, sizeof bits);
    constexpr std::uint64_t Half = std::uint64_t { 1 } << 28;
    const std::uint64_t below = bits & (Half * 2 - 1);
    *value = static_cast<float>(quotient);
    return below < Half - 2 || below > Half + 2;
}

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
    const DecimalCL exact = decimalOf(binary);
    const DecimalCL low = decimalOf(halfwayDown(binary));
    const DecimalCL high = decimalOf(halfwayUp(binary));
    const int atBound = isOdd(binary) ? 0 : 1;
    for (int count = 1;; ++count) {
        DecimalCL rounded = exact;
        roundTo(&rounded, count);
        if (compare(rounded, low) + atBound > 0 && compare(rounded, high) - atBound < 0) {
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
            if (compare(up, low) > 0 && compare(up, high) - atBound < 0) {
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

bool slNearestReal(const char* at, const char* end, float* value)
{
    return nearestOfFewDigits(at, end, value) || nearestExactly(at, end, value);
}

char* slWriteShortest(char* to, float value)
{
    to = writeSign(to, value);
    if (!std::isfinite(value)) {
        return writeNotFinite(to, value);
    }
    const BinaryCL binary = binaryOf(value);
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
    const char* const plainEnd = writePlain(plain, decimals == 0 ? decimalOf(binary) : shortest, decimals);
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
    DecimalCL decimal = decimalOf(binaryOf(value));
    roundTo(&decimal, decimal.power + 1 + decimals);
    return writePlain(to, decimal, decimals);
}
