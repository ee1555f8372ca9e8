// The subcommands that need windows, as a person starts them.
#include "support/description.h"
#include "tools/run_command.h"
#include <gtest/gtest.h>

#ifdef _WIN32
#include "support/small_picture.h"

TEST(Inspect, PrintsTheWindowsOfTheSampleToTheLetter)
{
    const CommandResultCL result = runCommand("inspect \"" + sample("two_kinds.dlg") + "\"");
    EXPECT_EQ(result.code, 0);
    EXPECT_EQ(result.output, wholeFile(sample("two_kinds_inspect.json")));
}

TEST(Inspect, EveryRecordOfTheExamplesBecomesAControl)
{
    for (const std::string& file : exampleFiles()) {
        const CommandResultCL dumped = runCommand("dump \"" + file + "\"");
        const std::string sections = dumped.output.substr(0, dumped.output.find("\"relations\""));
        const CommandResultCL result = runCommand("inspect \"" + file + "\"");
        EXPECT_EQ(result.code, 0) << file << result.errors;
        // The arrows of a spin edit are a control of their own.
        EXPECT_EQ(countOf(result.output, "\"kind\": ") - countOf(result.output, "\"spin_button\""),
            countOf(sections, "\"function_id\": "))
            << file;
    }
}

TEST(Inspect, EmptyFileIsADialogWithoutControls)
{
    const TempFile file("");
    const CommandResultCL result = runCommand("inspect \"" + std::string(file.path()) + "\"");
    EXPECT_EQ(result.code, 0);
    EXPECT_NE(result.output.find("\"controls\": []"), std::string::npos);
}

TEST(Inspect, DeepTreeIsPrintedToItsEnd)
{
    constexpr int Depth = 2000;
    const SmallPictureCL picture(0, 20, 20);
    std::string tree = HeaderSections
        + ("[树形控件]\n1\n0\n1 16 20 30 200 100\n[树形控件数据]\n" + std::to_string(Depth)) + "\n0\n";
    for (int i = 0; i < Depth; ++i) {
        tree += "16 " + std::to_string(i) + " " + std::to_string(i + 1) + " 7 x\n" + picture.path() + "\n"
            + picture.path() + "\n";
    }
    const DescriptionFileCL file(tree);
    const CommandResultCL result = runCommand("inspect \"" + std::string(file.path()) + "\"");
    EXPECT_EQ(result.code, 0);
    EXPECT_EQ(countOf(result.output, "\"data\": 7"), Depth);
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
    expectComplaint(runCommand("inspect nowhere.dlg"), "no such file");
}

#endif
