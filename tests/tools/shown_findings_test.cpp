// Who shows a file says what is wrong with it.
#include "tools/run_command.h"
#include <algorithm>
#include <gtest/gtest.h>

#ifdef _WIN32

namespace {

const std::string Faulty = PANELKIT_SAMPLES "/check/record-slip.gbk"; // An error.
const std::string Doubtful = PANELKIT_SAMPLES "/check/no-label.gbk";  // A warning.

// What check prints of a file, without the line that sums up.
std::string findingsOf(const std::string& file)
{
    const std::string output = runCommand("check --lang en \"" + file + "\"").output;
    return output.substr(0, output.find('\n') + 1);
}

// "inspect" and "shot" as somebody starts them on a file.
struct ShowingCL
{
    CommandResultCL RunM(const std::string& options, const std::string& file) const
    {
        CommandResultCL result = runCommand(
            command + " --lang en " + options + " \"" + file + "\"" + (command == "shot" ? out : ""));
        std::string& errors = result.errors; // Its lines end as the system's do.
        errors.erase(std::remove(errors.begin(), errors.end(), '\r'), errors.end());
        return result;
    }
    bool HasShownM(const CommandResultCL& result) const
    {
        return command == "shot" ? picture.bytes().rfind("\x89PNG", 0) == 0
                                 : result.output.find("\"controls\"") != std::string::npos;
    }

    std::string command;
    TempFile picture { "", ".png" };
    std::string out = " \"" + std::string(picture.path()) + "\"";
};

} // namespace

TEST(ShownFindings, ErrorsAreSaidAndWarningsOnlyWhenStrict)
{
    for (const char* const command : { "inspect", "shot" }) {
        const ShowingCL showing { command };
        EXPECT_EQ(showing.RunM("", Faulty).errors, findingsOf(Faulty)) << command;
        EXPECT_EQ(showing.RunM("--strict", Faulty).errors, findingsOf(Faulty)) << command;
        EXPECT_EQ(showing.RunM("", Doubtful).errors, "") << command;
        EXPECT_EQ(showing.RunM("--strict", Doubtful).errors, findingsOf(Doubtful)) << command;
    }
    EXPECT_NE(runCommand("inspect --lang zh \"" + Faulty + "\"").errors.find("错误"), std::string::npos);
}

TEST(ShownFindings, ExitCodeTellsOfThemOnlyWhenStrictAndTheFileIsShownAllTheSame)
{
    for (const char* const command : { "inspect", "shot" }) {
        for (const std::string& file : { Faulty, Doubtful, exampleFiles()[0] }) {
            for (const bool isStrict : { false, true }) {
                const ShowingCL showing { command };
                const CommandResultCL result = showing.RunM(isStrict ? "--strict" : "", file);
                EXPECT_EQ(result.code, isStrict && file != exampleFiles()[0] ? 1 : 0) << command << file;
                EXPECT_TRUE(showing.HasShownM(result)) << command << file;
            }
        }
    }
}

TEST(ShownFindings, NameTheFileAsTheUserOfAnotherProgramWroteItUnlessThatOneSaysThem)
{
    const std::string errors = runCommand("inspect --as=mine.dlg -- \"" + Faulty + "\"").errors;
    EXPECT_EQ(errors.rfind("mine.dlg:14:18: ", 0), 0U) << errors;
    const CommandResultCL result
        = runCommand("inspect --strict --checked --as=mine.dlg -- \"" + Faulty + "\"");
    EXPECT_EQ(result.errors, "");
    EXPECT_EQ(result.code, 0);
}

#endif
