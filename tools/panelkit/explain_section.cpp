// What is wrong with a section that doesn't read whole.
#include "baselib/number_text.h"
#include "section_layout.h"
#include <algorithm>
#include <cstring>
#include <map>

namespace {

// One section read on its own, perhaps with a change.
struct TrialCL
{
    SeenSectionCL section;
    SectionLayoutCL layout;
    bool IsCleanM() const { return layout.isClean; }
};

class ExplainerCL
{
public:
    ExplainerCL(FileReadingCL& file, int grammar, const SectionLayoutCL& layout, FindingsCL& findings)
        : file_(file)
        , grammar_(allGrammars()[static_cast<std::size_t>(grammar)])
        , number_(grammar)
        , section_(file.SectionM(grammar))
        , layout_(layout)
        , findings_(findings)
        , bytes_(file.TextM().CutM({ 0, file.TextM().SizeM() }))
        , begin_(section_.head.headerSpan.begin)
        , end_(section_.regionEnd)
    {
        const std::size_t size = end_ - begin_ + 1;
        constexpr std::size_t Budget = 8'000'000; // Bytes to be read in trials.
        trialsLeft_ = static_cast<int>(std::clamp<std::size_t>(Budget / size, 2, 200));
    }

    void ExplainM()
    {
        section_.soundRecords = 0;
        if (explainCountM()) {
            return;
        }
        if (isBadWordAllM() || isLineDoubledM()) {
            return;
        }
        if (explainHeadM() || isCountWrongM() || isRecordCommentM() || isShortM() || isTextLineMissingM()) {
            return;
        }
        explainFirstOddityM();
    }

private:
    bool hasCountM() const { return number_ != DialogGrammar; }
    std::string wordM(std::size_t at) const { return file_.CutM(wordAt(bytes_, at)); }
    std::size_t lineStartM(std::size_t at) const { return file_.LineStartM(file_.LineM(at)); }
    void addM(Says says, std::size_t offset, std::vector<std::string> details, int soundRecords)
    {
        section_.soundRecords = soundRecords;
        section_.isFaulty = true;
        findings_.AddM(says, offset, std::move(details));
    }
    std::string costM(int record) const
    {
        return std::to_string(std::max(0, section_.head.count - record - 1));
    }

    // The section alone, with some bytes of the file replaced.
    TrialCL tryM(SpanCL replaced, const std::string& by)
    {
        TrialCL trial;
        if (trialsLeft_-- <= 0) {
            return trial;
        }
        std::string text = grammar_.before;
        text.append(bytes_.substr(begin_, replaced.begin - begin_));
        text.append(by).append(bytes_.substr(replaced.end, end_ - replaced.end));
        const auto shared = std::make_shared<const FileTextCL>(text);
        VrIOCL io;
        io.OpenM(shared);
        SeenSectionsCL seen;
        io.SetObserverM(&seen);
        grammar_.read(io);
        trial.section = std::move(seen.AtM(number_));
        trial.section.regionEnd = text.size();
        trial.layout = layoutOf(trial.section, shared->CutM({ 0, text.size() }), hasCountM());
        oddTexts_ = 0;
        for (const SeenValueCL& value : trial.section.values) {
            oddTexts_ += isRowOfNumbers(shared->CutM({ value.begin, value.end }), 3) ? 1 : 0;
        }
        return trial;
    }

    bool explainCountM()
    {
        const SectionSeenCL& head = section_.head;
        if (!hasCountM()) {
            return false;
        }
        if (head.countSpan.begin >= end_) {
            addM(Says::NoCount, begin_, {}, 0);
            return true;
        }
        const SpanCL word = wordAt(bytes_, head.countSpan.begin);
        if (head.countSpan.EmptyM() || word.end != head.countSpan.end) {
            addM(Says::BadCount, head.countSpan.begin, { file_.CutM(word) }, 0);
            return true;
        }
        if (head.status == SectionStatus::Broken) {
            addM(Says::CountTooLarge, head.countSpan.begin, { file_.CutM(word) }, 0);
            return true;
        }
        if (head.status == SectionStatus::Empty && bytes_[head.countSpan.begin] == '-') {
            addM(Says::NegativeCount, head.countSpan.begin, { file_.CutM(word) }, 0);
            return true;
        }
        return false;
    }

    // One word that is no number, and everything else is right.
    bool isBadWordAllM()
    {
        const SeenValueCL* const bad = layout_.bad;
        if (bad == nullptr || layout_.runsOver || bad->fate == Fate::NotLookedAt) {
            return false;
        }
        const SpanCL word = wordAt(bytes_, bad->begin);
        const bool isJoined = word.begin < bad->begin;
        if (!tryM(word, "0").IsCleanM() && !(isJoined && bad->fate == Fate::NotANumber)) {
            return false;
        }
        sayBadWordM(*bad, word);
        return true;
    }
    void sayBadWordM(const SeenValueCL& bad, SpanCL word)
    {
        const SeenValueCL* value = &bad;
        int record = layout_.badRecord;
        if (word.begin < bad.begin && value > section_.values.data()) {
            --value; // The word began as the value before.
            record -= value < section_.FirstM(record) ? 1 : 0;
        }
        const bool isLast = section_.head.count - record - 1 <= 0;
        if (isLast) {
            addM(Says::BadNumber, word.begin, { value->field, file_.CutM(word) }, record);
        } else {
            addM(Says::RecordSlip, word.begin, { value->field, file_.CutM(word), costM(record) }, record);
        }
    }

    // A line that stands there twice.
    bool isLineDoubledM()
    {
        const std::size_t first = file_.LineM(begin_);
        const std::size_t last = file_.LineM(end_ > begin_ ? end_ - 1 : end_);
        const std::size_t oddLine
            = layout_.bad != nullptr && !layout_.runsOver ? file_.LineM(layout_.bad->begin) : last;
        for (std::size_t line = std::min(last, oddLine + 1); line > first; --line) {
            const std::string_view text = lineM(line);
            if (!text.empty() && text == lineM(line - 1)
                && tryM({ file_.LineStartM(line), file_.LineStartM(line + 1) }, "").IsCleanM()) {
                addM(Says::DoubledLine, nextText(bytes_, file_.LineStartM(line), end_), {},
                    recordAtM(file_.LineStartM(line)));
                return true;
            }
        }
        return false;
    }
    std::string_view lineM(std::size_t line) const
    {
        std::size_t begin = file_.LineStartM(line);
        std::size_t end = std::min(file_.LineStartM(line + 1), end_);
        begin = nextText(bytes_, begin, end);
        while (end > begin && slIsBlank(bytes_[end - 1])) {
            --end;
        }
        return bytes_.substr(begin, end - begin);
    }
    int recordAtM(std::size_t offset) const // How many records end before it.
    {
        int records = 0;
        while (records < section_.RecordsM() && (section_.EndM(records) - 1)->end <= offset) {
            ++records;
        }
        return std::min(records, section_.RecordsM());
    }

    bool explainHeadM()
    {
        const SectionSeenCL& head = section_.head;
        if (head.status == SectionStatus::Empty || layout_.isHeadSound) {
            return false;
        }
        if (head.commentCount.begin >= end_) {
            addM(Says::ShortSection, hasCountM() ? head.countSpan.begin : begin_,
                { hasCountM() ? wordM(head.countSpan.begin) : "1", "0" }, 0);
        } else if (head.commentCount.EmptyM()
            || wordAt(bytes_, head.commentCount.begin).end != head.commentCount.end) {
            addM(Says::BadCommentCount, head.commentCount.begin, { wordM(head.commentCount.begin) }, 0);
        } else {
            addM(Says::CommentsTooMany, head.commentCount.begin, { wordM(head.commentCount.begin) }, 0);
        }
        return true;
    }

    // Whole records are left, or fewer are there than the count says.
    bool isCountWrongM()
    {
        const SectionSeenCL& head = section_.head;
        if (!hasCountM() || layout_.bad != nullptr || layout_.leftover >= end_) {
            return false;
        }
        const auto lines = static_cast<int>(file_.LineM(end_) - file_.LineM(layout_.leftover)) + 1;
        const std::string sign = bytes_[head.countSpan.begin] == '-' ? "-" : "";
        const TrialCL trial = tryM(head.countSpan, sign + std::to_string(head.count + lines));
        if (!trial.layout.EndsBetweenRecordsM(trial.section) || trial.layout.wholeRecords <= head.count
            || oddTexts_ > 0) {
            return false;
        }
        addM(Says::CountTooSmall, head.countSpan.begin,
            { wordM(head.countSpan.begin), sign + std::to_string(trial.layout.wholeRecords) }, head.count);
        return true;
    }

    // A record stands where a comment should.
    bool isRecordCommentM()
    {
        const SpanCL comments = section_.head.comments;
        if (comments.EmptyM() || !tryM({ comments.begin, comments.begin }, "\n").IsCleanM()) {
            return false;
        }
        addM(Says::RecordInComments, nextText(bytes_, lineStartM(comments.end - 1), end_), {}, 0);
        return true;
    }

    bool isShortM()
    {
        if (!layout_.EndsBetweenRecordsM(section_) || findOddityM().value != nullptr) {
            return false;
        }
        const SectionSeenCL& head = section_.head;
        if (layout_.wholeRecords == 0) {
            addM(Says::ShortSection, nextLineM(), { std::to_string(head.count), "0" }, 0);
        } else if (const SeenValueCL* const gap = gapM()) {
            addM(Says::EntryMissing, lineStartM(gap->begin),
                { std::to_string(head.count), std::to_string(layout_.wholeRecords) }, layout_.wholeRecords);
        } else {
            addM(Says::ShortSection, head.countSpan.begin,
                { std::to_string(head.count), std::to_string(layout_.wholeRecords) }, layout_.wholeRecords);
        }
        return true;
    }
    // One record is too few: where the values of neighbours are further apart than everywhere else.
    const SeenValueCL* gapM() const
    {
        if (section_.head.count != layout_.wholeRecords + 1 || layout_.wholeRecords < 4) {
            return nullptr;
        }
        const std::ptrdiff_t columns = section_.EndM(0) - section_.FirstM(0);
        std::vector<int> votes(static_cast<std::size_t>(layout_.wholeRecords));
        for (std::ptrdiff_t column = 0; column < columns; ++column) {
            const int gap = gapInColumnM(column);
            votes[static_cast<std::size_t>(std::max(gap, 0))] += gap > 0 ? 1 : 0;
        }
        const auto most = std::max_element(votes.begin(), votes.end());
        return *most > 0 ? section_.FirstM(static_cast<int>(most - votes.begin())) : nullptr;
    }
    // The one record whose value doesn't follow the one before as that value's other followers do; -1 for
    // none or several.
    int gapInColumnM(std::ptrdiff_t column) const
    {
        std::map<std::string_view, std::map<std::string_view, int>> followers;
        std::map<int, int> steps;
        const auto value = [&](int record) {
            return section_.FirstM(record) + column < section_.EndM(record)
                ? file_.BytesM(section_.FirstM(record)[column])
                : std::string_view();
        };
        const auto number = [](std::string_view text) {
            int result = 0;
            slReadInt(text.data(), text.data() + text.size(), &result);
            return result;
        };
        for (int i = 1; i < layout_.wholeRecords; ++i) {
            ++followers[value(i - 1)][value(i)];
            ++steps[number(value(i)) - number(value(i - 1))];
        }
        int found = -1;
        for (int i = 1; i < layout_.wholeRecords; ++i) {
            const auto& others = followers[value(i - 1)];
            int all = 0;
            for (const auto& [text, count] : others) {
                all += count;
            }
            const int step = number(value(i)) - number(value(i - 1));
            const bool isRare = others.size() == 2 && all >= 3 && others.at(value(i)) == 1;
            const bool isJump
                = steps.size() == 2 && steps[step] == 1 && step % 2 == 0 && steps.count(step / 2) > 0;
            if (isRare || isJump) {
                if (found > 0) {
                    return -1;
                }
                found = i;
            }
        }
        return found;
    }
    std::size_t nextLineM() const // Behind the last good value.
    {
        const std::size_t at = layout_.goodEnd > 0 ? layout_.goodEnd - 1 : 0;
        return file_.LineStartM(file_.LineM(at) + 1);
    }

    // A line of text that would mend everything.
    bool isTextLineMissingM()
    {
        if (layout_.bad != nullptr && layout_.bad->fate == Fate::NotLookedAt) {
            return false;
        }
        const OddityCL oddity = findOddityM();
        const std::size_t at = oddity.value != nullptr    ? oddity.value->begin
            : layout_.bad != nullptr && !layout_.runsOver ? layout_.bad->begin
                                                          : layout_.goodEnd;
        constexpr std::size_t Window = 6;
        const std::size_t firstRecord = file_.LineM(section_.head.comments.end);
        const std::size_t oddLine = file_.LineM(at);
        for (std::size_t line = oddLine > firstRecord + Window ? oddLine - Window : firstRecord + 1;
             line <= oddLine; ++line) {
            const std::size_t start = file_.LineStartM(line);
            if (tryM({ start, start }, "x\n").IsCleanM() && oddTexts_ == 0) {
                const int record = recordAtM(start);
                const SeenValueCL* const value = firstValueBehindM(start);
                addM(Says::LineMissing, start, { value != nullptr ? value->field : "", costM(record) },
                    record);
                return true;
            }
        }
        return false;
    }
    const SeenValueCL* firstValueBehindM(std::size_t offset) const
    {
        for (const SeenValueCL& value : section_.values) {
            if (value.begin >= offset) {
                return &value;
            }
        }
        return nullptr;
    }

    // The first value that lies oddly among those of its record.
    struct OddityCL
    {
        const SeenValueCL* value { nullptr };
        int record { -1 };
        Says says { Says::OtherLines };
    };
    bool beginsLineM(const SeenValueCL& value) const
    {
        return nextText(bytes_, lineStartM(value.begin), value.begin) == value.begin;
    }
    // For each value of a record, whether most records begin a line with it.
    std::vector<bool> usualBreaksM() const
    {
        std::vector<int> votes;
        for (int record = 0; record < layout_.wholeRecords; ++record) {
            std::size_t i = 0;
            for (const SeenValueCL* value = section_.FirstM(record); value < section_.EndM(record);
                 ++value, ++i) {
                votes.resize(std::max(votes.size(), i + 1));
                votes[i] += beginsLineM(*value) ? 1 : -1;
            }
        }
        std::vector<bool> breaks(votes.size());
        std::transform(votes.begin(), votes.end(), breaks.begin(), [](int vote) { return vote > 0; });
        return breaks;
    }
    OddityCL findOddityM() const
    {
        constexpr int EnoughRecords = 3;
        const std::vector<bool> usual = usualBreaksM();
        const SeenValueCL* const stop
            = layout_.bad != nullptr ? layout_.bad : section_.values.data() + section_.values.size();
        for (int record = 0; record < section_.RecordsM() && section_.FirstM(record) <= stop; ++record) {
            std::size_t i = 0;
            for (const SeenValueCL* value = section_.FirstM(record); value < section_.EndM(record);
                 ++value, ++i) {
                if (value > stop) {
                    return {};
                }
                if (value->begin >= end_) {
                    return {};
                }
                if (value->fate == Fate::NotLookedAt) {
                    const SeenValueCL* const type = section_.FindM(record, "data_type");
                    return { type, record, Says::BadDataType };
                }
                const bool begins = beginsLineM(*value);
                if (i == 0 && !begins) {
                    return { value, record, Says::RecordInLine };
                }
                if (value < stop && isRowOfNumbers(file_.BytesM(*value), 3)) {
                    return { value, record, Says::NumbersForText };
                }
                if (layout_.wholeRecords >= EnoughRecords && i < usual.size() && begins != usual[i]) {
                    return { value, record, Says::OtherLines };
                }
                if (value->part > 0 && begins && value->fate == Fate::NotANumber && i > 0) {
                    return { value - value->part, record, Says::OtherLines };
                }
            }
        }
        return {};
    }
    void explainFirstOddityM()
    {
        const OddityCL oddity = findOddityM();
        if (oddity.value != nullptr) {
            const SeenValueCL& value = *oddity.value;
            const std::string cost = costM(oddity.record);
            switch (oddity.says) {
            case Says::BadDataType:
                addM(Says::BadDataType, value.begin, { file_.CutM(value) }, oddity.record);
                return;
            case Says::NumbersForText:
                addM(Says::NumbersForText, value.begin, { value.field, cost }, oddity.record);
                return;
            default:
                addM(oddity.says, value.begin, { cost }, oddity.record);
                return;
            }
        }
        if (layout_.bad == nullptr) {
            addM(Says::ExtraLines, layout_.leftover, {}, layout_.wholeRecords);
        } else if (layout_.runsOver) {
            addM(Says::SectionEndsInRecord, nextLineM(),
                { std::to_string(layout_.badRecord + 1), layout_.bad->field }, layout_.badRecord);
        } else {
            sayBadWordM(*layout_.bad, wordAt(bytes_, layout_.bad->begin));
        }
    }

    FileReadingCL& file_;
    const GrammarCL& grammar_;
    int number_;
    SeenSectionCL& section_;
    const SectionLayoutCL& layout_;
    FindingsCL& findings_;
    std::string_view bytes_;
    std::size_t begin_;
    std::size_t end_;
    int trialsLeft_;
    int oddTexts_ { 0 }; // Of the last trial: texts that are rows of numbers.
};

} // namespace

void explainSection(FileReadingCL& file, int grammar, const SectionLayoutCL& layout, FindingsCL& findings)
{
    ExplainerCL(file, grammar, layout, findings).ExplainM();
}
