#include "section_layout.h"
#include "baselib/number_text.h"
#include <algorithm>

std::size_t nextText(std::string_view bytes, std::size_t begin, std::size_t end)
{
    while (begin < end && slIsBlank(bytes[begin])) {
        ++begin;
    }
    return begin;
}

SpanCL wordAt(std::string_view bytes, std::size_t offset)
{
    SpanCL word { offset, offset };
    while (word.begin > 0 && !slIsBlank(bytes[word.begin - 1])) {
        --word.begin;
    }
    while (word.end < bytes.size() && !slIsBlank(bytes[word.end])) {
        ++word.end;
    }
    return word;
}

bool isRowOfNumbers(std::string_view text, int least)
{
    int numbers = 0;
    const char* at = text.data();
    const char* const end = at + text.size();
    while (true) {
        while (at < end && slIsBlank(*at)) {
            ++at;
        }
        if (at == end) {
            return numbers >= least;
        }
        float value = 0;
        const char* const behind = slReadReal(at, end, &value);
        if (behind == at || (behind < end && !slIsBlank(*behind))) {
            return false;
        }
        at = behind;
        ++numbers;
    }
}

namespace {

bool goesOn(SpanCL number, std::string_view bytes)
{
    return number.end < bytes.size() && !slIsBlank(bytes[number.end]);
}

} // namespace

SectionLayoutCL layoutOf(const SeenSectionCL& section, std::string_view bytes, bool hasCount)
{
    SectionLayoutCL layout;
    const SectionSeenCL& head = section.head;
    const std::size_t regionEnd = section.regionEnd;
    layout.leftover = regionEnd;
    const auto isNumber
        = [&](SpanCL span) { return !span.EmptyM() && span.end <= regionEnd && !goesOn(span, bytes); };
    layout.isHeadSound = !hasCount || isNumber(head.countSpan);
    if (layout.isHeadSound && head.status == SectionStatus::Empty) {
        layout.leftover = nextText(bytes, slEndOfEmptyHead(section, bytes), regionEnd);
        layout.isClean = layout.leftover == regionEnd && bytes[head.countSpan.begin] != '-';
        return layout;
    }
    layout.isHeadSound = layout.isHeadSound && section.IsReadM() && isNumber(head.commentCount)
        && head.comments.end <= regionEnd;
    layout.goodEnd = std::max(head.comments.end, head.commentCount.end);
    std::size_t before = layout.goodEnd;
    bool isJoined = false; // A value begins right behind a number.
    for (const SeenValueCL& value : section.values) {
        const bool isBehind = value.begin >= regionEnd;
        isJoined = !value.IsAbsentM() && value.begin == before && value.begin > 0
            && !slIsBlank(bytes[value.begin - 1]);
        if (value.IsAbsentM() || isBehind || isJoined) {
            layout.bad = &value;
            layout.runsOver = isBehind || value.fate == Fate::Missing;
            break;
        }
        before = value.end;
        layout.goodEnd = value.end;
    }
    if (layout.bad != nullptr) {
        const auto place = static_cast<std::uint32_t>(layout.bad - section.values.data());
        layout.badRecord
            = static_cast<int>(std::upper_bound(section.starts.begin(), section.starts.end(), place)
                  - section.starts.begin())
            - 1;
        layout.wholeRecords = layout.badRecord;
        return layout;
    }
    layout.wholeRecords = section.RecordsM();
    layout.leftover = nextText(bytes, std::min(layout.goodEnd, regionEnd), regionEnd);
    layout.isClean = layout.isHeadSound && layout.leftover == regionEnd;
    return layout;
}

SectionLayoutCL layoutOf(FileReadingCL& file, int grammar)
{
    const std::string_view bytes = file.TextM().CutM({ 0, file.TextM().SizeM() });
    const auto layout = [&] { return layoutOf(file.SectionM(grammar), bytes, grammar != DialogGrammar); };
    if (file.SectionM(grammar).IsPlainM()) {
        const SectionLayoutCL plain = layout();
        if (plain.isClean) {
            return plain;
        }
    }
    file.KeepValuesM(grammar);
    return layout();
}
