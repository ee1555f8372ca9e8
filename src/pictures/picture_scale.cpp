#include "pictures/picture_scale.h"
#include "baselib/path.h"
#include <algorithm>
#include <cstring>

PictureScaleCL::PictureScaleCL(const ScaleCL& scale, const int (&corner)[2])
    : scale_(scale)
    , corner_ { corner[0], corner[1] }
    , mayChange_(true)
{
}

int PictureScaleCL::WidthM(int width) const
{
    return width > 0 ? std::max(1, scale_.LengthM(corner_[0], width)) : width;
}

int PictureScaleCL::HeightM(int height) const
{
    return height > 0 ? std::max(1, scale_.LengthM(corner_[1], height)) : height;
}

PictureScaleCL PictureScaleCL::AnywhereM() const
{
    PictureScaleCL scale = *this;
    scale.corner_[0] = 0;
    scale.corner_[1] = 0;
    return scale;
}

std::string slNameAtScale(const char* file, int percent)
{
    const std::string name = file != nullptr ? file : "";
    const char* const last = slGetFileName(name.c_str());
    const char* const point = std::strrchr(last, '.'); // A point is no part of a longer character.
    const auto end = point != nullptr ? static_cast<std::size_t>(point - name.c_str()) : name.size();
    return name.substr(0, end) + '@' + std::to_string(percent) + name.substr(end);
}
