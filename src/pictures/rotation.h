#pragma once
#include "baselib/api.h"
#include <cstdint>

// A block of pixels 0xRRGGBB (the top byte counts for nothing), the top row first, without gaps. Does not own
// them.
struct PixelBlockCL
{
    std::uint32_t* pixels; // width * height of them; null: none.
    int width;             // In pixels.
    int height;            // In pixels.
};

// Draws the picture turned by the angle (degrees, counter-clockwise) onto a block of the same size, whose top
// left corner is at `position`; the turn is about `centre`, in the same coordinates. White pixels are
// transparent. Each pixel is carried to its new place and to the place right of it, which closes the gaps;
// what falls outside the block is dropped. Rows are counted from the width: pictures are meant to be square.
// Blocks of different sizes: nothing is drawn.
PANELKIT_API void slDrawRotated(const PixelBlockCL& picture, const PixelBlockCL& onto, const int position[2],
    const int centre[2], float angle);

// The angle after a step: sign times step further, cut to whole degrees toward zero.
PANELKIT_API float slAngleAfterStep(float angle, int sign, float step);
