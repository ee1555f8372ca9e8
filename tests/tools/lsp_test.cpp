// panelkit lsp: sessions of an editor.
#include "baselib/gbk_texts.h"
#include "dialog/kinds.h"
#include "editing/grammars.h"
#include "reading.h"
#include "support/description.h"
#include "support/seen_file.h"
#include "tools/lsp_client.h"
#include <fstream>
#include <set>

namespace {

namespace fs = std::filesystem;

// All that the library reads from a file's bytes.
SeenFileCL seenIn(const std::string& gbk)
{
    SeenFileCL seen;
    VrIOCL io;
    io.OpenM(std::make_shared<FileTextCL>(gbk));
    io.SetObserverM(&seen);
    readAllSections(io, [](const char*, auto&) {});
    return seen;
}

// "line:column: code" of each finding, as check tells them.
std::string findingsOfCheck(const std::string& path)
{
    std::string all;
    const CommandResultCL result = runCommand("check --format json --lang en \"" + path + "\"");
    for (const LspJson& finding : LspJson::parse(result.output)) {
        all += finding["line"].dump() + ":" + finding["column"].dump() + ": " + finding["severity"].dump()
            + " " + finding["code"].dump() + " " + finding["message"].dump() + "\n";
    }
    return all;
}

// The same of what the server has told; its columns count UTF-16 units, which here are characters.
std::string findingsTold(const LspJson& findings)
{
    std::string all;
    for (const LspJson& finding : findings) {
        const LspJson& start = finding["range"]["start"];
        all += std::to_string(start["line"].get<int>() + 1) + ":"
            + std::to_string(start["character"].get<int>() + 1)
            + (finding["severity"] == 1 ? ": \"error\" " : ": \"warning\" ") + finding["code"].dump() + " "
            + finding["message"].dump() + "\n";
    }
    return all;
}

// A copy of a file's folder, removed with the object.
class FolderCopyCL
{
public:
    explicit FolderCopyCL(const fs::path& folder)
        : path_(std::string(name_.path()) + ".folder")
    {
        fs::copy(folder, path_, fs::copy_options::recursive);
    }
    FolderCopyCL(const FolderCopyCL&) = delete;
    FolderCopyCL& operator=(const FolderCopyCL&) = delete;
    ~FolderCopyCL() { fs::remove_all(path_); }
    std::string FileM(const fs::path& name) const { return (path_ / name).string(); }

private:
    TempFile name_;
    fs::path path_;
};

void write(const std::string& path, const std::string& bytes)
{
    std::ofstream(path, std::ios::binary) << bytes;
}

// The ids that entries use, or any.
int idToRename(const std::string& gbk, const SeenFileCL& seen)
{
    std::map<std::string, int> uses;
    for (const auto& place : seen.values) {
        for (const ValueSeenCL& value : place.second) {
            if (value.field == std::string("function_id")) {
                ++uses[gbk.substr(value.span.begin, value.span.end - value.span.begin)];
            }
        }
    }
    const auto most = std::max_element(
        uses.begin(), uses.end(), [](const auto& a, const auto& b) { return a.second < b.second; });
    return most != uses.end() ? std::stoi(most->first) : 0;
}

// The same bytes with another number where a function id is named.
std::string withId(
    const std::string& gbk, const SeenFileCL& seen, const std::string& id, const std::string& other)
{
    std::map<std::size_t, std::size_t> places;
    for (const auto& place : seen.values) {
        for (const ValueSeenCL& value : place.second) {
            const std::string field = value.field;
            const bool isId = field == "function_id" || field == "spin_function_id" || field == "control";
            if (isId && gbk.substr(value.span.begin, value.span.end - value.span.begin) == id) {
                places[value.span.begin] = value.span.end;
            }
        }
    }
    std::string changed;
    std::size_t at = 0;
    for (const auto& [begin, end] : places) {
        changed += gbk.substr(at, begin - at) + other;
        at = end;
    }
    return changed + gbk.substr(at);
}

std::u16string wide(const std::string& ascii)
{
    return std::u16string(ascii.begin(), ascii.end());
}

std::size_t charactersBefore(const std::string& gbk, std::size_t offset)
{
    return slGbkToUtf16(gbk.data(), offset).size();
}

const std::string Path = "untouched.dlg"; // Of texts that no file has.

} // namespace

TEST(Lsp, ASessionChangesTheBytesThatItMeans)
{
    LspClientCL client;
    for (const std::string& example : exampleFiles()) {
        SCOPED_TRACE(example);
        const FolderCopyCL folder(fs::path(example).parent_path());
        const std::string path = folder.FileM(fs::path(example).filename());
        const std::string gbk = wholeFile(path);
        EditedTextCL text(client, path, gbk);
        EXPECT_EQ(findingsTold(text.FindingsM()), findingsOfCheck(path));

        // A wrong count in the first section of controls.
        const SeenFileCL seen = seenIn(gbk);
        const auto section = std::find_if(seen.sections.begin(), seen.sections.end(),
            [](const SectionSeenCL& one) { return one.count > 1 && one.countSpan.end > 0; });
        ASSERT_NE(section, seen.sections.end());
        const std::size_t begin = charactersBefore(gbk, section->countSpan.begin);
        const std::size_t end = charactersBefore(gbk, section->countSpan.end);
        text.TypeM(begin, end, wide(std::to_string(section->count - 1)));
        const LspJson findings = text.FindingsM();
        const auto wrong = std::find_if(findings.begin(), findings.end(), [&](const LspJson& finding) {
            return finding["code"] == "bad-count" && finding["range"]["start"] == text.PlaceM(begin);
        });
        ASSERT_NE(wrong, findings.end()) << findings.dump();
        const LspJson fixes = text.FixesM(*wrong);
        ASSERT_EQ(fixes.size(), 1U) << fixes.dump();
        EXPECT_EQ(fixes[0]["title"], "set the count to " + std::to_string(section->count));
        text.ApplyM(fixes[0]["edit"]["changes"][text.uri]);
        EXPECT_EQ(text.GbkM(), gbk);
        EXPECT_EQ(findingsTold(text.FindingsM()), findingsOfCheck(path));

        // Another id, also where entries name it.
        const int id = idToRename(gbk, seen);
        const std::string changed = withId(gbk, seen, std::to_string(id), "29999");
        for (const auto& place : seen.values) {
            const auto found
                = std::find_if(place.second.begin(), place.second.end(), [&](const ValueSeenCL& value) {
                      return value.field == std::string("function_id")
                          && gbk.substr(value.span.begin, value.span.end - value.span.begin)
                          == std::to_string(id);
                  });
            if (found != place.second.end()) {
                const std::size_t at = charactersBefore(gbk, found->span.begin);
                EXPECT_EQ(text.AskAtM("prepareRename", at)["placeholder"], std::to_string(id));
                const LspJson edits
                    = text.AskAtM("rename", at, { { "newName", "29999" } })["changes"][text.uri];
                EXPECT_EQ(edits.size(), text.AskAtM("references", at).size());
                text.ApplyM(edits);
                break;
            }
        }
        EXPECT_EQ(text.GbkM(), changed);

        // Formatted as the command does it.
        text.ApplyM(
            text.AskM("formatting", { { "options", { { "tabSize", 4 }, { "insertSpaces", true } } } }));
        write(path, changed);
        runCommand("format \"" + path + "\"");
        EXPECT_EQ(text.GbkM(), wholeFile(path));
        write(path, text.GbkM());
        EXPECT_EQ(findingsTold(text.FindingsM()), findingsOfCheck(path));
    }
}

namespace {

// What a layout says of its fields: choices and defaults, by name.
struct LaidOutCL
{
    std::set<std::string> choices;
    std::string text;
};
class LayoutCL : public FieldVisitorCL
{
public:
    void IntM(const char* name, int& value) override { fields[name].text = std::to_string(value); }
    void RealM(const char* name, float& value) override { fields[name].text = realM(value); }
    void IntsM(const char* name, int* values, int count) override
    {
        for (int i = 0; i < count; ++i) {
            fields[name].text += (i > 0 ? " " : "") + std::to_string(values[i]);
        }
    }
    void RealsM(const char* name, float* values, int count) override
    {
        for (int i = 0; i < count; ++i) {
            fields[name].text += (i > 0 ? " " : "") + realM(values[i]);
        }
    }
    void ColourM(const char* name, ColourTP& colour, int* flag) override
    {
        fields[name].text = flag != nullptr && *flag != 1 ? "-1 0 0"
                                                          : std::to_string(colour & 0xFF) + " "
                + std::to_string(colour >> 8 & 0xFF) + " " + std::to_string(colour >> 16 & 0xFF);
    }
    void TextM(const char* name, CharArr&, const TextFormCL&) override { fields[name].text = "empty"; }
    void ChoiceM(const char* name, int& value, const ChoicesCL& choices) override
    {
        IntM(name, value);
        for (const ChoiceCL& choice : choices) {
            fields[name].choices.insert("\n- `" + std::to_string(choice.value) + "` " + choice.name);
        }
    }
    std::map<std::string, LaidOutCL> fields;

private:
    static std::string realM(float value)
    {
        char text[32];
        std::snprintf(text, sizeof text, "%g", static_cast<double>(value));
        return text;
    }
};

std::map<std::string, LayoutCL> allLayouts()
{
    std::map<std::string, LayoutCL> all;
    for (const GrammarCL& grammar : slGrammars()) {
        if (grammar.head != HeadKind::Line) {
            grammar.visit(all[grammar.header], HasShowCondition | HasDescription);
        }
    }
    return all;
}

} // namespace

TEST(Lsp, HintsAndHoverTellTheLayout)
{
    LspClientCL client;
    const std::string gbk = wholeFile(sample("every_kind.dlg")) + BindingHeader + "\n1\n0\n103 0 1 2 0\n";
    EditedTextCL text(client, sample("every_kind.dlg"), gbk);
    const LspJson hints = text.AskM("inlayHint", { { "range", text.RangeM(0, text.text.size()) } });
    std::map<std::pair<int, int>, std::string> labelAt;
    for (const LspJson& hint : hints) {
        const std::pair<int, int> place { hint["position"]["line"], hint["position"]["character"] };
        EXPECT_TRUE(labelAt.emplace(place, hint["label"]).second) << "two hints at " << hint.dump();
    }
    std::size_t values = 0;
    std::map<std::string, LayoutCL> layouts = allLayouts();
    for (const auto& [place, seen] : seenIn(gbk).values) {
        LayoutCL& layout = layouts[place.first];
        for (const ValueSeenCL& value : seen) {
            if (value.span.EmptyM()) {
                continue;
            }
            ++values;
            const std::size_t at = charactersBefore(gbk, value.span.begin);
            const LspJson position = text.PlaceM(at);
            const std::string label = labelAt[{ position["line"], position["character"] }];
            SCOPED_TRACE(slGbkToUtf8(place.first.c_str()) + " " + value.field + ": " + label);
            if (value.part == 0) {
                EXPECT_EQ(label.rfind(value.field, 0), 0U);
            }
            EXPECT_EQ(label.empty() ? ' ' : label.back(), ':');
            const LspJson hover = text.AskAtM("hover", at);
            const std::string told = hover["contents"]["value"];
            EXPECT_EQ(told.rfind(std::string("**") + value.field, 0), 0U) << told;
            EXPECT_EQ(hover["range"]["start"], position);
            // Its meaning stands between its name and its default.
            const std::size_t name = told.find("\n\n");
            const std::size_t standard = told.find("\n\nDefault: ");
            EXPECT_TRUE(standard != std::string::npos && standard > name) << told;
            ASSERT_EQ(layout.fields.count(value.field), 1U);
            const LaidOutCL& laidOut = layout.fields[value.field];
            const std::string fallback = laidOut.text == "empty" ? "empty" : "`" + laidOut.text + "`";
            EXPECT_NE(told.find("\n\nDefault: " + fallback + "\n"), std::string::npos) << told << fallback;
            for (const std::string& choice : laidOut.choices) {
                EXPECT_NE(told.find(choice), std::string::npos) << told << choice;
            }
            if (!laidOut.choices.empty()) {
                EXPECT_EQ(countOf(told, "\n- "), static_cast<int>(laidOut.choices.size())) << told;
            }
        }
        // Every field of the layout is in the sample.
        std::set<std::string> met;
        for (const ValueSeenCL& value : seen) {
            met.insert(value.field);
        }
        for (const auto& field : layout.fields) {
            EXPECT_EQ(met.count(field.first), 1U) << slGbkToUtf8(place.first.c_str()) << field.first;
        }
    }
    std::size_t heads = 0;
    for (const auto& label : labelAt) {
        heads += label.second == "records:" || label.second == "comment lines:" ? 1 : 0;
    }
    EXPECT_EQ(labelAt.size(), values + heads);
    for (const auto& layout : layouts) { // Every section too.
        EXPECT_NE(gbk.find(layout.first), std::string::npos) << slGbkToUtf8(layout.first.c_str());
    }
}
