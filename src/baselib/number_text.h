#pragma once
#include "baselib/api.h"

// Numbers as users and files write them, whatever the locale. The result is where the number ends, or `at`
// when none stands there; *value then keeps its value.

// Optional sign, decimal digits; saturates at the int range.
PANELKIT_API const char* slReadInt(const char* at, const char* end, int* value);

// Optional sign, digits with or without a point, perhaps an exponent; the nearest single-precision value, at
// most the largest finite one. No hexadecimal, infinity or NaN.
PANELKIT_API const char* slReadReal(const char* at, const char* end, float* value);
