#include "support/pixels.h"
#include <algorithm>
#include <wincodec.h>

namespace testing_support {

namespace {

template <class T> class Com
{
public:
    Com() = default;
    Com(const Com&) = delete;
    Com& operator=(const Com&) = delete;
    ~Com()
    {
        if (object_) {
            object_->Release();
        }
    }
    T** OutM() { return &object_; }
    T* operator->() const { return object_; }
    T* GetM() const { return object_; }

private:
    T* object_ { nullptr };
};

} // namespace

Pixels::Pixels(HWND window, Part part)
{
    RECT rect = {};
    part == Part::Client ? GetClientRect(window, &rect) : GetWindowRect(window, &rect);
    width_ = static_cast<int>(rect.right - rect.left);
    height_ = static_cast<int>(rect.bottom - rect.top);
    BITMAPINFO info = {};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    info.bmiHeader.biWidth = width_;
    info.bmiHeader.biHeight = -height_;
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    void* bits = nullptr;
    HDC from = part == Part::Client ? GetDC(window) : GetWindowDC(window);
    HDC to = CreateCompatibleDC(from);
    HBITMAP bitmap = CreateDIBSection(from, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
    if (bitmap) {
        HGDIOBJ before = SelectObject(to, bitmap);
        BitBlt(to, 0, 0, width_, height_, from, 0, 0, SRCCOPY);
        GdiFlush();
        const auto* first = static_cast<const DWORD*>(bits);
        data_.assign(first, first + static_cast<size_t>(width_) * static_cast<size_t>(height_));
        std::for_each(data_.begin(), data_.end(), [](DWORD& pixel) { pixel &= 0xffffff; });
        SelectObject(to, before);
        DeleteObject(bitmap);
    } else {
        width_ = height_ = 0;
    }
    DeleteDC(to);
    ReleaseDC(window, from);
}

COLORREF Pixels::AtM(int x, int y) const
{
    if (x < 0 || y < 0 || x >= width_ || y >= height_) {
        return CLR_INVALID;
    }
    const DWORD pixel = data_[static_cast<size_t>(y) * static_cast<size_t>(width_) + static_cast<size_t>(x)];
    return RGB(pixel >> 16 & 255, pixel >> 8 & 255, pixel & 255);
}

int Pixels::CountM(COLORREF color) const
{
    const DWORD pixel = static_cast<DWORD>(GetRValue(color) << 16 | GetGValue(color) << 8 | GetBValue(color));
    return static_cast<int>(std::count(data_.begin(), data_.end(), pixel));
}

int Pixels::DifferencesM(const Pixels& other) const
{
    if (width_ != other.width_ || height_ != other.height_) {
        return -1;
    }
    int count = 0;
    for (size_t i = 0; i < data_.size(); ++i) {
        count += data_[i] != other.data_[i];
    }
    return count;
}

bool Pixels::SavePngM(const std::wstring& path) const
{
    const HRESULT entered = CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
    bool saved = false;
    {
        Com<IWICImagingFactory> factory;
        Com<IWICStream> stream;
        Com<IWICBitmapEncoder> encoder;
        Com<IWICBitmapFrameEncode> frame;
        WICPixelFormatGUID format = GUID_WICPixelFormat32bppBGR;
        Com<IWICBitmap> bitmap;
        std::vector<DWORD> copy = data_;
        const UINT stride = static_cast<UINT>(width_) * 4;
        saved = SUCCEEDED(CoCreateInstance(CLSID_WICImagingFactory, nullptr, CLSCTX_INPROC_SERVER,
                    IID_IWICImagingFactory, reinterpret_cast<void**>(factory.OutM())))
            && SUCCEEDED(factory->CreateStream(stream.OutM()))
            && SUCCEEDED(stream->InitializeFromFilename(path.c_str(), GENERIC_WRITE))
            && SUCCEEDED(factory->CreateEncoder(GUID_ContainerFormatPng, nullptr, encoder.OutM()))
            && SUCCEEDED(encoder->Initialize(stream.GetM(), WICBitmapEncoderNoCache))
            && SUCCEEDED(encoder->CreateNewFrame(frame.OutM(), nullptr))
            && SUCCEEDED(frame->Initialize(nullptr))
            && SUCCEEDED(frame->SetSize(static_cast<UINT>(width_), static_cast<UINT>(height_)))
            && SUCCEEDED(frame->SetPixelFormat(&format))
            && SUCCEEDED(factory->CreateBitmapFromMemory(static_cast<UINT>(width_),
                static_cast<UINT>(height_), GUID_WICPixelFormat32bppBGR, stride,
                stride * static_cast<UINT>(height_), reinterpret_cast<BYTE*>(copy.data()), bitmap.OutM()))
            && SUCCEEDED(frame->WriteSource(bitmap.GetM(), nullptr)) && SUCCEEDED(frame->Commit())
            && SUCCEEDED(encoder->Commit());
    }
    if (SUCCEEDED(entered)) {
        CoUninitialize();
    }
    return saved;
}

} // namespace testing_support
