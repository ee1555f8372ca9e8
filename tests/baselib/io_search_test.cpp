#include "baselib/io.h"
#include "support/temp_file.h"
#include <chrono>
#include <gtest/gtest.h>

namespace {

// Bytes left behind the text found, -1 when not found.
long found(const std::string& bytes, const char* text)
{
    const TempFile file(bytes);
    VrIOCL io;
    io.OpenM(file.path(), "r");
    return io.SearchStrM(text) ? static_cast<long>(io.BytesLeftM()) : -1;
}

double seconds(const std::string& bytes, const char* text, int rounds)
{
    const TempFile file(bytes);
    VrIOCL io;
    io.OpenM(file.path(), "r");
    const auto start = std::chrono::steady_clock::now();
    for (int k = 0; k < rounds; ++k) {
        EXPECT_EQ(io.SearchStrM(text), 0);
    }
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

} // namespace

TEST(IoSearch, StopsJustAfterTheFirstMatch)
{
    EXPECT_EQ(found("xx[ab]1[ab]", "[ab]"), 5);
    EXPECT_EQ(found("[ab]", "[ab]"), 0);
    EXPECT_EQ(found("[[ab]", "[ab]"), 0);
}

TEST(IoSearch, StartsAtTheBeginningAtEveryCall)
{
    const TempFile file("[a] 1\n[b] 2\n");
    VrIOCL io;
    io.OpenM(file.path(), "r");
    int value = 0;
    EXPECT_EQ(io.SearchStrM("[b]"), 1);
    EXPECT_EQ(io.SearchStrM("[a]"), 1);
    io.InputDM(&value);
    EXPECT_EQ(value, 1);
}

TEST(IoSearch, FailureLeavesThePosition)
{
    const TempFile file("[a] 1\n[b] 2\n");
    VrIOCL io;
    io.OpenM(file.path(), "r");
    io.SearchStrM("[a]");
    for (const char* text : { "[c]", "", "[a] 1\n[b] 2\n and more", static_cast<const char*>(nullptr) }) {
        EXPECT_EQ(io.SearchStrM(text), 0);
    }
    int value = 0;
    io.InputDM(&value);
    EXPECT_EQ(value, 1);
}

TEST(IoSearch, NeverMatchesFromInsideACharacter)
{
    // 0x81 0x5B is one character, so is 0xB1 0xEA; a bracket behind a complete character is one.
    EXPECT_EQ(found("\x81[x]", "[x]"), -1);
    EXPECT_EQ(found("\x81\x81[x]", "[x]"), 0);
    EXPECT_EQ(found("\x81\x81\x81[x] [x]?", "[x]"), 1);
    EXPECT_EQ(found("a\x81[x] \x81[x]\n[x].", "[x]"), 1);
    EXPECT_EQ(found("\xB1\xEA\xB1", "\xEA\xB1"), -1);
}

TEST(IoSearch, BytesThatAreNoLeadDoNotHideABracket)
{
    EXPECT_EQ(found("\x80[x]", "[x]"), 0);
    EXPECT_EQ(found("\xFF[x]", "[x]"), 0);
    EXPECT_EQ(found("\x81\x7F[x]", "[x]"), 0);
    EXPECT_EQ(found("\x81 [x]", "[x]"), 0);
    EXPECT_EQ(found(std::string("\x81\0[x]", 5), "[x]"), 0);
}

TEST(IoSearch, NeverEndsInsideACharacter)
{
    EXPECT_EQ(found("ab\x81]c ab\x81 ", "ab\x81"), 1);
    EXPECT_EQ(found("ab\x81]", "ab\x81"), -1);
    EXPECT_EQ(found("ab\x81", "ab\x81"), 0);
}

TEST(IoSearch, UnopenedReaderFindsNothing)
{
    VrIOCL io;
    EXPECT_EQ(io.SearchStrM("[x]"), 0);
    io.OpenM("no such file anywhere", "r");
    EXPECT_EQ(io.SearchStrM("[x]"), 0);
}

// Looking again and again at what was passed already would take minutes here.
TEST(IoSearch, IsLinearForFilesMadeToDelayIt)
{
    constexpr std::size_t Size = 2'000'000;
    std::string pairs; // Every match begins inside a character, and no byte by itself tells where one begins.
    while (pairs.size() < Size) {
        pairs += "\x81[ab]";
    }
    EXPECT_LT(seconds(pairs, "[ab]", 5), 5);
    EXPECT_LT(seconds(std::string(Size, '['), "[ab]", 10), 5);
    EXPECT_LT(seconds(std::string(Size, ']'), "[ab]", 10), 5);
    EXPECT_LT(seconds(std::string(Size, '\xB1'), "\xB1\xB1[", 10), 5);
}
