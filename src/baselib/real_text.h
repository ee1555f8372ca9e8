#pragma once

// Single-precision numbers and their decimal texts, exact to the last digit whatever the locale. The standard
// library's conversions give the same, with tables of 170 KB for all the other types.

// The nearest value of digits with or without a point, perhaps an exponent; halfway between two, the one with
// the even mantissa. False for a text beyond the largest value, which is then *value, or so near to 0 that it
// is 0.
bool slNearestReal(const char* at, const char* end, float* value);

// The same for up to 16 digits and a point without an exponent, as nearly all are, by one division: where
// they end, null for all else and where it isn't certain of the value.
const char* slReadShortReal(const char* at, const char* end, float* value);

// Each writes to room for at least 64 characters, those of slWriteFixed besides the decimals, and gives the
// end. The fewest digits that read back as the value, in the shorter of both notations. Finite values alone.
char* slWriteShortest(char* to, float value);
// With so many decimals, halves to the even digit; "inf" and "nan" with their sign.
char* slWriteFixed(char* to, float value, int decimals);
