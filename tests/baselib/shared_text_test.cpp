#include "baselib/file_text.h"
#include "baselib/io.h"
#include "support/temp_file.h"
#include <cstdio>
#include <gtest/gtest.h>

namespace {

void replace(const char* path, const char* bytes)
{
    FILE* const file = std::fopen(path, "wb");
    ASSERT_NE(file, nullptr);
    std::fputs(bytes, file);
    std::fclose(file);
}

int firstNumber(SharedTextCL& text, const char* path)
{
    VrIOCL io;
    text.OpenM(io, path);
    int number = -1;
    io.InputDM(&number);
    return number;
}

} // namespace

TEST(SharedText, IsLoadedOnceUntilItMayHaveChanged)
{
    const TempFile file("12 x");
    SharedTextCL text;
    EXPECT_EQ(firstNumber(text, file.path()), 12);
    replace(file.path(), "34 x");
    EXPECT_EQ(firstNumber(text, file.path()), 12);
    text.MayHaveChangedM();
    EXPECT_EQ(firstNumber(text, file.path()), 34);
}

TEST(SharedText, SameBytesAreTheSameText)
{
    const TempFile file("12");
    SharedTextCL text;
    VrIOCL first;
    VrIOCL second;
    text.OpenM(first, file.path());
    text.MayHaveChangedM();
    text.OpenM(second, file.path());
    EXPECT_EQ(first.FileTextM(), second.FileTextM());
}

TEST(SharedText, OpensAsTheReaderItselfDoes)
{
    const TempFile file("12");
    const TempFile other("34");
    SharedTextCL text;
    firstNumber(text, file.path());
    VrIOCL shared;
    VrIOCL alone;
    text.OpenM(shared, file.path());
    alone.OpenM(file.path(), "r");
    char folder[260] = "";
    char wanted[260] = "";
    EXPECT_EQ(shared.GetFilePathM(folder), alone.GetFilePathM(wanted));
    EXPECT_STREQ(folder, wanted);
    EXPECT_FALSE(shared.IsBinaryM());
    EXPECT_EQ(firstNumber(text, other.path()), 34);
    for (const char* const missing : { "no such file", static_cast<const char*>(nullptr) }) {
        text.OpenM(shared, missing);
        EXPECT_FALSE(shared.IsOpenM());
    }
    EXPECT_EQ(firstNumber(text, file.path()), 12);
}
