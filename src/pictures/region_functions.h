#pragma once
#include "pictures/picture_boundary.h"
#include "pictures/picture_edges.h"
#include "pictures/picture_pixels.h"
#include "toolkit/toolkit.h"

// Regions made of pictures and of region files. Pictures, keys and files are those of picture_edges.h.
// Without a region or list to write to, or a key where one is used, nothing happens and the result is 0.
// Nothing else reports failure, the result is then 1: a picture that can't be loaded, or too few points, give
// an empty region or none. Regions belong to the CRgn given.

// Ways to make a region of a picture; any other number: see slGenerateRgnFromBitmapM.
constexpr int RgnByRows = 107;
constexpr int RgnByColumns = 108;
constexpr int RgnByBoundary = 110;

// Deletes the bitmap's object, then loads the .bmp file as a device-independent section of the file's depth;
// none when the file is missing, cut short or no picture.
PANELKIT_API int slLoadPicture(CBitmap* bitmap, const char* file);

// The polygon of all points of a, then all of b backwards; attached without deleting what the region held.
PANELKIT_API int slCreateRgnM(const Int2DArr& a, const Int2DArr& b, CRgn* rgn);
// The polygon of all points but the last, which closes the outline; attached without deleting what the region
// held.
PANELKIT_API int slCreateRgn(const Int2DArr& pts, CRgn* rgn);

// All that follow replace the region.

// The picture without the runs of transparent pixels in each column; see slFindOpaqueRects.
PANELKIT_API int slCreatRgnByPixel(
    int w, int h, const unsigned char* pixels, const unsigned char* key, CRgn* rgn);
PANELKIT_API int slCreatRgnByPixel(const char* file, const unsigned char* key, CRgn* rgn);
// The outline of the first black figure; key is not used.
PANELKIT_API int slCreateRgnAny(
    int w, int h, const unsigned char* pixels, const unsigned char* key, CRgn* rgn);
PANELKIT_API int slCreateRgnAny(const char* file, const unsigned char* key, CRgn* rgn);
// By rows, by columns, or, for any other mode, by the boundary.
PANELKIT_API int slGenerateRgnFromBitmapM(
    int w, int h, const unsigned char* pixels, const unsigned char* key, int mode, CRgn* rgn);
// By rows, by columns, by the boundary, or, for any other mode, pixel by pixel.
PANELKIT_API int slGenerateRgnFromBitmapM(const char* file, const unsigned char* key, int mode, CRgn* rgn);

// The points of a region file: a count, then pairs x y; what can't be read is 0. They are stored from index 0
// on: a longer list keeps the rest of its points. A count beyond the bytes left is no list.
PANELKIT_API int slReadRgn(const char* file, Int2DArr* pts);
// Combines the region with the polygon of a region file (see slCreateRgn); mode: RGN_AND, RGN_OR, RGN_XOR,
// RGN_DIFF or RGN_COPY. Without a polygon the region stays as it is.
PANELKIT_API int slCombineRgnFromFile(const char* file, CRgn* rgn, int mode);
