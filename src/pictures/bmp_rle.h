#pragma once
#include "pictures/bmp_header.h"

// Writes the palette indices of a run-length coded picture (4 or 8 bits a pixel) to indices, width*height
// bytes that hold 0, lowest row first: what the runs leave out stays 0. Broken codes are read as the platform
// draws them: what lies right of a row or behind the last row is left out, and so is what follows the last
// mark (end of a row or of the picture, move) when the codes end without one. Returns false when they do so
// because the file is cut short. Null indices: nothing is written. stride: bytes from row to row, at least
// the width; 0: the width.
bool slDecodeBmpRuns(
    const BmpBytes& file, const BmpHeader& header, unsigned char* indices, std::size_t stride = 0);
