#include "pictures/brush_record.h"

DVrBrushCL::DVrBrushCL() = default;
DVrBrushCL::~DVrBrushCL() = default;
