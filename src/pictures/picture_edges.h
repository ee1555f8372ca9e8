#pragma once
#include "containers/int2d_arr.h"
#include <vector>

// Outlines of a picture: w*h pixels of 3 bytes, rows without padding, the lowest row first. Places count from
// the top left. A pixel is transparent by slIsTransparency. A null buffer or a size below 1 is a picture
// without pixels; so is a file that can't be read as one (file: GBK path of a .bmp).

// The first and the last opaque pixel of each row, from the top, that is not wholly transparent. They are
// stored from index 0 on: longer lists keep the rest of their places. 1.
PANELKIT_API int slFindHorizonEdgeM(
    int w, int h, const unsigned char* pixels, const unsigned char* key, Int2DArr* left, Int2DArr* right);
PANELKIT_API int slFindHorizonEdgeM(
    const char* file, const unsigned char* key, Int2DArr* left, Int2DArr* right);

// The same by columns, from the left.
PANELKIT_API int slFindVerticalEdgeM(
    int w, int h, const unsigned char* pixels, const unsigned char* key, Int2DArr* first, Int2DArr* last);
PANELKIT_API int slFindVerticalEdgeM(
    const char* file, const unsigned char* key, Int2DArr* first, Int2DArr* last);

// A part of a picture, in pixels from its top left.
struct PictureRect
{
    int left;   // The first column.
    int top;    // The first row.
    int right;  // Behind the last column.
    int bottom; // Behind the last row.
};

// The rectangles that remain of the picture when each column's runs of transparent pixels are cut out, each
// together with the opaque pixel that ends it below. In bands from the top, in a band from the left; no two
// touch within a band and neighbouring bands differ.
PANELKIT_API std::vector<PictureRect> slFindOpaqueRects(
    int w, int h, const unsigned char* pixels, const unsigned char* key);
