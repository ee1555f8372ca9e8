#include "editing/seen_sections.h"
#include "baselib/io.h"
#include "baselib/number_text.h"
#include <algorithm>
#include <cstring>

const SeenValueCL* SeenSectionCL::FindM(int record, const char* field, int part) const
{
    const SeenValueCL* const end = EndM(record);
    const SeenValueCL* const found = std::find_if(FirstM(record), end,
        [&](const SeenValueCL& value) { return value.part == part && std::strcmp(value.field, field) == 0; });
    return found != end ? found : nullptr;
}

SeenSectionsCL::SeenSectionsCL()
    : sections_(slGrammars().size())
{
}

SeenSectionCL& SeenSectionsCL::findM(const char* header)
{
    if (header != lastHeader_) {
        lastHeader_ = header;
        last_ = &AtM(std::max(0, slGrammarOf(header)));
    }
    return *last_;
}

// Takes notice of the values of the last record, which may be dropped then.
void SeenSectionCL::JudgeLastM()
{
    if (!keepsLast || values.empty()) {
        return;
    }
    firstBegin = starts.size() == 1 ? values.data()->begin : firstBegin;
    if (values.RoomM().isPlain) {
        isRegular = isRegular && values.data()->begin > lastEnd;
    } else {
        std::uint32_t end = lastEnd;
        for (const SeenValueCL& value : values) {
            isRegular = isRegular && value.begin > end && !value.IsAbsentM();
            end = value.end;
        }
    }
    lastEnd = values.back().end;
}

SeenRoomCL* SeenSectionsCL::BeginRecordM(const char* header, int record)
{
    SeenSectionCL& section = findM(header);
    if (record >= section.RecordsM()) {
        if (section.keepsLast) {
            section.JudgeLastM();
            section.values.clear();
        }
        section.starts.push_back(static_cast<std::uint32_t>(section.values.size()));
    }
    SeenRoomCL& room = section.values.RoomM();
    room.isPlain = true;
    return &room;
}

// What has no room yet, or belongs to a section that is read as one record.
void SeenSectionsCL::ValueM(const ValueSeenCL& value)
{
    SeenSectionCL& section = findM(value.section);
    if (value.record >= section.RecordsM()) {
        BeginRecordM(value.section, value.record);
    }
    if (section.values.IsFullM()) {
        blocks_.MakeRoomM(section.values);
    }
    SeenRoomCL& room = section.values.RoomM();
    room.isPlain = room.isPlain && value.fate == Fate::Read;
    *room.next++ = { value.field, static_cast<std::uint32_t>(value.span.begin),
        static_cast<std::uint32_t>(value.span.end), static_cast<std::uint8_t>(value.part), value.fate };
}

void SeenSectionsCL::EntryDroppedM(const EntryDroppedCL& entry)
{
    findM(entry.section).dropped.push_back(entry);
}

void SeenSectionsCL::SectionM(const SectionSeenCL& section)
{
    SeenSectionCL& seen = findM(section.header);
    seen.head = section;
    seen.JudgeLastM();
}

SeenSectionsCL slReadSections(const std::shared_ptr<const FileTextCL>& text)
{
    SeenSectionsCL seen;
    VrIOCL io;
    io.OpenM(text);
    io.SetObserverM(&seen);
    std::vector<std::size_t> headers;
    const auto count = static_cast<int>(slGrammars().size());
    for (int i = 0; i < count; ++i) {
        slReadAlone(io, i);
        if (seen.AtM(i).IsThereM()) {
            headers.push_back(seen.AtM(i).head.headerSpan.begin);
        }
    }
    std::sort(headers.begin(), headers.end());
    for (int i = 0; i < count; ++i) {
        SeenSectionCL& section = seen.AtM(i);
        const auto next = std::upper_bound(headers.begin(), headers.end(), section.head.headerSpan.begin);
        section.regionEnd = next != headers.end() ? *next : text->SizeM();
    }
    return seen;
}

std::size_t slEndOfEmptyHead(const SeenSectionCL& section, std::string_view bytes, bool* hasComments)
{
    const std::size_t regionEnd = std::min(section.regionEnd, bytes.size());
    const auto behindLine = [&](std::size_t at) {
        const std::size_t lineEnd = bytes.find('\n', at);
        return lineEnd == std::string_view::npos ? regionEnd : std::min(lineEnd + 1, regionEnd);
    };
    const std::size_t behindCount = behindLine(std::min(section.head.countLine.end, regionEnd));
    std::size_t at = behindCount;
    while (at < regionEnd && slIsBlank(bytes[at])) {
        ++at;
    }
    int lines = 0;
    const char* const begin = bytes.data() + at;
    const bool isThere = slReadInt(begin, bytes.data() + regionEnd, &lines) != begin;
    if (hasComments != nullptr) {
        *hasComments = isThere;
    }
    if (!isThere) {
        return behindCount;
    }
    for (; lines >= 0 && at < regionEnd; --lines) {
        at = behindLine(at);
    }
    return at;
}
