// A typed value as value by id: what a field says of a text, and which values it takes.
#include "controls/text/typed_value.h"
#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <random>

namespace {

TypedValueCL integer(int minimum, int maximum)
{
    simpleValD range;
    range.numbers[0] = minimum;
    range.numbers[1] = maximum;
    TypedValueCL value;
    value.SetTypeM(IntegerType, 0);
    value.SetRangeM(range);
    return value;
}

TypedValueCL real(float minimum, float maximum, int decimals)
{
    simpleValD range;
    range.reals[0] = minimum;
    range.reals[1] = maximum;
    TypedValueCL value;
    value.SetTypeM(RealType, decimals);
    value.SetRangeM(range);
    return value;
}

TypedValueCL text(int most)
{
    TypedValueCL value = integer(0, most);
    value.SetTypeM(TextType, 0);
    return value;
}

ControlValueCL ofInt(int number)
{
    ControlValueCL value;
    value.number = number;
    return value;
}

ControlValueCL ofReal(float number)
{
    ControlValueCL value;
    value.real = number;
    return value;
}

ControlValueCL ofText(const ValueTextCL& what)
{
    ControlValueCL value;
    value.text = what;
    return value;
}

} // namespace

TEST(TypedValueById, SaysWhatALegalTextMeansAndKeepsItsOwn)
{
    TypedValueCL value = integer(-5, 100);
    value.SetIntM(7);
    EXPECT_EQ(value.ReadAsM("42").number, 42);
    EXPECT_EQ(value.ReadAsM(" 42x").number, 42); // As the field reads it.
    for (const char* none : { "", "-", "+", "x", "101", "-6" }) {
        EXPECT_EQ(value.ReadAsM(none).PartsM(), 0U) << none;
    }
    EXPECT_EQ(value.IntM(), 7);
    EXPECT_EQ(real(0, 10, 2).ReadAsM("1.239").real, 1.23F);
    EXPECT_EQ(real(0, 10, 2).ReadAsM(".").PartsM(), 0U);
    EXPECT_EQ(text(3).ReadAsM("abc").text->GbkM(), "abc");
    EXPECT_EQ(text(3).ReadAsM("abcd").PartsM(), 0U);
    TypedValueCL unknown;
    unknown.SetTypeM(7, 0);
    EXPECT_EQ(unknown.ReadAsM("1").PartsM(), 0U);
    EXPECT_EQ(unknown.PartsM(), 0U);
}

TEST(TypedValueById, TakesItsOwnTypeWithinItsLimits)
{
    TypedValueCL value = integer(-5, 100);
    for (const int legal : { -5, 0, 100 }) {
        EXPECT_TRUE(value.TakeM(ofInt(legal)));
        EXPECT_EQ(value.IntM(), legal);
    }
    for (const ControlValueCL& bad :
        { ofInt(-6), ofInt(101), ofReal(5), ofText("5"), ControlValueCL(), ofText(nullptr) }) {
        EXPECT_FALSE(value.TakeM(bad)) << bad.SavedM();
        EXPECT_EQ(value.IntM(), 100);
    }
    ControlValueCL two = ofInt(5);
    two.checked = true;
    EXPECT_FALSE(value.TakeM(two));
    TypedValueCL unknown;
    unknown.SetTypeM(0, 0);
    EXPECT_FALSE(unknown.TakeM(ofInt(0)));
}

TEST(TypedValueById, TakesNoRealThatShownWouldBeIllegal)
{
    TypedValueCL value = real(0, 1.235F, 2);
    EXPECT_TRUE(value.TakeM(ofReal(1.23F)));
    EXPECT_FALSE(value.TakeM(ofReal(1.2361F)));
    EXPECT_FALSE(value.TakeM(ofReal(-0.1F)));
    using LimitsTP = std::numeric_limits<float>;
    for (const float none : { LimitsTP::quiet_NaN(), LimitsTP::infinity(), -LimitsTP::infinity() }) {
        EXPECT_FALSE(value.TakeM(ofReal(none)));
    }
    EXPECT_EQ(value.RealM(), 1.23F);
    TypedValueCL whole = real(0, 1.6F, 0);
    EXPECT_FALSE(whole.TakeM(ofReal(1.55F))); // It would stand there as 2.
    EXPECT_TRUE(whole.TakeM(ofReal(1.4F)));
}

TEST(TypedValueById, TakesTextsThatGbkCanSayAndTheFieldCanHold)
{
    TypedValueCL value = text(6);
    EXPECT_TRUE(value.TakeM(ofText("abcdef")));
    EXPECT_FALSE(value.TakeM(ofText("abcdefg")));
    EXPECT_TRUE(value.TakeM(ofText(ValueTextCL::FromUtf8M("转转转"))));
    EXPECT_FALSE(value.TakeM(ofText(ValueTextCL::FromUtf8M("转转转转"))));
    EXPECT_FALSE(value.TakeM(ofText(ValueTextCL::FromUtf8M("\xC3\xB1")))); // An n with a tilde.
    EXPECT_TRUE(value.TakeM(ofText("")));
    TypedValueCL vast = text(9999);
    EXPECT_TRUE(vast.TakeM(ofText(std::string(TextSize - 1, 'x'))));
    EXPECT_FALSE(vast.TakeM(ofText(std::string(TextSize, 'x'))));
}

// What stands in a field, taken back by a fresh one, is the same value.
TEST(TypedValueById, EveryRealThatCanBeTypedComesBack)
{
    std::mt19937 random(7);
    std::uniform_real_distribution<double> values(-99999, 99999);
    for (int i = 0; i < 20000; ++i) {
        const int decimals = i % 7;
        const TypedValueCL typed = real(-1e6F, 1e6F, decimals);
        char line[64];
        std::snprintf(line, sizeof line, "%.*f", decimals, values(random));
        const ControlValueCL said = typed.ReadAsM(line);
        TypedValueCL fresh = typed;
        ASSERT_TRUE(fresh.TakeM(said)) << line;
        char shown[TextSize];
        fresh.ShowM(shown, TextSize);
        ASSERT_EQ(fresh.ReadAsM(shown).real, said.real) << line << " " << shown;
    }
}
