// panelkit new: a description file to start from.
#include "dialog/kinds.h"
#include "support/description.h"
#include "tools/run_command.h"
#include <filesystem>

namespace {

// A name in the temporary folder that no file has.
std::string freeName()
{
    return TempFile("", ".dlg").path();
}

} // namespace

TEST(New, MakesADialogThatIsReadWhole)
{
    const std::string file = freeName();
    const CommandResultCL made = runCommand("new \"" + file + "\"");
    EXPECT_EQ(made.code, 0) << made.errors;
    EXPECT_EQ(made.output + made.errors, "");
    const std::string output = runCommand("dump \"" + file + "\"").output;
    EXPECT_EQ(countOf(output, "\"status\": \"read\""), 4);
    EXPECT_EQ(countOf(output, "\"status\": \"missing\""), KindCount - 4);
    EXPECT_EQ(countOf(output, "\"function_id\""), 5);
    for (const char* const text : { "新对话框", "名称:", "确定", "取消" }) {
        EXPECT_EQ(countOf(output, "\"" + std::string(text) + "\""), 1) << text;
    }
    EXPECT_EQ(countOf(output, "null"), 1) << "The label has no background, and nothing else is left out.";
    // In the order of the Tab key; the button that Enter presses is OK.
    for (const char* const pair : { "\"window_index\": 4,\n          \"function_id\": 1,",
             "\"window_index\": 5,\n          \"function_id\": 2," }) {
        EXPECT_EQ(countOf(output, pair), 1) << pair;
    }
    EXPECT_EQ(runCommand("convert \"" + file + "\"").output, file + ": already GBK\n");
    EXPECT_EQ(runCommand("format --check \"" + file + "\"").code, 0);
    std::filesystem::remove(file);
}

TEST(New, OverwritesOnlyWhenTold)
{
    const TempFile file("mine");
    expectComplaint(runCommand("new \"" + std::string(file.path()) + "\""), "already there");
    EXPECT_EQ(file.bytes(), "mine");
    EXPECT_EQ(runCommand("new --force \"" + std::string(file.path()) + "\"").code, 0);
    EXPECT_NE(file.bytes(), "mine");
    expectComplaint(runCommand("new \"no such folder/x.dlg\""), "cannot write 'no such folder/x.dlg'");
}

TEST(Command, UnknownSubcommandIsNamed)
{
    expectComplaint(runCommand("frobnicate x"), "'frobnicate'");
    expectComplaint(runCommand("Dump x"), "'Dump'");
}
