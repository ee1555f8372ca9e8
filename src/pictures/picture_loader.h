#pragma once
#include "toolkit/toolkit.h"

// The one place where .bmp files (GBK path) become bitmaps: a device-independent section of the file's depth,
// which belongs to the caller. What the platform's loader shows wrongly or could read behind its end is shown
// as pictures/bmp_reader.h reads it. Null when the file is missing, cut short or no picture.
HBITMAP slMakeBitmap(const char* file);
