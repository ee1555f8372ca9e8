#pragma once
#include "containers/int2d_arr.h"
#include "pictures/picture_scale.h"
#include "toolkit/toolkit.h"

// A region that belongs to a control: none at first, deleted with its holder. Neither copying nor assigning
// takes over anything: each control makes its own region.
class PANELKIT_API DVrRgnCL : public CRgn
{
public:
    DVrRgnCL() = default;
    DVrRgnCL(const DVrRgnCL& /*other*/)
        : CRgn()
    {
    }
    DVrRgnCL& operator=(const DVrRgnCL& /*other*/) { return *this; }

    // See slGenerateRgnFromBitmapM.
    int GenerateRgnFromBitmapM(const char* file, const unsigned char* key, int mode);
    // The same of the picture as it is shown at a scale. The key is a colour that nothing exceeds: white.
    int GenerateRgnFromBitmapM(
        const char* file, const unsigned char* key, int mode, const PictureScaleCL& scale);
    // The polygon of all points. Made without deleting a region held before; with too few points there is no
    // new one. 1.
    int CreateRgnFromPolygonM(Int2DArr pts);
};
