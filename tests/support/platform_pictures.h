#pragma once
#include "baselib/gbk.h"
#include "support/bmp_file.h"
#include "support/random_picture.h"
#include "toolkit/toolkit.h"
#include <gtest/gtest.h>
#include <string>

// A file that exists for one test. name: GBK.
class TestFile
{
public:
    TestFile(const std::string& name, const std::string& bytes)
        : path_(testing::TempDir() + name)
    {
        FILE* const out = _wfopen(slGbkToWide(path_.c_str()).c_str(), L"wb");
        EXPECT_NE(nullptr, out) << path_;
        if (out != nullptr) {
            EXPECT_EQ(bytes.size(), std::fwrite(bytes.data(), 1, bytes.size(), out));
            std::fclose(out);
        }
    }
    TestFile(const std::string& name, const BmpFile& file)
        : TestFile(name, text(file.bytes()))
    {
    }
    // The picture's rows are buffer rows: the lowest first.
    TestFile(const std::string& name, const Pixels& pixels)
        : TestFile(name, fileOf(pixels))
    {
    }
    TestFile(const TestFile&) = delete;
    TestFile& operator=(const TestFile&) = delete;
    ~TestFile() { _wremove(slGbkToWide(path_.c_str()).c_str()); }

    const char* path() const { return path_.c_str(); }

private:
    static std::string text(const std::vector<unsigned char>& bytes)
    {
        return { bytes.begin(), bytes.end() };
    }
    static BmpFile fileOf(const Pixels& pixels)
    {
        BmpFile file;
        file.width = pixels.w;
        file.height = pixels.h;
        for (int y = 0; y < pixels.h; ++y) {
            std::vector<std::uint32_t> row;
            for (int x = 0; x < pixels.w; ++x) {
                const unsigned char* pixel = pixels.at(x, y);
                row.push_back(static_cast<std::uint32_t>(pixel[0] << 16 | pixel[1] << 8 | pixel[2]));
            }
            file.addRow(row);
        }
        return file;
    }

    std::string path_;
};

// A 24-bit bitmap to draw on, of one colour at first.
class Canvas
{
public:
    Canvas(int w, int h, COLORREF colour)
    {
        BITMAPINFO info {};
        info.bmiHeader = BITMAPINFOHEADER { sizeof(BITMAPINFOHEADER), w, -h, 1, 24, BI_RGB, 0, 0, 0, 0, 0 };
        void* bits = nullptr;
        bitmap_ = ::CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
        dc.CreateCompatibleDC(nullptr);
        previous_ = ::SelectObject(dc.m_hDC, bitmap_);
        for (int y = 0; y < h; ++y) {
            for (int x = 0; x < w; ++x) {
                dc.SetPixelV(x, y, colour);
            }
        }
    }
    Canvas(const Canvas&) = delete;
    Canvas& operator=(const Canvas&) = delete;
    ~Canvas()
    {
        ::SelectObject(dc.m_hDC, previous_);
        ::DeleteObject(bitmap_);
    }

    CDC dc;

private:
    HBITMAP bitmap_ { nullptr };
    HGDIOBJ previous_ { nullptr };
};

// A picture in which each pixel says where it is: red x, green y from the top.
inline Pixels placePicture(int w, int h)
{
    Pixels pixels(w, h);
    for (int y = 0; y < h; ++y) {
        for (int x = 0; x < w; ++x) {
            pixels.set(x, h - 1 - y, { static_cast<unsigned char>(x), static_cast<unsigned char>(y), 7 });
        }
    }
    return pixels;
}
