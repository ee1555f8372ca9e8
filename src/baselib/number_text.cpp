#include "baselib/number_text.h"
#include "baselib/real_text.h"
#include <algorithm>
#include <climits>
#include <cstdint>

namespace {

bool isDigit(char byte)
{
    return byte >= '0' && byte <= '9';
}

bool isSign(char byte)
{
    return byte == '-' || byte == '+';
}

const char* skipDigits(const char* at, const char* end)
{
    return std::find_if_not(at, end, isDigit);
}

// Digits as a number, held at `most`.
std::int64_t digitsValue(const char* at, const char* end, std::int64_t most)
{
    std::int64_t value = 0;
    for (; at < end && value <= most; ++at) {
        value = value * 10 + (*at - '0');
    }
    return std::min(value, most);
}

// Where the real of this form ends: digits with or without a point, then perhaps an exponent; `at` when there
// is none.
const char* realEnd(const char* at, const char* end)
{
    const char* const point = skipDigits(at, end);
    const bool hasPoint = point < end && *point == '.';
    const char* const mantissaEnd = hasPoint ? skipDigits(point + 1, end) : point;
    const bool hasDigits = point > at || (hasPoint && mantissaEnd > point + 1);
    if (!hasDigits) {
        return at;
    }
    const char* exponent = mantissaEnd;
    if (exponent < end && (*exponent == 'e' || *exponent == 'E')) {
        ++exponent;
        if (exponent < end && isSign(*exponent)) {
            ++exponent;
        }
        const char* const exponentEnd = skipDigits(exponent, end);
        return exponentEnd > exponent ? exponentEnd : mantissaEnd;
    }
    return mantissaEnd;
}

} // namespace

const char* slReadInt(const char* at, const char* end, int* value)
{
    if (value == nullptr) {
        return at;
    }
    constexpr std::int64_t Most = INT_MAX;
    const bool isNegative = at < end && *at == '-';
    const char* const digits = at < end && isSign(*at) ? at + 1 : at;
    const char* digit = digits;
    std::int64_t whole = 0;
    for (; digit < end && isDigit(*digit); ++digit) {
        whole = std::min<std::int64_t>(whole * 10 + (*digit - '0'), Most + 1);
    }
    if (digit == digits) {
        return at;
    }
    *value = static_cast<int>(isNegative ? -whole : std::min(whole, Most));
    return digit;
}

const char* slReadReal(const char* at, const char* end, float* value)
{
    if (value == nullptr) {
        return at;
    }
    const char* const digits = at < end && isSign(*at) ? at + 1 : at;
    float magnitude = 0;
    const char* numberEnd = slReadShortReal(digits, end, &magnitude);
    if (numberEnd == nullptr) {
        numberEnd = realEnd(digits, end);
        if (numberEnd == digits) {
            return at;
        }
        slNearestReal(digits, numberEnd, &magnitude);
    }
    *value = *at == '-' ? -magnitude : magnitude;
    return numberEnd;
}

bool slIntFits(const char* at, const char* end)
{
    const char* const digits = at < end && isSign(*at) ? at + 1 : at;
    constexpr std::int64_t Most = INT_MAX;
    return digitsValue(digits, end, Most + 2) <= (at < end && *at == '-' ? Most + 1 : Most);
}

bool slRealFits(const char* at, const char* end)
{
    const char* const digits = at < end && isSign(*at) ? at + 1 : at;
    float magnitude = 0;
    return slNearestReal(digits, end, &magnitude) || magnitude == 0;
}
