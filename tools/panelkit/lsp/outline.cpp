// The parts of a file: for lists of them, and to fold them away.
#include "baselib/gbk.h"
#include "features.h"
#include "field_info.h"

namespace {

constexpr int ModuleSymbol = 2;
constexpr int ObjectSymbol = 19;

// Without the line ends and blanks behind it.
SpanCL trimmedSpan(const std::string& bytes, SpanCL span)
{
    while (span.end > span.begin && static_cast<unsigned char>(bytes[span.end - 1]) <= ' ') {
        --span.end;
    }
    return span;
}

SpanCL sectionSpan(const OpenFileCL& file, const SeenSectionCL& section)
{
    return trimmedSpan(file.DocumentM().GbkM(), { section.head.headerSpan.begin, section.regionEnd });
}

// Of what stands in its section; empty when nothing does.
SpanCL recordSpan(const SeenSectionCL& section, int record)
{
    SpanCL span;
    for (const SeenValueCL* value = section.FirstM(record); value != section.EndM(record); ++value) {
        if (value->end > value->begin && value->end <= section.regionEnd) {
            span = { span.EmptyM() ? value->begin : span.begin, value->end };
        }
    }
    return span;
}

JsonTP symbol(const OpenFileCL& file, const std::string& name, const std::string& detail, int kind,
    SpanCL all, SpanCL head)
{
    return { { "name", name }, { "detail", detail }, { "kind", kind },
        { "range", file.DocumentM().RangeM(all) }, { "selectionRange", file.DocumentM().RangeM(head) } };
}

std::string nameOfRecord(OpenFileCL& file, int grammar, int record)
{
    const SeenSectionCL& section = file.ReadingM().SectionM(grammar);
    const char* const key = slGrammars()[static_cast<std::size_t>(grammar)].idField;
    const SeenValueCL* const id = key != nullptr ? section.FindM(record, key) : nullptr;
    const std::string words = file.TextOfM(grammar, record);
    if (grammar == DialogGrammar && !words.empty()) {
        return words; // There is one only.
    }
    const std::string number = id != nullptr ? std::to_string(file.NumberM(*id)) : std::to_string(record + 1);
    return number + (words.empty() ? "" : " " + words);
}

} // namespace

JsonTP documentSymbols(OpenFileCL& file, const JsonTP&)
{
    JsonTP symbols = JsonTP::array();
    for (int grammar = 0; grammar < static_cast<int>(slGrammars().size()); ++grammar) {
        const SeenSectionCL& section = file.ReadingM().SectionM(grammar);
        if (!section.IsThereM()) {
            continue;
        }
        JsonTP one = symbol(file, slGbkToUtf8(section.head.header), recordName(grammar), ModuleSymbol,
            sectionSpan(file, section), section.head.headerSpan);
        JsonTP records = JsonTP::array();
        for (int record = 0; record < section.RecordsM(); ++record) {
            const SpanCL span = recordSpan(section, record);
            if (!span.EmptyM()) {
                records.push_back(symbol(file, nameOfRecord(file, grammar, record), recordName(grammar),
                    ObjectSymbol, span, { span.begin, span.begin }));
            }
        }
        one["children"] = std::move(records);
        symbols.push_back(std::move(one));
    }
    return symbols;
}

JsonTP foldingRanges(OpenFileCL& file, const JsonTP&)
{
    JsonTP ranges = JsonTP::array();
    const auto add = [&](SpanCL span) {
        const JsonTP range = file.DocumentM().RangeM(span);
        if (range["end"]["line"] > range["start"]["line"]) {
            ranges.push_back(
                { { "startLine", range["start"]["line"] }, { "endLine", range["end"]["line"] } });
        }
    };
    for (int grammar = 0; grammar < static_cast<int>(slGrammars().size()); ++grammar) {
        const SeenSectionCL& section = file.ReadingM().SectionM(grammar);
        if (section.IsThereM()) {
            add(sectionSpan(file, section));
            for (int record = 0; record < section.RecordsM() && grammar != DialogGrammar; ++record) {
                add(recordSpan(section, record));
            }
        }
    }
    return ranges;
}
