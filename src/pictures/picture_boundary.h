#pragma once
#include "containers/int2d_arr.h"

// Walks along the boundary of a figure of one colour. The picture is w*h pixels of 3 bytes without padding;
// here pixel (x, y) is number y*w + x of the buffer, without any exchange of rows. A place counts as
// available by slIsAvailPosi, so x may run on into the following rows; behind the buffer there is nothing:
// such a place has no colour, is on no boundary and counts as no neighbour.

// The first pixel of the colour in the buffer's order; 0 and first unchanged when there is none.
PANELKIT_API int slGetFirstPntOnBound(
    const unsigned char* colour, int w, int h, const unsigned char* pixels, int* first);

// 1 if p has the colour and an available one of its 8 neighbours has another. key: not used.
PANELKIT_API int slIsOnBound(const int* p, const unsigned char* key, const unsigned char* colour, int w,
    int h, const unsigned char* pixels);

// The next place of the walk from current, tried in direction dir first and then turned by
// slGetNextAxisDirect; never back to prev. dir keeps the direction that succeeded. 0 after 8 failed tries.
PANELKIT_API int slGetNextPntOnBound(const unsigned char* colour, int w, int h, const unsigned char* pixels,
    const int* prev, const int* current, int* dir, int* next);

// The walk from the first pixel until it is there again, which repeats that pixel at the list's end, or until
// no place follows. A walk that comes to go round elsewhere for ever ends where it would repeat itself. The
// places are appended to out. key: not used. 1.
PANELKIT_API int slGenBitMapBoundary(const unsigned char* key, const unsigned char* colour, int w, int h,
    const unsigned char* pixels, Int2DArr* out);
