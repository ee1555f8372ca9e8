#pragma once
#include "pictures/resampling.h"
#include "toolkit/toolkit.h"

// The one place where .bmp files (GBK path) become bitmaps: a device-independent section of the file's depth,
// which belongs to the caller. What the platform's loader shows wrongly or could read behind its end is shown
// as pictures/bmp_reader.h reads it. Null when the file is missing, cut short or no picture.
HBITMAP slMakeBitmap(const char* file);
// Another bitmap of that size, resampled to a section of 32 bits, the top row first; key: as for slResample.
// Null where there is no memory.
HBITMAP slResampleBitmap(HBITMAP bitmap, int width, int height, std::int64_t key = NoKey);
// The same instead of this one, which it takes, and gives back where there is no memory.
HBITMAP slResizeBitmap(HBITMAP bitmap, int width, int height, std::int64_t key = NoKey);
