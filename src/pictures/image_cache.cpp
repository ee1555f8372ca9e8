#include "pictures/image_cache.h"

bool ImageCacheCL::CreateM(CDC* dc, int width, int height)
{
    DestroyM();
    if (width <= 0 || height <= 0 || !dc_.CreateCompatibleDC(dc)) {
        return false;
    }
    BITMAPINFO info {};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    info.bmiHeader.biWidth = width;
    info.bmiHeader.biHeight = -height; // The top row first.
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    info.bmiHeader.biCompression = BI_RGB;
    void* bits = nullptr;
    bitmap_ = ::CreateDIBSection(dc_.m_hDC, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
    if (bitmap_ == nullptr) {
        DestroyM();
        return false;
    }
    ::SelectObject(dc_.m_hDC, bitmap_);
    block_ = { static_cast<std::uint32_t*>(bits), width, height };
    return true;
}

void ImageCacheCL::DestroyM()
{
    dc_.DeleteDC(); // Lets go of the bitmap.
    if (bitmap_ != nullptr) {
        ::DeleteObject(bitmap_);
        bitmap_ = nullptr;
    }
    block_ = { nullptr, 0, 0 };
}

PixelBlockCL ImageCacheCL::PixelsM() const
{
    ::GdiFlush();
    return block_;
}
