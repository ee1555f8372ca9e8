#include "baselib/gbk.h"
#include "controls/text/typed_value.h"
#include <cfloat>
#include <climits>
#include <clocale>
#include <gtest/gtest.h>

namespace {

simpleValD ints(int first, int second)
{
    simpleValD pair;
    pair.numbers[0] = first;
    pair.numbers[1] = second;
    return pair;
}

TypedValueCL integer(int minimum, int maximum)
{
    TypedValueCL value;
    value.SetTypeM(IntegerType, 0);
    value.SetRangeM(ints(minimum, maximum));
    return value;
}

TypedValueCL real(float minimum, float maximum, int decimals)
{
    TypedValueCL value;
    value.SetTypeM(RealType, decimals);
    simpleValD range;
    range.reals[0] = minimum;
    range.reals[1] = maximum;
    value.SetRangeM(range);
    return value;
}

TypedValueCL text(int minimum, int maximum)
{
    TypedValueCL value;
    value.SetTypeM(TextType, 0);
    value.SetRangeM(ints(minimum, maximum));
    return value;
}

std::string shown(const TypedValueCL& value)
{
    char to[TextSize] = "untouched";
    value.ShowM(to, TextSize);
    return slGbkToUtf8(to);
}

// The check code and the value after reading a text, given in UTF-8.
std::string read(TypedValueCL value, const std::string& utf8)
{
    const int code = value.ReadM(slUtf8ToGbk(utf8).c_str());
    return std::to_string(code) + ":" + shown(value);
}

std::string tripped(const char* text, int decimals)
{
    char line[64];
    slCopyText(line, sizeof line, text);
    slTripDot(line, decimals);
    return line;
}

// The characters below 128 that may be typed.
std::string accepted(int type)
{
    TypedValueCL value;
    value.SetTypeM(type, 0);
    std::string all;
    for (unsigned character = 1; character < 128; ++character) {
        if (value.AcceptsM(character)) {
            all += character < ' ' ? "^" + std::string(1, static_cast<char>(character + '@'))
                                   : std::string(1, static_cast<char>(character));
        }
    }
    return all;
}

} // namespace

TEST(SimpleValue, TakesExactly260BytesAndStartsAsZero)
{
    const simpleValD value {};
    EXPECT_EQ(sizeof value, 260U);
    EXPECT_EQ(std::string(value.text, 260), std::string(260, '\0'));
}

TEST(TypedValue, LimitsOfIntegersAreInclusive)
{
    EXPECT_EQ(read(integer(0, 100), "0"), "4:0");
    EXPECT_EQ(read(integer(0, 100), "100"), "4:100");
    EXPECT_EQ(read(integer(0, 100), "101"), "5:101");
    EXPECT_EQ(read(integer(0, 100), "-1"), "3:-1");
}

TEST(TypedValue, ANumberMayHaveBlanksBeforeItAndAnythingBehindIt)
{
    EXPECT_EQ(read(integer(0, 100), " \t+12abc"), "4:12");
    EXPECT_EQ(read(integer(0, 100), "7.9"), "4:7");
    EXPECT_EQ(read(integer(-9, 9), "-5-5"), "4:-5");
    EXPECT_EQ(read(integer(0, 100), "12速度"), "4:12");
}

TEST(TypedValue, WhatIsNoNumberIsUnreadableAndLeavesTheValue)
{
    TypedValueCL value = integer(0, 100);
    value.SetIntM(42);
    for (const char* bad : { "", " ", "abc", "-", "+-1", "- 1", ".5", "１２" }) {
        EXPECT_EQ(read(value, bad), "0:42") << bad;
    }
    TypedValueCL realValue = real(0, 100, 1);
    realValue.SetRealM(2.5F);
    for (const char* bad : { "", "  ", "e5", ".", "-.", "nan", "inf", "," }) {
        EXPECT_EQ(read(realValue, bad), "0:2.5") << bad;
    }
}

TEST(TypedValue, NumbersSaturate)
{
    EXPECT_EQ(read(integer(0, 100), "99999999999999999999"), "5:2147483647");
    EXPECT_EQ(read(integer(0, 100), "-99999999999999999999"), "3:-2147483648");
    TypedValueCL value = real(0, 100, 0);
    EXPECT_EQ(value.ReadM("1e999"), AboveMaximum);
    EXPECT_EQ(value.RealM(), FLT_MAX);
    EXPECT_EQ(value.ReadM((std::string(300, '9')).c_str()), AboveMaximum);
}

TEST(TypedValue, SurplusDecimalsAreCutNotRounded)
{
    EXPECT_EQ(tripped("3.14159", 2), "3.14");
    EXPECT_EQ(tripped("12.5", 0), "12.");
    EXPECT_EQ(tripped("12.5", 1), "12.5");
    EXPECT_EQ(tripped("12.", 0), "12.");
    EXPECT_EQ(tripped("1.2.3", 2), "1.2.");
    EXPECT_EQ(tripped("125", 1), "125");
    EXPECT_EQ(tripped("1.25", -7), "1.");
    EXPECT_EQ(tripped("1.25", INT_MAX), "1.25");
    EXPECT_EQ(read(real(0, 10, 2), "3.14159"), "4:3.14");
    EXPECT_EQ(read(real(0, 10, 2), "3.149"), "4:3.14");
    EXPECT_EQ(read(real(0, 10, 0), "7.9"), "4:7");
    EXPECT_EQ(read(real(0, 9, 0), "9.9"), "4:9"); // In range only because it was cut.
}

TEST(TypedValue, LimitsOfRealsAreInclusiveInSinglePrecision)
{
    EXPECT_EQ(read(real(0.1F, 9.5F, 1), "0.1"), "4:0.1");
    EXPECT_EQ(read(real(0.1F, 9.5F, 1), "9.5"), "4:9.5");
    EXPECT_EQ(read(real(0.1F, 9.5F, 1), "9.6"), "5:9.6");
    EXPECT_EQ(read(real(0.1F, 9.5F, 1), "0"), "3:0.0");
    EXPECT_EQ(read(real(-5, 5, 2), "-.25"), "4:-0.25");
    EXPECT_EQ(read(real(0, 1000, 0), "1e2"), "4:100");
}

TEST(TypedValue, TextsHaveAMaximumLengthInBytesAndNoMinimum)
{
    EXPECT_EQ(read(text(2, 5), "a"), "4:a");
    EXPECT_EQ(read(text(2, 5), ""), "4:");
    EXPECT_EQ(read(text(2, 5), "abcde"), "4:abcde");
    EXPECT_EQ(read(text(2, 5), "abcdef"), "5:abcdef");
    EXPECT_EQ(read(text(0, 4), "速度"), "4:速度");
    EXPECT_EQ(read(text(0, 3), "速度"), "5:速度");
    EXPECT_EQ(read(text(0, 9), " a b "), "4: a b ");
    EXPECT_EQ(read(text(0, 1000), std::string(400, 'x')), "4:" + std::string(259, 'x'));
}

TEST(TypedValue, ForcingTakesTheLimitThatIsBroken)
{
    TypedValueCL value = integer(0, 100);
    value.ForceM(value.ReadM("101"));
    EXPECT_EQ(value.IntM(), 100);
    value.ForceM(value.ReadM("-5"));
    EXPECT_EQ(value.IntM(), 0);
    value.ForceM(value.ReadM("50"));
    EXPECT_EQ(value.IntM(), 50);
    value.ForceM(value.ReadM("x"));
    EXPECT_EQ(value.IntM(), 50);
    TypedValueCL realValue = real(1.5F, 9.5F, 2);
    realValue.ForceM(realValue.ReadM("10"));
    EXPECT_EQ(shown(realValue), "9.50");
    realValue.ForceM(realValue.ReadM("1.49"));
    EXPECT_EQ(shown(realValue), "1.50");
}

TEST(TypedValue, ATextIsCutAtACharacter)
{
    TypedValueCL value = text(2, 5);
    value.ForceM(value.ReadM("abcdefg"));
    EXPECT_EQ(shown(value), "abcde");
    value.ForceM(value.ReadM(slUtf8ToGbk("速度表").c_str()));
    EXPECT_EQ(shown(value), "速度");
    TypedValueCL negative = text(0, -3);
    negative.ForceM(negative.ReadM("abc"));
    EXPECT_EQ(shown(negative), "");
}

TEST(TypedValue, LimitsAreWrittenAsValuesAre)
{
    EXPECT_EQ(integer(-5, 100).LimitTextM(BelowMinimum), "-5");
    EXPECT_EQ(integer(-5, 100).LimitTextM(AboveMaximum), "100");
    EXPECT_EQ(real(0.5F, 9.5F, 2).LimitTextM(BelowMinimum), "0.50");
    EXPECT_EQ(real(0.5F, 9.5F, 2).LimitTextM(AboveMaximum), "9.50");
    EXPECT_EQ(text(2, 5).LimitTextM(AboveMaximum), "5");
}

TEST(TypedValue, RealsAreShownWithTheirDecimals)
{
    TypedValueCL value = real(0, 1, 3);
    value.SetRealM(0.1F);
    EXPECT_EQ(shown(value), "0.100");
    value.SetTypeM(RealType, 10);
    EXPECT_EQ(shown(value), "0.1000000015");
    value.SetTypeM(RealType, 0);
    value.SetRealM(2.5F);
    EXPECT_EQ(shown(value), "2");
    value.SetTypeM(RealType, -4);
    EXPECT_EQ(shown(value), "2");
}

TEST(TypedValue, NoNumberOfDecimalsOverflowsABuffer)
{
    TypedValueCL value = real(0, 1, INT_MAX);
    value.SetRealM(-FLT_MAX);
    const std::string all = shown(value);
    EXPECT_EQ(all.size(), 259U); // 39 digits, sign and point, and the decimals that still fit.
    EXPECT_EQ(all.substr(0, 12), "-34028234663");
    char few[6];
    value.ShowM(few, sizeof few);
    EXPECT_STREQ(few, "-3402");
}

TEST(TypedValue, ThePointNeverDependsOnTheLocale)
{
    const std::string before = std::setlocale(LC_NUMERIC, nullptr);
    for (const char* name : { "de_DE.UTF-8", "German_Germany.1252", "" }) {
        std::setlocale(LC_NUMERIC, name);
        EXPECT_EQ(read(real(0, 9, 2), "1.5"), "4:1.50");
    }
    std::setlocale(LC_NUMERIC, before.c_str());
}

TEST(TypedValue, CharactersThatMayBeTyped)
{
    EXPECT_EQ(accepted(IntegerType), "^A^C^H^V^X^Z+-0123456789");
    EXPECT_EQ(accepted(RealType), "^A^C^H^V^X^Z+-.0123456789");
    EXPECT_EQ(accepted(TextType).size(), 127U + 31U);
    EXPECT_EQ(accepted(4), "");
    TypedValueCL value = text(0, 9);
    EXPECT_TRUE(value.AcceptsM(0x901F));
    EXPECT_FALSE(integer(0, 9).AcceptsM(0x901F));
    EXPECT_FALSE(integer(0, 9).AcceptsM(0xFF11)); // A full-width digit.
}

TEST(TypedValue, AnUnknownTypeTakesAndGivesNothing)
{
    TypedValueCL value = integer(0, 100);
    value.SetIntM(7);
    value.SetTypeM(4, 0);
    EXPECT_EQ(value.SetRangeM(ints(1, 2)), 0);
    EXPECT_EQ(value.SetValueM(ints(1, 2)), 0);
    simpleValD out = ints(3, 4);
    EXPECT_EQ(value.GetValueM(&out), 0);
    EXPECT_EQ(out.number, 3);
    char to[8] = "old";
    EXPECT_EQ(value.ShowM(to, sizeof to), 0);
    EXPECT_STREQ(to, "");
    EXPECT_EQ(value.ReadM("5"), Unreadable);
    EXPECT_EQ(value.IntM(), 7);
}

TEST(TypedValue, StoringATextNeedsNoTerminator)
{
    TypedValueCL value = text(0, 300);
    simpleValD whole;
    std::fill(whole.text, whole.text + 260, 'x');
    EXPECT_EQ(value.SetValueM(whole), 1);
    EXPECT_EQ(shown(value), std::string(259, 'x'));
    value.SetTextM(nullptr);
    EXPECT_EQ(shown(value), "");
}
