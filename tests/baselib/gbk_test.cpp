#include "baselib/gbk.h"
#include <cstring>
#include <gtest/gtest.h>

#ifdef _WIN32
#include <windows.h>
#endif

namespace {

std::string pairOf(int lead, int trail)
{
    return { static_cast<char>(lead), static_cast<char>(trail) };
}

template <typename Visit> void forEachPair(Visit visit)
{
    for (int lead = 0x81; lead <= 0xFE; ++lead) {
        for (int trail = 0x40; trail <= 0xFE; ++trail) {
            if (trail != 0x7F) {
                visit(pairOf(lead, trail));
            }
        }
    }
}

std::string copied(const char* text, int size)
{
    char buffer[64];
    std::memset(buffer, '#', sizeof buffer);
    slCopyText(buffer, size, text);
    EXPECT_EQ(buffer[size], '#');
    return buffer;
}

} // namespace

TEST(Gbk, CharactersAreOneOrTwoBytes)
{
    const auto length
        = [](const std::string& text) { return slGbkCharLength(text.data(), text.data() + text.size()); };
    EXPECT_EQ(length(""), 0);
    EXPECT_EQ(length("ab"), 1);
    EXPECT_EQ(length("\xD6\xD0"), 2);
    EXPECT_EQ(length("\x81\x40"), 2);
    EXPECT_EQ(length("\xFE\xFE"), 2);
    EXPECT_EQ(length("\x81\x3F"), 1);
    EXPECT_EQ(length("\x81\x7F"), 1);
    EXPECT_EQ(length("\x81\xFF"), 1);
    EXPECT_EQ(length("\x80\x40"), 1);
    EXPECT_EQ(length("\xFF\x40"), 1);
    EXPECT_EQ(length("\x81"), 1);
}

TEST(Gbk, CopyIsCutBetweenCharacters)
{
    EXPECT_EQ(copied("abc", 4), "abc");
    EXPECT_EQ(copied("abc", 3), "ab");
    EXPECT_EQ(copied("a\xD6\xD0\xD6\xD0", 6), "a\xD6\xD0\xD6\xD0");
    EXPECT_EQ(copied("a\xD6\xD0\xD6\xD0", 5), "a\xD6\xD0");
    EXPECT_EQ(copied("\xD6\xD0", 2), "");
    EXPECT_EQ(copied("x", 1), "");
    EXPECT_EQ(copied(nullptr, 4), "");
    char untouched = '#';
    slCopyText(&untouched, 0, "x");
    EXPECT_EQ(untouched, '#');
    slCopyText(nullptr, 5, "x");
}

TEST(Gbk, CopyTellsHowManyBytesItTook)
{
    char to[8];
    EXPECT_EQ(slCopyText(to, 8, "a\xD6\xD0"), 3);
    EXPECT_EQ(slCopyText(to, 3, "a\xD6\xD0"), 1);
    EXPECT_EQ(slCopyText(to, 8, nullptr), 0);
    EXPECT_EQ(slCopyText(to, 0, "a"), 0);
    EXPECT_EQ(slCopyText(nullptr, 8, "a"), 0);
    // Of a counted text zeros are bytes like any other.
    EXPECT_EQ(slCopyText(to, 8, std::string_view("a\0b\xD6\xD0", 5)), 5);
    EXPECT_EQ(std::string(to, 6), std::string("a\0b\xD6\xD0\0", 6));
    EXPECT_EQ(slCopyText(to, 5, std::string_view("a\0b\xD6\xD0", 5)), 3);
    EXPECT_EQ(slCopyText(to, 8, std::string_view()), 0);
}

TEST(Gbk, CopyMayOverlap)
{
    char text[] = "abcdef";
    slCopyText(text, 4, text + 2);
    EXPECT_STREQ(text, "cde");
}

TEST(Gbk, CutInPlaceKeepsWholeCharacters)
{
    char text[] = "a\xD6\xD0\xD6\xD0";
    slCutText(text, 9);
    EXPECT_STREQ(text, "a\xD6\xD0\xD6\xD0");
    slCutText(text, 4);
    EXPECT_STREQ(text, "a\xD6\xD0");
    slCutText(text, 2);
    EXPECT_STREQ(text, "a");
    slCutText(text, -3);
    EXPECT_STREQ(text, "");
    slCutText(nullptr, 1);
}

TEST(Gbk, DecodesChineseAndAscii)
{
    EXPECT_EQ(slGbkToUtf8("a\xB1\xEA\xCC\xE2!"), "a标题!");
    EXPECT_EQ(slGbkToUtf16("\xB1\xEA"), u"标");
    EXPECT_EQ(slGbkToUtf8(nullptr), "");
    EXPECT_EQ(slGbkToUtf8("a\0b", 3), std::string("a\0b", 3));
}

TEST(Gbk, BytesOfNoCharacterAreReplacedAndTheNextOneIsRead)
{
    EXPECT_EQ(slGbkToUtf8("\x81 x"), "\uFFFD x");
    EXPECT_EQ(slGbkToUtf8("\xFF"
                          "A"),
        "\uFFFD"
        "A");
    EXPECT_EQ(slGbkToUtf8("\xD6"), "\uFFFD");
    EXPECT_EQ(slGbkToUtf8("\xD6\xFF\xD6\xD0"), "\uFFFD\uFFFD中");
    EXPECT_EQ(slGbkToUtf8("\x80"), "€");
}

TEST(Gbk, BrokenBytesAreShownAsWindowsConvertsThem)
{
    EXPECT_EQ(slGbkToShownUtf16("\x81 x"), u"?x");
    EXPECT_EQ(slGbkToShownUtf16("a\xD6"), u"a?");
    EXPECT_EQ(slGbkToShownUtf16("\xD6\xFF\xD6\xD0"), u"?\u4E2D");
    EXPECT_EQ(slGbkToShownUtf16("\x81\x81\x81"), u"\u4E96?");
    EXPECT_EQ(slGbkToShownUtf16("\x80\xFF@"), u"\u20AC\uF8F5@");
    EXPECT_EQ(slGbkToShownUtf16("\xAA\xA1"), u"\uE000");
    EXPECT_EQ(slGbkToShownUtf16(""), u"");
    EXPECT_EQ(slGbkToShownUtf16(nullptr), u"");
}

TEST(Gbk, UserDefinedPairsAreKeptForThePlatformAndReplacedInPrint)
{
    EXPECT_EQ(slGbkToUtf16("\xAA\xA1"), u"\uE000");
    EXPECT_EQ(slGbkToUtf8("\xAA\xA1"
                          "b"),
        "\uFFFD"
        "b");
}

TEST(Gbk, EveryPairComesBackWhenEncoded)
{
    forEachPair([](const std::string& pair) {
        const std::u16string wide = slGbkToUtf16(pair.data(), 2);
        ASSERT_EQ(wide.size(), 1U);
        int lost = -1;
        ASSERT_EQ(slUtf16ToGbk(wide.data(), 1, &lost), pair);
        ASSERT_EQ(lost, 0);
    });
}

TEST(Gbk, WhatHasNoFormBecomesAQuestionMarkAndIsCounted)
{
    int lost = 0;
    const std::u16string text = u"标\U0001F600x\u0E01\u20AC";
    EXPECT_EQ(slUtf16ToGbk(text.data(), text.size(), &lost), "\xB1\xEA?x?\x80");
    EXPECT_EQ(lost, 2);
    EXPECT_EQ(slUtf8ToGbk("标\U0001F600x\u0E01\u20AC", &lost), "\xB1\xEA?x?\x80");
    EXPECT_EQ(lost, 2);
    const char16_t halves[] = { 0xD800, u'a', 0xDC00 };
    EXPECT_EQ(slUtf16ToGbk(halves, 3, &lost), "?a?");
    EXPECT_EQ(slUtf8ToGbk("plain", &lost), "plain");
    EXPECT_EQ(lost, 0);
}

TEST(Gbk, CharactersBeyondSixteenBitsTakeFourBytesOfUtf8)
{
    for (const std::string utf8 : { "\xF0\x90\x80\x80", "\xF0\x9F\x98\x80", "\xF4\x8F\xBF\xBF" }) {
        const std::u16string wide = slUtf8ToUtf16(utf8);
        EXPECT_EQ(wide.size(), 2u);
        EXPECT_EQ(slUtf16ToUtf8(wide.data(), wide.size()), utf8);
        int lost = 0;
        EXPECT_EQ(slUtf16ToGbk(wide.data(), wide.size(), &lost), "?");
        EXPECT_EQ(slUtf8ToGbk(utf8, &lost), "?");
        EXPECT_EQ(lost, 1);
    }
}

TEST(Gbk, BrokenUtf8IsReplacedByteByByte)
{
    int lost = 0;
    EXPECT_EQ(slUtf8ToGbk("\x80"
                          "a\xE6\xA0"
                          "b\xC1\x81\xE0\x80\x80\xF5",
                  &lost),
        "?a??b??????");
    EXPECT_EQ(lost, 9);
    EXPECT_EQ(slUtf8ToGbk("\xE6"), "?");
}

#ifdef _WIN32
TEST(Gbk, TableIsWhatCodePage936IsToThePlatform)
{
    forEachPair([](const std::string& pair) {
        wchar_t expected[2] = {};
        ASSERT_EQ(MultiByteToWideChar(936, 0, pair.data(), 2, expected, 2), 1);
        ASSERT_EQ(slGbkToWide(pair.c_str()), std::wstring(expected, 1));
    });
    for (int value = 1; value <= 0x80; ++value) {
        const std::string text(1, static_cast<char>(value));
        wchar_t expected = 0;
        ASSERT_EQ(MultiByteToWideChar(936, MB_ERR_INVALID_CHARS, text.data(), 1, &expected, 1), 1);
        ASSERT_EQ(slGbkToWide(text.c_str()), std::wstring(1, expected));
        ASSERT_EQ(slWideToGbk(std::wstring(1, expected)), text);
    }
}
#endif
