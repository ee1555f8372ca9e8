// How well `panelkit check` finds single mistakes: 200 of them by chance in the examples. Natively and
// without sanitizers only: it starts the command 600 times, and the answers are the same.
#if !defined(_WIN32) && !defined(__SANITIZE_ADDRESS__)
#include "baselib/gbk.h"
#include "controls/buttons/new_rotate_btn_record.h"
#include "dialog/kinds.h"
#include "tools/run_command.h"
#include <algorithm>
#include <filesystem>
#include <random>
#include <sstream>

namespace {

enum Mutation
{
    LineDeleted,
    LineDoubled,
    NumberToWord,
    DigitToLetter,
    CountOffByOne,
    IdChanged,
    HeaderMisspelt,
    SavedAsUtf8,
    MutationCount
};
constexpr const char* MutationNames[]
    = { "a line deleted", "a line doubled", "a number turned to a word", "a digit turned to a letter",
          "a count off by one", "an id changed", "a header misspelt", "saved as UTF-8" };

// Where the function ids of controls, and of the entries that belong to them, stand.
class IdSpansCL : public ReadObserverCL
{
public:
    explicit IdSpansCL(const std::string& bytes)
    {
        VrIOCL io;
        io.OpenM(std::make_shared<const FileTextCL>(bytes));
        io.SetObserverM(this);
        slEachKind([&](auto row) {
            typename decltype(row)::Records records;
            int count = 0;
            slReadSection(io, records, &count);
        });
        DVrNewRotateBtnArr buttons;
        buttons.FmReadInterfaceM(&io);
    }
    void ValueM(const ValueSeenCL& value) override
    {
        if (std::string(value.field) == "function_id") {
            // A record's id stands behind its window index; an entry begins with its.
            (lastRecord_ != value.record || lastSection_ != value.section ? entries : controls)
                .push_back(value.span);
        }
        lastRecord_ = value.record;
        lastSection_ = value.section;
    }
    std::vector<SpanCL> controls;
    std::vector<SpanCL> entries;

private:
    int lastRecord_ { -1 };
    const char* lastSection_ { nullptr };
};

struct MutantCL
{
    std::string bytes;
    std::size_t line { 0 }; // From 1, in the mutant.
};

class MutatorCL
{
public:
    explicit MutatorCL(unsigned seed)
        : random_(seed)
    {
    }
    MutantCL MakeM(const std::string& file, Mutation mutation)
    {
        bytes_ = file;
        switch (mutation) {
        case LineDeleted:
        case LineDoubled:
            return lineM(mutation == LineDoubled);
        case NumberToWord: {
            const char* const words[] = { "abc", "\xBF\xED", "x1", "--", "O" };
            return replaceM(pickM(numbersM()), words[belowM(5)]);
        }
        case DigitToLetter: {
            const SpanCL number = pickM(numbersM());
            std::size_t at = number.begin + belowM(number.end - number.begin);
            while (bytes_[at] < '0' || bytes_[at] > '9') {
                ++at;
            }
            return replaceM({ at, at + 1 }, std::string(1, "OlxSB"[belowM(5)]));
        }
        case CountOffByOne: {
            const SpanCL count = pickM(countsM());
            const int number = std::stoi(bytes_.substr(count.begin, count.end - count.begin));
            const int sign = number < 0 ? -1 : 1;
            return replaceM(count, std::to_string(number + sign * (belowM(2) == 0 ? 1 : -1)));
        }
        case IdChanged:
            return idM();
        case HeaderMisspelt:
            return headerM();
        default:
            return { slGbkToUtf8(bytes_.data(), bytes_.size()), 1 };
        }
    }

private:
    std::size_t belowM(std::size_t limit) { return random_() % limit; }
    template <class T> T pickM(const std::vector<T>& from) { return from[belowM(from.size())]; }
    std::vector<SpanCL> linesM() const
    {
        std::vector<SpanCL> lines;
        for (std::size_t at = 0; at < bytes_.size();) {
            const std::size_t end = std::min(bytes_.find('\n', at), bytes_.size() - 1) + 1;
            lines.push_back({ at, end });
            at = end;
        }
        return lines;
    }
    std::size_t lineOfM(std::size_t offset) const
    {
        return static_cast<std::size_t>(
                   std::count(bytes_.begin(), bytes_.begin() + static_cast<long>(offset), '\n'))
            + 1;
    }
    MutantCL replaceM(SpanCL span, const std::string& by)
    {
        const std::size_t line = lineOfM(span.begin);
        return { bytes_.substr(0, span.begin) + by + bytes_.substr(span.end), line };
    }
    MutantCL lineM(bool isDoubled)
    {
        const std::vector<SpanCL> lines = linesM();
        const std::size_t number = belowM(lines.size());
        const SpanCL line = lines[number];
        if (isDoubled) {
            return { bytes_.substr(0, line.end) + bytes_.substr(line.begin), number + 2 };
        }
        return { bytes_.substr(0, line.begin) + bytes_.substr(line.end), number + 1 };
    }
    // Whole words that are numbers, wherever they stand.
    std::vector<SpanCL> numbersM() const
    {
        std::vector<SpanCL> found;
        for (std::size_t at = 0; at < bytes_.size();) {
            const std::size_t begin = bytes_.find_first_not_of(" \n", at);
            if (begin == std::string::npos) {
                break;
            }
            at = std::min(bytes_.find_first_of(" \n", begin), bytes_.size());
            const std::string word = bytes_.substr(begin, at - begin);
            if (word.find_first_not_of("-.0123456789") == std::string::npos
                && word.find_first_of("0123456789") != std::string::npos) {
                found.push_back({ begin, at });
            }
        }
        return found;
    }
    std::vector<SpanCL> headersM() const
    {
        std::vector<SpanCL> headers;
        for (const SpanCL line : linesM()) {
            if (bytes_[line.begin] == '[') {
                headers.push_back({ line.begin, line.end - 1 });
            }
        }
        return headers;
    }
    // The number below each header of a section with records.
    std::vector<SpanCL> countsM() const
    {
        std::vector<SpanCL> counts;
        for (const SpanCL header : headersM()) {
            const std::size_t begin = header.end + 1;
            const std::size_t end = bytes_.find_first_of(" \n", begin);
            counts.push_back({ begin, end });
        }
        counts.erase(counts.begin(), counts.begin() + 2); // The version and the dialog have none.
        return counts;
    }
    MutantCL idM()
    {
        const IdSpansCL ids(bytes_);
        const std::size_t chosen = belowM(ids.controls.size() + ids.entries.size());
        if (chosen >= ids.controls.size()) { // An entry gets an id that no control has.
            return replaceM(ids.entries[chosen - ids.controls.size()], std::to_string(7000 + belowM(1000)));
        }
        const SpanCL span = ids.controls[chosen]; // A control gets another one's.
        const SpanCL other
            = ids.controls[(chosen + 1 + belowM(ids.controls.size() - 1)) % ids.controls.size()];
        return replaceM(span, bytes_.substr(other.begin, other.end - other.begin));
    }
    MutantCL headerM()
    {
        const SpanCL header = pickM(headersM());
        std::vector<SpanCL> characters;
        for (std::size_t at = header.begin; at < header.end;) {
            const auto length
                = static_cast<std::size_t>(slGbkCharLength(bytes_.data() + at, bytes_.data() + header.end));
            characters.push_back({ at, at + length });
            at += length;
        }
        const SpanCL character = pickM(characters);
        return replaceM(character, belowM(2) == 0 ? "" : "\xBE\xE4");
    }

    std::mt19937 random_;
    std::string bytes_;
};

struct RowCountsCL
{
    int made { 0 };
    int changed { 0 };
    int found { 0 };
    int placed { 0 };
    int few { 0 };
};

// Lines of the findings in the text output.
std::vector<std::size_t> findingLines(const std::string& output, const std::string& file)
{
    std::vector<std::size_t> lines;
    std::istringstream in(output);
    for (std::string line; std::getline(in, line);) {
        if (line.rfind(file + ":", 0) == 0) {
            lines.push_back(std::stoul(line.substr(file.size() + 1)));
        }
    }
    return lines;
}

} // namespace

TEST(CheckMutations, AreFoundAtTheirPlaceWithFewWords)
{
    constexpr int EachKind = 25;
    const std::vector<std::string> files = exampleFiles();
    MutatorCL mutator(20);
    RowCountsCL rows[MutationCount];
    RowCountsCL all;
    for (int i = 0; i < EachKind * MutationCount; ++i) {
        const auto kind = static_cast<Mutation>(i % MutationCount);
        const std::string& example = files[static_cast<std::size_t>(i / MutationCount) % files.size()];
        const std::string original = wholeFile(example);
        const MutantCL mutant = mutator.MakeM(original, kind);
        const std::filesystem::path path = std::filesystem::path(example).parent_path()
            / ("check_mutant_" + std::to_string(std::hash<std::string>()(PANELKIT_COMMAND)) + ".tmp");
        const std::string name = path.string();
        FILE* const out = std::fopen(name.c_str(), "wb");
        ASSERT_NE(out, nullptr);
        std::fwrite(mutant.bytes.data(), 1, mutant.bytes.size(), out);
        std::fclose(out);
        const bool isChanged
            = runCommand("dump \"" + name + "\"").output != runCommand("dump \"" + example + "\"").output;
        const CommandResultCL result = runCommand("check --lang en \"" + name + "\"");
        std::filesystem::remove(path);
        RowCountsCL& row = rows[kind];
        ++row.made;
        if (!isChanged) {
            continue;
        }
        ++row.changed;
        const std::vector<std::size_t> lines = findingLines(result.output, name);
        const bool isPlaced = !lines.empty() && (lines[0] == mutant.line || lines[0] == mutant.line + 1);
        row.found += lines.empty() ? 0 : 1;
        row.placed += isPlaced ? 1 : 0;
        row.few += !lines.empty() && lines.size() <= 3 ? 1 : 0;
        if (!isPlaced || lines.size() > 3) {
            std::printf("%s, line %zu of %s:\n%s", MutationNames[kind], mutant.line, example.c_str(),
                result.output.c_str());
        }
    }
    std::printf("%-28s %8s %8s %8s %8s %8s\n", "mutation", "made", "changed", "found", "placed", "few");
    for (int kind = 0; kind < MutationCount; ++kind) {
        const RowCountsCL& row = rows[kind];
        std::printf("%-28s %8d %8d %8d %8d %8d\n", MutationNames[kind], row.made, row.changed, row.found,
            row.placed, row.few);
        all.made += row.made;
        all.changed += row.changed;
        all.found += row.found;
        all.placed += row.placed;
        all.few += row.few;
    }
    std::printf("%-28s %8d %8d %8d %8d %8d\n", "all", all.made, all.changed, all.found, all.placed, all.few);
    EXPECT_EQ(all.made, EachKind * MutationCount);
    EXPECT_GE(all.changed, 120);
    EXPECT_GE(all.found * 100, all.changed * 95);
    EXPECT_GE(all.placed * 100, all.changed * 90);
    EXPECT_GE(all.few * 100, all.changed * 90);
}

#endif
