// Lines up the numbers of a description file below their comment lines, and changes nothing else.
#include "baselib/number_text.h"
#include "commands.h"
#include "encodings.h"
#include "reading.h"
#include "row_layout.h"
#include "text_file.h"
#include <algorithm>
#include <cstdio>
#include <iterator>
#include <map>
#include <string>
#include <tuple>
#include <vector>

namespace {

// One line, if nothing but values of one record stands in it.
struct LineCL
{
    std::vector<ValueSeenCL> values;
    bool isFirst { false }; // The record begins in it.
    bool isMixed { false };
};

// One of the values that open a record, each of which has a word in comments.
bool isCommon(const ValueSeenCL& value)
{
    static const std::string_view Fields[]
        = { "window_index", "item_index", "function_id", "position", "size" };
    return std::find(std::begin(Fields), std::end(Fields), value.field) != std::end(Fields);
}

// Sees where each line's values come from, and what all is read.
class LineFinderCL : public ReadObserverCL
{
public:
    explicit LineFinderCL(const FileTextCL& text)
        : text_(text)
    {
        starts_.push_back(0);
        for (std::size_t i = 0; i < text.SizeM(); ++i) {
            if (text.BytesM()[i] == '\n') {
                starts_.push_back(i + 1);
            }
        }
        lines_.resize(starts_.size());
    }

    void ValueM(const ValueSeenCL& value) override
    {
        const std::string_view found = text_.CutM(value.span);
        noteM(value.section, value.record, static_cast<int>(value.fate));
        noteM(value.field, value.part, static_cast<int>(found.size()));
        read_ += found;
        const bool begins = value.record != record_ || value.section != section_;
        record_ = value.record;
        section_ = value.section;
        if (value.span.EmptyM()) {
            return;
        }
        LineCL& line = lines_[lineOfM(value.span.begin)];
        line.isFirst = line.isFirst || begins;
        line.isMixed = line.isMixed || value.fate == Fate::NotANumber
            || (!line.values.empty()
                && (line.values[0].section != value.section || line.values[0].record != value.record));
        line.values.push_back(value);
    }
    void EntryDroppedM(const EntryDroppedCL& entry) override
    {
        noteM(entry.section, entry.entry, static_cast<int>(entry.fault));
    }
    void SectionM(const SectionSeenCL& section) override
    {
        noteM(section.header, section.count, static_cast<int>(section.status));
        comments_[section.header] = section.comments;
        for (const SpanCL span :
            { section.headerSpan, section.countSpan, section.commentCount, section.comments }) {
            for (std::size_t i = lineOfM(span.begin); !span.EmptyM() && i <= lineOfM(span.end - 1); ++i) {
                lines_[i].isMixed = true;
            }
        }
    }

    // What is to change, in the order of the file.
    TextChangesTP ChangesM() const;
    // All values and what became of them: whether two files are read the same.
    const std::string& ReadM() const { return read_; }

private:
    using RowsTP = std::vector<RowCellsCL>;

    void noteM(const char* text, int first, int second)
    {
        read_ += text;
        read_ += '\n' + std::to_string(first) + ' ' + std::to_string(second) + '\n';
    }
    std::size_t lineOfM(std::size_t offset) const
    {
        return static_cast<std::size_t>(
                   std::upper_bound(starts_.begin(), starts_.end(), offset) - starts_.begin())
            - 1;
    }
    bool isBlankM(std::size_t begin, std::size_t end) const
    {
        const std::string_view between = text_.CutM({ begin, end });
        return between.find_first_not_of(" \t") == std::string_view::npos;
    }
    bool isTextM(const ValueSeenCL& value) const;
    RowCellsCL rowM(std::size_t number) const;
    static void textsTogether(RowsTP& rows);

    const FileTextCL& text_;
    std::vector<std::size_t> starts_;
    std::vector<LineCL> lines_;
    std::map<std::string, SpanCL> comments_;
    std::string read_;
    const char* section_ { nullptr }; // Of the last value.
    int record_ { -1 };
};

// A text that is a number is taken for one here; textsTogether knows better.
bool LineFinderCL::isTextM(const ValueSeenCL& value) const
{
    const std::string_view found = text_.CutM(value.span);
    float number = 0;
    const char* const end = found.data() + found.size();
    return slReadReal(found.data(), end, &number) != end;
}

// No cells for a line that must stay as it is.
RowCellsCL LineFinderCL::rowM(std::size_t number) const
{
    const LineCL& line = lines_[number];
    RowCellsCL row { starts_[number], {} };
    if (line.isMixed || line.values.empty()) {
        return row;
    }
    std::size_t at = row.lineBegin;
    for (const ValueSeenCL& value : line.values) {
        const bool isApart = value.span.begin > at || at == row.lineBegin;
        if (!isApart || !isBlankM(at, value.span.begin)) {
            return { row.lineBegin, {} };
        }
        row.cells.push_back({ value.span, isTextM(value), value.part });
        at = value.span.end;
    }
    const std::size_t lineEnd = number + 1 < starts_.size() ? starts_[number + 1] : text_.SizeM();
    for (; at < lineEnd; ++at) {
        if (!slIsBlank(text_.BytesM()[at])) {
            return { row.lineBegin, {} };
        }
    }
    return row;
}

// Where the last value of some row is a text, so it is in the others.
void LineFinderCL::textsTogether(RowsTP& rows)
{
    std::map<std::size_t, bool> isText;
    for (const RowCellsCL& row : rows) {
        bool& is = isText[row.cells.size()];
        is = is || row.cells.back().isText;
    }
    for (RowCellsCL& row : rows) {
        row.cells.back().isText = isText[row.cells.size()];
    }
}

TextChangesTP LineFinderCL::ChangesM() const
{
    // Lines of a section that begin with the same value have the same columns.
    std::map<std::tuple<std::string, std::string, int>, std::vector<std::size_t>> alike;
    for (std::size_t i = 0; i < lines_.size(); ++i) {
        if (!lines_[i].values.empty()) {
            const ValueSeenCL& first = lines_[i].values[0];
            alike[{ first.section, first.field, first.part }].push_back(i);
        }
    }
    TextChangesTP changes;
    for (const auto& [key, numbers] : alike) {
        RowsTP rows;
        SpanCL comments;
        std::size_t common = 0;
        for (const std::size_t number : numbers) {
            RowCellsCL row = rowM(number);
            if (row.cells.empty()) {
                continue;
            }
            const LineCL& line = lines_[number];
            if (line.isFirst) {
                comments = comments_.at(std::get<0>(key));
                common = static_cast<std::size_t>(
                    std::count_if(line.values.begin(), line.values.end(), isCommon));
            }
            rows.push_back(std::move(row));
        }
        if (!rows.empty()) {
            textsTogether(rows);
            lineUpRows(text_, rows, comments, common, changes);
        }
    }
    std::sort(changes.begin(), changes.end(),
        [](const TextChangeCL& one, const TextChangeCL& other) { return one.span.begin < other.span.begin; });
    return changes;
}

void readWith(LineFinderCL& finder, const std::shared_ptr<const FileTextCL>& text)
{
    VrIOCL io;
    io.OpenM(text);
    io.SetObserverM(&finder);
    readAllSections(io, [](const char*, auto&) {});
}

} // namespace

TextChangesTP blanksToChange(const std::shared_ptr<const FileTextCL>& text, std::size_t* refusedLine)
{
    LineFinderCL finder(*text);
    readWith(finder, text);
    TextChangesTP changes = finder.ChangesM();
    if (changes.empty()) {
        return changes;
    }
    const auto formatted
        = std::make_shared<const FileTextCL>(slWithChanges(text->CutM({ 0, text->SizeM() }), changes));
    LineFinderCL again(*formatted);
    readWith(again, formatted);
    if (again.ReadM() != finder.ReadM()) {
        // How much a file can be meant to hold depends on its size.
        if (refusedLine != nullptr) {
            *refusedLine = text->PlaceM(changes[0].span.end).line;
        }
        changes.clear();
    }
    return changes;
}

int formatCommand(const std::string& file, bool checkOnly)
{
    std::string bytes;
    if (!readWholeFile(file, &bytes)) {
        return CannotUse;
    }
    const auto text = std::make_shared<const FileTextCL>(bytes);
    std::size_t refusedLine = 0;
    const TextChangesTP changes = blanksToChange(text, &refusedLine);
    if (refusedLine > 0) {
        std::fprintf(stderr, "%s:%zu: left as it is: with other blanks the file would be read otherwise\n",
            file.c_str(), refusedLine);
        return 0;
    }
    if (changes.empty()) {
        const Encoding encoding = encodingOf(bytes);
        return encoding == Encoding::Gbk ? 0 : complainOfEncoding(file, encoding);
    }
    if (checkOnly) {
        std::printf("%s:%zu: numbers are not lined up from here on\n", file.c_str(),
            text->PlaceM(changes[0].span.end).line);
        return 1;
    }
    return writeWholeFile(file, slWithChanges(text->CutM({ 0, text->SizeM() }), changes)) ? 0 : CannotUse;
}
