#include "dialog/kinds.h"
#include "support/description.h"
#include "tools/run_command.h"
#include <filesystem>
#include <gtest/gtest.h>
#include <regex>

namespace {

CommandResultCL dump(const std::string& path)
{
    return runCommand("dump \"" + path + "\"");
}

} // namespace

TEST(Dump, PrintsEverySampleToTheLetter)
{
    const std::vector<std::string> files = descriptionFiles(PANELKIT_SAMPLES);
    EXPECT_GE(files.size(), 3U);
    for (const std::string& file : files) {
        const CommandResultCL result = dump(file);
        EXPECT_EQ(result.code, 0) << file;
        EXPECT_EQ(result.errors, "") << file;
        const std::string expected = std::filesystem::path(file).replace_extension(".json").string();
        EXPECT_EQ(result.output, wholeFile(expected)) << file;
    }
}

TEST(Dump, EverySectionOfTheExamplesIsWhole)
{
    const std::vector<std::string> files = exampleFiles();
    EXPECT_GE(files.size(), 8U);
    for (const std::string& file : files) {
        const CommandResultCL result = dump(file);
        EXPECT_EQ(result.code, 0) << file;
        EXPECT_EQ(
            countOf(result.output, "\"status\": \"read\"") + countOf(result.output, "\"missing\""), KindCount)
            << file;
    }
}

TEST(Dump, PicturesThatTheExamplesNameAreThere)
{
    const std::regex picture("\"([^\"]+\\.bmp)\"");
    int pictures = 0;
    for (const std::string& file : exampleFiles()) {
        const std::string output = dump(file).output;
        for (std::sregex_iterator it(output.begin(), output.end(), picture), end; it != end; ++it) {
            const auto path = std::filesystem::path(file).parent_path() / (*it)[1].str();
            EXPECT_TRUE(std::filesystem::exists(path)) << path;
            ++pictures;
        }
    }
    EXPECT_GE(pictures, 100);
}

TEST(Dump, RealsHaveNoMoreDigitsThanTheyNeed)
{
    const DescriptionFileCL file(
        "[带spin的文本]\n2\n0\n1 2 0 0 9 9\n2\n0.000649 0.005473\n3 0.002596 2 0.001298 1 2 3\n"
        "1 3 0 0 9 9\n2\n-1e23 100000\n3 0.5 2 1e-7 1 2 3\n");
    const std::string output = dump(file.path()).output;
    for (const char* const text :
        { "        0.000649,", "        0.005473\n", "\"step\": 0.002596,", "\"initial\": 0.001298,",
            "        -1e+23,", "        100000.0\n", "\"step\": 0.5,", "\"initial\": 1e-07," }) {
        EXPECT_EQ(countOf(output, text), 1) << text;
    }
}

TEST(Dump, EmptyFileHasNoDialogAndMissesTheSectionOfEveryKind)
{
    const TempFile file("");
    const CommandResultCL result = dump(file.path());
    EXPECT_EQ(result.code, 0);
    EXPECT_EQ(result.output.rfind("{\n  \"dialog\": null,\n", 0), 0U);
    EXPECT_EQ(countOf(result.output, "\"missing\""), KindCount);
}

TEST(Dump, BinaryFileIsReadToItsEnd)
{
    std::string bytes;
    for (int i = 0; i < 100000; ++i) {
        bytes += static_cast<char>((i * 7919) >> 3);
    }
    const TempFile file(bytes);
    EXPECT_EQ(dump(file.path()).code, 0);
}

TEST(Dump, FileCutAnywhereIsReadToItsEnd)
{
    const std::string whole = wholeFile(sample("two_kinds.dlg"));
    for (size_t length = 0; length < whole.size(); length += 23) {
        const TempFile file(whole.substr(0, length));
        const CommandResultCL result = dump(file.path());
        ASSERT_EQ(result.code, 0) << length;
        ASSERT_EQ(result.output.back(), '\n') << length;
    }
}

TEST(Dump, CountsThatCannotBeMeantAreBrokenOrEmpty)
{
    const DescriptionFileCL file("[标题]\n2000000000\n0\n[成组控件]\n-1\n0\n");
    const CommandResultCL result = dump(file.path());
    EXPECT_EQ(result.code, 0);
    EXPECT_EQ(countOf(result.output, "\"broken\""), 1);
    EXPECT_EQ(countOf(result.output, "\"empty\""), 1);
}

TEST(Dump, HundredMegabytesWithoutASectionEndInTime)
{
    std::string bytes = slUtf8ToGbk("[标题]\n2000000000\n");
    bytes.resize(100000000, '\x81'); // Whether a later byte begins a character depends on all before it.
    const TempFile file(bytes);
    const CommandResultCL result = dump(file.path());
    EXPECT_EQ(result.code, 0);
    EXPECT_EQ(countOf(result.output, "\"broken\""), 1);
}

TEST(Dump, FilesThatCannotBeOpenedGetOneClearLine)
{
    expectComplaint(dump("no such file.dlg"), "no such file");
    const TempFile inside("");
    const std::string folder = std::filesystem::path(inside.path()).parent_path().string();
    expectComplaint(dump(folder), "not a regular file");
}

TEST(Dump, ChineseFileNamesAreFound)
{
    namespace fs = std::filesystem;
    const TempFile file("[x]");
    const fs::path chinese = fs::path(file.path()).parent_path() / fs::u8path("参数 设置.dlg");
    fs::copy_file(file.path(), chinese, fs::copy_options::overwrite_existing);
    // Arguments reach a Windows program as UTF-16; these go through the tests' code page on the way.
#ifndef _WIN32
    EXPECT_EQ(dump(chinese.string()).code, 0);
#endif
    fs::remove(chinese);
}

TEST(Command, WrongArgumentsGetOneClearLine)
{
    expectComplaint(runCommand(""), "subcommand");
    expectComplaint(runCommand("dump"), "FILE");
    expectComplaint(runCommand("format a b"), "b");
    expectComplaint(runCommand("frobnicate x"), "");
    expectComplaint(runCommand("shot x"), "OUT.png");
    expectComplaint(runCommand("dump --nonsense x"), "--nonsense");
    expectComplaint(runCommand("dump x --status 1 2"), "");
    expectComplaint(runCommand("shot x y.png --status 1"), "--status");
    expectComplaint(runCommand("shot x y.png --status 1 two"), "--status");
}

TEST(Command, VersionAndHelpAreAnswers)
{
    const CommandResultCL version = runCommand("--version");
    EXPECT_EQ(version.code, 0);
    EXPECT_EQ(version.output.rfind("panelkit ", 0), 0U);
    const CommandResultCL help = runCommand("--help");
    EXPECT_EQ(help.code, 0);
    EXPECT_NE(help.output.find("inspect"), std::string::npos);
}
