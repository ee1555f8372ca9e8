#pragma once
#include "baselib/scale.h"
#include <string>

// How large a picture is shown that begins at a place of a dialog. Its far edges are what is rounded, as
// those of controls are: a picture as large as its control is so at every scale.
class PANELKIT_API PictureScaleCL
{
public:
    PictureScaleCL() = default; // As large as its file says, now and for ever.
    // corner: where it begins, as the description file has it.
    PictureScaleCL(const ScaleCL& scale, const int (&corner)[2]);

    // 100: as its file says.
    int PercentM() const { return scale_.PercentM(); }
    // Whether the scale may change, so that the names of files are kept.
    bool MayChangeM() const { return mayChange_; }
    // The size of a picture of that size; nothing that is there vanishes.
    int WidthM(int width) const;
    int HeightM(int height) const;
    // The same scale for pictures whose place is not the dialog's matter.
    PictureScaleCL AnywhereM() const;

private:
    ScaleCL scale_;
    int corner_[2] {};
    bool mayChange_ { false };
};

// The name of the file (GBK path) that holds a picture drawn for a scale: "knob@150.bmp" of "knob.bmp".
PANELKIT_API std::string slNameAtScale(const char* file, int percent);
