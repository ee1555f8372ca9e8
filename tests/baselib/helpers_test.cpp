#include "baselib/helpers.h"
#include "baselib/path.h"
#include <climits>
#include <cmath>
#include <cstring>
#include <gtest/gtest.h>
#include <limits>

namespace {

std::string extension(const char* file)
{
    char out[260] = "old";
    EXPECT_EQ(slGetFileExtension(file, out), 1);
    return out;
}

std::string joined(const char* path, const char* file)
{
    char out[261];
    out[260] = '#';
    EXPECT_EQ(slCatFileNameWithPath(path, file, out), 1);
    EXPECT_EQ(out[260], '#');
    return out;
}

} // namespace

TEST(Round, HalvesGoAwayFromZero)
{
    EXPECT_EQ(slRound(0.5F), 1);
    EXPECT_EQ(slRound(-0.5F), -1);
    EXPECT_EQ(slRound(2.5F), 3);
    EXPECT_EQ(slRound(-2.5F), -3);
    EXPECT_EQ(slRound(2.4F), 2);
    EXPECT_EQ(slRound(0.49999997F), 0);
    EXPECT_EQ(slRound(8388609.0F), 8388609);
}

TEST(Round, IsHeldToTheRangeOfInt)
{
    EXPECT_EQ(slRound(3e9F), INT_MAX);
    EXPECT_EQ(slRound(-3e9F), INT_MIN);
    EXPECT_EQ(slRound(std::numeric_limits<float>::infinity()), INT_MAX);
    EXPECT_EQ(slRound(std::nanf("")), 0);
}

TEST(Memory, BlocksAreWritableAndNullMayBeFreed)
{
    void* const block = slMalloc(100);
    ASSERT_NE(block, nullptr);
    std::memset(block, 7, 100);
    slFree(block);
    void* const empty = slMalloc(0);
    EXPECT_NE(empty, nullptr);
    slFree(empty);
    slFree(nullptr);
}

TEST(ListTexts, AreMadeOfTheNameInOneLine)
{
    char begin[260], index[260], end[260];
    EXPECT_EQ(slGetArrBeginStr(begin, "labels"), 1);
    EXPECT_EQ(slGetArrIndexStr(index, "labels"), 1);
    EXPECT_EQ(slGetArrEndStr(end, "labels"), 1);
    EXPECT_STREQ(begin, "Begin labels");
    EXPECT_STREQ(index, "Item labels");
    EXPECT_STREQ(end, "End labels");
    slGetArrEndStr(end, "a\r\nb");
    EXPECT_STREQ(end, "End a  b");
    slGetArrEndStr(end, nullptr);
    EXPECT_STREQ(end, "End ");
    slGetArrBeginStr(begin, std::string(1000, 'n').c_str());
    EXPECT_EQ(std::strlen(begin), 259U);
}

TEST(Path, ExtensionFollowsTheLastPointOfTheLastComponent)
{
    EXPECT_EQ(extension("a.bmp"), "bmp");
    EXPECT_EQ(extension("A.BMP"), "BMP");
    EXPECT_EQ(extension("a.b.c"), "c");
    EXPECT_EQ(extension("a"), "");
    EXPECT_EQ(extension("a."), "");
    EXPECT_EQ(extension(".x"), "x");
    EXPECT_EQ(extension("dir.d/file"), "");
    EXPECT_EQ(extension("dir.d\\file"), "");
    EXPECT_EQ(extension("dir.d/"), "");
    EXPECT_EQ(extension(""), "");
    EXPECT_EQ(extension(nullptr), "");
    EXPECT_EQ(extension(("a." + std::string(1000, 'e')).c_str()), std::string(259, 'e'));
}

TEST(Path, TrailByteThatLooksLikeASeparatorIsNone)
{
    EXPECT_EQ(extension("a.b\xB1\x5C"), "b\xB1\x5C");
    EXPECT_EQ(extension("a.b\xB1\x5C\x5C"
                        "c"),
        "");
    EXPECT_STREQ(slGetFileName("d\\\xB1\x5C.x"), "\xB1\x5C.x");
    EXPECT_EQ(joined("\xB1\x5C", "f"), "\xB1\x5C/f");
}

TEST(Path, JoiningAddsASeparatorOnlyWhereNeeded)
{
    EXPECT_EQ(joined("d", "f.bmp"), "d/f.bmp");
    EXPECT_EQ(joined("d/", "f.bmp"), "d/f.bmp");
    EXPECT_EQ(joined("d\\", "f.bmp"), "d\\f.bmp");
    EXPECT_EQ(joined("C:", "f.bmp"), "C:f.bmp");
    EXPECT_EQ(joined("", "f.bmp"), "f.bmp");
    EXPECT_EQ(joined(nullptr, nullptr), "");
}

TEST(Path, JoiningNeverLeavesTheBuffer)
{
    EXPECT_EQ(joined(std::string(258, 'd').c_str(), "\xD6\xD0").size(), 259U);
    EXPECT_EQ(joined(std::string(257, 'd').c_str(), "\xD6\xD0").size(), 258U);
    char name[260] = "f.bmp";
    slCatFileNameWithPath("d", name, name);
    EXPECT_STREQ(name, "d/f.bmp");
}
