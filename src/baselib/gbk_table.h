#pragma once
#include <cstdint>

// The UTF-16 code of each double-byte character: a row for each lead byte from 0x81, a column for each trail
// byte from 0x40, 0x7F left out.
constexpr int GbkLeadCount = 126;
constexpr int GbkTrailCount = 190;
extern const std::uint16_t gbkTable[GbkLeadCount][GbkTrailCount];
