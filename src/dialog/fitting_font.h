#pragma once
#include "baselib/scale.h"
#include "toolkit/toolkit.h"
#include <vector>

// A caption and what of its window it can't have: such as the circle of a radio button, in pixels.
struct CaptionPlaceCL
{
    HWND window;
    int taken;
    bool wraps; // Into several lines.
};

// The number of the dialog font (dialog_font.h) at a scale: that of the file, scaled, or a bit smaller where
// a caption that is whole at 100 % would be cut. Fonts don't grow evenly: some letters get a pixel more than
// their share.
int slFittingFontOption(int fontOption, const ScaleCL& scale, const std::vector<CaptionPlaceCL>& captions);
