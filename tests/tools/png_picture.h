#pragma once
#include <cstdint>
#include <gtest/gtest.h>
#include <string>
#include <vector>
#include <wincodec.h>

// The pixels of a PNG or BMP file, 0xRRGGBB, row by row from the top; none when it can't be read.
class PngPictureCL
{
public:
    explicit PngPictureCL(const std::string& path)
    {
        EXPECT_TRUE(SUCCEEDED(::CoInitialize(nullptr)));
        EXPECT_TRUE(readM(std::wstring(path.begin(), path.end()))) << path;
        ::CoUninitialize();
    }
    const std::vector<std::uint32_t>& PixelsM() const { return pixels_; }
    int CountM(std::uint32_t colour) const
    {
        int count = 0;
        for (const std::uint32_t pixel : pixels_) {
            count += (pixel & 0xFFFFFF) == colour ? 1 : 0;
        }
        return count;
    }

private:
    bool readM(const std::wstring& path)
    {
        IWICImagingFactory* factory = nullptr;
        IWICBitmapDecoder* decoder = nullptr;
        IWICBitmapFrameDecode* frame = nullptr;
        IWICFormatConverter* converter = nullptr;
        UINT width = 0;
        UINT height = 0;
        bool read = SUCCEEDED(::CoCreateInstance(CLSID_WICImagingFactory, nullptr, CLSCTX_INPROC_SERVER,
                        IID_IWICImagingFactory, reinterpret_cast<void**>(&factory)))
            && SUCCEEDED(factory->CreateDecoderFromFilename(
                path.c_str(), nullptr, GENERIC_READ, WICDecodeMetadataCacheOnLoad, &decoder))
            && SUCCEEDED(decoder->GetFrame(0, &frame)) && SUCCEEDED(frame->GetSize(&width, &height))
            && SUCCEEDED(factory->CreateFormatConverter(&converter))
            && SUCCEEDED(converter->Initialize(frame, GUID_WICPixelFormat32bppBGRA, WICBitmapDitherTypeNone,
                nullptr, 0, WICBitmapPaletteTypeCustom));
        if (read) {
            pixels_.resize(static_cast<size_t>(width) * height);
            read = SUCCEEDED(converter->CopyPixels(nullptr, width * 4, static_cast<UINT>(pixels_.size() * 4),
                reinterpret_cast<BYTE*>(pixels_.data())));
        }
        for (IUnknown* const object :
            std::initializer_list<IUnknown*> { converter, frame, decoder, factory }) {
            if (object != nullptr) {
                object->Release();
            }
        }
        return read;
    }

    std::vector<std::uint32_t> pixels_;
};
