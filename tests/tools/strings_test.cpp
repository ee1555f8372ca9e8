// panelkit strings: what translators get.
#include "support/description.h"
#include "tools/run_command.h"

namespace {

std::string entriesOf(const std::string& output)
{
    const std::size_t first = output.find("\n\n");
    return first == std::string::npos ? "" : output.substr(first + 2);
}

std::string stringsOf(const std::string& utf8)
{
    const DescriptionFileCL file(utf8);
    const std::string path = file.path();
    const CommandResultCL result = runCommand("strings \"" + path + "\"");
    EXPECT_EQ(result.code, 0) << result.errors;
    std::string entries = entriesOf(result.output);
    for (std::size_t at = 0; (at = entries.find(path)) != std::string::npos;) {
        entries.replace(at, path.size(), "FILE");
    }
    return entries;
}

} // namespace

TEST(Strings, EachTextWithItsControlsRoomAndPlaces)
{
    EXPECT_EQ(
        stringsOf(std::string(HeaderSections)
            + "[标题]\n2\n0\n1 1001 20 20 80 20 1\n速度\n0 -1 0 0\n2 1002 20 50 90 20 1\nnull\n0 -1 0 0\n"
              "[标准按钮]\n2\n0\n3 1 0 0 60 24\n速度\n1\n4 2 70 0 60 24\n说 \"停\"\\\n0\n"),
        "#. dialog, title: room for 420 x 260 pixels\n#: FILE:8\nmsgid \"参数设置\"\nmsgstr \"\"\n\n"
        "#. label 1001, text: room for 80 x 20 pixels\n"
        "#. standard button 1, caption: room for 60 x 24 pixels\n#: FILE:15\n#: FILE:24\n"
        "msgid \"速度\"\nmsgstr \"\"\n\n"
        "#. standard button 2, caption: room for 60 x 24 pixels\n#: FILE:27\n"
        "msgid \"说 \\\"停\\\"\\\\\"\nmsgstr \"\"\n");
}

TEST(Strings, LinesHeadingsAndItemsHaveTheRoomOfTheirControlOrColumn)
{
    EXPECT_EQ(stringsOf("[列表控件]\n1\n0\n1 5002 20 20 240 120 2 1\n"
                        "[列表控件列标题]\n2\n0\n5002 0 100 名称\n5002 1 80 null\n"
                        "[列表控件初始值]\n2\n0\n5002 0 0 转速\n9 0 0 别人\n"),
        "#. list control 5002, text: room for 100 x 120 pixels\n#: FILE:8\nmsgid \"名称\"\nmsgstr \"\"\n\n"
        "#. list control 5002, text: room for 240 x 120 pixels\n#: FILE:13\nmsgid \"转速\"\nmsgstr \"\"\n");
}

TEST(Strings, WhatTheUserTypesAndBareNumbersAreNoTextsToTranslate)
{
    EXPECT_EQ(stringsOf("[多行文本]\n1\n0\n1 1001 0 0 9 9 1 99\n备注\n0 1 1 1 1\n"
                        "[单行文本]\n1\n0\n1 1002 0 0 9 9 3 0 9 0 0 1\n转速\n0 1 1 1 1\n"
                        "[成组控件]\n1\n0\n1 1003 0 0 9 9\n1.5 : 2\n"),
        "");
}

TEST(Strings, FilesShareTheirTextsAndNamesWithBlanksAreMarked)
{
    const DescriptionFileCL first("[成组控件]\n1\n0\n1 1 0 0 9 9\n速度\n");
    const TempFile second(slUtf8ToGbk("[成组控件]\n1\n0\n1 7 0 0 9 9\n速度\n"), " 2.dlg");
    const TempFile out("", ".pot");
    const CommandResultCL result = runCommand(
        std::string("strings \"") + first.path() + "\" \"" + second.path() + "\" -o \"" + out.path() + "\"");
    EXPECT_EQ(result.code, 0) << result.errors;
    EXPECT_EQ(result.output, "");
    const std::string text = out.bytes();
    EXPECT_NE(text.find("\"Content-Type: text/plain; charset=UTF-8\\n\""), std::string::npos);
    EXPECT_EQ(entriesOf(text),
        std::string(
            "#. group box 1, text: room for 9 x 9 pixels\n#. group box 7, text: room for 9 x 9 pixels\n#: ")
            + first.path() + ":5\n#: \u2068" + second.path() + "\u2069:5\nmsgid \"速度\"\nmsgstr \"\"\n");
}

TEST(Strings, AFileThatCannotBeReadLeavesNothingWritten)
{
    const DescriptionFileCL good("[成组控件]\n1\n0\n1 1 0 0 9 9\n速度\n");
    const TempFile utf8("[成组控件]\n1\n0\n1 1 0 0 9 9\n速度\n", ".dlg");
    const TempFile out("as it was", ".pot");
    const std::string into = std::string("\" -o \"") + out.path() + "\"";
    CommandResultCL result
        = runCommand(std::string("strings \"") + good.path() + "\" \"" + utf8.path() + into);
    EXPECT_EQ(result.code, 2);
    EXPECT_NE(result.errors.find("UTF-8"), std::string::npos) << result.errors;
    result = runCommand(std::string("strings missing.dlg \"") + good.path() + into);
    EXPECT_EQ(result.code, 2);
    EXPECT_NE(result.errors.find("missing.dlg"), std::string::npos) << result.errors;
    EXPECT_EQ(out.bytes(), "as it was");
}
