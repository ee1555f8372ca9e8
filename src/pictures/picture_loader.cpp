#include "pictures/picture_loader.h"
#include "baselib/file.h"
#include "baselib/gbk.h"
#include "baselib/helpers.h"
#include "pictures/bmp_indices.h"
#include "pictures/bmp_reader.h"
#include "pictures/bmp_rle.h"
#include "pictures/bmp_rows.h"
#include <algorithm>
#include <cstring>
#include <iterator>
#include <vector>

namespace {

// The headers of a section, with room for masks or colours behind them.
struct SectionInfo
{
    BITMAPINFOHEADER header;
    DWORD colours[256];
};

SectionInfo infoOf(const BmpHeader& header)
{
    SectionInfo info {};
    info.header.biSize = sizeof info.header;
    info.header.biWidth = header.width;
    info.header.biHeight = header.height;
    info.header.biPlanes = 1;
    info.header.biBitCount = static_cast<WORD>(header.bits);
    info.header.biCompression = BI_RGB;
    if (header.bits == 16 && header.fields[1].length == 6) {
        // The only other masks that every platform has for sections of 16 bits.
        info.header.biCompression = BI_BITFIELDS;
        info.colours[0] = 0xF800;
        info.colours[1] = 0x07E0;
        info.colours[2] = 0x001F;
    } else if (header.bits <= 8) {
        for (int i = 0; i < 256; ++i) {
            const BmpColour& colour = header.palette[i];
            info.colours[i] = static_cast<DWORD>(colour.red << 16 | colour.green << 8 | colour.blue);
        }
    }
    return info;
}

HBITMAP makeSection(const SectionInfo& info, unsigned char** bits)
{
    void* room = nullptr;
    const HBITMAP bitmap = ::CreateDIBSection(
        nullptr, reinterpret_cast<const BITMAPINFO*>(&info), DIB_RGB_COLORS, &room, nullptr, 0);
    *bits = static_cast<unsigned char*>(room);
    return bitmap;
}

// A section of 32-bit pixels, the top row first.
HBITMAP makeBlock(int width, int height, PixelBlockCL* block)
{
    SectionInfo info {};
    info.header.biSize = sizeof info.header;
    info.header.biWidth = width;
    info.header.biHeight = -height;
    info.header.biPlanes = 1;
    info.header.biBitCount = 32;
    unsigned char* bits = nullptr;
    const HBITMAP bitmap = makeSection(info, &bits);
    *block = { reinterpret_cast<std::uint32_t*>(bits), width, height };
    return bitmap;
}

HBITMAP makeIndexed(const BmpBytes& file, const BmpHeader& header, const SectionInfo& info)
{
    unsigned char* to = nullptr;
    if (header.isRunCoded() && header.bits == 8) { // Rows of a section are rows of indices then.
        const HBITMAP bitmap = slDecodeBmpIndices(file, header, nullptr) ? makeSection(info, &to) : nullptr;
        if (bitmap != nullptr) {
            slDecodeBmpRuns(file, header, to, header.stride());
        }
        return bitmap;
    }
    std::vector<unsigned char> indices;
    const HBITMAP bitmap = slDecodeBmpIndices(file, header, &indices) ? makeSection(info, &to) : nullptr;
    if (bitmap == nullptr) {
        return nullptr;
    }
    const std::size_t width = static_cast<std::size_t>(header.width);
    const std::size_t bits = static_cast<std::size_t>(header.bits);
    const unsigned char* from = indices.data();
    for (int y = 0; y < header.height; ++y, from += width, to += header.stride()) {
        for (std::size_t x = 0; x < width; ++x) {
            unsigned char& byte = to[x * bits / 8];
            byte = static_cast<unsigned char>(byte | from[x] << (8 - bits - x * bits % 8));
        }
    }
    return bitmap;
}

HBITMAP makeColoured(const BmpBytes& file, const BmpHeader& header)
{
    int w = 0;
    int h = 0;
    unsigned char* pixels = nullptr;
    if (slDecodeBmp(file.data, file.size, &w, &h, &pixels) == 0) {
        return nullptr;
    }
    const std::size_t width = static_cast<std::size_t>(w);
    const std::size_t stride = (width * 3 + 3) / 4 * 4;
    std::vector<unsigned char> rows(stride * static_cast<std::size_t>(h));
    for (std::size_t i = 0; i < width * static_cast<std::size_t>(h); ++i) {
        unsigned char* const to = &rows[i / width * stride + i % width * 3];
        to[0] = pixels[i * 3 + 2];
        to[1] = pixels[i * 3 + 1];
        to[2] = pixels[i * 3];
    }
    slFree(pixels);
    SectionInfo info = infoOf(header);
    unsigned char* bits = nullptr;
    const HBITMAP bitmap = makeSection(info, &bits);
    if (bitmap != nullptr) {
        info.header.biBitCount = 24;
        info.header.biCompression = BI_RGB;
        const HDC dc = ::CreateCompatibleDC(nullptr);
        ::SetDIBits(dc, bitmap, 0, static_cast<UINT>(h), rows.data(),
            reinterpret_cast<const BITMAPINFO*>(&info), DIB_RGB_COLORS);
        ::DeleteDC(dc);
    }
    return bitmap;
}

// What the platform's loader makes of a picture that is here whole; null of one with masks or unusual
// headers.
HBITMAP makeAtOnce(const BmpBytes& file)
{
    BmpHeader header;
    if (!slReadBmpHeader(file, &header) || header.topDown || file.dword(14) != sizeof(BITMAPINFOHEADER)) {
        return nullptr;
    }
    SectionInfo info = infoOf(header);
    std::memcpy(&info.header, file.data + 14, sizeof info.header);
    const std::size_t size = header.stride() * static_cast<std::size_t>(header.height);
    if (info.header.biClrUsed > std::size(info.colours)) {
        return nullptr;
    }
    if (header.isRunCoded()) {
        info.header.biCompression = BI_RGB;
        info.header.biSizeImage = static_cast<DWORD>(size);
        return makeIndexed(file, header, info);
    }
    unsigned char* bits = nullptr;
    const HBITMAP bitmap
        = header.coding == BmpCoding::Rgb && header.holdsRows(file) ? makeSection(info, &bits) : nullptr;
    if (bitmap != nullptr) {
        std::memcpy(bits, file.data + header.pixelsAt, size);
    }
    return bitmap;
}

// The rows of a bitmap as pixels of 32 bits, from the top: a few at a time.
class BitmapRowsCL
{
public:
    BitmapRowsCL(HBITMAP bitmap, int width, int height)
        : height_(height)
        , atOnce_(std::clamp(MostPixels / std::max(width, 1), 1, std::max(height, 1)))
        , source_(::CreateCompatibleDC(nullptr))
        , target_(::CreateCompatibleDC(nullptr))
        , rows_(makeBlock(width, atOnce_, &block_))
        , sourceBefore_(::SelectObject(source_, bitmap))
        , targetBefore_(::SelectObject(target_, rows_))
    {
    }
    BitmapRowsCL(const BitmapRowsCL&) = delete;
    BitmapRowsCL& operator=(const BitmapRowsCL&) = delete;
    ~BitmapRowsCL()
    {
        ::SelectObject(source_, sourceBefore_);
        ::SelectObject(target_, targetBefore_);
        ::DeleteDC(source_);
        ::DeleteDC(target_);
        ::DeleteObject(rows_);
    }

    bool IsGoodM() const { return sourceBefore_ != nullptr && targetBefore_ != nullptr; }
    const std::uint32_t* RowM(int y) // Valid until another is asked for.
    {
        if (y < first_ || y >= end_) {
            first_ = y;
            end_ = std::min(y + atOnce_, height_);
            ::BitBlt(target_, 0, 0, block_.width, end_ - first_, source_, 0, first_, SRCCOPY);
            ::GdiFlush();
        }
        return block_.pixels + static_cast<std::size_t>(y - first_) * static_cast<std::size_t>(block_.width);
    }

private:
    static constexpr int MostPixels = 1 << 20;

    int height_;
    int atOnce_;
    PixelBlockCL block_ {};
    HDC source_;
    HDC target_;
    HBITMAP rows_;
    HGDIOBJ sourceBefore_;
    HGDIOBJ targetBefore_;
    int first_ { 0 };
    int end_ { 0 };
};

} // namespace

HBITMAP slMakeBitmap(const char* file)
{
    if (file == nullptr) {
        return nullptr;
    }
    std::size_t size = 0;
    // Most pictures are there whole then, and the platform need not open and map the file once more.
    unsigned char beginning[32 * 1024];
    const std::size_t held = slReadFileBeginning(file, beginning, sizeof beginning, &size);
    std::fill(beginning + held, beginning + std::max(held, BmpHeadersSize), static_cast<unsigned char>(0));
    if (slCanPlatformLoadBmp({ beginning, size })) {
        const HBITMAP made = held == size ? makeAtOnce({ beginning, size }) : nullptr;
        if (made != nullptr) {
            return made;
        }
        const HANDLE loaded = ::LoadImageW(nullptr, slGbkToWide(file).c_str(), IMAGE_BITMAP, 0, 0,
            LR_LOADFROMFILE | LR_CREATEDIBSECTION | LR_DEFAULTSIZE);
        if (loaded != nullptr) {
            return static_cast<HBITMAP>(loaded);
        }
    }
    const std::unique_ptr<char[]> read = slReadBmpFile(file, &size);
    const BmpBytes bytes { reinterpret_cast<const unsigned char*>(read.get()), size };
    BmpHeader header;
    if (!slReadBmpHeader(bytes, &header)) {
        return nullptr;
    }
    return header.bits <= 8 ? makeIndexed(bytes, header, infoOf(header)) : makeColoured(bytes, header);
}

HBITMAP slResampleBitmap(HBITMAP bitmap, int width, int height, std::int64_t key)
{
    BITMAP measures {};
    PixelBlockCL onto {};
    if (bitmap == nullptr || ::GetObjectW(bitmap, sizeof measures, &measures) == 0) {
        return nullptr;
    }
    BitmapRowsCL rows(bitmap, measures.bmWidth, measures.bmHeight);
    const HBITMAP result = rows.IsGoodM() ? makeBlock(width, height, &onto) : nullptr;
    if (result != nullptr) {
        slResampleRows(
            measures.bmWidth, measures.bmHeight, [&rows](int y) { return rows.RowM(y); }, onto, key);
    }
    return result;
}

HBITMAP slResizeBitmap(HBITMAP bitmap, int width, int height, std::int64_t key)
{
    BITMAP measures {};
    if (bitmap == nullptr || ::GetObjectW(bitmap, sizeof measures, &measures) == 0
        || (measures.bmWidth == width && measures.bmHeight == height)) {
        return bitmap;
    }
    const HBITMAP result = slResampleBitmap(bitmap, width, height, key);
    if (result == nullptr) {
        return bitmap;
    }
    ::DeleteObject(bitmap);
    return result;
}
