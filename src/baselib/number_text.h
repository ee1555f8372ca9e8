#pragma once
#include "baselib/api.h"

// What stands between values and at the ends of texts.
constexpr bool slIsBlank(char byte)
{
    return byte == ' ' || (byte >= '\t' && byte <= '\r') || byte == '\0';
}

// Numbers as users and files write them, whatever the locale. The result is where the number ends, or `at`
// when none stands there; *value then keeps its value.

// Optional sign, decimal digits; saturates at the int range.
PANELKIT_API const char* slReadInt(const char* at, const char* end, int* value);

// Optional sign, digits with or without a point, perhaps an exponent; the nearest single-precision value, at
// most the largest finite one. No hexadecimal, infinity or NaN.
PANELKIT_API const char* slReadReal(const char* at, const char* end, float* value);

// Whether a whole text that is such a number is within the range, so that its value is not just a limit.
PANELKIT_API bool slIntFits(const char* at, const char* end);
PANELKIT_API bool slRealFits(const char* at, const char* end);
