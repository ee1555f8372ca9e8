// The subcommands that need windows, as a person starts them.
#include "support/description.h"
#include "tools/run_command.h"
#include <gtest/gtest.h>

#ifdef _WIN32

namespace {

std::string sample(const std::string& name)
{
    return PANELKIT_SAMPLES "/" + name;
}

} // namespace

TEST(Inspect, PrintsTheWindowsOfTheSampleToTheLetter)
{
    const CommandResultCL result = runCommand("inspect \"" + sample("two_kinds.dlg") + "\"");
    EXPECT_EQ(result.code, 0);
    EXPECT_EQ(result.output, wholeFile(sample("two_kinds_inspect.json")));
}

TEST(Inspect, EmptyFileIsADialogWithoutControls)
{
    const TempFile file("");
    const CommandResultCL result = runCommand("inspect \"" + std::string(file.path()) + "\"");
    EXPECT_EQ(result.code, 0);
    EXPECT_NE(result.output.find("\"controls\": []"), std::string::npos);
}

TEST(Inspect, ArrowsOfASpinEditHaveAKindOfTheirOwn)
{
    const DescriptionFileCL file(
        HeaderSections + std::string("[带spin的文本]\n1\n0\n1 11 20 30 120 24 1 0 10 0 3 2 9 5 12 16\n"));
    const CommandResultCL result = runCommand("inspect \"" + std::string(file.path()) + "\"");
    EXPECT_EQ(result.code, 0);
    EXPECT_NE(result.output.find("\"id\": 11,\n      \"kind\": \"spin_edit\""), std::string::npos);
    EXPECT_NE(result.output.find("\"id\": 12,\n      \"kind\": \"spin_button\""), std::string::npos);
}

TEST(Inspect, MissingFileGetsExitTwo)
{
    EXPECT_EQ(runCommand("inspect nowhere.dlg").code, 2);
}

TEST(Shot, WritesAPictureOfTheWholeWindow)
{
    const TempFile picture("", ".png");
    const CommandResultCL result
        = runCommand("shot \"" + sample("two_kinds.dlg") + "\" \"" + picture.path() + "\"");
    EXPECT_EQ(result.code, 0) << result.errors;
    const std::string png = picture.bytes();
    ASSERT_GT(png.size(), 33U);
    EXPECT_EQ(png.substr(0, 8), "\x89PNG\r\n\x1A\n");
    // The size in the picture's head is that of the window: 300 by 200.
    EXPECT_EQ(png.substr(16, 8), std::string("\0\0\x01\x2C\0\0\0\xC8", 8));
}

TEST(Shot, PictureThatCannotBeWrittenGetsOneClearLine)
{
    const CommandResultCL result
        = runCommand("shot \"" + sample("two_kinds.dlg") + "\" no/such/folder/x.png");
    EXPECT_EQ(result.code, 2);
    EXPECT_NE(result.errors.find("cannot write"), std::string::npos);
}

#endif
