#pragma once
#include "baselib/api.h"
#include <cstddef>

// Reads pictures from .bmp files: 1, 4, 8, 16, 24 and 32 bits a pixel, plain, run-length coded (4 and 8 bits)
// or with component masks, bottom-up or top-down, with the headers of OS/2 and of Windows up to version 5.
//
// All loaders deliver 3 bytes a pixel in the order red, green, blue, so that a key colour is given in that
// order too; w*3 bytes a row without padding; the picture's lowest row first, whatever the order in the file.
// The buffer belongs to the caller, who releases it with slFree.
//
// A file that is missing, cut short or broken (a size of 0, an offset outside the file, masks that overlap,
// ...) gives 0 with *w = *h = 0 and *pixels null. What the platform's loader shows in spite of a flaw is read
// as it shows it: an index without a colour is black, runs end with their row or with the picture, and where
// codes end without an end mark, what follows their last mark is left out.
// Without one of these places to write to the result is 0.

// file: GBK path. Returns 1, or 0 when there is no such picture.
PANELKIT_API int slLoadBmpTexture(const char* file, int* w, int* h, unsigned char** pixels);
PANELKIT_API int slLoadBmpPicture3D(const char* file, int* w, int* h, unsigned char** pixels);

// The same from the size bytes of a file in memory.
PANELKIT_API int slDecodeBmp(const void* data, std::size_t size, int* w, int* h, unsigned char** pixels);

// Whether slDecodeBmp delivers the picture of a file of size bytes: 1 or 0. Of most files their first held
// bytes tell, BmpBeginning of them, or all if there are fewer; -1: the rest is needed too. Takes no memory
// for pixels.
constexpr std::size_t BmpBeginning = 1178;
PANELKIT_API int slIsBmp(const void* data, std::size_t held, std::size_t size);

// The same of showing the picture, which needs no buffer for the pixels: it may have more of them than
// slDecodeBmp delivers, and then a region can't be made of it.
PANELKIT_API int slIsShownBmp(const void* data, std::size_t held, std::size_t size);
