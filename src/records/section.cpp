#include "records/section.h"
#include "baselib/number_text.h"
#include <algorithm>
#include <climits>
#include <cstring>
#include <exception>

SectionReaderCL::SectionReaderCL(VrIOCL& io, const char* header)
    : io_(io)
    , reader_(&io, header)
    , exceptions_(std::uncaught_exceptions())
{
    seen_.header = header;
    seen_.status = io.SearchStrM(header) != 0 ? SectionStatus::Read : SectionStatus::Missing;
    if (seen_.status == SectionStatus::Read) {
        seen_.headerSpan = { io.PositionM() - std::strlen(header), io.PositionM() };
    }
}

SectionReaderCL::~SectionReaderCL() noexcept(false)
{
    // Nobody is told of a section that an exception has left.
    if (io_.ObserverM() == nullptr || std::uncaught_exceptions() > exceptions_) {
        return;
    }
    EndM();
    io_.ObserverM()->SectionM(seen_);
}

bool slCanHold(std::size_t bytes, int count, int values)
{
    constexpr int smallCount = 1000;
    constexpr std::size_t valueSize = 2; // A digit and a blank.
    const std::size_t most
        = count > smallCount ? bytes / (valueSize * static_cast<std::size_t>(values)) : bytes;
    return count <= 0 || static_cast<std::size_t>(count) <= most;
}

SectionStatus SectionReaderCL::OpenM(int values)
{
    int count = 0;
    InputCountM(&count);
    if (StatusM() == SectionStatus::Read && count <= 0) {
        SetStatusM(SectionStatus::Empty);
    }
    SetCountM(count, values);
    if (StatusM() == SectionStatus::Read) {
        io_.SkipLineM();
        InputCommentsM();
    }
    return StatusM();
}

// Where the number stands; only for an observer.
SpanCL SectionReaderCL::inputM(int* value)
{
    if (io_.ObserverM() == nullptr) {
        io_.InputOneM(value);
        return {};
    }
    const std::size_t begin = slNextValue(io_);
    return { begin, io_.InputOneM(value) ? io_.PositionM() : begin };
}

void SectionReaderCL::InputCountM(int* count)
{
    if (StatusM() == SectionStatus::Read) {
        seen_.countSpan = inputM(count);
        if (io_.ObserverM() != nullptr) {
            seen_.countLine = lineAtM(seen_.countSpan.begin);
        }
    }
}

void SectionReaderCL::InputCommentsM(int* lines)
{
    if (StatusM() == SectionStatus::Read) {
        seen_.commentCount = inputM(lines);
    }
}

void SectionReaderCL::InputCommentsM()
{
    int lines = 0;
    InputCommentsM(&lines);
    SkipCommentsM(lines < INT_MAX ? lines + 1 : INT_MAX);
}

void SectionReaderCL::SkipCommentsM(int lines)
{
    if (StatusM() != SectionStatus::Read) {
        return;
    }
    std::size_t begin = io_.PositionM();
    if (lines > 0) {
        io_.SkipLineM();
        begin = io_.PositionM();
        io_.SkipSomeLinesM(lines - 1);
    }
    seen_.comments = { begin, io_.PositionM() };
}

void SectionReaderCL::SetCountM(int count, int values)
{
    if (StatusM() != SectionStatus::Read) {
        return;
    }
    seen_.count = std::max(count, 0);
    if (!slCanHold(io_.BytesLeftM(), count, values)) {
        SetStatusM(SectionStatus::Broken);
        seen_.count = 0;
    }
}

FieldReaderCL& SectionReaderCL::RecordM(int number)
{
    record_ = number;
    recordBegin_ = io_.PositionM();
    reader_.BeginRecordM(number);
    return reader_;
}

void SectionReaderCL::DropM(EntryFault fault)
{
    ReadObserverCL* const observer = io_.ObserverM();
    if (observer != nullptr) {
        SpanCL span { recordBegin_, io_.PositionM() };
        while (span.begin < span.end && slIsBlank(io_.FileTextM()->BytesM()[span.begin])) {
            ++span.begin;
        }
        observer->EntryDroppedM({ seen_.header, record_, span, fault });
    }
}

void SectionReaderCL::EndM()
{
    if (isEnded_ || io_.ObserverM() == nullptr) {
        return;
    }
    isEnded_ = true;
    seen_.end = io_.PositionM();
    if (StatusM() != SectionStatus::Missing) {
        const std::size_t next = slNextValue(io_);
        seen_.follows = { next, lineAtM(next).end };
    }
}

// The line of a byte, without its end.
SpanCL SectionReaderCL::lineAtM(std::size_t offset) const
{
    const FileTextCL& file = *io_.FileTextM();
    const auto isLineEnd = [&file](std::size_t at) { return file.BytesM()[at] == '\n'; };
    SpanCL line { offset, offset };
    while (line.begin > 0 && !isLineEnd(line.begin - 1)) {
        --line.begin;
    }
    while (line.end < file.SizeM() && !isLineEnd(line.end)) {
        ++line.end;
    }
    if (line.end > line.begin && line.end < file.SizeM() && file.BytesM()[line.end - 1] == '\r') {
        --line.end;
    }
    return line;
}

void IdsOfRecordsCL::SortM()
{
    if (!std::is_sorted(ids_.begin(), ids_.end())) {
        std::sort(ids_.begin(), ids_.end());
    }
}

int IdsOfRecordsCL::FindM(int id)
{
    const auto stands = [&](std::size_t at) { return at < ids_.size() && ids_[at].first == id; };
    const auto isFirst = [&](std::size_t at) { return stands(at) && (at == 0 || ids_[at - 1].first != id); };
    if (!isFirst(last_)) {
        last_ = isFirst(last_ + 1)
            ? last_ + 1
            : static_cast<std::size_t>(
                std::lower_bound(ids_.begin(), ids_.end(), std::pair(id, INT_MIN)) - ids_.begin());
    }
    return stands(last_) ? ids_[last_].second : -1;
}

void SectionEntryCL::ReadM(FieldReaderCL& reader, RowFieldsTP fields)
{
    functionId = 0;
    for (int& number : numbers) {
        number = 0;
    }
    for (CharArr& text : texts) {
        text.ClearM();
    }
    EachFieldM(reader, fields);
}

void SectionEntryCL::EachFieldM(FieldVisitorCL& visitor, RowFieldsTP fields)
{
    visitor.IdM("function_id", functionId);
    fields(visitor, RowM());
}
