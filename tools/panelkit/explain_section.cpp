// What is wrong with a section that doesn't read whole.
#include "baselib/number_text.h"
#include "section_layout.h"
#include "section_oddity.h"
#include "section_trials.h"
#include <algorithm>

namespace {

class ExplainerCL
{
public:
    ExplainerCL(FileReadingCL& file, int grammar, const SectionLayoutCL& layout, FindingsCL& findings)
        : file_(file)
        , grammar_(slGrammars()[static_cast<std::size_t>(grammar)])
        , number_(grammar)
        , section_(file.SectionM(grammar))
        , layout_(layout)
        , findings_(findings)
        , bytes_(file.TextM().CutM({ 0, file.TextM().SizeM() }))
        , begin_(section_.head.headerSpan.begin)
        , end_(section_.regionEnd)
        , trials_(file, grammar)
    {
    }

    void ExplainM()
    {
        section_.soundRecords = 0;
        const bool isSaid = explainCountM() || isBadWordAllM() || isLineDoubledM() || explainHeadM()
            || isCountWrongM() || isRecordCommentM() || isShortM() || isTextLineMissingM();
        if (!isSaid) {
            explainFirstOddityM();
        }
    }

private:
    bool hasCountM() const { return number_ != DialogGrammar; }
    std::string wordM(std::size_t at) const { return file_.CutM(wordAt(bytes_, at)); }
    std::size_t lineStartM(std::size_t at) const { return file_.LineStartM(file_.LineM(at)); }
    void addM(
        Says says, std::size_t offset, std::initializer_list<std::string_view> details, int soundRecords)
    {
        section_.soundRecords = soundRecords;
        section_.isFaulty = true;
        findings_.AddM(says, offset, details);
    }
    std::string costM(int record) const
    {
        // The reading may find its way again: lost are the records that it reads wrongly or not at all.
        int lost = std::max(0, section_.head.count - section_.RecordsM());
        for (int later = record + 1; later < section_.RecordsM(); ++later) {
            const bool isLost
                = std::any_of(section_.FirstM(later), section_.EndM(later), [](const SeenValueCL& value) {
                      return value.fate == Fate::NotANumber || value.fate == Fate::Missing;
                  });
            lost += isLost ? 1 : 0;
        }
        return std::to_string(lost);
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
        if (!trials_.TryM(word, "0").IsCleanM() && !(isJoined && bad->fate == Fate::NotANumber)) {
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
                && trials_.TryM({ file_.LineStartM(line), file_.LineStartM(line + 1) }, "").IsCleanM()) {
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
        const TrialCL trial = trials_.TryM(head.countSpan, sign + std::to_string(head.count + lines));
        if (!trial.layout.EndsBetweenRecordsM(trial.section) || trial.layout.wholeRecords <= head.count
            || trials_.OddTextsM() > 0) {
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
        if (comments.EmptyM() || !trials_.TryM({ comments.begin, comments.begin }, "\n").IsCleanM()) {
            return false;
        }
        addM(Says::RecordInComments, nextText(bytes_, lineStartM(comments.end - 1), end_), {}, 0);
        return true;
    }

    bool isShortM()
    {
        if (!layout_.EndsBetweenRecordsM(section_) || findOddity(file_, section_, layout_).value != nullptr) {
            return false;
        }
        const SectionSeenCL& head = section_.head;
        const int whole = layout_.wholeRecords;
        const SeenValueCL* const gap = findGap(file_, section_, layout_);
        addM(gap != nullptr ? Says::EntryMissing : Says::ShortSection,
            whole == 0           ? nextLineM()
                : gap != nullptr ? lineStartM(gap->begin)
                                 : head.countSpan.begin,
            { std::to_string(head.count), std::to_string(whole) }, whole);
        return true;
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
        const OddityCL oddity = findOddity(file_, section_, layout_);
        const std::size_t at = oddity.value != nullptr    ? oddity.value->begin
            : layout_.bad != nullptr && !layout_.runsOver ? layout_.bad->begin
                                                          : layout_.goodEnd;
        constexpr std::size_t Window = 6;
        const std::size_t firstRecord = file_.LineM(section_.head.comments.end);
        const std::size_t oddLine = file_.LineM(at);
        for (std::size_t line = oddLine > firstRecord + Window ? oddLine - Window : firstRecord + 1;
             line <= oddLine; ++line) {
            const std::size_t start = file_.LineStartM(line);
            if (trials_.TryM({ start, start }, "x\n").IsCleanM() && trials_.OddTextsM() == 0) {
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

    void explainFirstOddityM()
    {
        const OddityCL oddity = findOddity(file_, section_, layout_);
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
            case Says::RecordInLine: // The record before it has taken too much or too little.
                addM(oddity.says, value.begin, { cost }, std::max(0, oddity.record - 1));
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
    SectionTrialsCL trials_;
};

} // namespace

void explainSection(FileReadingCL& file, int grammar, const SectionLayoutCL& layout, FindingsCL& findings)
{
    ExplainerCL(file, grammar, layout, findings).ExplainM();
}
