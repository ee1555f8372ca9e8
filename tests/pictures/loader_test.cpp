#include "baselib/helpers.h"
#include "pictures/bitmap_record.h"
#include "pictures/bmp_reader.h"
#include "pictures/region_functions.h"
#include "support/large_picture.h"
#include "support/platform_pictures.h"
#include <cstring>
#include <random>

namespace {

HBITMAP loadedByPlatform(const char* path)
{
    return static_cast<HBITMAP>(::LoadImageW(nullptr, slGbkToWide(path).c_str(), IMAGE_BITMAP, 0, 0,
        LR_LOADFROMFILE | LR_CREATEDIBSECTION | LR_DEFAULTSIZE));
}

// A bitmap's pixels as this library's buffers hold them; none without a bitmap.
Pixels pixelsOf(const CBitmap& bitmap)
{
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

// What the platform's own loader makes of a file.
Pixels loadByPlatform(const char* path)
{
    CBitmap bitmap;
    bitmap.Attach(loadedByPlatform(path));
    return pixelsOf(bitmap);
}

// What the controls show.
Pixels shownByUs(const char* path)
{
    CBitmap bitmap;
    slLoadPicture(&bitmap, path);
    return pixelsOf(bitmap);
}

// What the platform tells of a file's bitmap, its colours and bytes included.
std::string measuresOf(HBITMAP bitmap)
{
    DIBSECTION section {};
    ::GetObjectW(bitmap, sizeof section, &section);
    std::string text;
    for (const auto value :
        { static_cast<DWORD>(section.dsBm.bmWidth), static_cast<DWORD>(section.dsBm.bmHeight),
            static_cast<DWORD>(section.dsBm.bmWidthBytes), static_cast<DWORD>(section.dsBm.bmBitsPixel),
            section.dsBmih.biSize, static_cast<DWORD>(section.dsBmih.biHeight), section.dsBmih.biCompression,
            section.dsBmih.biClrUsed, section.dsBmih.biClrImportant, section.dsBmih.biSizeImage,
            section.dsBitfields[0] }) {
        text += std::to_string(value) + " ";
    }
    CDC dc;
    dc.CreateCompatibleDC(nullptr);
    const HGDIOBJ before = ::SelectObject(dc, bitmap);
    RGBQUAD colours[256] {};
    const UINT count = ::GetDIBColorTable(dc, 0, 256, colours);
    text.append(reinterpret_cast<const char*>(colours), count * sizeof *colours);
    ::SelectObject(dc, before);
    text.append(static_cast<const char*>(section.dsBm.bmBits),
        static_cast<size_t>(section.dsBm.bmWidthBytes) * static_cast<size_t>(section.dsBm.bmHeight));
    ::DeleteObject(bitmap);
    return text;
}

int resolutionOf(CBitmap& bitmap) // Pixels a metre.
{
    DIBSECTION section {};
    ::GetObjectW(bitmap, sizeof section, &section);
    return section.dsBmih.biXPelsPerMeter;
}

std::string shownMeasures(const char* path)
{
    CBitmap bitmap;
    slLoadPicture(&bitmap, path);
    return measuresOf(static_cast<HBITMAP>(bitmap.Detach()));
}

BmpFile twoByTwo(int bits, const std::vector<std::uint32_t>& palette)
{
    BmpFile file;
    file.width = 2;
    file.height = 2;
    file.bits = bits;
    file.palette = palette;
    file.coloursUsed = static_cast<std::uint32_t>(palette.size());
    file.addRow({ 0, 1 });
    file.addRow({ 1, bits == 1 ? 0U : 11U });
    return file;
}

// Files that the platform's loader shows although something is wrong with them.
std::vector<std::pair<std::string, BmpFile>> flawedBmps()
{
    std::vector<std::pair<std::string, BmpFile>> all = {
        { "no end mark", codedBmp(8, 5, 2, { 5, 1, 0, 0, 5, 2, 0, 0 }) },
        { "no mark behind the last row", codedBmp(8, 5, 2, { 5, 1, 0, 0, 5, 2 }) },
        { "half a code", codedBmp(8, 5, 2, { 5, 1, 0, 0, 5, 2, 3 }) },
        { "surplus bytes", codedBmp(8, 5, 2, { 5, 1, 0, 0, 5, 2, 0, 1, 9, 9, 9, 9 }) },
        { "surplus rows", codedBmp(8, 5, 2, { 5, 1, 0, 0, 5, 2, 0, 0, 5, 3, 0, 0, 5, 4, 0, 1 }) },
        { "run past its row", codedBmp(8, 5, 2, { 6, 1, 0, 0, 2, 2, 0, 1 }) },
        { "two runs past their row", codedBmp(8, 5, 2, { 3, 1, 3, 2, 0, 1 }) },
        { "pixels past their row", codedBmp(8, 5, 2, { 0, 6, 1, 2, 3, 4, 5, 6, 0, 0, 1, 9, 0, 1 }) },
        { "pixels past the file", codedBmp(8, 5, 2, { 4, 3, 0, 0, 0, 5, 1, 2 }) },
        { "row above", codedBmp(8, 5, 2, { 2, 3, 0, 0, 0, 0, 1, 1, 0, 1 }) },
        { "move past its row", codedBmp(8, 5, 2, { 0, 2, 6, 0, 1, 9, 0, 1 }) },
        { "move above", codedBmp(8, 5, 2, { 1, 7, 0, 2, 0, 3, 1, 9, 0, 1 }) },
        { "move within, then rows", codedBmp(8, 5, 3, { 0, 2, 3, 1, 1, 7, 0, 0, 2, 8, 0, 1 }) },
        { "move without an end", codedBmp(8, 5, 2, { 1, 3, 0, 2, 2, 0, 1, 4 }) },
        { "half a move", codedBmp(8, 5, 2, { 5, 1, 0, 2, 1 }) },
        { "4 bits past their row", codedBmp(4, 5, 2, { 6, 0x12, 0, 0, 3, 0x34, 0, 1 }) },
        { "4 bits in pixels past their row",
            codedBmp(4, 5, 2, { 0, 7, 0x12, 0x34, 0x56, 0x70, 0, 0, 3, 0x34, 0, 1 }) },
        { "4 bits without an end", codedBmp(4, 5, 2, { 5, 0x12, 0, 0, 3, 0x34 }) },
    };
    for (auto& kind : all) {
        kind.second.codesSize = static_cast<std::uint32_t>(kind.second.pixels.size());
    }
    BmpFile early = codedBmp(8, 5, 2, { 5, 1, 0, 0, 5, 2, 0, 1 });
    early.codesSize = 5;
    all.emplace_back("codes that end before their end", early);
    all.emplace_back("index beyond 3 colours of 8 bits", twoByTwo(8, { 1, 2, 3 }));
    all.emplace_back("index beyond 3 colours of 4 bits", twoByTwo(4, { 1, 2, 3 }));
    all.emplace_back("1 bit without a palette", twoByTwo(1, {}));
    all.emplace_back("1 bit of one colour", twoByTwo(1, { 0x123456 }));
    all.back().second.coloursUsed = 0;
    all.emplace_back("3 colours where 256 are announced", twoByTwo(8, { 1, 2, 3 }));
    all.back().second.coloursUsed = 0;
    return all;
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
        EXPECT_TRUE(expected.bytes == shownByUs(file.path()).bytes) << kind.first;
        EXPECT_EQ(measuresOf(loadedByPlatform(file.path())), shownMeasures(file.path())) << kind.first;
        CBitmap platforms;
        CBitmap ours;
        platforms.Attach(loadedByPlatform(file.path()));
        slLoadPicture(&ours, file.path());
        EXPECT_EQ(resolutionOf(platforms), resolutionOf(ours)) << kind.first;
        ++compared;
    }
    EXPECT_GT(compared, 20);
}

TEST(BmpReader, ReadsFlawedPicturesAsThePlatformsLoader)
{
    for (const auto& kind : flawedBmps()) {
        const TestFile file("loader_test.bmp", kind.second);
        const Pixels expected = loadByPlatform(file.path());
        ASSERT_NE(0, expected.w) << kind.first;
        EXPECT_TRUE(expected.bytes == loadByUs(file.path()).bytes) << kind.first;
        EXPECT_TRUE(expected.bytes == shownByUs(file.path()).bytes) << kind.first;
        EXPECT_EQ(measuresOf(loadedByPlatform(file.path())), shownMeasures(file.path())) << kind.first;
    }
}

TEST(BmpReader, ReadsAnyRunsAsThePlatformsLoader)
{
    std::mt19937 random(3); // NOLINT: the same pictures each time.
    int shown = 0;
    for (int round = 0; round < 300; ++round) {
        std::vector<unsigned char> codes;
        for (size_t i = random() % 40; i > 0; --i) {
            codes.push_back(static_cast<unsigned char>(random() % (random() % 4 == 0 ? 256 : 5)));
        }
        codes.insert(codes.end(), { 0, 1 });
        BmpFile picture = codedBmp(round % 2 == 0 ? 8 : 4, 7, 6, codes);
        picture.codesSize = static_cast<std::uint32_t>(picture.pixels.size());
        const TestFile file("loader_test.bmp", picture);
        CBitmap ours;
        slLoadPicture(&ours, file.path());
        if (ours.GetSafeHandle() != nullptr) {
            EXPECT_EQ(
                measuresOf(loadedByPlatform(file.path())), measuresOf(static_cast<HBITMAP>(ours.Detach())))
                << round;
            ++shown;
        }
    }
    EXPECT_GT(shown, 100);
}

// Masks of 16 bits are left to the platform's loader: some lose the lowest bit of the greens.
TEST(LoadPicture, EveryKindIsShownAsItIsReadInItsOwnDepth)
{
    int compared = 0;
    for (const auto& kind : allBmpKinds(37, 23)) {
        const TestFile file("loader_test.bmp", kind.second);
        CBitmap bitmap;
        slLoadPicture(&bitmap, file.path());
        BITMAP measures {};
        ASSERT_NE(0, bitmap.GetBitmap(&measures)) << kind.first;
        EXPECT_EQ(kind.second.bits, measures.bmBitsPixel) << kind.first;
        if (kind.second.bits != 16 || kind.second.masks.empty()) {
            EXPECT_TRUE(loadByUs(file.path()).bytes == pixelsOf(bitmap).bytes) << kind.first;
            ++compared;
        }
    }
    EXPECT_GT(compared, 30);
    BmpFile fromTop = codedBmp(8, 5, -2, { 5, 1, 0, 0, 2, 2, 0, 1 });
    const TestFile coded("loader_test.bmp", fromTop);
    EXPECT_FALSE(loadByUs(coded.path()).bytes.empty());
    EXPECT_TRUE(loadByUs(coded.path()).bytes == shownByUs(coded.path()).bytes);
    BmpFile masked = fromTop;
    masked.bits = 16;
    masked.coding = BI_BITFIELDS;
    masked.palette.clear();
    masked.pixels.clear();
    masked.masks = { 0xF800, 0x07E0, 0x001F };
    masked.addRow({ 0xF820, 0x07E0, 0x001F, 0x8410, 0xFFFF });
    masked.addRow({ 0, 1, 0x20, 0x800, 0x1234 });
    const TestFile greens("loader_greens.bmp", masked);
    EXPECT_FALSE(loadByUs(greens.path()).bytes.empty());
    EXPECT_TRUE(loadByUs(greens.path()).bytes == shownByUs(greens.path()).bytes);
}

// Which the platform's loader would count wrong.
TEST(LoadPicture, RowsOfMoreThanTwoGigabytesAreNotLoaded)
{
    CBitmap bitmap;
    slLoadPicture(&bitmap, LargePictureCL(24, 27000, 26600).path());
    EXPECT_EQ(bitmap.GetSafeHandle(), nullptr);
    slLoadPicture(&bitmap, LargePictureCL(1, 30000, 30000).path());
    EXPECT_NE(bitmap.GetSafeHandle(), nullptr);
}

// Codes of an unknown size look as they would if the header told it.
TEST(LoadPicture, CodesWithoutASizeAreShownAsWithIt)
{
    for (const auto& kind : flawedBmps()) {
        BmpFile picture = kind.second;
        if (picture.codesSize != picture.pixels.size()) {
            continue;
        }
        const TestFile file("loader_test.bmp", picture);
        const Pixels expected = loadByPlatform(file.path());
        picture.codesSize = 0;
        const TestFile unsized("loader_unsized.bmp", picture);
        EXPECT_TRUE(expected.bytes == shownByUs(unsized.path()).bytes) << kind.first;
    }
}

// Large enough that what is missing lies on other pages than what is there.
TEST(LoadPicture, FileCutShortIsNoPicture)
{
    for (const auto& kind : allBmpKinds(300, 200)) {
        std::vector<unsigned char> bytes = kind.second.bytes();
        if (kind.second.coding == BI_RLE4 || kind.second.coding == BI_RLE8) {
            continue;
        }
        const std::size_t headers = bytes.size() - kind.second.pixels.size();
        for (const std::size_t size : { bytes.size() - 1, bytes.size() / 2, headers + 1, headers, headers - 1,
                 std::size_t { 30 }, std::size_t { 14 }, std::size_t { 2 }, std::size_t { 0 } }) {
            const TestFile file("loader_test.bmp", std::string(bytes.begin(), bytes.begin() + size));
            CBitmap bitmap;
            slLoadPicture(&bitmap, file.path());
            EXPECT_EQ(nullptr, bitmap.GetSafeHandle()) << kind.first << " cut to " << size;
            DVrBitmapCL record;
            EXPECT_EQ(0, record.LoadSafeBitmapM(file.path())) << kind.first << " cut to " << size;
        }
    }
}

TEST(LoadPicture, NumbersThatLieAboutTheFileAreNoPicture)
{
    BmpFile picture = twoByTwo(24, {});
    const auto isShown = [](const BmpFile& of) {
        const TestFile file("loader_test.bmp", of);
        return shownByUs(file.path()).w != 0;
    };
    EXPECT_TRUE(isShown(picture));
    for (const int wrong : { -41, -54 - 4096, 1, 4096, 0x7FFFFF00 }) {
        BmpFile other = picture;
        other.offsetError = wrong;
        EXPECT_FALSE(isShown(other)) << wrong;
    }
    for (const int size : { 3, 3000, 0x8000, 0x7FFFFFFF }) {
        BmpFile other = picture;
        other.width = size;
        EXPECT_FALSE(isShown(other)) << size;
        other.width = 2;
        other.height = size;
        EXPECT_FALSE(isShown(other)) << size;
    }
    BmpFile coded = codedBmp(8, 5, 2, { 5, 1, 0, 0, 5, 2 });
    coded.codesSize = 100000;
    EXPECT_FALSE(isShown(coded));
    // More colours than there are behind the headers, yet all pixels.
    picture.coloursUsed = 250;
    EXPECT_TRUE(isShown(picture));
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
    EXPECT_EQ(picture.bytes, shownByUs(file.path()).bytes);
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
