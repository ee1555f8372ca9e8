// The headers of a file, and whether each section reads whole.
#include "baselib/gbk.h"
#include "check.h"
#include "section_layout.h"
#include <algorithm>
#include <cstring>

namespace {

struct HeaderPlaceCL
{
    SpanCL span;
    int grammar; // -1: unknown.
    bool isFirst;
    bool beginsLine;
};

// The least number of characters to be inserted, deleted or replaced to make one text of another.
std::size_t editDistance(const std::u16string& a, const std::u16string& b)
{
    std::vector<std::size_t> row(b.size() + 1);
    for (std::size_t j = 0; j <= b.size(); ++j) {
        row[j] = j;
    }
    for (std::size_t i = 1; i <= a.size(); ++i) {
        std::size_t diagonal = row[0];
        row[0] = i;
        for (std::size_t j = 1; j <= b.size(); ++j) {
            const std::size_t replaced = diagonal + (a[i - 1] == b[j - 1] ? 0 : 1);
            diagonal = row[j];
            row[j] = std::min({ replaced, row[j] + 1, row[j - 1] + 1 });
        }
    }
    return row[b.size()];
}

class SectionsCheckerCL
{
public:
    SectionsCheckerCL(FileReadingCL& file, FindingsCL& findings)
        : file_(file)
        , findings_(findings)
        , bytes_(file.TextM().CutM({ 0, file.TextM().SizeM() }))
        , isFound_(slGrammars().size())
    {
    }
    void CheckM()
    {
        findHeadersM();
        dropConsumedM();
        setRegionsM(places_);
        for (const HeaderPlaceCL& place : places_) {
            if (place.grammar < 0) {
                sayUnknownM(place);
            } else if (!place.isFirst) {
                const auto first = std::find_if(places_.begin(), places_.end(),
                    [&](const HeaderPlaceCL& other) { return other.grammar == place.grammar; });
                findings_.AddM(Says::DuplicateSection, place.span.begin,
                    { nameM(place.grammar), std::to_string(file_.LineM(first->span.begin) + 1) });
                repeated_.push_back(place.span.begin);
            }
        }
        for (std::size_t i = 0; i < slGrammars().size(); ++i) {
            checkSectionM(static_cast<int>(i));
        }
        sayMissingM();
        if (hasStrayText_ || isAnyUnknown_ || !repeated_.empty()) {
            file_.SetStrayTextM();
        }
    }

private:
    static std::string nameM(int grammar)
    {
        return slGbkToUtf8(slGrammars()[static_cast<std::size_t>(grammar)].header);
    }

    // Only lines with a bracket matter.
    void findHeadersM()
    {
        std::size_t open = bytes_.find('[');
        std::size_t close = bytes_.find(']');
        for (std::size_t at = 0; (at = std::min(open, close)) != std::string_view::npos;) {
            const std::size_t lineEnd = std::min(bytes_.find('\n', at), bytes_.size());
            findInLineM(bytes_.rfind('\n', at) + 1, lineEnd);
            open = open < lineEnd ? bytes_.find('[', lineEnd) : open;
            close = close < lineEnd ? bytes_.find(']', lineEnd) : close;
        }
    }
    void findInLineM(std::size_t lineBegin, std::size_t lineEnd)
    {
        const std::size_t text = nextText(bytes_, lineBegin, lineEnd);
        std::size_t end = lineEnd;
        while (end > text && static_cast<unsigned char>(bytes_[end - 1]) <= ' ') {
            --end;
        }
        bool isKnown = false;
        for (std::size_t at = text; at < end;) {
            if (bytes_[at] == '[') {
                const int grammar = headerAtM(at);
                if (grammar >= 0) {
                    const std::size_t length
                        = std::strlen(slGrammars()[static_cast<std::size_t>(grammar)].header);
                    const auto g = static_cast<std::size_t>(grammar);
                    places_.push_back({ { at, at + length }, grammar, !isFound_[g], at == text });
                    isFound_[g] = true;
                    isKnown = isKnown || at == text;
                }
            }
            at += static_cast<std::size_t>(
                slGbkCharLength(bytes_.data() + at, bytes_.data() + bytes_.size()));
        }
        if (!isKnown && end > text + 1 && (bytes_[text] == '[' || bytes_[end - 1] == ']')) {
            places_.push_back({ { text, end }, -1, false, true });
        }
    }
    int headerAtM(std::size_t at) const
    {
        const std::vector<GrammarCL>& all = slGrammars();
        for (std::size_t i = 0; i < all.size(); ++i) {
            if (bytes_.compare(at, std::strlen(all[i].header), all[i].header) == 0) {
                return static_cast<int>(i);
            }
        }
        return -1;
    }

    // What looks like an unknown header is a text or a comment where its section reads whole with it.
    void dropConsumedM()
    {
        std::vector<HeaderPlaceCL> known;
        std::copy_if(places_.begin(), places_.end(), std::back_inserter(known),
            [](const HeaderPlaceCL& place) { return place.grammar >= 0; });
        if (known.size() == places_.size()) {
            return;
        }
        setRegionsM(known);
        std::vector<SpanCL> whole;
        for (std::size_t i = 0; i < slGrammars().size(); ++i) {
            const SeenSectionCL& section = file_.SectionM(static_cast<int>(i));
            if (section.IsThereM() && layoutOf(file_, static_cast<int>(i)).isClean
                && static_cast<int>(i) != VersionGrammar) {
                whole.push_back({ section.head.headerSpan.begin, section.head.end });
            }
        }
        places_.erase(std::remove_if(places_.begin(), places_.end(),
                          [&](const HeaderPlaceCL& place) {
                              return place.grammar < 0
                                  && (isInsideM(place, whole) || !looksLikeHeaderM(place));
                          }),
            places_.end());
    }
    static bool isInsideM(const HeaderPlaceCL& place, const std::vector<SpanCL>& spans)
    {
        return std::any_of(spans.begin(), spans.end(),
            [&place](SpanCL span) { return place.span.begin >= span.begin && place.span.begin < span.end; });
    }
    bool looksLikeHeaderM(const HeaderPlaceCL& place) const
    {
        constexpr std::size_t MostTypos = 2;
        const bool isBracketed = bytes_[place.span.begin] == '[' && bytes_[place.span.end - 1] == ']';
        std::size_t distance = 0;
        nearestM(place.span, &distance);
        return isBracketed || distance <= MostTypos;
    }
    // Of equally near headers, one that the file doesn't have.
    int nearestM(SpanCL span, std::size_t* distance) const
    {
        const std::string_view text
            = bytes_.substr(span.begin, std::min<std::size_t>(span.end - span.begin, 60));
        const std::u16string wide = slGbkToUtf16(text.data(), text.size());
        int nearest = -1;
        *distance = static_cast<std::size_t>(-1);
        for (std::size_t i = 0; i < slGrammars().size(); ++i) {
            const std::size_t other = editDistance(wide, slGbkToUtf16(slGrammars()[i].header));
            if (other < *distance
                || (other == *distance && !isFound_[i] && isFound_[static_cast<std::size_t>(nearest)])) {
                *distance = other;
                nearest = static_cast<int>(i);
            }
        }
        return nearest;
    }
    void sayUnknownM(const HeaderPlaceCL& place)
    {
        std::size_t distance = 0;
        const int nearest = nearestM(place.span, &distance);
        const std::string text = file_.CutM(place.span);
        isAnyUnknown_ = true;
        if (distance * 2 <= slGbkToUtf16(slGrammars()[static_cast<std::size_t>(nearest)].header).size()) {
            findings_.AddM(Says::UnknownSection, place.span.begin, { text, nameM(nearest) });
            isFound_[static_cast<std::size_t>(nearest)] = true; // Not missing, but misspelt.
        } else {
            findings_.AddM(Says::UnknownSectionFar, place.span.begin, { text });
        }
    }

    void setRegionsM(const std::vector<HeaderPlaceCL>& places)
    {
        for (std::size_t i = 0; i < slGrammars().size(); ++i) {
            SeenSectionCL& section = file_.SectionM(static_cast<int>(i));
            section.regionEnd = bytes_.size();
            for (const HeaderPlaceCL& place : places) {
                if (place.beginsLine && section.IsThereM()
                    && place.span.begin >= section.head.headerSpan.end) {
                    section.regionEnd = place.span.begin;
                    break;
                }
            }
            section.soundRecords = section.RecordsM();
        }
    }

    void checkSectionM(int grammar)
    {
        SeenSectionCL& section = file_.SectionM(grammar);
        if (!section.IsThereM()) {
            return;
        }
        if (grammar == VersionGrammar) {
            checkVersionM(section);
            return;
        }
        const SectionLayoutCL layout = layoutOf(file_, grammar);
        const bool isRepeated
            = std::find(repeated_.begin(), repeated_.end(), section.regionEnd) != repeated_.end()
            && nextText(bytes_, section.head.headerSpan.end, section.regionEnd) == section.regionEnd;
        if (isRepeated) {
            section.soundRecords = 0;
            section.isFaulty = true;
        }
        if (layout.isClean || isRepeated) {
            return;
        }
        const bool isStray = layout.bad == nullptr && layout.leftover < section.regionEnd;
        const std::size_t before = findings_.ListM().size();
        explainSection(file_, grammar, layout, findings_);
        hasStrayText_ = hasStrayText_
            || (isStray && findings_.ListM().size() > before
                && findings_.ListM().back().says == Says::ExtraLines);
    }
    // The version is one line that nobody looks at.
    void checkVersionM(const SeenSectionCL& section)
    {
        const std::size_t version = nextText(bytes_, section.head.headerSpan.end, section.regionEnd);
        const std::size_t next = std::min(bytes_.find('\n', version), bytes_.size() - 1) + 1;
        const std::size_t stray
            = next < section.regionEnd ? nextText(bytes_, next, section.regionEnd) : section.regionEnd;
        if (stray >= section.regionEnd) {
            return;
        }
        if (!isFound_[DialogGrammar]) {
            isFound_[DialogGrammar] = true;
            findings_.AddM(Says::MissingSection, stray, { nameM(DialogGrammar) });
        } else {
            findings_.AddM(Says::ExtraLines, stray);
        }
    }

    void sayMissingM()
    {
        for (const int grammar : { VersionGrammar, DialogGrammar }) {
            if (!isFound_[static_cast<std::size_t>(grammar)]) {
                findings_.AddM(Says::MissingSection, nextText(bytes_, 0, bytes_.size()), { nameM(grammar) });
            }
        }
        for (std::size_t i = 0; i < slGrammars().size() && !hasStrayText_; ++i) {
            const char* const owner = slGrammars()[i].owner;
            if (owner != nullptr && !isFound_[i]) {
                const SeenSectionCL& main = file_.SectionM(owner);
                if (main.IsReadM()) {
                    findings_.AddM(Says::MissingSecondary, main.head.headerSpan.begin,
                        { nameM(static_cast<int>(i)), slGbkToUtf8(owner) });
                }
            }
        }
    }

    FileReadingCL& file_;
    FindingsCL& findings_;
    std::string_view bytes_;
    std::vector<HeaderPlaceCL> places_;
    std::vector<bool> isFound_;
    std::vector<std::size_t> repeated_;
    bool hasStrayText_ { false };
    bool isAnyUnknown_ { false };
};

} // namespace

void checkSections(FileReadingCL& file, FindingsCL& findings)
{
    SectionsCheckerCL(file, findings).CheckM();
}
