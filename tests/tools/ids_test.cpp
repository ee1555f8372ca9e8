// panelkit ids: names for function ids.
#include "support/description.h"
#include "tools/run_command.h"
#include <filesystem>
#include <regex>
#include <set>

namespace {

std::string idsOf(const std::string& path, const std::string& options = "")
{
    const CommandResultCL result = runCommand("ids \"" + path + "\"" + options);
    EXPECT_EQ(result.code, 0) << result.errors;
    return result.output;
}

std::string idsOfText(const std::string& utf8)
{
    return idsOf(DescriptionFileCL(utf8).path());
}

// "constexpr int NAME = VALUE;" of each line that is one.
std::vector<std::string> constantsOf(const std::string& header)
{
    static const std::regex line("constexpr int ([^ ]+ = [^;]+);");
    std::vector<std::string> constants;
    for (std::sregex_iterator it(header.begin(), header.end(), line), end; it != end; ++it) {
        constants.push_back((*it)[1]);
    }
    return constants;
}

// A section of check boxes, from lines "id caption".
std::string checkBoxes(const std::vector<std::pair<int, std::string>>& boxes)
{
    std::string text = "[多选按钮]\n" + std::to_string(boxes.size()) + "\n0\n";
    for (const auto& [id, caption] : boxes) {
        text += "1 " + std::to_string(id) + " 0 0 9 9 1\n" + caption + "\n";
    }
    return text;
}

using LinesTP = std::vector<std::string>;

} // namespace

TEST(Ids, NamesComeFromKindAndText)
{
    EXPECT_EQ(
        constantsOf(idsOfText(checkBoxes({ { 1, "自动进纸" }, { 2, "Pen up, 3 mm/s" }, { 3, "ＡＢ：绿色" },
            { 4, "……!" }, { -5, "龘x" }, { 6, "浏览" }, { 7, "null" }, { 8, "class" } }))),
        (LinesTP { "CheckBoxZiDongJinZhi = 1", "CheckBoxPenUp3MmS = 2", "CheckBoxABLvSe = 3",
            "CheckBox_4 = 4", "CheckBoxU9F98X = -5", "CheckBoxLiuLan = 6", "CheckBoxNull = 7",
            "CheckBoxClass = 8" }));
    EXPECT_EQ(constantsOf(idsOfText("[带spin的文本]\n1\n0\n1 2 0 0 9 9 1 0 9 0 1 1 5 1 3 16\n"
                                    "[单行文本]\n1\n0\n1 -7 0 0 9 9 3 0 9 0 0 1\n转速\n0 1 1 1 1\n")),
        (LinesTP { "SingleEdit_Minus7 = -7", "SpinEdit_2 = 2", "SpinEditArrows_3 = 3" }));
}

TEST(Ids, OfSeveralWithOneNameTheLowestIdKeepsIt)
{
    const LinesTP names { "CheckBoxMmS_30 = 30", "CheckBoxMmS = 10", "CheckBoxMmS_20 = 20" };
    EXPECT_EQ(constantsOf(
                  idsOfText(checkBoxes({ { 30, "mm/s" }, { 10, "mm s" }, { 20, "mm,s" }, { 10, "mm/s" } }))),
        names);
}

TEST(Ids, NamesStayWhenControlsAreAdded)
{
    std::vector<std::pair<int, std::string>> boxes { { 20, "甲" }, { 30, "乙" }, { 40, "" }, { 45, "甲" } };
    boxes[2].second = "---";
    const LinesTP before = constantsOf(idsOfText(checkBoxes(boxes)));
    ASSERT_EQ(before.size(), 4U);
    const std::vector<std::pair<int, std::string>> added { { 50, "甲" }, { 51, "乙" }, { 1, "---" },
        { 2, "丙" }, { 52, "甲 50" }, { 53, "40" } };
    for (const auto& one : added) {
        boxes.insert(boxes.begin() + 1, one);
        const LinesTP after = constantsOf(idsOfText(checkBoxes(boxes)));
        const std::set<std::string> names(after.begin(), after.end());
        EXPECT_EQ(names.size(), boxes.size());
        for (const std::string& name : before) {
            EXPECT_EQ(names.count(name), 1U) << name << " beside " << one.second;
        }
    }
}

TEST(Ids, NamespaceAndPrefixAreTheUsers)
{
    const std::string plotter = PANELKIT_EXAMPLES "/plotter/plotter.dlg";
    EXPECT_NE(idsOf(plotter).find("namespace PlotterIds {\n"), std::string::npos);
    const std::string own = idsOf(plotter, " --namespace app::ids --prefix ID_");
    EXPECT_NE(own.find("namespace app::ids {\n"), std::string::npos);
    EXPECT_NE(own.find("constexpr int ID_StandardButtonQueDing = 1; // \"确定\"\n"), std::string::npos);
    EXPECT_EQ(idsOf(plotter, " --namespace \"\"").find("namespace"), std::string::npos);
    for (const char* const wrong :
        { " --namespace a-b", " --namespace ::a", " --namespace a::", " --prefix 1x" }) {
        expectComplaint(runCommand("ids \"" + plotter + "\"" + wrong), "");
    }
    const TempFile utf8(checkBoxes({ { 1, "甲" } }));
    expectComplaint(runCommand("ids \"" + std::string(utf8.path()) + "\""), "UTF-8");
    expectComplaint(runCommand("ids \"no such.dlg\""), "'no such.dlg': no such file");
}

TEST(Ids, HeaderIsWrittenWhereTheUserStands)
{
    const std::string plotter = PANELKIT_EXAMPLES "/plotter/plotter.dlg";
    const TempFile header("old", ".h");
    EXPECT_EQ(idsOf(plotter, " -o \"" + std::string(header.path()) + "\""), "");
    EXPECT_EQ(header.bytes(), idsOf(plotter));
}

#ifndef _WIN32
namespace {

// What the compiler says of headers, each included twice, and then of lines of code; "" when it takes them.
std::string compiled(const std::vector<std::string>& headers, const std::string& code = "")
{
    std::string all;
    for (const std::string& header : headers) {
        all += "#include \"" + header + "\"\n#include \"" + header + "\"\n";
    }
    const TempFile source(all + code, ".cpp");
    const TempFile said;
    std::system((PANELKIT_COMPILER " -std=c++17 -fsyntax-only -Wall -Wextra -Wpedantic -Werror '"
        + std::string(source.path()) + "' 2>'" + said.path() + "'")
                    .c_str());
    return said.bytes();
}

} // namespace

TEST(Ids, HeadersOfAllExamplesCompileTogether)
{
    std::vector<std::string> headers;
    std::string code;
    for (const std::string& example : exampleFiles()) {
        headers.push_back((TempFile().path() + std::string(".h")));
        idsOf(example, " -o \"" + headers.back() + "\"");
        const std::string text = wholeFile(headers.back());
        std::smatch space;
        ASSERT_TRUE(std::regex_search(text, space, std::regex("namespace (\\w+) \\{")));
        for (const std::string& one : constantsOf(text)) {
            const size_t middle = one.find(" = ");
            code += "static_assert(" + space[1].str() + "::" + one.substr(0, middle)
                + " == " + one.substr(middle + 3) + ", \"\");\n";
        }
    }
    EXPECT_GT(std::count(code.begin(), code.end(), '\n'), 100);
    EXPECT_EQ(compiled(headers, code), "");
    EXPECT_NE(compiled(headers, "static_assert(PlotterIds::StandardButtonQueDing == 3, \"\");"), "");
    for (const std::string& header : headers) {
        std::filesystem::remove(header);
    }
}

TEST(Ids, OddTextsAndNumbersCompile)
{
    const DescriptionFileCL file(checkBoxes({ { -2147483647 - 1, "C:\\" }, { 2147483647, "?\?/" },
        { 3, "a\vb\fc\rd" }, { 4, "*/ \"x\" //" }, { 5, "字\\" }, { 5, "字\\" }, { 6, "αβ Ω ℃ é" } }));
    const std::string header = (TempFile().path() + std::string(".h"));
    idsOf(file.path(), " -o \"" + header + "\"");
    EXPECT_EQ(constantsOf(wholeFile(header)).size(), 6U);
    EXPECT_EQ(compiled({ header }), "");
    std::filesystem::remove(header);
}
#endif
