#include "pictures/rgn_record.h"
#include "pictures/region_functions.h"

int DVrRgnCL::GenerateRgnFromBitmapM(const char* file, const unsigned char* key, int mode)
{
    return slGenerateRgnFromBitmapM(file, key, mode, this);
}

int DVrRgnCL::CreateRgnFromPolygonM(Int2DArr pts)
{
    const Int2DArr none;
    return slCreateRgnM(pts, none, this);
}
