#include "open_file.h"
#include "baselib/gbk.h"
#include "baselib/number_text.h"
#include "check.h"
#include "field_info.h"

const AnalysisCL& OpenFileCL::AnalysisM()
{
    if (analysis_ != nullptr) {
        return *analysis_;
    }
    const auto text = std::make_shared<const FileTextCL>(document_.GbkM());
    std::unique_ptr<FileReadingCL> reading;
    FindingsCL findings = checkText("", document_.PathM().parent_path(), text, &reading);
    std::size_t lostAt = 0;
    const std::string lost = document_.LostM(&lostAt);
    if (!lost.empty()) {
        findings.AddM(Says::NoGbkCharacter, lostAt, { lost });
    }
    if (document_.FileEncodingM() == Encoding::Utf8) {
        findings.AddM(Says::FileIsUtf8, 0);
    } else if (document_.FileEncodingM() != Encoding::Gbk) {
        findings.AddM(Says::FileIsUtf16, 0);
    } else if (document_.IsShownWronglyM()) {
        findings.AddM(Says::ShownWrongly, 0);
    }
    findings.SortM();
    analysis_ = std::make_unique<AnalysisCL>(AnalysisCL { text, std::move(findings), std::move(reading) });
    return *analysis_;
}

bool OpenFileCL::IsInSectionM(int grammar, std::size_t offset)
{
    const SeenSectionCL& section = ReadingM().SectionM(grammar);
    const bool isLast = section.regionEnd == document_.GbkM().size();
    return section.IsThereM() && offset >= section.head.headerSpan.begin
        && (offset < section.regionEnd || isLast);
}

int OpenFileCL::SectionAtM(std::size_t offset)
{
    for (int grammar = static_cast<int>(slGrammars().size()) - 1; grammar >= 0; --grammar) {
        if (IsInSectionM(grammar, offset)) {
            return grammar;
        }
    }
    return -1;
}

ValueInTextCL OpenFileCL::ValueAtM(std::size_t offset)
{
    ValueInTextCL found;
    const int grammar = SectionAtM(offset);
    if (grammar >= 0) {
        EachValueM(grammar, [&](const ValueInTextCL& place) {
            if (offset >= place.value->begin && offset <= place.value->end) {
                found = place;
            }
        });
    }
    return found;
}

std::vector<IdUseCL> OpenFileCL::IdsM()
{
    std::vector<IdUseCL> ids;
    for (int grammar = 0; grammar < static_cast<int>(slGrammars().size()); ++grammar) {
        const GrammarCL& section = slGrammars()[static_cast<std::size_t>(grammar)];
        const bool isControl = section.owner == nullptr && !section.NamesControlsM();
        std::vector<std::string> names;
        for (const FieldInfoCL& field : fieldsOf(grammar)) {
            if (field.meant == Meant::Id) {
                names.push_back(field.name);
            }
        }
        EachValueM(grammar, [&](const ValueInTextCL& place) {
            for (const std::string& name : names) {
                if (name == place.value->field && place.value->fate == Fate::Read) {
                    ids.push_back({ place, NumberM(*place.value), isControl });
                }
            }
        });
    }
    return ids;
}

int OpenFileCL::NumberM(const SeenValueCL& value)
{
    const std::string_view bytes = ReadingM().BytesM(value);
    int number = 0;
    slReadInt(bytes.data(), bytes.data() + bytes.size(), &number);
    return number;
}

std::string OpenFileCL::TextOfM(int grammar, int record)
{
    const SeenSectionCL& section = ReadingM().SectionM(grammar);
    const SeenValueCL* name = nullptr;
    for (const SeenValueCL* value = section.FirstM(record); value != section.EndM(record); ++value) {
        const FieldInfoCL* const field = fieldOf(grammar, value->field);
        if (field == nullptr || value->fate != Fate::Read) {
            continue;
        }
        if (field->meant == Meant::Text) {
            return ReadingM().CutM(*value);
        }
        name = name == nullptr && field->meant == Meant::Picture ? value : name;
    }
    return name != nullptr ? ReadingM().CutM(*name) : "";
}

SpanCL spanOf(const SeenValueCL& value)
{
    return { value.begin, value.end };
}

JsonTP textEdit(const OpenFileCL& file, SpanCL span, const std::string& text)
{
    return { { "range", file.DocumentM().RangeM(span) }, { "newText", text } };
}

JsonTP textEdits(const OpenFileCL& file, const TextChangesTP& changes)
{
    JsonTP edits = JsonTP::array();
    for (const TextChangeCL& change : changes) {
        edits.push_back(textEdit(file, change.span, slGbkToUtf8(change.text.data(), change.text.size())));
    }
    return edits;
}
