#include "window_picture.h"
#include <utility>
#include <vector>
#include <wincodec.h>

namespace {

// Releases a COM object at the end of its scope.
template <class InterfaceTP> class ComCL
{
public:
    ComCL() = default;
    ComCL(const ComCL&) = delete;
    ComCL& operator=(const ComCL&) = delete;
    ~ComCL()
    {
        if (object_ != nullptr) {
            object_->Release();
        }
    }
    InterfaceTP** operator&() { return &object_; }
    InterfaceTP* operator->() const { return object_; }
    InterfaceTP* GetM() const { return object_; }

private:
    InterfaceTP* object_ { nullptr };
};

// The pixels of a window, blue green red and a spare byte, rows from the top.
std::vector<BYTE> pixelsOf(HWND window, int width, int height)
{
    BITMAPINFO info {};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    info.bmiHeader.biWidth = width;
    info.bmiHeader.biHeight = -height;
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    HDC source = ::GetWindowDC(window);
    HDC memory = ::CreateCompatibleDC(source);
    HBITMAP bitmap = ::CreateCompatibleBitmap(source, width, height);
    HGDIOBJ before = ::SelectObject(memory, bitmap);
    ::BitBlt(memory, 0, 0, width, height, source, 0, 0, SRCCOPY);
    ::SelectObject(memory, before);
    std::vector<BYTE> pixels(static_cast<size_t>(width) * static_cast<size_t>(height) * 4);
    ::GetDIBits(memory, bitmap, 0, static_cast<UINT>(height), pixels.data(), &info, DIB_RGB_COLORS);
    ::DeleteObject(bitmap);
    ::DeleteDC(memory);
    ::ReleaseDC(window, source);
    return pixels;
}

bool save(const std::wstring& file, bool asBmp, std::vector<BYTE>& pixels, int width, int height)
{
    const UINT columns = static_cast<UINT>(width);
    const UINT rows = static_cast<UINT>(height);
    ComCL<IWICImagingFactory> factory;
    ComCL<IWICStream> stream;
    ComCL<IWICBitmapEncoder> encoder;
    ComCL<IWICBitmapFrameEncode> frame;
    ComCL<IWICBitmap> picture;
    WICPixelFormatGUID format = GUID_WICPixelFormat24bppBGR;
    return SUCCEEDED(::CoCreateInstance(CLSID_WICImagingFactory, nullptr, CLSCTX_INPROC_SERVER,
               IID_IWICImagingFactory, reinterpret_cast<void**>(&factory)))
        && SUCCEEDED(factory->CreateStream(&stream))
        && SUCCEEDED(stream->InitializeFromFilename(file.c_str(), GENERIC_WRITE))
        && SUCCEEDED(factory->CreateEncoder(
            asBmp ? GUID_ContainerFormatBmp : GUID_ContainerFormatPng, nullptr, &encoder))
        && SUCCEEDED(encoder->Initialize(stream.GetM(), WICBitmapEncoderNoCache))
        && SUCCEEDED(encoder->CreateNewFrame(&frame, nullptr)) && SUCCEEDED(frame->Initialize(nullptr))
        && SUCCEEDED(frame->SetSize(columns, rows)) && SUCCEEDED(frame->SetPixelFormat(&format))
        && SUCCEEDED(factory->CreateBitmapFromMemory(columns, rows, GUID_WICPixelFormat32bppBGR, columns * 4,
            static_cast<UINT>(pixels.size()), pixels.data(), &picture))
        && SUCCEEDED(frame->WriteSource(picture.GetM(), nullptr)) && SUCCEEDED(frame->Commit())
        && SUCCEEDED(encoder->Commit());
}

} // namespace

bool saveWindow(HWND window, const std::wstring& file, bool asBmp)
{
    RECT rect {};
    ::GetWindowRect(window, &rect);
    const int width = rect.right - rect.left;
    const int height = rect.bottom - rect.top;
    if (width <= 0 || height <= 0 || FAILED(::CoInitialize(nullptr))) {
        return false;
    }
    std::vector<BYTE> pixels = pixelsOf(window, width, height);
    const bool saved = save(file, asBmp, pixels, width, height);
    ::CoUninitialize();
    return saved;
}
