#pragma once
#include "toolkit/toolkit.h"
#include <string>

// The bounding box of a region.
inline std::string boxOf(CRgn* region)
{
    RECT box {};
    region->GetRgnBox(&box);
    return std::to_string(box.left) + " " + std::to_string(box.top) + " " + std::to_string(box.right) + " "
        + std::to_string(box.bottom);
}
