#include "baselib/bmp_reader.h"
#include "baselib/helpers.h"
#include "records/region_functions.h"
#include "support/platform_pictures.h"
#include <cstring>

namespace {

// What the platform's own loader makes of a file, as this library's buffers hold it.
Pixels loadByPlatform(const char* path)
{
    CBitmap bitmap;
    slLoadPicture(&bitmap, path);
    BITMAP measures {};
    if (bitmap.GetBitmap(&measures) == 0) {
        return {};
    }
    const int w = static_cast<int>(measures.bmWidth);
    const int h = static_cast<int>(measures.bmHeight);
    BITMAPINFO info {};
    info.bmiHeader = BITMAPINFOHEADER { sizeof(BITMAPINFOHEADER), w, h, 1, 32, BI_RGB, 0, 0, 0, 0, 0 };
    std::vector<unsigned char> bits(static_cast<std::size_t>(w) * h * 4);
    CDC dc;
    dc.CreateCompatibleDC(nullptr);
    if (::GetDIBits(dc, bitmap, 0, static_cast<UINT>(h), bits.data(), &info, DIB_RGB_COLORS) != h) {
        return {};
    }
    Pixels pixels(w, h);
    for (int y = 0; y < h; ++y) {
        for (int x = 0; x < w; ++x) {
            const unsigned char* pixel = &bits[(static_cast<std::size_t>(y) * w + x) * 4];
            pixels.set(x, y, { pixel[2], pixel[1], pixel[0] });
        }
    }
    return pixels;
}

// What the platform draws from the file's own headers and bits.
Pixels drawByPlatform(const BmpFile& file)
{
    const std::vector<unsigned char> bytes = file.bytes();
    const std::size_t bitsAt = bytes.size() - file.pixels.size();
    const int w = file.width;
    const int h = file.height < 0 ? -file.height : file.height;
    Canvas canvas(w, h, RGB(0, 0, 0));
    const auto* info = reinterpret_cast<const BITMAPINFO*>(&bytes[14]);
    // The copy of the headers is aligned as the platform expects it.
    std::vector<DWORD> headers(1024);
    std::memcpy(headers.data(), info, std::min(bitsAt - 14, headers.size() * sizeof(DWORD)));
    info = reinterpret_cast<const BITMAPINFO*>(headers.data());
    if (file.coding == BI_RLE4 || file.coding == BI_RLE8) {
        headers[5] = static_cast<DWORD>(file.pixels.size()); // The size of the codes.
    }
    if (::StretchDIBits(canvas.dc, 0, 0, w, h, 0, 0, w, h, &bytes[bitsAt], info, DIB_RGB_COLORS, SRCCOPY)
        == 0) {
        return {};
    }
    Pixels pixels(w, h);
    for (int y = 0; y < h; ++y) {
        for (int x = 0; x < w; ++x) {
            const COLORREF colour = canvas.dc.GetPixel(x, h - 1 - y);
            pixels.set(x, y, { GetRValue(colour), GetGValue(colour), GetBValue(colour) });
        }
    }
    return pixels;
}

Pixels loadByUs(const char* path)
{
    Pixels pixels;
    unsigned char* buffer = nullptr;
    if (slLoadBmpPicture3D(path, &pixels.w, &pixels.h, &buffer) == 1) {
        pixels.bytes.assign(buffer, buffer + static_cast<std::ptrdiff_t>(pixels.w) * pixels.h * 3);
    }
    slFree(buffer);
    return pixels;
}

} // namespace

// Only kinds that every platform loads rightly: Wine's loader leaves pictures with runs and those from the
// top blank, mixes up the palettes of OS/2 headers of 12 bytes, refuses those of 64 and loses the masks of 16
// bits. The comparison with drawing below takes these too.
TEST(BmpReader, ReadsTheSamePicturesAsThePlatformsLoader)
{
    int compared = 0;
    for (const auto& kind : allBmpKinds(37, 23)) {
        const BmpFile& picture = kind.second;
        const bool coded = picture.coding == BI_RLE4 || picture.coding == BI_RLE8;
        const bool masked = picture.bits == 16 && !picture.masks.empty();
        if (coded || masked || picture.height < 0 || picture.headerSize == 12 || picture.headerSize == 64) {
            continue;
        }
        const TestFile file("loader_test.bmp", picture);
        const Pixels expected = loadByPlatform(file.path());
        const Pixels found = loadByUs(file.path());
        EXPECT_EQ(expected.w, found.w) << kind.first;
        EXPECT_EQ(expected.h, found.h) << kind.first;
        EXPECT_TRUE(expected.bytes == found.bytes) << kind.first;
        ++compared;
    }
    EXPECT_GT(compared, 20);
}

TEST(BmpReader, ReadsTheSamePicturesAsThePlatformDraws)
{
    int compared = 0;
    for (const auto& kind : allBmpKinds(37, 23)) {
        if (kind.second.headerSize == 64) {
            continue; // Unknown to the platform's drawing.
        }
        const TestFile file("loader_test.bmp", kind.second);
        const Pixels found = loadByUs(file.path());
        EXPECT_TRUE(drawByPlatform(kind.second).bytes == found.bytes) << kind.first;
        ++compared;
    }
    EXPECT_GT(compared, 30);
}

TEST(BmpReader, OpensChineseNames)
{
    const Pixels picture = placePicture(5, 3);
    const TestFile file("\xCD\xBC\xC6\xAC.bmp", picture); // 图片
    EXPECT_EQ(picture.bytes, loadByUs(file.path()).bytes);
    EXPECT_EQ(picture.bytes, loadByPlatform(file.path()).bytes);
}

TEST(LoadPicture, DeletesTheBitmapBeforeAndIsEmptyWithoutAFile)
{
    const TestFile file("loader_test.bmp", placePicture(5, 3));
    CBitmap bitmap;
    slLoadPicture(&bitmap, file.path());
    const HGDIOBJ before = bitmap.GetSafeHandle();
    ASSERT_NE(nullptr, before);
    DIBSECTION section {};
    EXPECT_EQ(static_cast<int>(sizeof(section)), bitmap.GetObject(sizeof(section), &section));
    slLoadPicture(&bitmap, "no such picture.bmp");
    EXPECT_EQ(nullptr, bitmap.GetSafeHandle());
    EXPECT_EQ(0U, ::GetObjectType(before));
}
