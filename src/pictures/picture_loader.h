#pragma once
#include "pictures/picture_scale.h"
#include "pictures/resampling.h"
#include "toolkit/toolkit.h"

// The one place where .bmp files (GBK path) become bitmaps: a device-independent section of the file's depth,
// which belongs to the caller. What the platform's loader shows wrongly or could read behind its end is shown
// as pictures/bmp_reader.h reads it. Null when the file is missing, cut short or no picture.
HBITMAP slMakeBitmap(const char* file);
// The same at a scale: the file drawn for that very scale (slNameAtScale) as it is, else this one, resampled
// to a section of 32 bits. Where there is no memory for that it stays as large as it is. key: as for
// slResample.
HBITMAP slMakeBitmap(const char* file, const PictureScaleCL& scale, std::int64_t key = NoKey);
// A bitmap of that size instead of this one, resampled; it takes this one, and gives it back where there is
// no memory.
HBITMAP slResizeBitmap(HBITMAP bitmap, int width, int height, std::int64_t key = NoKey);
