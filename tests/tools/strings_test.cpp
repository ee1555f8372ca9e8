// panelkit strings: what translators get.
#include "dialog/translation.h"
#include "support/description.h"
#include "tools/run_command.h"
#include <cstring>

namespace {

std::string entriesOf(const std::string& output)
{
    const std::size_t first = output.find("\n\n");
    return first == std::string::npos ? "" : output.substr(first + 2);
}

std::string stringsOf(const std::string& utf8, const std::string& options = "")
{
    const DescriptionFileCL file(utf8);
    const std::string path = file.path();
    const CommandResultCL result = runCommand("strings \"" + path + "\"" + options);
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

TEST(Strings, LinesHeadingsAndItemsHaveTheRoomOfTheirControlOrColumnAndCellsAreData)
{
    EXPECT_EQ(stringsOf("[列表控件]\n1\n0\n1 5002 20 20 240 120 2 1\n"
                        "[列表控件列标题]\n2\n0\n5002 0 100 名称\n5002 1 80 null\n"
                        "[列表控件初始值]\n2\n0\n5002 0 0 转速\n9 0 0 别人\n"),
        "#. list control 5002, text: room for 100 x 120 pixels\n#: FILE:8\nmsgid \"名称\"\nmsgstr \"\"\n");
    EXPECT_EQ(stringsOf("[下拉列表框]\n1\n0\n1 7 20 20 100 90 0\n[下拉列表框初始值]\n1\n0\n7 直线\n"),
        "#. combo box 7, text: room for 100 x 90 pixels\n#: FILE:8\nmsgid \"直线\"\nmsgstr \"\"\n");
}

TEST(Strings, WhatTheUserTypesAndBareNumbersAreNoTextsToTranslate)
{
    EXPECT_EQ(stringsOf("[多行文本]\n1\n0\n1 1001 0 0 9 9 1 99\n备注\n0 1 1 1 1\n"
                        "[单行文本]\n1\n0\n1 1002 0 0 9 9 3 0 9 0 0 1\n转速\n0 1 1 1 1\n"
                        "[成组控件]\n1\n0\n1 1003 0 0 9 9\n1.5 : 2\n"),
        "");
}

TEST(Strings, ATextThatOnlyCanBeReadIsOne)
{
    EXPECT_EQ(stringsOf("[多行文本]\n1\n0\n1 1001 0 0 9 9 1 99\n备注\n1 1 1 1 1\n"),
        "#. multi edit 1001, text: room for 9 x 9 pixels\n#: FILE:5\nmsgid \"备注\"\nmsgstr \"\"\n");
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

TEST(Strings, WithContextsEachControlHasItsOwnEntry)
{
    EXPECT_EQ(stringsOf("[标准按钮]\n2\n0\n3 1 0 0 60 24\n开\n1\n4 2 70 0 60 24\n开\n0\n", " --contexts"),
        "#. standard button 1, caption: room for 60 x 24 pixels\n#: FILE:5\n"
        "msgctxt \"standard button 1\"\nmsgid \"开\"\nmsgstr \"\"\n\n"
        "#. standard button 2, caption: room for 60 x 24 pixels\n#: FILE:8\n"
        "msgctxt \"standard button 2\"\nmsgid \"开\"\nmsgstr \"\"\n");
}

TEST(Strings, WithMessagesTheLibrarysOwnStandBehindThoseOfTheFile)
{
    const std::string entries = stringsOf("[成组控件]\n1\n0\n1 1 0 0 9 9\n参数无效。\n", " --messages");
    EXPECT_EQ(
        entries.find("#. group box 1, text: room for 9 x 9 pixels\n#: FILE:5\nmsgid \"参数无效。\"\n"), 0u);
    EXPECT_NE(entries.find("#. In English: This number is too small. Please enter it again. "
                           "(It must not be less than {minimum})\nmsgctxt \"message 1\"\n"
                           "msgid \"输入数太小,请重新输入!\\n(不得小于{minimum})\"\nmsgstr \"\"\n"),
        std::string::npos);
    EXPECT_NE(entries.find("msgctxt \"message 24\"\nmsgid \"参数无效。\"\n"), std::string::npos);
    EXPECT_EQ(entries.find("msgctxt \"message 12\""), std::string::npos); // It is empty.
}

#ifndef _WIN32
namespace {

// Runs a program of gettext. It may only remark on what the translator is to fill in of the header.
void gettext(const std::string& command)
{
    FILE* const pipe = ::popen((command + " 2>&1").c_str(), "r");
    char line[1000];
    while (std::fgets(line, sizeof line, pipe) != nullptr) {
        EXPECT_NE(std::string(line).find("initial default value"), std::string::npos)
            << command << ": " << line;
    }
    EXPECT_EQ(::pclose(pipe), 0) << command;
}

} // namespace

// The way of a translator: begin with a language, translate, compile; what the library reads is that.
TEST(Strings, GettextTakesTheTemplateAndItsCatalogueIsRead)
{
    const DescriptionFileCL file(std::string(HeaderSections)
        + "[标题]\n1\n0\n1 1001 20 20 80 20 1\n速 \"1\"\\\n0 -1 0 0\n"
          "[标准按钮]\n2\n0\n3 1 0 0 60 24\n开\n1\n4 2 70 0 60 24\n开\n0\n");
    const TempFile made("", ".pot");
    const TempFile begun("", ".po");
    const std::string catalogue = std::string(file.path(), std::strlen(file.path()) - 4) + ".de.mo";
    for (const char* const options : { "", " --contexts --messages" }) {
        const std::string pot = std::string(" \"") + made.path() + "\"";
        const std::string po = std::string(" \"") + begun.path() + "\"";
        ASSERT_EQ(runCommand(std::string("strings \"") + file.path() + "\"" + options + " -o" + pot).code, 0);
        gettext("msgfmt --check -o /dev/null" + pot);
        gettext("msginit --no-translator -l de_DE.UTF-8 -i" + pot + " -o" + po + " >/dev/null");
        gettext("msgen -o" + po + po); // Each text its own translation.
        gettext("msgmerge -q -U --backup=none" + po + pot);
        gettext("msgfmt --check -o \"" + catalogue + "\"" + po);
        TranslationCL translation;
        translation.SetLanguageM("de");
        EXPECT_TRUE(translation.ReadM(file.path())) << options;
        for (const char* const text : { "速 \"1\"\\", "开" }) {
            const ValueTextCL own = ValueTextCL::FromUtf8M(text);
            EXPECT_EQ(translation.FindM(own, text == std::string("开") ? "standard_button" : "label",
                          text == std::string("开") ? 2 : 1001),
                own);
        }
    }
    std::remove(catalogue.c_str());
}
#endif
