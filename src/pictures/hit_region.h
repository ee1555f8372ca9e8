#pragma once
#include "pictures/region_functions.h"

// How the regions of the picture buttons are traced: between the outermost pixels of each row that are not
// white.
inline constexpr unsigned char HitRegionKey[3] = { 255, 255, 255 };
inline constexpr int HitRegionMode = RgnByRows;
