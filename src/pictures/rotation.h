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

// A part of a block: its pixels, the top row first, without gaps, and where it stands in the block.
struct PixelPartCL
{
    std::uint32_t* pixels; // The first one.
    int left;              // Where it stands.
    int top;
    int width; // Its size.
    int height;
};

// The same for what can be seen of large pictures: both parts belong to blocks of width by height. What the
// part of the picture holds is drawn as far as the other part shows it.
PANELKIT_API void slDrawRotatedPart(const PixelPartCL& picture, const PixelPartCL& onto, int width,
    int height, const int position[2], const int centre[2], float angle);
// The part of the picture, without pixels, in which all stand that can be seen in `onto` then.
PANELKIT_API PixelPartCL slPartToRotate(
    const PixelPartCL& onto, int width, int height, const int position[2], const int centre[2], float angle);

// The angle after a step: sign times step further, cut to whole degrees toward zero.
PANELKIT_API float slAngleAfterStep(float angle, int sign, float step);
