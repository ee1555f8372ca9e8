#pragma once
#include "baselib/bmp_header.h"

// Writes the palette indices of a run-length coded picture (4 or 8 bits a pixel) to indices, width*height
// bytes that hold 0, lowest row first: what the runs leave out stays 0. Returns false when a run leaves its
// row or the picture, or when the codes end without an end mark.
bool slDecodeBmpRuns(const BmpBytes& file, const BmpHeader& header, unsigned char* indices);
