#pragma once
#include "pictures/bmp_header.h"
#include <vector>

// Whether the picture has more pixels than a file of this size is believed to have, or than can be had at
// all.
bool slAnnouncesTooMuch(const BmpBytes& file, const BmpHeader& header);

// The palette indices of a picture of up to 8 bits a pixel: a byte each, width*height of them, the lowest row
// first. False, and the vector unchanged, when the file is cut short or announces far more than it can hold.
// Without a vector the result alone.
bool slDecodeBmpIndices(const BmpBytes& file, const BmpHeader& header, std::vector<unsigned char>* indices);
