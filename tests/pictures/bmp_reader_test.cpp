#include "baselib/helpers.h"
#include "pictures/bmp_reader.h"
#include "support/bmp_file.h"
#include <algorithm>
#include <climits>
#include <cstdio>
#include <cstdlib>
#include <gtest/gtest.h>
#include <random>

namespace {

struct Picture
{
    int result { 0 };
    int width { -1 };
    int height { -1 };
    bool hasBuffer { false };
    std::vector<unsigned char> pixels;

    // Row y from the top.
    std::uint32_t at(int x, int y) const
    {
        const unsigned char* pixel = &pixels[static_cast<std::size_t>(((height - 1 - y) * width + x) * 3)];
        return static_cast<std::uint32_t>(pixel[0] << 16 | pixel[1] << 8 | pixel[2]);
    }
};

// The judgement without pixels, by all the bytes and by the first of them.
void expectJudgement(int result, const std::vector<unsigned char>& bytes)
{
    EXPECT_EQ(slIsBmp(bytes.data(), bytes.size(), bytes.size()), result);
    EXPECT_GE(slIsShownBmp(bytes.data(), bytes.size(), bytes.size()), result);
    const std::vector<unsigned char> beginning(
        bytes.begin(), bytes.begin() + static_cast<std::ptrdiff_t>(std::min(bytes.size(), BmpBeginning)));
    const int early = slIsBmp(beginning.data(), beginning.size(), bytes.size());
    EXPECT_TRUE(early == result || (early == -1 && beginning.size() < bytes.size())) << early;
}

Picture decode(const std::vector<unsigned char>& bytes)
{
    Picture picture;
    // A block of exactly this size: the sanitizer sees every byte read past it.
    unsigned char* block = static_cast<unsigned char*>(std::malloc(bytes.size() + (bytes.empty() ? 1 : 0)));
    std::copy(bytes.begin(), bytes.end(), block);
    unsigned char* pixels = block;
    picture.result = slDecodeBmp(block, bytes.size(), &picture.width, &picture.height, &pixels);
    std::free(block);
    expectJudgement(picture.result, bytes);
    picture.hasBuffer = pixels != nullptr;
    if (picture.hasBuffer) {
        picture.pixels.assign(
            pixels, pixels + static_cast<std::ptrdiff_t>(picture.width) * picture.height * 3);
    }
    slFree(pixels);
    return picture;
}

void expectEmpty(const Picture& picture, const std::string& what)
{
    EXPECT_EQ(0, picture.result) << what;
    EXPECT_EQ(0, picture.width) << what;
    EXPECT_EQ(0, picture.height) << what;
    EXPECT_FALSE(picture.hasBuffer) << what;
}

BmpFile twoByTwo(int bits)
{
    BmpFile file;
    file.width = 2;
    file.height = 2;
    file.bits = bits;
    return file;
}

std::uint32_t colour(std::uint32_t index)
{
    return index << 16 | 0x4000 | index;
}

} // namespace

TEST(BmpReader, DeliversRedGreenBlueWithTheLowestRowFirst)
{
    BmpFile file = twoByTwo(24);
    file.addRow({ 0x112233, 0x445566 }); // The lowest row.
    file.addRow({ 0x778899, 0xAABBCC });
    const Picture picture = decode(file.bytes());
    EXPECT_EQ(1, picture.result);
    EXPECT_EQ(2, picture.width);
    EXPECT_EQ(2, picture.height);
    const std::vector<unsigned char> expected
        = { 0x11, 0x22, 0x33, 0x44, 0x55, 0x66, 0x77, 0x88, 0x99, 0xAA, 0xBB, 0xCC };
    EXPECT_EQ(expected, picture.pixels);
}

TEST(BmpReader, TopDownFileGivesTheSamePicture)
{
    BmpFile file = twoByTwo(24);
    file.height = -2;
    file.addRow({ 0x778899, 0xAABBCC });
    file.addRow({ 0x112233, 0x445566 });
    const Picture picture = decode(file.bytes());
    EXPECT_EQ(2, picture.height);
    EXPECT_EQ(0x778899U, picture.at(0, 0));
    EXPECT_EQ(0x445566U, picture.at(1, 1));
}

TEST(BmpReader, PaletteOfEachDepthAndRowPadding)
{
    for (int bits : { 1, 4, 8 }) {
        for (int width : { 1, 2, 3, 7, 8, 9, 31, 32, 33 }) {
            BmpFile file;
            file.width = width;
            file.height = 3;
            file.bits = bits;
            std::mt19937 random(static_cast<unsigned>(width));
            for (int i = 0; i < 1 << bits; ++i) {
                file.palette.push_back(random() & 0xFFFFFF);
            }
            std::vector<std::vector<std::uint32_t>> rows;
            for (int y = 0; y < 3; ++y) {
                rows.emplace_back();
                for (int x = 0; x < width; ++x) {
                    rows.back().push_back(random() % (1U << bits));
                }
                file.addRow(rows.back());
            }
            const Picture picture = decode(file.bytes());
            ASSERT_EQ(1, picture.result) << bits << " bits, width " << width;
            for (int y = 0; y < 3; ++y) {
                for (int x = 0; x < width; ++x) {
                    const std::size_t row = static_cast<std::size_t>(2 - y);
                    EXPECT_EQ(file.palette[rows[row][static_cast<std::size_t>(x)]], picture.at(x, y));
                }
            }
        }
    }
}

TEST(BmpReader, SixteenBitsAreFiveForEachColour)
{
    BmpFile file = twoByTwo(16);
    file.addRow({ 0x7C00, 0x03E0 });
    file.addRow({ 0x801F, 0x4210 }); // The highest bit means nothing.
    const Picture picture = decode(file.bytes());
    EXPECT_EQ(0xFF0000U, picture.at(0, 1));
    EXPECT_EQ(0x00FF00U, picture.at(1, 1));
    EXPECT_EQ(0x0000FFU, picture.at(0, 0));
    EXPECT_EQ(0x848484U, picture.at(1, 0));
}

TEST(BmpReader, MasksStandBehindAPlainHeaderAndInsideALongerOne)
{
    for (std::uint32_t headerSize : { 40U, 52U, 56U, 108U, 124U }) {
        BmpFile file = twoByTwo(16);
        file.headerSize = headerSize;
        file.coding = 3;
        file.masks = { 0xF800, 0x07E0, 0x001F };
        file.addRow({ 0xF800, 0x07E0 });
        file.addRow({ 0x001F, 0x8410 });
        const Picture picture = decode(file.bytes());
        EXPECT_EQ(0xFF0000U, picture.at(0, 1)) << headerSize;
        EXPECT_EQ(0x00FF00U, picture.at(1, 1)) << headerSize;
        EXPECT_EQ(0x0000FFU, picture.at(0, 0)) << headerSize;
        EXPECT_EQ(0x848284U, picture.at(1, 0)) << headerSize;
    }
}

TEST(BmpReader, ThirtyTwoBitMasksInAnyOrderAndLength)
{
    BmpFile file = twoByTwo(32);
    file.coding = 3;
    file.masks = { 0x3FF00000, 0x000003FF, 0x0003FC00 };
    file.addRow({ 0x3FF00000, 0x000003FF });
    file.addRow({ 0x0003FC00, 0x20000004 });
    const Picture picture = decode(file.bytes());
    EXPECT_EQ(0xFF0000U, picture.at(0, 1));
    EXPECT_EQ(0x00FF00U, picture.at(1, 1));
    EXPECT_EQ(0x0000FFU, picture.at(0, 0));
    EXPECT_EQ(0x800100U, picture.at(1, 0));
}

TEST(BmpReader, HeadersOfOs2)
{
    BmpFile file = twoByTwo(4);
    file.palette = { 0x010203, 0x040506, 0x070809, 0x0A0B0C };
    file.palette.resize(16);
    file.addRow({ 0, 1 });
    file.addRow({ 2, 3 });
    for (std::uint32_t headerSize : { 12U, 16U, 24U, 48U, 64U }) {
        file.headerSize = headerSize;
        const Picture picture = decode(file.bytes());
        ASSERT_EQ(1, picture.result) << headerSize;
        EXPECT_EQ(0x070809U, picture.at(0, 0)) << headerSize;
        EXPECT_EQ(0x0A0B0CU, picture.at(1, 0)) << headerSize;
        EXPECT_EQ(0x010203U, picture.at(0, 1)) << headerSize;
    }
}

TEST(BmpReader, RunsOfEightBits)
{
    // A run; three single pixels (one byte of filling) and a run; a move; the rest left out.
    const Picture picture = decode(
        codedBmp(8, 5, 4, { 5, 7, 0, 0, 0, 3, 1, 2, 3, 0, 2, 9, 0, 0, 0, 2, 2, 1, 1, 8, 0, 1 }).bytes());
    ASSERT_EQ(1, picture.result);
    const std::uint32_t expected[4][5]
        = { { 0, 0, 8, 0, 0 }, { 0, 0, 0, 0, 0 }, { 1, 2, 3, 9, 9 }, { 7, 7, 7, 7, 7 } };
    for (int y = 0; y < 4; ++y) {
        for (int x = 0; x < 5; ++x) {
            EXPECT_EQ(colour(expected[y][x]), picture.at(x, y)) << x << "," << y;
        }
    }
}

TEST(BmpReader, RunsOfFourBitsAlternateTwoColours)
{
    const Picture picture
        = decode(codedBmp(4, 7, 2, { 7, 0x12, 0, 0, 0, 5, 0x34, 0x56, 0x70, 0, 2, 0x89, 0, 1 }).bytes());
    ASSERT_EQ(1, picture.result);
    const std::uint32_t expected[2][7] = { { 3, 4, 5, 6, 7, 8, 9 }, { 1, 2, 1, 2, 1, 2, 1 } };
    for (int y = 0; y < 2; ++y) {
        for (int x = 0; x < 7; ++x) {
            EXPECT_EQ(colour(expected[y][x]), picture.at(x, y)) << x << "," << y;
        }
    }
}

namespace {

// The indices of a coded picture, rows from the top; empty when there is no picture.
std::string indicesOf(const BmpFile& file)
{
    const Picture picture = decode(file.bytes());
    std::string rows;
    for (int y = 0; y < picture.height; ++y) {
        for (int x = 0; x < picture.width; ++x) {
            rows += static_cast<char>('0' + picture.at(x, y) % 256);
        }
        rows += y + 1 < picture.height ? "/" : "";
    }
    return rows;
}

} // namespace

TEST(BmpReader, RunsPastARowOrThePictureAreCutOff)
{
    EXPECT_EQ("22000/11111", indicesOf(codedBmp(8, 5, 2, { 6, 1, 0, 0, 2, 2, 0, 1 }))) << "a run";
    EXPECT_EQ("00000/11122", indicesOf(codedBmp(8, 5, 2, { 3, 1, 3, 2, 0, 1 }))) << "two runs";
    EXPECT_EQ("90000/12345", indicesOf(codedBmp(8, 5, 2, { 0, 6, 1, 2, 3, 4, 5, 6, 0, 0, 1, 9, 0, 1 })))
        << "single pixels";
    EXPECT_EQ("00000/33000", indicesOf(codedBmp(8, 5, 2, { 2, 3, 0, 0, 0, 0, 1, 1, 0, 1 })))
        << "a pixel above the picture";
    EXPECT_EQ("00000/00000", indicesOf(codedBmp(8, 5, 2, { 0, 2, 6, 0, 1, 9, 0, 1 })))
        << "a move past the row";
    EXPECT_EQ("00000/70000", indicesOf(codedBmp(8, 5, 2, { 1, 7, 0, 2, 0, 3, 1, 9, 0, 1 })))
        << "a move above the picture";
    EXPECT_EQ("34300/12121", indicesOf(codedBmp(4, 5, 2, { 6, 0x12, 0, 0, 3, 0x34, 0, 1 })))
        << "a run of 4 bits";
}

TEST(BmpReader, CodesWithoutAnEndMarkGoAsFarAsTheirLastMark)
{
    EXPECT_EQ("00000/11111", indicesOf(codedBmp(8, 5, 2, { 5, 1, 0, 0 })));
    EXPECT_EQ("00000/11111", indicesOf(codedBmp(8, 5, 2, { 5, 1, 0, 0, 5, 2 })));
    EXPECT_EQ("00000/11111", indicesOf(codedBmp(8, 5, 2, { 5, 1, 0, 0, 5, 2, 3 })));
    EXPECT_EQ("22222/11111", indicesOf(codedBmp(8, 5, 2, { 5, 1, 0, 0, 5, 2, 0, 0 })));
    EXPECT_EQ("00000/30000", indicesOf(codedBmp(8, 5, 2, { 1, 3, 0, 2, 2, 0, 1, 4 })));
    EXPECT_EQ("00000/33330", indicesOf(codedBmp(8, 5, 2, { 4, 3, 0, 0, 0, 5, 1, 2 })))
        << "single pixels past the file";
}

TEST(BmpReader, CodesEndWhereTheHeaderSays)
{
    BmpFile file = codedBmp(8, 5, 2, { 5, 1, 0, 0, 5, 2, 0, 1 });
    file.codesSize = 8;
    EXPECT_EQ("22222/11111", indicesOf(file));
    file.codesSize = 5;
    EXPECT_EQ("00000/11111", indicesOf(file));
    file.codesSize = 100; // Wrong, but an end mark stands there.
    EXPECT_EQ("22222/11111", indicesOf(file));
    file.pixels.resize(6);
    expectEmpty(decode(file.bytes()), "codes cut short");
}

TEST(BmpReader, RunsMayBeStoredFromTheTop)
{
    BmpFile file = codedBmp(8, 5, -2, { 5, 1, 0, 0, 2, 2, 0, 1 });
    EXPECT_EQ("11111/22000", indicesOf(file));
}

TEST(BmpReader, RunsMayEndTheLastRowBeforeTheEndMark)
{
    EXPECT_EQ(1, decode(codedBmp(8, 5, 1, { 5, 1, 0, 0, 0, 1 }).bytes()).result);
}

TEST(BmpReader, FewRunsCannotAnnounceAHugePicture)
{
    expectEmpty(decode(codedBmp(8, 20000, 20000, { 0, 1 }).bytes()), "400 million pixels in some bytes");
    EXPECT_EQ(1, decode(codedBmp(8, 1000, 1000, { 0, 1 }).bytes()).result);
}

TEST(BmpReader, IndexWithoutAColourIsBlack)
{
    BmpFile file = twoByTwo(8);
    file.palette = { 1, 2, 3 };
    file.coloursUsed = 3;
    file.addRow({ 0, 1 });
    file.addRow({ 2, 200 });
    const Picture picture = decode(file.bytes());
    ASSERT_EQ(1, picture.result);
    EXPECT_EQ(3U, picture.at(0, 0));
    EXPECT_EQ(0U, picture.at(1, 0));
    BmpFile coded = codedBmp(8, 2, 1, { 1, 199, 1, 200, 0, 1 });
    coded.palette.resize(200);
    coded.coloursUsed = 200;
    const Picture runs = decode(coded.bytes());
    ASSERT_EQ(1, runs.result);
    EXPECT_EQ(colour(199), runs.at(0, 0));
    EXPECT_EQ(0U, runs.at(1, 0));
}

TEST(BmpReader, ColoursAreReadBehindTheHeadersWhereverPixelsBegin)
{
    BmpFile file = twoByTwo(1);
    file.addRow({ 0, 1 }); // 40 00 00 00: the colour of 0.
    file.addRow({ 1, 0 }); // 80 00 00 00
    const Picture none = decode(file.bytes());
    ASSERT_EQ(1, none.result);
    EXPECT_EQ(0x80U, none.at(0, 0));
    EXPECT_EQ(0x40U, none.at(1, 0));
    file.palette = { 0x123456 };
    const Picture one = decode(file.bytes());
    ASSERT_EQ(1, one.result);
    EXPECT_EQ(0x40U, one.at(0, 0));
    EXPECT_EQ(0x123456U, one.at(1, 0));
}

TEST(BmpReader, EveryTruncationIsEmpty)
{
    for (const auto& kind : allBmpKinds()) {
        const std::vector<unsigned char> bytes = kind.second.bytes();
        ASSERT_EQ(1, decode(bytes).result) << kind.first;
        // Runs go as far as there are any.
        const std::size_t least = kind.second.coding == 1 || kind.second.coding == 2
            ? bytes.size() - kind.second.pixels.size() + 1
            : bytes.size();
        for (std::size_t size = 0; size < least; ++size) {
            expectEmpty(decode({ bytes.begin(), bytes.begin() + static_cast<std::ptrdiff_t>(size) }),
                kind.first + " cut to " + std::to_string(size));
        }
    }
}

TEST(BmpReader, SizesThatNoPictureHasAreEmpty)
{
    for (const auto& kind : allBmpKinds()) {
        const bool coded = kind.second.coding == 1 || kind.second.coding == 2;
        for (std::int32_t size : { 0, -1, INT_MIN, INT_MIN + 1, INT_MAX, INT_MAX - 31, 0x10000000, 0x7FFF }) {
            BmpFile file = kind.second;
            if (file.headerSize == 12 && (size < -1 || size > 0xFFFF)) {
                continue; // This header holds sizes of 16 bits.
            }
            file.height = size;
            file.width = size;
            expectEmpty(decode(file.bytes()), kind.first + " of both sizes " + std::to_string(size));
            if (coded && size == 0x7FFF) {
                continue; // Runs may leave most of a picture out.
            }
            file.height = kind.second.height;
            expectEmpty(decode(file.bytes()), kind.first + " of width " + std::to_string(size));
            file.width = kind.second.width;
            file.height = size;
            if (size != -1) { // One row from the top is a picture.
                expectEmpty(decode(file.bytes()), kind.first + " of height " + std::to_string(size));
            }
        }
    }
}

TEST(BmpReader, WrongOffsetsAreEmpty)
{
    for (const auto& kind : allBmpKinds()) {
        BmpFile file = kind.second;
        const int offset = static_cast<int>(file.bytes().size() - file.pixels.size());
        const int headers = offset - static_cast<int>(file.palette.size()) * (file.headerSize == 12 ? 3 : 4);
        for (int wrong :
            { 0, 13, headers - 1, static_cast<int>(file.bytes().size()), INT_MAX, INT_MIN, -1 }) {
            file.offsetError = static_cast<int>(static_cast<unsigned>(wrong) - static_cast<unsigned>(offset));
            expectEmpty(decode(file.bytes()), kind.first + " with offset " + std::to_string(wrong));
        }
        file.offsetError = 4;
        if (file.coding != 1 && file.coding != 2) {
            expectEmpty(decode(file.bytes()), kind.first + " with an offset too far");
        }
    }
}

TEST(BmpReader, UnknownKindsAreEmpty)
{
    BmpFile file = twoByTwo(24);
    file.addRow({ 1, 2 });
    file.addRow({ 3, 4 });
    ASSERT_EQ(1, decode(file.bytes()).result);
    for (int bits : { 0, 2, 3, 5, 15, 23, 48, 64, 0xFFFF }) {
        BmpFile other = file;
        other.bits = bits;
        expectEmpty(decode(other.bytes()), std::to_string(bits) + " bits");
    }
    for (std::uint32_t coding : { 1U, 2U, 3U, 4U, 5U, 6U, 7U, 0xFFFFFFFFU }) {
        BmpFile other = file;
        other.coding = coding;
        other.masks = { 0xFF, 0xFF00, 0xFF0000 };
        expectEmpty(decode(other.bytes()), "coding " + std::to_string(coding));
    }
    for (std::uint32_t headerSize : { 0U, 11U, 13U, 15U, 125U, 0x7FFFFFFFU, 0xFFFFFFFFU }) {
        std::vector<unsigned char> bytes = file.bytes();
        for (int i = 0; i < 4; ++i) {
            bytes[static_cast<std::size_t>(14 + i)] = static_cast<unsigned char>(headerSize >> (8 * i));
        }
        expectEmpty(decode(bytes), "header of " + std::to_string(headerSize));
    }
    std::vector<unsigned char> bytes = file.bytes();
    bytes[1] = 'A';
    expectEmpty(decode(bytes), "another mark");
}

TEST(BmpReader, MasksThatOverlapHaveGapsOrAreMissingAreEmpty)
{
    BmpFile file = twoByTwo(16);
    file.coding = 3;
    file.addRow({ 1, 2 });
    file.addRow({ 3, 4 });
    file.masks = { 0, 0, 0 };
    expectEmpty(decode(file.bytes()), "no mask");
    file.masks = { 0xF800, 0x0FE0, 0x001F };
    expectEmpty(decode(file.bytes()), "overlapping masks");
    file.masks = { 0xA800, 0x07E0, 0x001F };
    expectEmpty(decode(file.bytes()), "a mask with gaps");
    file.masks = { 0xF800, 0, 0x001F };
    EXPECT_EQ(1, decode(file.bytes()).result);
}

TEST(BmpReader, RandomChangesNeverReadOrWriteOutside)
{
    std::mt19937 random(7);
    const auto kinds = allBmpKinds();
    for (int round = 0; round < 20000; ++round) {
        std::vector<unsigned char> bytes = kinds[random() % kinds.size()].second.bytes();
        for (unsigned i = random() % 4 + 1; i > 0; --i) {
            const std::size_t at = random() % 2 == 0 ? random() % std::min<std::size_t>(bytes.size(), 70)
                                                     : random() % bytes.size();
            bytes[at] = static_cast<unsigned char>(random() % 3 == 0 ? random() % 3 * 127 : random());
        }
        const Picture picture = decode(bytes);
        ASSERT_EQ(picture.result == 1, picture.hasBuffer);
        ASSERT_EQ(picture.result == 1, picture.width > 0 && picture.height > 0);
    }
}

TEST(BmpReader, LoadsFilesAndGivesNothingForAMissingOne)
{
    BmpFile file = twoByTwo(24);
    file.addRow({ 0x112233, 0x445566 });
    file.addRow({ 0x778899, 0xAABBCC });
    const std::vector<unsigned char> bytes = file.bytes();
    const std::string path = testing::TempDir() + "bmp_reader_test.bmp";
    std::FILE* out = std::fopen(path.c_str(), "wb");
    ASSERT_NE(nullptr, out);
    ASSERT_EQ(bytes.size(), std::fwrite(bytes.data(), 1, bytes.size(), out));
    std::fclose(out);
    for (const auto load : { slLoadBmpTexture, slLoadBmpPicture3D }) {
        int w = -1;
        int h = -1;
        unsigned char* pixels = nullptr;
        EXPECT_EQ(1, load(path.c_str(), &w, &h, &pixels));
        EXPECT_EQ(2, w);
        EXPECT_EQ(2, h);
        ASSERT_NE(nullptr, pixels);
        EXPECT_EQ(0x11, pixels[0]);
        slFree(pixels);
        EXPECT_EQ(0, load((path + ".missing").c_str(), &w, &h, &pixels));
        EXPECT_EQ(0, w);
        EXPECT_EQ(0, h);
        EXPECT_EQ(nullptr, pixels);
        EXPECT_EQ(0, load(nullptr, &w, &h, &pixels));
    }
    std::remove(path.c_str());
}

TEST(BmpReader, JudgesPlainPicturesByTheirBeginning)
{
    BmpFile file;
    file.width = 50;
    file.height = 40;
    for (int y = 0; y < file.height; ++y) {
        file.addRow(std::vector<std::uint32_t>(50, 0x123456));
    }
    std::vector<unsigned char> bytes = file.bytes();
    ASSERT_GT(bytes.size(), BmpBeginning);
    EXPECT_EQ(slIsBmp(bytes.data(), BmpBeginning, bytes.size()), 1);
    EXPECT_EQ(slIsBmp(bytes.data(), BmpBeginning, bytes.size() - 1), 0); // Cut short.
    EXPECT_EQ(slIsBmp(bytes.data(), BmpBeginning - 1, bytes.size()), -1);
    EXPECT_EQ(slIsBmp(nullptr, BmpBeginning, bytes.size()), 0);
    bytes[0] = 'X';
    EXPECT_EQ(slIsBmp(bytes.data(), BmpBeginning, bytes.size()), 0);
}

namespace {

// The headers of a picture whose rows would follow.
struct LargeBmpCL
{
    explicit LargeBmpCL(int bits, int width, int height)
    {
        BmpFile file;
        file.width = width;
        file.height = height;
        file.bits = bits;
        file.palette.resize(bits <= 8 ? std::size_t { 1 } << bits : 0);
        bytes = file.bytes();
        const auto stride = (static_cast<std::size_t>(width) * static_cast<std::size_t>(bits) + 31) / 32 * 4;
        size = bytes.size() + stride * static_cast<std::size_t>(height);
        bytes.resize(BmpBeginning);
    }
    int IsBmpM() const { return slIsBmp(bytes.data(), BmpBeginning, size); }
    int IsShownM(std::size_t lacking = 0) const
    {
        return slIsShownBmp(bytes.data(), BmpBeginning, size - lacking);
    }
    std::vector<unsigned char> bytes;
    std::size_t size;
};

} // namespace

TEST(BmpReader, PicturesOfTooManyPixelsForABufferAreShown)
{
    for (const int bits : { 1, 4, 8 }) {
        const LargeBmpCL large(bits, 30000, 30000);
        EXPECT_EQ(large.IsBmpM(), 0) << bits;
        EXPECT_EQ(large.IsShownM(), 1) << bits;
        EXPECT_EQ(large.IsShownM(1), 0) << bits;                          // Cut short.
        EXPECT_EQ(LargeBmpCL(bits, 30000, -30000).IsShownM(), 0) << bits; // Which only we could unpack.
    }
    const LargeBmpCL most(8, 65535, 10922); // As many pixels as there may be.
    EXPECT_EQ(most.IsBmpM(), 1);
    EXPECT_EQ(most.IsShownM(), 1);
    EXPECT_EQ(LargeBmpCL(8, 65536, 10923).IsBmpM(), 0);
    EXPECT_EQ(LargeBmpCL(8, 65536, 10923).IsShownM(), 1);
    EXPECT_EQ(LargeBmpCL(8, 65536, 32767).IsShownM(), 1);
    EXPECT_EQ(LargeBmpCL(8, 65536, 32768).IsShownM(), 0); // Its rows take 2 GB.
    EXPECT_EQ(LargeBmpCL(24, 27000, 26600).IsShownM(), 0);
    EXPECT_EQ(slIsShownBmp(nullptr, BmpBeginning, most.size), 0);
    EXPECT_EQ(slIsShownBmp(most.bytes.data(), BmpBeginning - 1, most.size), -1);
}

TEST(BmpReader, RunsThatAnnounceMoreThanIsBelievedAreShown)
{
    BmpFile file = codedBmp(8, 20000, 20000, { 0, 1 });
    EXPECT_EQ(slIsShownBmp(file.bytes().data(), file.bytes().size(), file.bytes().size()), 0);
    file.codesSize = 2; // The platform's loader must know.
    EXPECT_EQ(slIsShownBmp(file.bytes().data(), file.bytes().size(), file.bytes().size()), 1);
    EXPECT_EQ(slIsBmp(file.bytes().data(), file.bytes().size(), file.bytes().size()), 0);
}

TEST(BmpReader, NeedsAllOfARunCodedPictureToJudge)
{
    BmpFile file;
    file.width = 4000;
    file.height = 1;
    file.bits = 8;
    file.coding = 1;
    file.palette.assign(256, 0x123456);
    for (int i = 0; i < 2000; ++i) {
        file.pixels.insert(file.pixels.end(), { 2, static_cast<unsigned char>(i) });
    }
    file.pixels.insert(file.pixels.end(), { 0, 1 });
    const std::vector<unsigned char> bytes = file.bytes();
    ASSERT_GT(bytes.size(), BmpBeginning);
    EXPECT_EQ(slIsBmp(bytes.data(), BmpBeginning, bytes.size()), -1);
    EXPECT_EQ(slIsBmp(bytes.data(), bytes.size(), bytes.size()), 1);
}
