#include "file_reading.h"
#include "baselib/gbk.h"
#include "baselib/gbk_texts.h"
#include "baselib/number_text.h"
#include "dialog/relation.h"
#include <algorithm>
#include <cstring>

namespace {

template <class RecordsTP> void readMainSection(VrIOCL& io)
{
    slEachRecordRead<RecordsTP>(io, [](int, typename RecordsTP::RecordTP&) {});
}

template <class RecordsTP, std::size_t placeN> void readSecondarySection(VrIOCL& io)
{
    RecordsTP none;
    slReadSecondary(io, none, RecordsTP::Secondaries[placeN]);
}

template <class RecordsTP, std::size_t... placeN>
void addKindGrammars(std::vector<GrammarCL>& all, std::index_sequence<placeN...>)
{
    all.push_back({ RecordsTP::Header, nullptr, "", &readMainSection<RecordsTP> });
    (all.push_back({ RecordsTP::Secondaries[placeN].header, RecordsTP::Header, "",
         &readSecondarySection<RecordsTP, placeN>, RecordsTP::Secondaries[placeN].fields }),
        ...);
}

void readDialogSections(VrIOCL& io)
{
    DialogHeaderCL header;
    slReadDialogHeader(io, header);
}

void readRelationSection(VrIOCL& io)
{
    slReadRelations(io, [](RelationCL&) {});
}

void readNewRotateSections(VrIOCL& io)
{
    DVrNewRotateBtnArr records;
    records.FmReadInterfaceM(&io);
}

std::vector<GrammarCL> makeGrammars()
{
    std::vector<GrammarCL> all;
    all.push_back({ VersionHeader, nullptr, "", &readDialogSections });
    all.push_back({ DialogHeader, nullptr, std::string(VersionHeader) + "\n1.0\n", &readDialogSections });
    slEachKindAsBuilt([&all](auto row) {
        using RecordsTP = typename decltype(row)::Records;
        addKindGrammars<RecordsTP>(
            all, std::make_index_sequence<std::tuple_size_v<decltype(RecordsTP::Secondaries)>>());
    });
    all.push_back({ RelationHeader, nullptr, "", &readRelationSection });
    all.push_back({ NewRotateBtnHeader, nullptr, "", &readNewRotateSections });
    all.push_back({ NewRotateBtnBitmapHeader, NewRotateBtnHeader, std::string(NewRotateBtnHeader) + "\n0 1\n",
        &readNewRotateSections });
    return all;
}

} // namespace

const std::vector<GrammarCL>& allGrammars()
{
    static const std::vector<GrammarCL> grammars = makeGrammars();
    return grammars;
}

int grammarOf(const char* header)
{
    const std::vector<GrammarCL>& all = allGrammars();
    const auto found = std::find_if(all.begin(), all.end(),
        [header](const GrammarCL& grammar) { return std::strcmp(grammar.header, header) == 0; });
    return found != all.end() ? static_cast<int>(found - all.begin()) : -1;
}

const SeenValueCL* SeenSectionCL::FindM(int record, const char* field, int part) const
{
    const SeenValueCL* const end = EndM(record);
    const SeenValueCL* const found = std::find_if(FirstM(record), end,
        [&](const SeenValueCL& value) { return value.part == part && std::strcmp(value.field, field) == 0; });
    return found != end ? found : nullptr;
}

SeenSectionCL& SeenSectionsCL::findM(const char* header)
{
    if (header != lastHeader_) {
        lastHeader_ = header;
        last_ = &AtM(std::max(0, grammarOf(header)));
    }
    return *last_;
}

void SeenSectionsCL::beginRecordM(const ValueSeenCL& first)
{
    SeenSectionCL& section = findM(first.section);
    lastRecord_ = first.record;
    if (section.keepsLast && section.starts.empty()) {
        section.firstBegin = static_cast<std::uint32_t>(first.span.begin);
    }
    if (first.record >= section.RecordsM()) {
        if (section.keepsLast) {
            section.values.clear();
        }
        section.starts.push_back(static_cast<std::uint32_t>(section.values.size()));
    }
}

void SeenSectionsCL::ValueM(const ValueSeenCL& value)
{
    if (value.record != lastRecord_ || value.section != lastHeader_) {
        beginRecordM(value);
    }
    SeenSectionCL& section = *last_;
    if (section.values.size() == section.values.capacity()) {
        section.values.reserve(std::max<std::size_t>(64, section.values.size() * 4));
    }
    SeenValueCL& seen = section.values.emplace_back(); // Filled one by one: a copy would wait for its parts.
    seen.field = value.field;
    seen.begin = static_cast<std::uint32_t>(value.span.begin);
    seen.end = static_cast<std::uint32_t>(value.span.end);
    seen.part = static_cast<std::uint8_t>(value.part);
    seen.fate = value.fate;
    if (section.keepsLast) {
        section.isRegular = section.isRegular && seen.begin > section.lastEnd && !isAbsent(seen.fate);
        section.lastEnd = seen.end;
    }
}

void SeenSectionsCL::EntryDroppedM(const EntryDroppedCL& entry)
{
    findM(entry.section).dropped.push_back(entry);
}

void SeenSectionsCL::SectionM(const SectionSeenCL& section)
{
    findM(section.header).head = section;
}

FileReadingCL::FileReadingCL(std::shared_ptr<const FileTextCL> text)
    : text_(std::move(text))
{
    io_.OpenM(text_);
    io_.SetObserverM(&seen_);
    hasDialog_ = slReadDialogHeader(io_, dialog_) != 0;
    slReadRelations(io_, [](RelationCL&) {});
    newRotateButtons_.FmReadInterfaceM(&io_);
}

void FileReadingCL::KeepValuesM(int grammar)
{
    SeenSectionCL& section = SectionM(grammar);
    if (!section.keepsLast) {
        return;
    }
    SeenSectionsCL all;
    io_.SetObserverM(&all);
    allGrammars()[static_cast<std::size_t>(grammar)].read(io_);
    io_.SetObserverM(&seen_);
    section.values = std::move(all.AtM(grammar).values);
    section.starts = std::move(all.AtM(grammar).starts);
    section.keepsLast = false;
}

int FileReadingCL::NumberM(const SeenSectionCL& section, int record, const char* field) const
{
    const SeenValueCL* const value = section.FindM(record, field);
    int number = 0;
    if (value != nullptr) {
        const std::string_view bytes = BytesM(*value);
        slReadInt(bytes.data(), bytes.data() + bytes.size(), &number);
    }
    return number;
}

const std::vector<std::size_t>& FileReadingCL::linesM() const
{
    if (lines_.empty()) {
        lines_.push_back(0);
        const std::string_view bytes = text_->CutM({ 0, text_->SizeM() });
        for (std::size_t at = bytes.find('\n'); at != std::string_view::npos; at = bytes.find('\n', at + 1)) {
            lines_.push_back(at + 1);
        }
    }
    return lines_;
}

std::size_t FileReadingCL::LineM(std::size_t offset) const
{
    const std::vector<std::size_t>& lines = linesM();
    return static_cast<std::size_t>(std::upper_bound(lines.begin(), lines.end(), offset) - lines.begin()) - 1;
}

std::size_t FileReadingCL::LineStartM(std::size_t line) const
{
    return line < linesM().size() ? linesM()[line] : text_->SizeM();
}

std::string FileReadingCL::utf8M(std::string_view text)
{
    return slGbkToUtf8(text.data(), text.size());
}
