#include "baselib/io.h"
#include "baselib/number_text.h"
#include "support/temp_file.h"
#include <algorithm>
#include <cfloat>
#include <climits>
#include <cmath>
#include <gtest/gtest.h>

namespace {

// A reader of a file of these bytes.
struct Reader
{
    explicit Reader(const std::string& bytes, const char* mode = "r")
        : file(bytes)
    {
        io.OpenM(file.path(), mode);
    }

    TempFile file;
    VrIOCL io;
};

std::string gets(VrIOCL& io, int size = 260)
{
    std::string buffer(300, '#');
    io.InputGetsM(buffer.data(), size);
    return buffer.c_str();
}

// The first item of a file of these bytes.
std::string item(const std::string& bytes, int size = 260)
{
    Reader reader(bytes);
    return gets(reader.io, size);
}

float real(const std::string& text)
{
    float value = -77;
    Reader(text).io.InputRM(&value);
    return value;
}

} // namespace

TEST(IoNumbers, SkipBlanksAndLineEndsBetweenNumbers)
{
    Reader reader(std::string(" 12\t-3\r\n\v\f+4\n") + '\0' + "5x");
    int a = 0, b = 0, c = 0, d = 0;
    EXPECT_EQ(reader.io.InputDM(&a, &b, &c, &d), 4);
    EXPECT_EQ(a, 12);
    EXPECT_EQ(b, -3);
    EXPECT_EQ(c, 4);
    EXPECT_EQ(d, 5);
    EXPECT_EQ(gets(reader.io), "x");
}

TEST(IoNumbers, TextAfterTheDigitsStaysForTheNextRead)
{
    Reader reader("12abc");
    int value = 0;
    EXPECT_EQ(reader.io.InputDM(&value), 1);
    EXPECT_EQ(value, 12);
    EXPECT_EQ(gets(reader.io), "abc");
}

TEST(IoNumbers, CallStopsWhereNoNumberStands)
{
    Reader reader("1 2 - 3");
    int a = 9, b = 9, c = 9, d = 9;
    EXPECT_EQ(reader.io.InputDM(&a, &b, &c, &d), 2);
    EXPECT_EQ(c, 9);
    EXPECT_EQ(d, 9);
    EXPECT_EQ(gets(reader.io), "- 3");
}

TEST(IoNumbers, NullPointersAreNotRead)
{
    Reader reader("1 2 3 4 5 6 7 8 9 10");
    int a = 0, b = 0, last = 0;
    EXPECT_EQ(reader.io.InputDM(&a, nullptr, &b), 2);
    EXPECT_EQ(b, 2);
    int x = 0;
    EXPECT_EQ(reader.io.InputDM(&x, &x, &x, &x, &x, &x, &x, nullptr, &last), 8);
    EXPECT_EQ(last, 10);
}

TEST(IoNumbers, IntsSaturate)
{
    Reader reader(
        "2147483647 2147483648 -2147483648 -2147483649 99999999999999999999999 -99999999999999999999999");
    for (int expected : { INT_MAX, INT_MAX, INT_MIN, INT_MIN, INT_MAX, INT_MIN }) {
        int value = 0;
        ASSERT_EQ(reader.io.InputDM(&value), 1);
        EXPECT_EQ(value, expected);
    }
    int value = 3;
    EXPECT_EQ(reader.io.InputDM(&value), 0);
    EXPECT_EQ(value, 3);
}

TEST(IoNumbers, PairsAndTriplesKeepWhatCouldNotBeRead)
{
    Reader reader("1 2 3 4 x");
    int pair[2] = {};
    int triple[3] = { 7, 8, 9 };
    EXPECT_EQ(reader.io.InputInt2DM(pair), 2);
    EXPECT_EQ(pair[1], 2);
    EXPECT_EQ(reader.io.InputInt3DM(triple), 2);
    EXPECT_EQ(triple[1], 4);
    EXPECT_EQ(triple[2], 9);
}

TEST(IoNumbers, EveryFormOfARealIsRead)
{
    EXPECT_EQ(real("1"), 1.0F);
    EXPECT_EQ(real("+1.5"), 1.5F);
    EXPECT_EQ(real("-.25"), -0.25F);
    EXPECT_EQ(real("3."), 3.0F);
    EXPECT_EQ(real("2.5e2"), 250.0F);
    EXPECT_EQ(real("2.5E+2"), 250.0F);
    EXPECT_EQ(real(".5e-1"), 0.05F);
    EXPECT_EQ(real("0.1"), 0.1F);
    EXPECT_EQ(real("16777217"), 16777216.0F);
    EXPECT_EQ(real("16777217.0000001"), 16777218.0F);
    EXPECT_TRUE(std::signbit(real("-0")));
}

TEST(IoNumbers, RealsSaturate)
{
    EXPECT_EQ(real("1e39"), FLT_MAX);
    EXPECT_EQ(real("-1e99999999999999999999"), -FLT_MAX);
    EXPECT_EQ(real(std::string(500, '9')), FLT_MAX);
    EXPECT_EQ(real("1e-60"), 0.0F);
    EXPECT_EQ(real("1e-99999999999999999999"), 0.0F);
    EXPECT_EQ(real("0." + std::string(500, '0') + "1"), 0.0F);
    EXPECT_EQ(real("0." + std::string(500, '0') + "1e501"), 1.0F);
    EXPECT_EQ(real("0e99999"), 0.0F);
    EXPECT_EQ(real("1e-45"), FLT_TRUE_MIN);
}

TEST(IoNumbers, WhatIsNoRealIsLeft)
{
    for (const char* text : { "x", ".", "-", "-.", "e5", ".e5", "inf", "nan", "-infinity", "," }) {
        Reader reader(text);
        float value = 5;
        EXPECT_EQ(reader.io.InputRM(&value), 0) << text;
        EXPECT_EQ(value, 5.0F);
        EXPECT_EQ(gets(reader.io), text);
    }
}

TEST(IoNumbers, RealEndsWhereItsFormEnds)
{
    const char* const cases[][2]
        = { { "1e", "e" }, { "1e+x", "e+x" }, { "1.5.5", ".5" }, { "0x10", "x10" }, { "1,5", ",5" } };
    for (const auto& [text, rest] : cases) {
        Reader reader(text);
        float value = -1;
        EXPECT_EQ(reader.io.InputRM(&value), 1);
        EXPECT_EQ(gets(reader.io), rest);
    }
}

TEST(IoNumbers, PointTakesTwoReals)
{
    Reader reader("1.5\n2 z");
    float pair[2] = {};
    EXPECT_EQ(reader.io.InputPoint2DM(pair), 2);
    EXPECT_EQ(pair[0], 1.5F);
    EXPECT_EQ(pair[1], 2.0F);
}

TEST(IoNumbers, CharactersAreSingleBytesAfterBlanks)
{
    Reader reader(" a\nbc");
    char a = 0, b = 0, c = 0, d = '!';
    EXPECT_EQ(reader.io.InputCM(&a, nullptr, &b, &c, &d), 3);
    EXPECT_EQ(a, 'a');
    EXPECT_EQ(b, 'b');
    EXPECT_EQ(c, 'c');
    EXPECT_EQ(d, '!');
}

TEST(IoStrings, ItemIsTheRestOfTheLineWithoutBlanksAround)
{
    Reader reader("\r\n \t two words \t\r\nnext");
    EXPECT_EQ(gets(reader.io), "two words");
    EXPECT_EQ(reader.io.BytesLeftM(), std::string("\r\nnext").size());
    EXPECT_EQ(gets(reader.io), "next");
}

TEST(IoStrings, EndOfFileGivesTheEmptyStringAndZero)
{
    Reader reader("last \n \n");
    char buffer[260] = "old";
    EXPECT_EQ(reader.io.InputGetsM(buffer, 260), 1);
    EXPECT_STREQ(buffer, "last");
    EXPECT_EQ(reader.io.InputGetsM(buffer, 260), 0);
    EXPECT_STREQ(buffer, "");
}

TEST(IoStrings, LongItemIsCutAndTheRestOfItsLinePassedOver)
{
    Reader reader(std::string(300, 'x') + "\n7");
    EXPECT_EQ(gets(reader.io, 255), std::string(254, 'x'));
    int value = 0;
    EXPECT_EQ(reader.io.InputDM(&value), 1);
    EXPECT_EQ(value, 7);
}

TEST(IoStrings, BufferOfSixFitsFiveBytesAndNotOneMore)
{
    EXPECT_EQ(item("12345  \n", 6), "12345");
    EXPECT_EQ(item("123456\n", 6), "12345");
}

TEST(IoStrings, CutNeverFallsInsideACharacter)
{
    // Four double-byte characters whose trail bytes are lead bytes too.
    EXPECT_EQ(item("\xD6\xD0\xD6\xD0\xD6\xD0\xD6\xD0", 6), "\xD6\xD0\xD6\xD0");
    EXPECT_EQ(item("a\xD6\xD0\xD6\xD0", 6), "a\xD6\xD0\xD6\xD0");
    EXPECT_EQ(item("a\xD6\xD0\xD6\xD0", 5), "a\xD6\xD0");
    EXPECT_EQ(item("\xD6\x5B", 2), "");
}

TEST(IoStrings, BlanksAreDroppedBeforeCutting)
{
    EXPECT_EQ(item("ab   cd", 6), "ab   ");
    EXPECT_EQ(item("ab   ", 4), "ab");
}

TEST(IoStrings, FullWidthSpaceIsAnOrdinaryCharacter)
{
    EXPECT_EQ(item(" \xA1\xA1x\xA1\xA1 \n"), "\xA1\xA1x\xA1\xA1");
}

TEST(IoStrings, NulEndsTheStoredTextButNotTheItem)
{
    Reader reader(std::string("ab\0cd\n5", 7));
    EXPECT_EQ(gets(reader.io), "ab");
    int value = 0;
    EXPECT_EQ(reader.io.InputDM(&value), 1);
    EXPECT_EQ(value, 5);
}

TEST(IoStrings, LoneCarriageReturnIsNoLineEnd)
{
    EXPECT_EQ(item("ab\rcd\r\n"), "ab\rcd");
}

TEST(IoStrings, InputSmWithoutLimitFillsABufferOf260)
{
    Reader reader(std::string(400, 'y') + "\nabc");
    char buffer[262];
    buffer[260] = '#';
    EXPECT_EQ(reader.io.InputSM(buffer, -1, 1), 1);
    EXPECT_EQ(std::string(buffer), std::string(259, 'y'));
    EXPECT_EQ(buffer[260], '#');
    EXPECT_EQ(reader.io.InputSM(buffer, 3, 1), 1);
    EXPECT_STREQ(buffer, "ab");
}

TEST(IoStrings, BufferWithoutRoomIsLeftAlone)
{
    Reader reader("abc\ndef\nghi");
    char buffer[2] = "#";
    EXPECT_EQ(reader.io.InputGetsM(buffer, 0), 1);
    EXPECT_STREQ(buffer, "#");
    EXPECT_EQ(reader.io.InputGetsM(nullptr, 10), 1);
    EXPECT_EQ(gets(reader.io), "ghi");
}

TEST(IoLines, SkipLineEndsJustPastTheLineFeed)
{
    Reader reader("a b\r\n c\nd");
    EXPECT_EQ(reader.io.SkipLineM(), 1);
    EXPECT_EQ(reader.io.BytesLeftM(), 4U);
    reader.io.SkipLineM();
    EXPECT_EQ(reader.io.BytesLeftM(), 1U);
    reader.io.SkipLineM();
    reader.io.SkipLineM();
    EXPECT_EQ(reader.io.BytesLeftM(), 0U);
}

TEST(IoLines, SkipSomeLinesTakesAnyNumber)
{
    Reader reader("1\n2\n3\n4\n5");
    int value = 0;
    reader.io.SkipSomeLinesM(-1);
    reader.io.SkipSomeLinesM(INT_MIN);
    reader.io.SkipSomeLinesM(0);
    EXPECT_EQ(reader.io.BytesLeftM(), 9U);
    reader.io.SkipSomeLinesM(2);
    reader.io.InputDM(&value);
    EXPECT_EQ(value, 3);
    reader.io.SkipSomeLinesM(INT_MAX);
    EXPECT_EQ(reader.io.BytesLeftM(), 0U);
}

TEST(IoBinary, ReadsFourByteValuesAndCountedTexts)
{
    Reader reader(std::string("\x01\0\0\0\xFE\xFF\xFF\xFF\0\0\xC0\x3F\x03\0\0\0abc ", 20), "rb");
    EXPECT_TRUE(reader.io.IsBinaryM());
    int pair[2] = {};
    EXPECT_EQ(reader.io.InputInt2DM(pair), 2);
    EXPECT_EQ(pair[0], 1);
    EXPECT_EQ(pair[1], -2);
    float value = 0;
    EXPECT_EQ(reader.io.InputRM(&value), 1);
    EXPECT_EQ(value, 1.5F);
    EXPECT_EQ(gets(reader.io), "abc");
    char space = 0;
    EXPECT_EQ(reader.io.InputCM(&space), 1);
    EXPECT_EQ(space, ' ');
    EXPECT_EQ(reader.io.InputCM(&space), 0);
}

TEST(IoBinary, TextWithALengthBeyondTheFileIsNotRead)
{
    for (const char* length : { "\xFF\xFF\xFF\x7F", "\xFF\xFF\xFF\xFF", "\x04\0\0" }) {
        Reader reader(std::string(length, 4) + "abc", "rb");
        char buffer[260] = "old";
        EXPECT_EQ(reader.io.InputGetsM(buffer, 260), 0);
        EXPECT_STREQ(buffer, "");
        EXPECT_EQ(reader.io.BytesLeftM(), 7U);
    }
    Reader reader("abc", "rb");
    int value = 6;
    EXPECT_EQ(reader.io.InputDM(&value), 0);
    EXPECT_EQ(value, 6);
}

// Each number of up to twelve digits, signed or not, before each byte there is and at each distance from the
// end.
TEST(IoRead, IntsOfAnyLengthBeforeAnyByteWhereverTheFileEnds)
{
    const std::string digits = "907215364098";
    for (const char* const sign : { "", "-", "+" }) {
        for (std::size_t length = 1; length <= digits.size(); ++length) {
            const std::string number = sign + digits.substr(0, length);
            const long long whole = std::stoll(number);
            const int wanted = static_cast<int>(std::clamp<long long>(whole, INT_MIN, INT_MAX));
            for (int byte = -1; byte < 256; ++byte) {
                if (byte >= '0' && byte <= '9') {
                    continue;
                }
                for (int more = 0; more < (byte < 0 ? 1 : 9); ++more) {
                    std::string bytes = number;
                    bytes += byte >= 0 ? std::string(1, static_cast<char>(byte)) : "";
                    bytes += std::string(static_cast<std::size_t>(more), '5');
                    int value = 77;
                    const char* const end = slReadInt(
                        bytes.data(), bytes.data() + number.size() + (byte >= 0 ? 1 : 0) + more, &value);
                    VrIOCL io;
                    io.OpenM(std::make_shared<FileTextCL>(bytes));
                    int read = 77;
                    ASSERT_TRUE(io.InputOneM(&read)) << bytes;
                    ASSERT_EQ(value, wanted) << bytes;
                    ASSERT_EQ(end - bytes.data(), static_cast<std::ptrdiff_t>(number.size())) << bytes;
                    ASSERT_EQ(read, wanted) << bytes;
                    ASSERT_EQ(io.PositionM(), number.size()) << bytes;
                }
            }
        }
    }
}
