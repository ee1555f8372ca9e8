#include "pictures/picture_sharing.h"
#include "baselib/gbk.h"
#include "pictures/picture_loader.h"
#include "pictures/rotation.h"
#include <algorithm>
#include <cstring>

namespace {

thread_local PictureSharingCL* sharing = nullptr;

FileBitmapTP heldBitmap(HBITMAP bitmap, bool isTopDown = false)
{
    return bitmap != nullptr ? std::make_shared<FileBitmapCL>(bitmap, isTopDown) : nullptr;
}

std::wstring wholePath(const char* file)
{
    const std::wstring name = slGbkToWide(file);
    std::wstring path(::GetFullPathNameW(name.c_str(), 0, nullptr, nullptr), L'\0');
    path.resize(::GetFullPathNameW(name.c_str(), static_cast<DWORD>(path.size()), path.data(), nullptr));
    return path;
}

// count: at least 1. Four bytes at once where there are four.
void readRow24(const unsigned char* from, std::size_t count, std::uint32_t* to)
{
    for (; count > 1; --count, from += 3, ++to) {
        std::memcpy(to, from, 4);
        *to &= 0xFFFFFF;
    }
    *to = static_cast<std::uint32_t>(from[0] | from[1] << 8 | from[2] << 16);
}

CSize sizeOf(HBITMAP bitmap)
{
    BITMAP measures {};
    ::GetObjectW(bitmap, sizeof measures, &measures);
    return { measures.bmWidth, measures.bmHeight };
}

} // namespace

HBITMAP FileBitmapCL::CopyM() const
{
    struct
    {
        BITMAPINFOHEADER header;
        RGBQUAD colours[256]; // Or masks.
    } info {};
    DIBSECTION section {};
    if (::GetObjectW(bitmap_, sizeof section, &section) != sizeof section) {
        return nullptr;
    }
    info.header = section.dsBmih;
    info.header.biHeight = isTopDown_ ? -section.dsBm.bmHeight : section.dsBm.bmHeight;
    if (info.header.biCompression == BI_BITFIELDS) {
        std::memcpy(info.colours, section.dsBitfields, sizeof section.dsBitfields);
    } else if (info.header.biBitCount <= 8) {
        const HDC dc = ::CreateCompatibleDC(nullptr);
        const HGDIOBJ before = ::SelectObject(dc, bitmap_);
        const UINT colours = ::GetDIBColorTable(dc, 0, 256, info.colours);
        ::SelectObject(dc, before);
        ::DeleteDC(dc);
        if (colours == 0) {
            return nullptr;
        }
    }
    void* bits = nullptr;
    const HBITMAP copy = ::CreateDIBSection(
        nullptr, reinterpret_cast<const BITMAPINFO*>(&info), DIB_RGB_COLORS, &bits, nullptr, 0);
    if (copy != nullptr) {
        ::GdiFlush();
        std::memcpy(bits, section.dsBm.bmBits,
            static_cast<std::size_t>(section.dsBm.bmWidthBytes)
                * static_cast<std::size_t>(section.dsBm.bmHeight));
    }
    return copy;
}

bool FileBitmapCL::ReadPartM(const PixelPartCL& part) const
{
    DIBSECTION section {};
    if (::GetObjectW(bitmap_, sizeof section, &section) != sizeof section
        || section.dsBmih.biCompression != BI_RGB || section.dsBmih.biBitCount < 24) {
        return false;
    }
    const std::int64_t height = section.dsBm.bmHeight;
    const std::int64_t left = std::max<std::int64_t>(part.left, 0);
    const std::int64_t right
        = std::min<std::int64_t>(std::int64_t { part.left } + part.width, section.dsBm.bmWidth);
    const std::int64_t top = std::max<std::int64_t>(part.top, 0);
    const std::int64_t bottom = std::min(std::int64_t { part.top } + part.height, height);
    if (left >= right) {
        return true;
    }
    ::GdiFlush();
    const int bytes = section.dsBmih.biBitCount / 8;
    const auto* const bits = static_cast<const unsigned char*>(section.dsBm.bmBits);
    for (std::int64_t y = top; y < bottom; ++y) {
        const unsigned char* const from
            = bits + (isTopDown_ ? y : height - 1 - y) * section.dsBm.bmWidthBytes + left * bytes;
        std::uint32_t* const to = part.pixels + (y - part.top) * part.width + (left - part.left);
        if (bytes == 4) {
            std::memcpy(to, from, static_cast<std::size_t>(right - left) * 4);
        } else {
            readRow24(from, static_cast<std::size_t>(right - left), to);
        }
    }
    return true;
}

FileBitmapTP slFileBitmap(const char* file, const PictureScaleCL& scale, std::int64_t key)
{
    if (file == nullptr) {
        return nullptr;
    }
    PictureSharingCL alone;
    return scale.PercentM() == 100 ? sharing->plainM(file) : sharing->scaledM(file, scale, key);
}

PictureSharingCL::PictureSharingCL()
    : outer_(sharing)
{
    if (outer_ == nullptr) {
        sharing = this;
    }
}

PictureSharingCL::~PictureSharingCL()
{
    if (outer_ == nullptr) {
        sharing = nullptr;
    }
}

bool PictureSharingCL::readStateM(const std::wstring& path, StateCL* state)
{
    WIN32_FILE_ATTRIBUTE_DATA data {};
    if (!::GetFileAttributesExW(path.c_str(), GetFileExInfoStandard, &data)) {
        return false;
    }
    state->size = std::uint64_t { data.nFileSizeHigh } << 32 | data.nFileSizeLow;
    state->written
        = std::uint64_t { data.ftLastWriteTime.dwHighDateTime } << 32 | data.ftLastWriteTime.dwLowDateTime;
    return true;
}

// What is known of a file that is there, as it is now.
PictureSharingCL::FileCL* PictureSharingCL::findM(const char* file)
{
    const std::wstring path = wholePath(file);
    StateCL state {};
    if (!readStateM(path, &state)) {
        return nullptr;
    }
    FileCL& known = files_[path];
    if (!(known.state == state)) {
        known = FileCL();
        known.state = state;
    }
    return &known;
}

FileBitmapTP PictureSharingCL::loadM(const char* file, FileCL* known)
{
    FileBitmapTP bitmap = known != nullptr ? known->bitmap.lock() : nullptr;
    if (bitmap == nullptr) {
        bitmap = heldBitmap(slMakeBitmap(file));
        if (bitmap != nullptr && known != nullptr) {
            known->bitmap = bitmap;
            known->size = sizeOf(bitmap->HandleM());
        }
    }
    return bitmap;
}

FileBitmapTP PictureSharingCL::plainM(const char* file)
{
    return loadM(file, findM(file));
}

FileBitmapTP PictureSharingCL::scaledM(const char* file, const PictureScaleCL& scale, std::int64_t key)
{
    if (FileBitmapTP drawn = plainM(slNameAtScale(file, scale.PercentM()).c_str())) {
        return drawn;
    }
    const auto scaled = [&scale](CSize size) { return CSize(scale.WidthM(size.cx), scale.HeightM(size.cy)); };
    FileCL* const known = findM(file);
    if (known != nullptr && known->size != CSize()) {
        for (const ScaledCL& one : known->scaled) {
            FileBitmapTP bitmap = one.bitmap.lock();
            if (bitmap != nullptr && one.size == scaled(known->size) && one.key == key) {
                return bitmap;
            }
        }
    }
    FileBitmapTP plain = loadM(file, known);
    if (plain == nullptr) {
        return nullptr;
    }
    const CSize from = sizeOf(plain->HandleM());
    const CSize size = scaled(from);
    if (size == from) {
        return plain;
    }
    FileBitmapTP bitmap = heldBitmap(slResampleBitmap(plain->HandleM(), size.cx, size.cy, key), true);
    if (bitmap == nullptr) {
        return plain; // As large as it is.
    }
    if (known != nullptr) {
        known->scaled.push_back({ size, key, bitmap });
    }
    return bitmap;
}
