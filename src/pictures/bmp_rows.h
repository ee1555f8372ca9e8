#pragma once
#include "pictures/bmp_header.h"
#include <memory>
#include <vector>

// A .bmp file (GBK path) read whole; null, *size 0, when it can't be or its headers say that it can't be
// shown.
std::unique_ptr<char[]> slReadBmpFile(const char* file, std::size_t* size);

// Whether BmpRowsCL reads a file of which only the first `held` bytes are there, at least the headers: 1, 0,
// or -1 when the rest is needed to tell.
int slJudgeBmp(const BmpBytes& file, std::size_t held);
// The same of what a control shows: pictures of too many pixels for BmpRowsCL too.
int slJudgeShownBmp(const BmpBytes& file, std::size_t held);

// The pixels of a .bmp file row by row, as pictures/bmp_reader.h tells of them: only run-length coded ones
// are unpacked whole, to a byte a pixel.
class BmpRowsCL
{
public:
    explicit BmpRowsCL(const BmpBytes& file); // Its bytes must live as long.

    bool IsGoodM() const { return isGood_; } // Else it is no picture, or one of too many pixels.
    int WidthM() const { return header_.width; }
    int HeightM() const { return header_.height; }
    // Row y, the lowest being 0: 3 bytes a pixel to `to`.
    void ReadRowM(int y, unsigned char* to) const;

private:
    void readColoursM(const unsigned char* from, unsigned char* to) const;
    unsigned indexM(const unsigned char* row, std::size_t x) const;

    BmpBytes file_;
    BmpHeader header_;
    std::vector<unsigned char> indices_; // Of runs.
    bool isGood_ { false };
};
