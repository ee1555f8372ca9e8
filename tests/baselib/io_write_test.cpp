#include "baselib/io.h"
#include "support/temp_file.h"
#include <cfloat>
#include <climits>
#include <gtest/gtest.h>
#include <limits>
#include <random>
#include <vector>

namespace {

// Every text that could be mistaken: empty, blanks, line ends, digits, double-byte ones, a lone lead byte.
const std::vector<std::string> hardTexts { "", " ", "\n", "\r\n", "  a  ", "12 34", "-", "line\nline\n",
    "\xD6\xD0\xCE\xC4", "\x81[", "\xFF\x80", "NULL", "\t\v\f", std::string(5000, 'x') };

class IoStream : public testing::TestWithParam<bool>
{
protected:
    void writeM() { io.OpenM(file.path(), GetParam() ? "wb" : "w"); }
    void readM() { io.OpenM(file.path(), GetParam() ? "rb" : "r"); }

    TempFile file;
    VrIOCL io;
};

} // namespace

INSTANTIATE_TEST_SUITE_P(
    , IoStream, testing::Bool(), [](const auto& param) { return param.param ? "Binary" : "Text"; });

TEST_P(IoStream, IntsReadBackEqual)
{
    const int values[] = { 0, -1, 255, 256, INT_MAX, INT_MIN };
    writeM();
    EXPECT_EQ(io.IsBinaryM(), GetParam());
    for (int value : values) {
        EXPECT_EQ(io.OutputDM(value), 1);
    }
    readM();
    for (int value : values) {
        int read = 77;
        EXPECT_EQ(io.InputDM(&read), 1);
        EXPECT_EQ(read, value);
    }
}

TEST_P(IoStream, RealsReadBackEqual)
{
    std::vector<float> values { 0, -0.0F, 0.1F, FLT_MAX, -FLT_MAX, FLT_MIN, FLT_TRUE_MIN, 1e10F, 16777216,
        1.0F / 3 };
    std::mt19937 random(7);
    std::uniform_real_distribution<float> exponents(-30, 30);
    for (int k = 0; k < 1000; ++k) {
        values.push_back(std::pow(10.0F, exponents(random)));
    }
    writeM();
    for (float value : values) {
        EXPECT_EQ(io.OutputRM(value), 1);
    }
    readM();
    for (float value : values) {
        float read = 77;
        EXPECT_EQ(io.InputRM(&read), 1);
        EXPECT_EQ(read, value);
        EXPECT_EQ(std::signbit(read), std::signbit(value));
    }
}

TEST_P(IoStream, AnyTextReadsBackEqualAndTheNextValueFollows)
{
    writeM();
    for (const std::string& text : hardTexts) {
        EXPECT_EQ(io.OutputDM(5), 1);
        EXPECT_EQ(io.OutputTextM(text.c_str()), 1);
    }
    EXPECT_EQ(io.OutputTextM(nullptr), 1);
    readM();
    CharArr read;
    for (const std::string& text : hardTexts) {
        int value = 0;
        EXPECT_EQ(io.InputDM(&value), 1);
        EXPECT_EQ(value, 5);
        EXPECT_EQ(io.InputTextM(&read), 1);
        EXPECT_EQ(read.TextM(), text);
    }
    EXPECT_EQ(io.InputTextM(&read), 1);
    EXPECT_TRUE(read.EmptyM());
    EXPECT_EQ(io.BytesLeftM(), 0U);
}

TEST_P(IoStream, WriterReadsNothing)
{
    writeM();
    io.OutputDM(5);
    int value = 0;
    EXPECT_EQ(io.InputDM(&value), 0);
    EXPECT_EQ(io.SearchStrM("5"), 0);
    EXPECT_EQ(io.BytesLeftM(), 0U);
}

TEST_P(IoStream, ReaderAndClosedWriterWriteNothing)
{
    readM();
    EXPECT_EQ(io.OutputDM(1) + io.OutputRM(1) + io.OutputSM("a", -1, 1) + io.OutputTextM("a"), 0);
    writeM();
    io.CloseM();
    EXPECT_EQ(io.OutputDM(1) + io.OutputRM(1) + io.OutputSM("a", -1, 1) + io.OutputTextM("a"), 0);
    EXPECT_EQ(file.bytes(), "");
}

TEST(IoWrite, TextStaysAfterItsLineStart)
{
    const TempFile file;
    VrIOCL io;
    io.OpenM(file.path(), "w");
    io.OutputTextM("a");
    io.OutputDM(7);
    io.OpenM(file.path(), "r");
    CharArr text;
    io.InputTextM(&text);
    EXPECT_EQ(io.BytesLeftM(), 2U);
}

TEST(IoWrite, LinesAreWrittenAsTheyAre)
{
    const TempFile file;
    VrIOCL io;
    io.OpenM(file.path(), "w");
    EXPECT_EQ(io.OutputSM("3, Begin x", -1, 1), 1);
    EXPECT_EQ(io.OutputSM("a\xD6\xD0\xD6\xD0", 5, 0), 1);
    EXPECT_EQ(io.OutputSM("", -1, 1), 1);
    EXPECT_EQ(io.OutputSM("gone", 0, 1), 1);
    EXPECT_EQ(io.OutputSM(nullptr, -1, 1), 1);
    EXPECT_EQ(io.OutputDM(-12), 1);
    EXPECT_EQ(io.OutputRM(0.5F), 1);
    io.CloseM();
    EXPECT_EQ(file.bytes(), "3, Begin x\na\xD6\xD0\n\n\n-12 0.5 ");
}

TEST(IoWrite, BinaryValuesAreFourBytesLowByteFirst)
{
    const TempFile file;
    VrIOCL io;
    io.OpenM(file.path(), "wb");
    io.OutputDM(0x01020304);
    io.OutputRM(1.0F);
    io.OutputSM("ab", -1, 1);
    io.CloseM();
    EXPECT_EQ(file.bytes(), std::string("\x04\x03\x02\x01\0\0\x80\x3F\x02\0\0\0ab", 14));
}

TEST(IoWrite, RealsThatAreNoNumbersAreWrittenAsSome)
{
    const TempFile file;
    VrIOCL io;
    io.OpenM(file.path(), "w");
    io.OutputRM(-std::numeric_limits<float>::infinity());
    io.OutputRM(std::numeric_limits<float>::quiet_NaN());
    io.OpenM(file.path(), "r");
    float pair[2] = { 1, 1 };
    EXPECT_EQ(io.InputPoint2DM(pair), 2);
    EXPECT_EQ(pair[0], -FLT_MAX);
    EXPECT_EQ(pair[1], 0.0F);
}

TEST(IoWrite, BrokenCountedTextIsLeftWhereItStands)
{
    for (const char* bytes : { "4 abc", "-1 abc", "2000000000 abc", "3abc", "x", "3", "" }) {
        const TempFile file(bytes);
        VrIOCL io;
        io.OpenM(file.path(), "r");
        CharArr text("old");
        EXPECT_EQ(io.InputTextM(&text), 0) << bytes;
        EXPECT_TRUE(text.EmptyM());
        EXPECT_EQ(io.BytesLeftM(), std::string(bytes).size());
    }
}
