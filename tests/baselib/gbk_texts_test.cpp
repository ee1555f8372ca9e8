#include "baselib/gbk.h"
#include "baselib/gbk_texts.h"
#include "dialog/kinds.h"
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <regex>
#include <set>

namespace {

struct Constant
{
    std::string name;
    std::string bytes;
    std::string comment;
};

// What the compiler makes of a literal's inside, adjacent literals included.
std::string literalBytes(std::string literal)
{
    for (std::size_t gap = literal.find("\" \""); gap != std::string::npos; gap = literal.find("\" \"")) {
        literal.erase(gap, 3);
    }
    std::string bytes;
    for (std::size_t k = 0; k < literal.size(); ++k) {
        if (literal[k] != '\\') {
            bytes += literal[k];
        } else if (literal[k + 1] == 'n') {
            bytes += '\n';
            k += 1;
        } else {
            bytes += static_cast<char>(std::stoi(literal.substr(k + 2, 2), nullptr, 16));
            k += 3;
        }
    }
    return bytes;
}

std::string oneLine(const std::string& text)
{
    return std::regex_replace(text, std::regex("\n"), "\\n");
}

// All constants of the header; a line that declares something in another way fails.
std::vector<Constant> constants()
{
    const std::filesystem::path tests = std::filesystem::path(PANELKIT_SAMPLES).parent_path();
    std::ifstream header(tests.parent_path() / "src/baselib/gbk_texts.h", std::ios::binary);
    EXPECT_TRUE(header.is_open());
    const std::regex form("inline constexpr char (\\w+)\\[\\] = \"(.*)\"; // (.*)");
    std::vector<Constant> found;
    for (std::string line; std::getline(header, line);) {
        std::smatch match;
        if (std::regex_match(line, match, form)) {
            found.push_back({ match[1], literalBytes(match[2]), match[3] });
        } else {
            EXPECT_EQ(line.find('"'), std::string::npos) << line;
        }
    }
    return found;
}

} // namespace

TEST(GbkTexts, EveryCommentIsItsTextDecoded)
{
    std::set<std::string> distinct;
    for (const Constant& constant : constants()) {
        EXPECT_EQ(oneLine(slGbkToUtf8(constant.bytes.c_str())), constant.comment) << constant.name;
        int lost = 0;
        EXPECT_EQ(slUtf8ToGbk(slGbkToUtf8(constant.bytes.c_str()), &lost), constant.bytes);
        EXPECT_EQ(lost, 0);
        EXPECT_TRUE(distinct.insert(constant.bytes).second) << constant.name;
    }
}

TEST(GbkTexts, HeadersAreBracketed)
{
    int headers = 0;
    int texts = 0;
    for (const Constant& constant : constants()) {
        const bool header
            = constant.name.size() > 6 && constant.name.substr(constant.name.size() - 6) == "Header";
        (header ? headers : texts) += 1;
        EXPECT_EQ(constant.bytes.front() == '[' && constant.bytes.back() == ']', header) << constant.name;
    }
    int ofKinds = 0;
    slEachKind([&ofKinds](auto row) {
        ofKinds += 1 + static_cast<int>(decltype(row)::Records::Secondaries.size());
    });
    EXPECT_EQ(headers, 6 + ofKinds); // Version, dialog, relations, bindings and two of the new rotate button.
    EXPECT_EQ(texts, 15);
}

TEST(GbkTexts, CompilerSeesTheSameBytes)
{
    EXPECT_EQ(slGbkToUtf8(SpinEditHeader), "[带spin的文本]");
    EXPECT_EQ(slGbkToUtf8(IntAtMaximumText), "输入整数已到最大!\n(不得大于");
    EXPECT_EQ(slGbkToUtf8(DialogFontFace), "宋体");
    EXPECT_EQ(slGbkToUtf8(WarningCaption), "注意");
}
