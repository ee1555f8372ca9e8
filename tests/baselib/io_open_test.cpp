#include "baselib/gbk.h"
#include "baselib/io.h"
#include "support/temp_file.h"
#include <cstring>
#include <filesystem>
#include <gtest/gtest.h>

namespace {

bool opens(const char* path, const char* mode)
{
    VrIOCL io;
    io.OpenM(path, mode);
    return io.IsOpenM();
}

} // namespace

TEST(IoOpen, RegularFileIsReadWhole)
{
    const TempFile file(std::string("ab\r\n\0\x1A!", 7));
    VrIOCL io;
    io.OpenM(file.path(), "r");
    EXPECT_TRUE(io.IsOpenM());
    EXPECT_FALSE(io.IsBinaryM());
    EXPECT_EQ(io.BytesLeftM(), 7U);
    EXPECT_TRUE(opens(TempFile("").path(), "r"));
}

TEST(IoOpen, MissingFilesAndFoldersStayUnopened)
{
    const std::string folder = std::filesystem::temp_directory_path().string();
    for (const char* path : { "", "no such file", "no such folder/file", folder.c_str() }) {
        EXPECT_FALSE(opens(path, "r")) << path;
        EXPECT_FALSE(opens(path, "rb")) << path;
    }
    EXPECT_FALSE(opens(folder.c_str(), "w"));
    EXPECT_FALSE(opens(nullptr, "r"));
}

TEST(IoOpen, DevicesStayUnopened)
{
#ifdef _WIN32
    for (const char* path : { "NUL", "CON", "nul.txt" }) {
#else
    for (const char* path : { "/dev/null", "/dev/zero", "/dev/tty" }) {
#endif
        EXPECT_FALSE(opens(path, "r")) << path;
    }
}

TEST(IoOpen, UnknownModesStayUnopened)
{
    const TempFile file("x");
    for (const char* mode : { "", "a", "r+", "wbx", static_cast<const char*>(nullptr) }) {
        EXPECT_FALSE(opens(file.path(), mode));
    }
    EXPECT_EQ(file.bytes(), "x");
}

TEST(IoOpen, OpeningAnewForgetsTheFileBefore)
{
    const TempFile first("[a] 1"), second("[b] 2");
    VrIOCL io;
    io.OpenM(first.path(), "rb");
    io.OpenM(second.path(), "r");
    EXPECT_FALSE(io.IsBinaryM());
    EXPECT_EQ(io.SearchStrM("[a]"), 0);
    EXPECT_EQ(io.SearchStrM("[b]"), 1);
    io.OpenM("no such file", "r");
    EXPECT_FALSE(io.IsOpenM());
    EXPECT_EQ(io.SearchStrM("[b]"), 0);
}

TEST(IoOpen, ClosingIsHarmlessAndEndsAllReading)
{
    const TempFile file("5 x");
    VrIOCL io;
    io.CloseM();
    io.OpenM(file.path(), "r");
    io.CloseM();
    io.CloseM();
    int value = 3;
    float real = 4;
    char byte = 'b', text[260] = "t";
    CharArr counted("c");
    EXPECT_EQ(io.InputDM(&value) + io.InputRM(&real) + io.InputCM(&byte) + io.InputGetsM(text, 260), 0);
    EXPECT_EQ(io.InputTextM(&counted), 0);
    EXPECT_EQ(value, 3);
    EXPECT_EQ(io.SkipLineM(), 1);
    EXPECT_EQ(io.SkipSomeLinesM(1000000000), 1);
    EXPECT_EQ(io.BytesLeftM(), 0U);
    EXPECT_EQ(io.GetFilePathM(text), 0);
    EXPECT_STREQ(text, "");
}

TEST(IoOpen, DestroyedReaderLetsGoOfItsFile)
{
    const TempFile file;
    {
        VrIOCL io;
        io.OpenM(file.path(), "w");
        io.OutputDM(5);
    }
    EXPECT_EQ(file.bytes(), "5 ");
}

TEST(IoOpen, FilePathIsTheDirectoryAsGiven)
{
    const TempFile file;
    const std::string path = file.path();
    VrIOCL io;
    io.OpenM(file.path(), "r");
    char out[260];
    EXPECT_EQ(io.GetFilePathM(out), 1);
    EXPECT_EQ(out, path.substr(0, path.find_last_of("/\\") + 1));
    std::filesystem::current_path(std::filesystem::temp_directory_path());
    io.OpenM(std::filesystem::path(path).filename().string().c_str(), "r");
    EXPECT_EQ(io.GetFilePathM(out), 1);
    EXPECT_STREQ(out, "");
}

// A name whose second byte is a backslash.
TEST(IoOpen, GbkNamesOpenWhatTheCodePageOfTheSystemIs)
{
    const std::string name = "\xB1\x5C\xD6\xD0.txt";
    const std::filesystem::path folder = std::filesystem::temp_directory_path();
#ifdef _WIN32
    const std::filesystem::path path = folder / slGbkToWide(name.c_str());
    const std::string given = folder.string() + name;
#else
    const std::filesystem::path path = folder / name;
    const std::string given = path.string();
#endif
    VrIOCL io;
    io.OpenM(given.c_str(), "w");
    ASSERT_TRUE(io.IsOpenM());
    io.OutputDM(12);
    io.CloseM();
    EXPECT_TRUE(std::filesystem::is_regular_file(path));
    io.OpenM(given.c_str(), "r");
    int value = 0;
    io.InputDM(&value);
    EXPECT_EQ(value, 12);
    char out[260];
    io.GetFilePathM(out);
    EXPECT_EQ(out, given.substr(0, given.size() - name.size()));
    io.CloseM();
    std::filesystem::remove(path);
}
