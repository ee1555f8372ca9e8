#include "window_picture.h"
#include "picture_bytes.h"
#include <filesystem>
#include <fstream>

namespace {

PicturePixelsCL pixelsOf(HWND window, int width, int height)
{
    BITMAPINFO info {};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    info.bmiHeader.biWidth = width;
    info.bmiHeader.biHeight = -height; // The top row first.
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    HDC source = ::GetWindowDC(window);
    HDC memory = ::CreateCompatibleDC(source);
    HBITMAP bitmap = ::CreateCompatibleBitmap(source, width, height);
    HGDIOBJ before = ::SelectObject(memory, bitmap);
    ::BitBlt(memory, 0, 0, width, height, source, 0, 0, SRCCOPY);
    ::SelectObject(memory, before);
    PicturePixelsCL picture { width, height, {} };
    picture.pixels.resize(static_cast<size_t>(width) * static_cast<size_t>(height));
    ::GetDIBits(memory, bitmap, 0, static_cast<UINT>(height), picture.pixels.data(), &info, DIB_RGB_COLORS);
    ::DeleteObject(bitmap);
    ::DeleteDC(memory);
    ::ReleaseDC(window, source);
    return picture;
}

} // namespace

bool saveWindow(HWND window, const std::wstring& file, bool asBmp)
{
    RECT rect {};
    ::GetWindowRect(window, &rect);
    const int width = rect.right - rect.left;
    const int height = rect.bottom - rect.top;
    if (width <= 0 || height <= 0) {
        return false;
    }
    const PicturePixelsCL picture = pixelsOf(window, width, height);
    const std::string bytes = asBmp ? bmpOf(picture) : pngOf(picture);
    std::ofstream out(std::filesystem::path(file), std::ios::binary);
    out.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    out.close();
    return !out.fail();
}
