#include "toolkit/toolkit.h"
#include <cstdint>
#include <gtest/gtest.h>
#include <string>

#define ZHONG "\xD6\xD0" // U+4E2D

namespace {

template <class... A> CString formatted(const char* format, A... values)
{
    CString text("before");
    text.Format(format, values...);
    return text;
}

CString byList(const char* format, ...)
{
    va_list values;
    va_start(values, format);
    CString text;
    text.FormatV(format, values);
    va_end(values);
    return text;
}

// What the C library prints of the same.
template <class... A> std::string printed(const char* format, A... values)
{
    char text[200];
    std::snprintf(text, sizeof text, format, values...);
    return text;
}

enum ColourTP
{
    Green = 7
};

} // namespace

TEST(CStringFormat, TakesStringObjectsAndWideTexts)
{
    const CString name("n" ZHONG);
    EXPECT_EQ(formatted("<%s>", name), "<n" ZHONG ">");
    EXPECT_EQ(formatted("<%s>", "x"), "<x>");
    EXPECT_EQ(formatted("<%s>", L"\x4E2D"), "<" ZHONG ">");
    EXPECT_EQ(formatted("<%S>", L"\x4E2D"), "<" ZHONG ">");
    EXPECT_EQ(formatted("<%ls>", L"\x4E2D"), "<" ZHONG ">");
    EXPECT_EQ(formatted("<%hs>", "x"), "<x>");
    EXPECT_EQ(formatted("<%s>", CStringW(name)), "<n" ZHONG ">");
    EXPECT_EQ(formatted("<%6s|%-6s>", name, name), "<   n" ZHONG "|n" ZHONG "   >");
    EXPECT_EQ(formatted("<%s>", nullptr), "<(null)>");
    EXPECT_EQ(formatted("<%s>", static_cast<const char*>(nullptr)), "<(null)>");
    EXPECT_EQ(formatted("%c%c", 'a', L'\x4E2D'), "a" ZHONG);
    CString text;
    text.Format(L"\x4E2D%d%s", 5, name);
    EXPECT_EQ(text, ZHONG "5n" ZHONG);
    text.Format(CString("%s!"), name);
    EXPECT_EQ(text, "n" ZHONG "!");
}

TEST(CStringFormat, TakesItselfAsAValueAndAsTheFormat)
{
    CString text("a");
    text.Format("%s%s", text, text);
    EXPECT_EQ(text, "aa");
    text.AppendFormat("-%s", text.GetString());
    EXPECT_EQ(text, "aa-aa");
    text = "<%d>";
    text.Format(text, 3);
    EXPECT_EQ(text, "<3>");
}

TEST(CStringFormat, APrecisionCutsBetweenCharacters)
{
    EXPECT_EQ(formatted("<%.2s>", "a" ZHONG), "<a>");
    EXPECT_EQ(formatted("<%.3s>", "a" ZHONG), "<a" ZHONG ">");
    EXPECT_EQ(formatted("<%.2s>", L"a\x4E2D"), "<a>");
    EXPECT_EQ(formatted("<%4.2s>", ZHONG ZHONG), "<  " ZHONG ">");
    const char noEnd[] = { 'a', 'b', '\xD6' };
    EXPECT_EQ(formatted("%.2s", static_cast<const char*>(noEnd)), "ab");
    EXPECT_EQ(formatted("%.3s", static_cast<const char*>(noEnd)), "ab");
}

TEST(CStringFormat, NumbersAreAsTheCLibraryPrintsThem)
{
    for (const char* format : { "%d", "%5d", "%-5d|", "%05d", "%+d", "% d", "%x", "%X", "%#x", "%o", "%u",
             "%.3d", "%5.3d", "%hd", "%hhd", "%hu", "%hhx", "%i" }) {
        for (int value : { 0, 1, -1, 42, 70000, INT_MIN, INT_MAX }) {
            EXPECT_EQ(formatted(format, value), printed(format, value).c_str()) << format << value;
        }
    }
    for (const char* format : { "%f", "%.2f", "%8.3f", "%-8.1f|", "%e", "%g", "%G", "%+.0f", "%a" }) {
        for (double value : { 0.0, 1.5, -2.25, 1e100, 3.14159 }) {
            EXPECT_EQ(formatted(format, value), printed(format, value).c_str()) << format << value;
        }
    }
    for (const char* format : { "%lld", "%I64d", "%llu", "%llx", "%zu", "%20lld" }) {
        for (long long value : { 0LL, -1LL, INT64_MIN, INT64_MAX }) {
            EXPECT_EQ(formatted(format, value), printed(format, value).c_str()) << format << value;
        }
    }
    EXPECT_EQ(formatted("%.2Lf", 1.25L), "1.25");
    EXPECT_EQ(formatted("%*d|%-*d|%.*f", 5, 1, 5, 2, 1, 2.55),
        printed("%*d|%-*d|%.*f", 5, 1, 5, 2, 1, 2.55).c_str());
    EXPECT_EQ(formatted("%*d|", -5, 1), "1    |");
    EXPECT_EQ(formatted("100%% %d", 1), "100% 1");
    EXPECT_EQ(
        formatted("%d %u %d %d", true, static_cast<BYTE>(200), Green, static_cast<short>(-3)), "1 200 7 -3");
    EXPECT_EQ(formatted("%u %d", 0xFFFFFFFFu, 0xFFFFFFFFu), "4294967295 -1");
    int there = 0;
    EXPECT_EQ(formatted("%p", &there), printed("%p", static_cast<void*>(&there)).c_str());
}

// Nothing is read that was not given, whatever the format says.
TEST(CStringFormat, AWrongConversionShowsTheValueAsItIs)
{
    EXPECT_EQ(formatted("%s", 12), "12");
    EXPECT_EQ(formatted("%s", 1.5), "1.5");
    EXPECT_EQ(formatted("%d", "text"), "text");
    EXPECT_EQ(formatted("%d", CString("text")), "text");
    EXPECT_EQ(formatted("%d", 1.5), "1.5");
    EXPECT_EQ(formatted("%.2f", 3), "3.00");
    EXPECT_EQ(formatted("%d", 1LL << 40), "1099511627776");
    EXPECT_EQ(formatted("%lld", -1), "-1");
    EXPECT_EQ(formatted("%d %s"), "%d %s");
    EXPECT_EQ(formatted("%d %s|", 1), "1 %s|");
    EXPECT_EQ(formatted("%y %", 1), "%y %");
    int written = 5;
    EXPECT_EQ(formatted("a%nb", &written), "ab");
    EXPECT_EQ(written, 5);
    EXPECT_EQ(formatted(nullptr), "");
}

TEST(CStringFormat, AListOfValuesIsTakenAsTheFormatTells)
{
    EXPECT_EQ(
        byList("%d %s %S %5.1f|%lld|%c|%*d|%x", -1, "a" ZHONG, L"\x4E2D", 2.5, 1LL << 40, 'c', 3, 7, 255),
        "-1 a" ZHONG " " ZHONG "   2.5|1099511627776|c|  7|ff");
    EXPECT_EQ(byList("%ls%%%hs%Lf", L"w", "n", 1.0L), "w%n1.000000");
    EXPECT_EQ(
        byList("%I64u %zu %ld %hd", ~0ULL, static_cast<size_t>(5), 6L, 7), "18446744073709551615 5 6 7");
}

TEST(CStringFormat, TheFormatMayBeInAStringTable)
{
    CString text("x");
    text.Format(1001, 3, CString("four"));
    EXPECT_EQ(text, "3 of four");
    text.AppendFormat(1001, 5, L"six");
    EXPECT_EQ(text, "3 of four5 of six");
    text.Format(4711, 1);
    EXPECT_EQ(text, "");
}
