#include "baselib/exact_decimal.h"
#include <algorithm>
#include <cstdlib>
#include <cstring>

namespace {

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

} // namespace

BinaryCL slBinaryOf(float value)
{
    std::uint32_t bits = 0;
    std::memcpy(&bits, &value, sizeof bits);
    const std::uint32_t fraction = bits & (BinaryCL::HiddenBit - 1);
    const int exponent = static_cast<int>(bits >> 23 & 0xFF);
    return exponent == 0
        ? BinaryCL { fraction, BinaryCL::LeastExponent }
        : BinaryCL { fraction | BinaryCL::HiddenBit, exponent + BinaryCL::LeastExponent - 1 };
}

float slRealOf(const BinaryCL& binary)
{
    const std::uint32_t exponent = binary.mantissa < BinaryCL::HiddenBit
        ? 0
        : static_cast<std::uint32_t>(binary.exponent - BinaryCL::LeastExponent + 1);
    const std::uint32_t bits = exponent << 23 | (binary.mantissa & (BinaryCL::HiddenBit - 1));
    float value = 0;
    std::memcpy(&value, &bits, sizeof value);
    return value;
}

DecimalCL slDecimalOf(const BinaryCL& binary)
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

int slCompareDecimals(const DecimalCL& a, const DecimalCL& b)
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

BinaryCL slHalfwayUp(const BinaryCL& binary)
{
    return { binary.mantissa * 2 + 1, binary.exponent - 1 };
}

BinaryCL slHalfwayDown(const BinaryCL& binary)
{
    // The values below a power of two stand twice as dense.
    return binary.mantissa == BinaryCL::HiddenBit && binary.exponent > BinaryCL::LeastExponent
        ? BinaryCL { binary.mantissa * 4 - 1, binary.exponent - 2 }
        : BinaryCL { binary.mantissa * 2 - 1, binary.exponent - 1 };
}
