#pragma once
#include "pictures/rotation.h"
#include "toolkit/toolkit.h"

// A memory context with a picture of 32-bit pixels that can be drawn on and written to. Copies start empty.
class PANELKIT_API ImageCacheCL
{
public:
    ImageCacheCL() = default;
    ImageCacheCL(const ImageCacheCL& /*other*/) { }
    ImageCacheCL& operator=(const ImageCacheCL& /*other*/) { return *this; }
    ~ImageCacheCL() { DestroyM(); }

    // Replaces the picture by a black one of that size, its context compatible with dc. Without a pixel, or
    // when the system refuses, there is none.
    bool CreateM(CDC* dc, int width, int height);
    void DestroyM();

    CDC* GetDcM() { return &dc_; } // Its handle is null while there is no picture.
    // The pixels, valid until the picture is replaced; what was drawn is in them.
    PixelBlockCL PixelsM() const;

private:
    CDC dc_;
    HBITMAP bitmap_ { nullptr };
    PixelBlockCL block_ { nullptr, 0, 0 };
};
