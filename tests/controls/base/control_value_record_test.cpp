// Values of controls as texts to keep, and their texts in three encodings.
#include "controls/base/control_value.h"
#include <cfloat>
#include <climits>
#include <clocale>
#include <gtest/gtest.h>
#include <random>

namespace {

// What a saved text means, saved again; "-" when it means nothing.
std::string again(const std::string& saved, unsigned parts)
{
    const auto value = ControlValueCL::FromSavedM(saved, parts);
    return value ? value->SavedM() : "-";
}

ControlValueCL ofReal(float real)
{
    ControlValueCL value;
    value.real = real;
    return value;
}

const std::string ChineseUtf8 = "\xE8\xBD\xAC"; // 转
const std::string ChineseGbk = "\xD7\xAA";
const std::string EmojiUtf8 = "\xF0\x9F\x98\x80";

} // namespace

TEST(SavedValue, ComesBackAsItWas)
{
    EXPECT_EQ(again("1", CheckedPart), "1");
    EXPECT_EQ(again("0", CheckedPart), "0");
    for (const char* number : { "0", "-5", "2147483647", "-2147483648" }) {
        EXPECT_EQ(again(number, NumberPart), number);
    }
    EXPECT_EQ(again("22.5 -3", RealPart | NumberPart), "22.5 -3");
    EXPECT_EQ(again("", LinesPart), "");
    EXPECT_EQ(again("0 3 15", LinesPart), "0 3 15");
    EXPECT_EQ(again("2=a=b", LinesPart | TextPart), "2=a=b");
    EXPECT_EQ(again("-1=", LinesPart | TextPart), "-1=");
    for (const std::string& text : { std::string(), std::string(" a\r\nb "), ChineseUtf8, EmojiUtf8 }) {
        EXPECT_EQ(again(text, TextPart), text);
        EXPECT_EQ(again(text, PathPart), text);
    }
}

TEST(SavedValue, OfARealIsTheShortestThatReadsBackTheSameAtAnyLocale)
{
    EXPECT_EQ(ofReal(0.1F).SavedM(), "0.1");
    EXPECT_EQ(ofReal(1200).SavedM(), "1200");
    EXPECT_EQ(ofReal(-0.0F).SavedM(), "-0");
    const std::string before = std::setlocale(LC_NUMERIC, nullptr);
    for (const char* name : { "de_DE.UTF-8", "German_Germany.1252", "" }) {
        std::setlocale(LC_NUMERIC, name);
        EXPECT_EQ(ofReal(2.5F).SavedM(), "2.5");
        EXPECT_EQ(again("2.5", RealPart), "2.5");
    }
    std::setlocale(LC_NUMERIC, before.c_str());
    std::mt19937 random(20240611);
    std::uniform_real_distribution<float> mantissa(-1, 1);
    std::uniform_int_distribution<int> exponent(-120, 120);
    for (int i = 0; i < 20000; ++i) {
        const float real = std::ldexp(mantissa(random), exponent(random));
        const auto read = ControlValueCL::FromSavedM(ofReal(real).SavedM(), RealPart);
        ASSERT_TRUE(read && read->real == real) << ofReal(real).SavedM();
    }
    for (const float real : { FLT_MAX, -FLT_MAX, FLT_MIN, FLT_TRUE_MIN }) {
        EXPECT_EQ(ControlValueCL::FromSavedM(ofReal(real).SavedM(), RealPart)->real, real);
    }
}

TEST(SavedValue, ThatIsNoneOfItsKindIsRefused)
{
    for (const char* text : { "", "2", "true", " 1", "1 ", "10" }) {
        EXPECT_EQ(again(text, CheckedPart), "-") << text;
    }
    for (const char* text : { "", "x", "1x", " 1", "1 ", "+1", "1.5", "2147483648", "0x10" }) {
        EXPECT_EQ(again(text, NumberPart), "-") << text;
    }
    for (const char* text : { "", "x", "-", "--1", "-+1", "+1", "1,5", "1.5 ", " 1.5", "1e99" }) {
        EXPECT_EQ(again(text, RealPart), "-") << text;
    }
    for (const char* text : { "1.5", "1.5 ", "1.5 x", " 3", "1.5 3 4" }) {
        EXPECT_EQ(again(text, RealPart | NumberPart), "-") << text;
    }
    for (const char* text : { " ", "1 ", " 1", "1  2", "1,2", "x" }) {
        EXPECT_EQ(again(text, LinesPart), "-") << text;
    }
    for (const char* text : { "", "1", "x=1", "1 =a" }) {
        EXPECT_EQ(again(text, LinesPart | TextPart), "-") << text;
    }
    EXPECT_EQ(again("1", NoPart), "-");
    EXPECT_EQ(again("1", CheckedPart | NumberPart), "-"); // No kind has these two.
}

TEST(ControlValue, KnowsItsParts)
{
    ControlValueCL value;
    EXPECT_EQ(value.PartsM(), 0U);
    EXPECT_FALSE(value.IsOfM(NumberPart));
    value.number = 5;
    value.text = "a";
    EXPECT_EQ(value.PartsM(), static_cast<unsigned>(NumberPart | TextPart));
    EXPECT_TRUE(value.IsOfM(NumberPart | TextPart | LinesPart));
    EXPECT_FALSE(value.IsOfM(NumberPart));
    EXPECT_EQ(value.OnlyM(NumberPart).PartsM(), static_cast<unsigned>(NumberPart));
    value.text = ValueTextCL(nullptr); // No text is no part, and nothing to set.
    EXPECT_EQ(value.PartsM(), static_cast<unsigned>(NumberPart));
    EXPECT_FALSE(value.IsOfM(NumberPart | TextPart));
}

TEST(ControlValue, LinesMustExistAndBeOneWhereOneCanBeSelected)
{
    ControlValueCL value;
    EXPECT_FALSE(value.LinesOfM(5, true));
    value.lines = { 3, 1, 3 };
    EXPECT_EQ(value.LinesOfM(4, true), (std::vector<int> { 1, 3 }));
    EXPECT_FALSE(value.LinesOfM(3, true));
    EXPECT_FALSE(value.LinesOfM(4, false));
    value.lines = { -1 };
    EXPECT_FALSE(value.LinesOfM(4, true));
    value.lines = { 2, 2 };
    EXPECT_EQ(value.LinesOfM(4, false), (std::vector<int> { 2 }));
    value.lines = std::vector<int>();
    EXPECT_EQ(value.LinesOfM(0, false), std::vector<int>());
}

TEST(ValueText, ConvertsBetweenItsEncodings)
{
    const ValueTextCL text(ChineseGbk + "a");
    EXPECT_EQ(text.Utf8M(), ChineseUtf8 + "a");
    EXPECT_EQ(text.Utf16M(), u"\x8F6C\x0061");
    EXPECT_EQ(ValueTextCL::FromUtf8M(ChineseUtf8 + "a"), text);
    int lost = 0;
    EXPECT_EQ(text.GbkM(&lost), ChineseGbk + "a");
    EXPECT_EQ(lost, 0);
    const auto emoji = ValueTextCL::FromUtf8M(EmojiUtf8);
    EXPECT_EQ(emoji.Utf16M(), u"\xD83D\xDE00");
    EXPECT_EQ(emoji.Utf8M(), EmojiUtf8);
    EXPECT_EQ(emoji.GbkM(&lost), "?");
    EXPECT_EQ(lost, 1);
}

TEST(ValueText, ThatIsBrokenHasAReplacementInItsPlace)
{
    const std::string replacement = "\xEF\xBF\xBD";
    // A lone second byte; a half pair, as UTF-8 does not write it; beyond Unicode; cut short.
    EXPECT_EQ(ValueTextCL::FromUtf8M("a\x80z").Utf8M(), "a" + replacement + "z");
    EXPECT_EQ(ValueTextCL::FromUtf8M("\xED\xA0\x80").Utf8M(), replacement);
    EXPECT_EQ(ValueTextCL::FromUtf8M("\xF4\x90\x80\x80").Utf8M(), replacement);
    EXPECT_EQ(ValueTextCL::FromUtf8M("\xE8\xBD").Utf8M(), replacement + replacement);
    EXPECT_EQ(ValueTextCL(std::u16string(u"a\xD83D")).Utf8M(), "a" + replacement);
    EXPECT_EQ(ValueTextCL(std::u16string(u"\xDE00z")).Utf8M(), replacement + "z");
}

TEST(ValueText, EveryUtf8CharacterComesBack)
{
    for (char32_t code = 1; code <= 0x10FFFF; code += code < 0x3000 ? 1 : 97) {
        if (code >= 0xD800 && code <= 0xDFFF) {
            continue;
        }
        std::u16string wide;
        if (code < 0x10000) {
            wide += static_cast<char16_t>(code);
        } else {
            wide += static_cast<char16_t>(0xD800 + ((code - 0x10000) >> 10));
            wide += static_cast<char16_t>(0xDC00 + ((code - 0x10000) & 0x3FF));
        }
        const std::string utf8 = ValueTextCL(wide).Utf8M();
        ASSERT_EQ(utf8.size(), code < 0x80 ? 1U : code < 0x800 ? 2U : code < 0x10000 ? 3U : 4U);
        ASSERT_EQ(ValueTextCL::FromUtf8M(utf8).Utf16M(), wide) << std::hex << static_cast<unsigned>(code);
    }
}

TEST(ValueText, IsCutBetweenCharacters)
{
    const ValueTextCL text(ChineseGbk + ChineseGbk);
    char buffer[10] = "kept";
    EXPECT_EQ(text.GbkM(nullptr, 10), 5);
    EXPECT_EQ(text.GbkM(buffer, 0), 5);
    EXPECT_STREQ(buffer, "kept");
    EXPECT_EQ(text.GbkM(buffer, 4), 5);
    EXPECT_EQ(buffer, ChineseGbk);
    EXPECT_EQ(text.GbkM(buffer, 5), 5);
    EXPECT_EQ(buffer, ChineseGbk + ChineseGbk);
    EXPECT_EQ(text.Utf8M(buffer, -1), 7);
    EXPECT_EQ(text.Utf8M(nullptr, 9), 7);
    for (int size = 1; size <= 9; ++size) {
        EXPECT_EQ(text.Utf8M(buffer, size), 7);
        EXPECT_EQ(buffer, size > 6 ? ChineseUtf8 + ChineseUtf8 : size > 3 ? ChineseUtf8 : "") << size;
    }
}

#ifdef _WIN32
TEST(ValueText, OfSixteenBitsIsCutBetweenCharactersToo)
{
    wchar_t buffer[4] = L"";
    EXPECT_EQ(ValueTextCL(L"a\xD83D\xDE00").WideM(buffer, 3), 4); // One character of two units.
    EXPECT_STREQ(buffer, L"a");
    EXPECT_EQ(ValueTextCL(L"a\xE000z").WideM(buffer, 2), 4);
    EXPECT_STREQ(buffer, L"a");
    EXPECT_EQ(ValueTextCL(L"ab\xE000").WideM(buffer, 3), 4);
    EXPECT_STREQ(buffer, L"ab");
    EXPECT_EQ(ValueTextCL(L"ab\xDBFF\xDFFF").WideM(buffer, 4), 5);
    EXPECT_STREQ(buffer, L"ab");
}
#endif

TEST(ValueText, OfANullPointerIsNone)
{
    EXPECT_TRUE(ValueTextCL(static_cast<const char*>(nullptr)).IsNoneM());
    EXPECT_TRUE(ValueTextCL::FromUtf8M(static_cast<const char*>(nullptr)).IsNoneM());
    EXPECT_TRUE(ValueTextCL(nullptr).IsNoneM());
    EXPECT_TRUE(ValueTextCL::FromUtf8M(nullptr).IsNoneM());
    EXPECT_FALSE(ValueTextCL("").IsNoneM());
    EXPECT_NE(ValueTextCL(""), ValueTextCL(static_cast<const char*>(nullptr)));
    EXPECT_EQ(ValueTextCL(static_cast<const char*>(nullptr)).Utf8M(), "");
}
