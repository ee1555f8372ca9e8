#pragma once
#include "baselib/api.h"

// Pixels of a picture buffer and steps between their places. A pixel or key is 3 bytes: red, green, blue.
// A place or direction is an int pair x, y.

// 1 if every component of the pixel is at least that of the key: lighter pixels are transparent too.
PANELKIT_API int slIsTransparency(const unsigned char* pixel, const unsigned char* key);
// 1 if the first three bytes are equal.
PANELKIT_API int slIsSamePixel4D(const unsigned char* a, const unsigned char* b);
PANELKIT_API int slIsSameInt2D(const int* a, const int* b);
// 1 if x is not negative and y is from 0 to both below w and below h. x has no upper bound: the walk along a
// boundary depends on exactly this test.
PANELKIT_API int slIsAvailPosi(const int* p, int w, int h);
// Turns (1,0) to (0,1) to (-1,0) to (0,-1) and back; leaves any other value. 1.
PANELKIT_API int slGetNextAxisDirect(int* dir);
// Steps through (1,0), (1,1), (0,1), (-1,1), (-1,0), (-1,-1), (0,-1), (1,-1) and back; leaves others. 1.
PANELKIT_API int slGetNextDirect(int* dir);
