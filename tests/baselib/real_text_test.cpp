// Reals are read and written as the standard library would, digit by digit.
#include "baselib/io.h"
#include "baselib/number_text.h"
#include "support/temp_file.h"
#include <cfloat>
#include <charconv>
#include <cmath>
#include <cstring>
#include <gtest/gtest.h>
#include <random>
#include <string>
#include <vector>

namespace {

float floatOf(std::uint32_t bits)
{
    float value = 0;
    std::memcpy(&value, &bits, sizeof value);
    return value;
}

// All powers of two and their neighbours, values of few digits, whole numbers, any bits.
std::vector<float> manyValues()
{
    std::vector<float> values;
    for (std::uint32_t exponent = 0; exponent < 255; ++exponent) {
        for (const int step : { -2, -1, 0, 1, 2 }) {
            values.push_back(floatOf((exponent << 23) + static_cast<std::uint32_t>(step)));
        }
    }
    std::mt19937 random(7);
    for (int i = 0; i < 30000; ++i) {
        values.push_back(floatOf(static_cast<std::uint32_t>(random())));
        values.push_back(static_cast<float>(random() % 100000) / 100.0F);
        values.push_back(-static_cast<float>(random() >> random() % 32));
    }
    return values;
}

void expectReadAlike(const std::string& text)
{
    const char* const end = text.data() + text.size();
    float wanted = 0;
    const bool isOut = std::from_chars(text.data(), end, wanted).ec == std::errc::result_out_of_range;
    float read = -1;
    ASSERT_EQ(slReadReal(text.data(), end, &read), end) << text;
    if (isOut) {
        ASSERT_TRUE(read == FLT_MAX || read == 0) << text;
        ASSERT_EQ(slRealFits(text.data(), end), read == 0) << text;
    } else {
        ASSERT_EQ(std::memcmp(&read, &wanted, sizeof read), 0) << text << ": " << read;
    }
}

} // namespace

TEST(RealText, IsWrittenInTheFewestDigits)
{
    const TempFile file;
    VrIOCL io;
    io.OpenM(file.path(), "w");
    std::string wanted;
    for (const float value : manyValues()) {
        if (std::isfinite(value)) {
            char text[64];
            wanted.append(text, std::to_chars(text, text + sizeof text, value).ptr) += ' ';
            io.OutputRM(value);
        }
    }
    io.CloseM();
    EXPECT_EQ(file.bytes(), wanted);
}

TEST(RealText, IsReadToTheNearestValue)
{
    std::mt19937 random(8);
    for (const float value : manyValues()) {
        if (!std::isfinite(value)) {
            continue;
        }
        char text[256];
        const double size = std::abs(static_cast<double>(value));
        std::snprintf(text, sizeof text, "%.*g", static_cast<int>(random() % 20) + 1, size);
        expectReadAlike(text);
        const auto next = static_cast<double>(std::nextafter(std::abs(value), FLT_MAX));
        if (random() % 8 == 0) { // Halfway to the next value, and a little beside.
            std::snprintf(text, sizeof text, "%.160e", (size + next) / 2);
            expectReadAlike(text);
            std::string beside = text;
            beside.insert(beside.find('e'), "0000001");
            expectReadAlike(beside);
        }
    }
}

TEST(RealText, OddFormsAndLimits)
{
    for (const char* const text :
        { "0", "0.0", "5.", ".5", "1E5", "1e+5", "1e-60", "7e-46", "8e-46", "1e400", "0e99999999999999999999",
            "1e-99999999999999999999", "1e99999999999999999999", "3.4028235e38", "3.4028236e38",
            "3.40282356779733661637539395458142568447e38", "3.40282356779733661637539395458142568448e38",
            "16777217", "16777219", "0.1000000014901161193847656", "12345678901234567890123" }) {
        expectReadAlike(text);
    }
    expectReadAlike("0." + std::string(1000, '0') + "1e1000");
    expectReadAlike(std::string(1000, '9') + "e-990");
    expectReadAlike("1" + std::string(2000, '0') + "e-2000");
}
