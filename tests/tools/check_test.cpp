#include "baselib/gbk.h"
#include "support/description.h"
#include "support/large_picture.h"
#include "support/random_description.h"
#include "tools/run_command.h"
#include <filesystem>
#include <memory>
#include <nlohmann/json.hpp>
#include <set>
#include <sstream>

namespace {

const std::string Samples = PANELKIT_SAMPLES "/check";

CommandResultCL check(const std::string& path, const std::string& options = "--lang en")
{
    return runCommand("check " + options + " \"" + path + "\"");
}

// "line:column: severity [code]" of each finding.
std::string placesOf(const std::string& output, const std::string& path)
{
    std::string places;
    std::istringstream in(output);
    for (std::string line; std::getline(in, line);) {
        if (line.rfind(path + ":", 0) == 0) {
            const std::string rest = line.substr(path.size() + 1);
            const std::size_t severityEnd = rest.find(": ", rest.find(": ") + 2);
            places += rest.substr(0, severityEnd) + line.substr(line.rfind(" [")) + "\n";
        }
    }
    return places;
}

nlohmann::json sarifOf(const std::string& path)
{
    return nlohmann::json::parse(check(path, "--format sarif --lang en").output);
}

std::set<std::string> allCodes()
{
    std::set<std::string> codes;
    const nlohmann::json sarif = sarifOf(Samples + "/empty-file.gbk");
    for (const auto& rule : sarif["runs"][0]["tool"]["driver"]["rules"]) {
        codes.insert(rule["id"]);
    }
    return codes;
}

// Of all findings those that this command finds: texts are measured only where a window system is.
std::string foundHere(const std::string& findings)
{
#ifdef _WIN32
    return findings;
#else
    std::string found;
    std::istringstream in(findings);
    for (std::string line; std::getline(in, line);) {
        found += line.find("[label-cut]") == std::string::npos ? line + "\n" : "";
    }
    return found;
#endif
}

// A file of these bytes among the samples' pictures.
class NeighbourCL
{
public:
    explicit NeighbourCL(const std::string& bytes)
        : path_(Samples + "/neighbour_" + std::to_string(std::hash<std::string>()(PANELKIT_COMMAND)) + ".tmp")
    {
        FILE* const file = std::fopen(path_.c_str(), "wb");
        std::fwrite(bytes.data(), 1, bytes.size(), file);
        std::fclose(file);
    }
    ~NeighbourCL() { std::filesystem::remove(path_); }
    const std::string& PathM() const { return path_; }

private:
    std::string path_;
};

// A fenced block of docs/check.md.
struct BlockCL
{
    std::string heading;
    std::string kind;  // head, wrong or right.
    std::string place; // line:column in it, of a wrong one.
    std::string how;   // whole: it needs no head; utf-8: nor a conversion.
    std::string text;  // UTF-8.
};

std::vector<BlockCL> documentedBlocks()
{
    std::istringstream in(wholeFile(PANELKIT_DOCS "/check.md"));
    std::vector<BlockCL> blocks;
    std::string heading;
    bool isOpen = false;
    for (std::string line; std::getline(in, line);) {
        if (line.rfind("```", 0) == 0) {
            isOpen = !isOpen;
            if (isOpen) {
                std::istringstream words(line.substr(3));
                BlockCL block { heading, "", "", "", "" };
                words >> block.kind;
                if (block.kind == "wrong") {
                    words >> block.place;
                }
                words >> block.how;
                blocks.push_back(block);
            }
        } else if (isOpen) {
            blocks.back().text += line + "\n";
        } else if (line.rfind("## `", 0) == 0) {
            heading = line.substr(4, line.size() - 5);
        }
    }
    return blocks;
}

std::string withHead(const BlockCL& block, const std::string& head)
{
    return block.how == "utf-8" ? block.text
                                : slUtf8ToGbk(block.how == "whole" ? block.text : head + block.text);
}

} // namespace

TEST(Check, EverySampleHasExactlyItsFindings)
{
    int samples = 0;
    for (const auto& entry : std::filesystem::directory_iterator(Samples)) {
        if (entry.path().extension() == ".gbk") {
            const std::string path = entry.path().string();
            const CommandResultCL result = check(path);
            const std::string expected
                = foundHere(wholeFile(std::filesystem::path(path).replace_extension(".findings").string()));
            EXPECT_EQ(placesOf(result.output, path), expected) << result.output;
            EXPECT_EQ(result.code, expected.find("error") != std::string::npos ? 1 : 0) << path;
            EXPECT_EQ(check(path, "--strict").code, expected.empty() ? 0 : 1) << path;
            ++samples;
        }
    }
    EXPECT_GE(samples, 40);
}

TEST(Check, EveryCodeHasASample)
{
    const std::set<std::string> codes = allCodes();
    EXPECT_GE(codes.size(), 33U);
    for (const std::string& code : codes) {
        EXPECT_NE(wholeFile(Samples + "/" + code + ".findings").find("[" + code + "]"), std::string::npos)
            << code;
    }
}

TEST(Check, EveryCodeIsDocumentedWithExamplesThatHold)
{
    const std::vector<BlockCL> blocks = documentedBlocks();
    ASSERT_FALSE(blocks.empty());
    ASSERT_EQ(blocks[0].kind, "head");
    const std::string& head = blocks[0].text;
    const auto headLines = static_cast<std::size_t>(countOf(head, "\n"));
    std::set<std::string> wrong;
    std::set<std::string> right;
    for (const BlockCL& block : blocks) {
        if (block.kind == "head") {
            continue;
        }
        const NeighbourCL file(withHead(block, head));
        const std::string places = placesOf(check(file.PathM()).output, file.PathM());
        if (block.kind == "right") {
            EXPECT_EQ(places, "") << block.heading << "\n" << block.text;
            right.insert(block.heading);
        } else {
            const std::size_t line = std::stoul(block.place) + (block.how.empty() ? headLines : 0);
            const std::string expected
                = std::to_string(line) + block.place.substr(block.place.find(':')) + ": ";
            wrong.insert(block.heading);
            if (foundHere(expected + "[" + block.heading + "]").empty()) {
                EXPECT_EQ(places, "");
                continue;
            }
            EXPECT_EQ(places.rfind(expected, 0), 0U) << block.heading << " at " << expected << "\n" << places;
            EXPECT_NE(places.find("[" + block.heading + "]"), std::string::npos) << places;
            EXPECT_EQ(countOf(places, "\n"), 1) << places;
        }
    }
    EXPECT_EQ(wrong, allCodes());
    EXPECT_EQ(right, allCodes());
}

TEST(Check, FindsNothingInTheExamples)
{
    const std::vector<std::string> files = exampleFiles();
    EXPECT_GE(files.size(), 8U);
    for (const std::string& file : files) {
        const CommandResultCL result = check(file, "--strict --lang en");
        EXPECT_EQ(result.output, "1 file: 0 errors, 0 warnings\n") << file;
        EXPECT_EQ(result.code, 0) << file;
    }
}

TEST(Check, TakesManyFilesAndTellsThoseThatCannotBeRead)
{
    const std::string first = Samples + "/bad-number.gbk";
    const std::string second = Samples + "/bad-value.gbk";
    const CommandResultCL both = runCommand("check --lang en \"" + first + "\" \"" + second + "\"");
    EXPECT_EQ(both.code, 1);
    EXPECT_EQ(placesOf(both.output, first), wholeFile(Samples + "/bad-number.findings"));
    EXPECT_EQ(placesOf(both.output, second), wholeFile(Samples + "/bad-value.findings"));
    EXPECT_NE(both.output.find("2 files: 1 error, 1 warning\n"), std::string::npos) << both.output;
    const CommandResultCL missing = runCommand("check --lang en \"" + first + "\" no_such_file.dlg");
    EXPECT_EQ(missing.code, 2);
    EXPECT_EQ(missing.errors.rfind("panelkit: cannot open 'no_such_file.dlg': no such file", 0), 0U)
        << missing.errors;
    EXPECT_EQ(countOf(missing.errors, "\n"), 1);
    EXPECT_EQ(placesOf(missing.output, first), wholeFile(Samples + "/bad-number.findings"));
    EXPECT_EQ(check(Samples).code, 2);
    EXPECT_EQ(runCommand("check").code, 2);
    EXPECT_EQ(check(first, "--format xml").code, 2);
}

#ifndef _WIN32 // There commands are started without a shell.
TEST(Check, ReadsStandardInput)
{
    const CommandResultCL result = runCommand("check --lang en - <\"" + Samples + "/bad-number.gbk\"");
    EXPECT_EQ(result.code, 1);
    EXPECT_EQ(placesOf(result.output, "<stdin>"), wholeFile(Samples + "/bad-number.findings"));
}
#endif

TEST(Check, FilesByChanceAreCheckedToTheirEnd)
{
    RandomDescriptionCL random(5);
    std::vector<std::unique_ptr<TempFile>> files;
    std::string arguments = "check --lang en";
    for (int i = 0; i < 100; ++i) {
        const std::string bytes
            = i % 2 == 0 ? random.FileM() : random.MutatedM(wholeFile(PANELKIT_SAMPLES "/every_kind.dlg"));
        // Bytes that are no GBK would end the check at once.
        int lost = 0;
        files.push_back(
            std::make_unique<TempFile>(slUtf8ToGbk(slGbkToUtf8(bytes.data(), bytes.size()), &lost)));
        arguments += std::string(" \"") + files.back()->path() + "\"";
    }
    const CommandResultCL result = runCommand(arguments);
    EXPECT_EQ(result.code, 1);
    EXPECT_EQ(result.errors, "");
    EXPECT_NE(result.output.find("\n100 files: "), std::string::npos);
}

TEST(Check, SpeaksChinese)
{
    const std::string path = Samples + "/bad-value.gbk";
    const std::string output = check(path, "--lang zh").output;
    EXPECT_NE(output.find(": 警告: alignment 没有取值 7"), std::string::npos) << output;
    EXPECT_NE(output.find("1 个文件: 0 个错误, 1 个警告\n"), std::string::npos) << output;
#ifndef _WIN32 // Where the command starts with this process's environment.
    ::setenv("LC_ALL", "zh_CN.UTF-8", 1);
    EXPECT_EQ(check(path, "").output, output);
    ::setenv("LC_ALL", "C", 1);
    EXPECT_EQ(check(path, "").output, check(path).output);
    ::unsetenv("LC_ALL");
#endif
}

TEST(Check, JsonHasTheFindingsOfTheText)
{
    const std::string path = Samples + "/record-slip.gbk";
    const auto list = nlohmann::json::parse(check(path, "--format json --lang en").output);
    ASSERT_EQ(list.size(), 1U);
    EXPECT_EQ(list[0]["file"], path);
    EXPECT_EQ(list[0]["severity"], "error");
    EXPECT_EQ(list[0]["code"], "record-slip");
    EXPECT_EQ(list[0]["message"], "'1O0' is no number (size); records lost behind it: 1");
    EXPECT_EQ(std::to_string(list[0]["line"].get<int>()) + ":" + std::to_string(list[0]["column"].get<int>())
            + ": error [record-slip]\n",
        wholeFile(Samples + "/record-slip.findings"));
    EXPECT_EQ(list[0].size(), 6U);
    EXPECT_EQ(check(exampleFiles()[0], "--format json").output, "[]\n");
}

TEST(Check, SlipCostsTheRecordsThatAreReadWronglyNotThoseBehindThem)
{
    // Texts take the rest of a line, so that the reading of labels finds its way again: only the last is
    // lost.
    const std::string label = "1 11 20 30 60 20 1\n甲\n0 0 0 0\n";
    const DescriptionFileCL labels(
        std::string(HeaderSections) + "[标题]\n4\n0\nx" + label + label + label + label);
    const std::string labelsSaid = check(labels.path(), "--lang en").output;
    EXPECT_NE(labelsSaid.find("records lost behind it: 1 [record-slip]"), std::string::npos) << labelsSaid;
    // Numbers alone never do.
    const std::string canvas = "1 11 20 30 60 20 0 0 0\n";
    const DescriptionFileCL canvases(std::string(HeaderSections)
        + "[二维绘图控件]\n4\n0\n1 11 2O 30 60 20 0 0 0\n" + canvas + canvas + canvas);
    const std::string canvasesSaid = check(canvases.path(), "--lang en").output;
    EXPECT_NE(canvasesSaid.find("records lost behind it: 3 [record-slip]"), std::string::npos)
        << canvasesSaid;
}

// The properties that the schema of SARIF 2.1.0 requires of what is written here, and their types; written by
// hand, as the schema itself isn't at hand.
TEST(Check, PictureOfTooManyPixelsIsGoodExceptForARegion)
{
    const LargePictureCL large(1, 30000, 30000);
    const std::string name = std::filesystem::path(large.path()).filename().u8string();
    const DescriptionFileCL file(std::string(HeaderSections)
        + "[标题]\n1\n0\n1 1001 10 10 80 20 1\n转速\n0 -1 0 0\n" + "[位图按钮]\n1\n0\n2 1101 100 10 64 32\n"
        + name + "\nNULL\nNULL\nNULL\n" + name + "\n");
    const std::string said = check(file.path()).output;
    EXPECT_EQ(placesOf(said, file.path()), "25:1: error [bad-picture]\n") << said;
    EXPECT_NE(said.find("'" + name + "' has too many pixels: no region is made of it"), std::string::npos)
        << said;
}

TEST(Check, SarifHasWhatItsSchemaRequires)
{
    const nlohmann::json sarif = sarifOf(Samples + "/outside-dialog.gbk");
    EXPECT_EQ(sarif["version"], "2.1.0");
    EXPECT_TRUE(sarif["$schema"].is_string());
    ASSERT_EQ(sarif["runs"].size(), 1U);
    const nlohmann::json& run = sarif["runs"][0];
    const nlohmann::json& driver = run["tool"]["driver"];
    EXPECT_EQ(driver["name"], "panelkit");
    EXPECT_TRUE(driver["version"].is_string());
    EXPECT_EQ(run["columnKind"], "unicodeCodePoints");
    std::set<std::string> rules;
    for (const auto& rule : driver["rules"]) {
        EXPECT_TRUE(rules.insert(rule["id"]).second) << rule; // Items are unique.
        EXPECT_TRUE(rule["shortDescription"]["text"].is_string());
        const std::string level = rule["defaultConfiguration"]["level"];
        EXPECT_TRUE(level == "error" || level == "warning") << level;
    }
    ASSERT_EQ(run["results"].size(), 1U);
    for (const auto& result : run["results"]) {
        EXPECT_EQ(rules.count(result["ruleId"]), 1U);
        EXPECT_EQ(result["level"], "warning");
        EXPECT_FALSE(result["message"]["text"].get<std::string>().empty());
        ASSERT_EQ(result["locations"].size(), 1U);
        const nlohmann::json& place = result["locations"][0]["physicalLocation"];
        const std::string uri = place["artifactLocation"]["uri"];
        EXPECT_NE(uri.find("outside-dialog.gbk"), std::string::npos);
        EXPECT_EQ(uri.find_first_of(" \\\"<>^`{|}"), std::string::npos) << uri;
        EXPECT_GE(place["region"]["startLine"].get<int>(), 1);
        EXPECT_GE(place["region"]["startColumn"].get<int>(), 1);
    }
    EXPECT_TRUE(sarifOf(exampleFiles()[0])["runs"][0]["results"].empty());
}
