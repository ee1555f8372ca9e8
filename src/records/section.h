#pragma once
#include "baselib/take_back.h"
#include "records/field_counter.h"
#include "records/field_reader.h"
#include "records/rows.h"
#include <algorithm>
#include <climits>
#include <cstddef>
#include <cstdint>
#include <new>
#include <optional>
#include <utility>
#include <vector>

// Whether so many bytes can hold `count` records or entries, each of at least `values` numbers and texts. A
// small count may leave much to the defaults; a large one only serves to make the reader waste memory.
PANELKIT_API bool slCanHold(std::size_t bytes, int count, int values);

// One section of an open file: finds it, reads up to its first record, and hands out the reader of its
// records. Tells the file's observer of the section when it goes.
class PANELKIT_API SectionReaderCL
{
public:
    // The status is Read when the header was found, else Missing; nothing of the section has been read.
    SectionReaderCL(VrIOCL& io, const char* header);
    SectionReaderCL(const SectionReaderCL&) = delete;
    SectionReaderCL& operator=(const SectionReaderCL&) = delete;
    ~SectionReaderCL() noexcept(false); // The observer may find no memory.

    // The usual head, if the header was found: a count, the rest of its line, the number of comment lines,
    // those lines. CountM is the number of records or entries then, each of at least `values` numbers and
    // texts; 0 unless the status is Read.
    SectionStatus OpenM(int values);
    // The parts of a head, for the sections with another one. Each does nothing unless the status is Read.
    void InputCountM(int* count);
    void InputCommentsM(int* lines);       // Reads only their number.
    void InputCommentsM();                 // Their number, the rest of its line, and them.
    void SkipCommentsM(int lines);         // The rest of this line counts as one.
    void SetCountM(int count, int values); // Broken, and CountM 0, for more than the bytes left can hold.

    // What has become of the section so far.
    SectionStatus StatusM() const { return seen_.status; }
    void SetStatusM(SectionStatus status) { seen_.status = status; }
    // How many records or entries it has; 0 unless the status is Read.
    int CountM() const { return seen_.count; }

    // How texts are held that are read from now on: together, for records that are kept; or in those of one
    // entry, again and again.
    void PoolTextsM() { reader_.PoolTextsM(texts_); }
    void ReuseTextsM() { reader_.ReuseTextsM(); }
    FieldReaderCL& RecordM(int number); // The reader, before record or entry `number`.
    void DropM(EntryFault fault);       // The entry just read belongs to no record.
    void EndM();                        // Its last record has been read; others of the file may follow.

private:
    SpanCL inputM(int* value);
    SpanCL lineAtM(std::size_t offset) const;

    VrIOCL& io_;
    TextPoolCL texts_;
    FieldReaderCL reader_;
    SectionSeenCL seen_ {};
    int exceptions_; // Under way when it was made.
    int record_ { 0 };
    std::size_t recordBegin_ { 0 };
    bool isEnded_ { false };
};

// Finds the first record with an id, in little time however many records there are.
class PANELKIT_API IdsOfRecordsCL
{
public:
    // count: how many to make room for; it may be wrong.
    explicit IdsOfRecordsCL(int count) { ids_.reserve(static_cast<std::size_t>(std::max(count, 0))); }
    void AddM(int id, int index) { ids_.push_back({ id, index }); } // In rising order of index.
    void SortM();                                                   // Once all are there.
    int FindM(int id);                                              // -1 when no record has it.

private:
    std::vector<std::pair<int, int>> ids_;
    std::size_t last_ { 0 }; // Entries of one record mostly stand together, and in the order of the records.
};

// What the entries of one secondary section of a kind hold, and how a record takes one.
template <class RecordTP> struct SecondarySectionCL
{
    const char* header; // GBK.
    RowFieldsTP fields; // Names the values of an entry.
    // Gives an entry to its record, which may take its texts.
    void (*attach)(RecordTP& record, const RowCL& row);
};

// One entry, read but not yet taken by a record.
struct SectionEntryCL
{
    int functionId { 0 };               // Of the record that it belongs to.
    int numbers[RowCL::MostNumbers] {}; // As many as its fields name.
    CharArr texts[RowCL::MostTexts];    // The same.

    // Those as a row, valid as long as the entry.
    RowCL RowM() { return { numbers, { &texts[0], &texts[1], &texts[2] } }; }
    // Shows the visitor the function id and what the fields name.
    PANELKIT_API void EachFieldM(FieldVisitorCL& visitor, RowFieldsTP fields);
    PANELKIT_API void ReadM(FieldReaderCL& reader, RowFieldsTP fields); // What can't be read is 0 or "".
};

// Reads one record of a main section, which holds its defaults: the common fields, then its own. 0 when it
// turned out to be unreadable, else 1.
template <class RecordTP> int slReadFreshRecord(RecordTP& record, FieldReaderCL& reader)
{
    record.EachCommonFieldM(reader);
    record.EachFieldM(reader);
    return reader.IsStoppedM() ? 0 : 1;
}

// The same, from its defaults on; the delete tag is kept.
template <class RecordTP> int slReadRecord(RecordTP& record, FieldReaderCL& reader)
{
    record = RecordTP(record.GetDeleteTagM());
    return slReadFreshRecord(record, reader);
}

// Reads the entries of one secondary section. ids() tells the ids of the records, once and only if there are
// entries to be read; take(number, row) is given each entry of record `number`, the first one with its
// function id. An entry that a text of it rules out, or that no record takes, is passed over. areKept: take
// keeps texts of the rows.
template <class IdsTP, class TakeTP>
SectionStatus slReadEntries(
    VrIOCL& io, const char* header, RowFieldsTP fields, bool areKept, IdsTP&& ids, TakeTP&& take)
{
    SectionEntryCL entry;
    FieldCounterCL values;
    entry.EachFieldM(values, fields);
    SectionReaderCL section(io, header);
    const SectionStatus status = section.OpenM(values.ValuesM());
    if (status == SectionStatus::Missing || status == SectionStatus::Broken) {
        return status;
    }
    areKept ? section.PoolTextsM() : section.ReuseTextsM();
    auto&& known = ids();
    known.SortM();
    for (int i = 0; i < section.CountM(); ++i) {
        FieldReaderCL& reader = section.RecordM(i);
        entry.ReadM(reader, fields);
        const int found = known.FindM(entry.functionId);
        if (reader.IsSkippedM() || found < 0) {
            section.DropM(reader.IsSkippedM() ? EntryFault::NullWord : EntryFault::UnknownId);
        } else {
            take(found, entry.RowM());
        }
    }
    return SectionStatus::Read;
}

// The same for the alive records of an array.
template <class RecordArrTP, class RecordTP>
SectionStatus slReadSecondary(VrIOCL& io, RecordArrTP& records, const SecondarySectionCL<RecordTP>& secondary)
{
    const auto ids = [&records] {
        IdsOfRecordsCL all(records.GetAvailableNumM());
        for (int i = records.GetFirstIdxM(); i >= 0; i = records.GetNextIdxM(i)) {
            all.AddM(records.ElementAtM(i).GetFuncIDM(), i);
        }
        return all;
    };
    return slReadEntries(io, secondary.header, secondary.fields, true, ids,
        [&](int i, const RowCL& row) { secondary.attach(records.ElementAtM(i), row); });
}

// Room for so many more, as adding one by one would make it, at once. Without the memory: none. The first
// slot of the store that is new.
template <class ArrTP> int slMakeRoom(ArrTP& items, int count)
{
    std::int64_t length = items.GetLengthM();
    while (length < std::int64_t { items.GetBoundM() } + count) {
        length *= 2;
    }
    const int first = items.GetLengthM();
    items.AddSizeM(static_cast<int>(std::min<std::int64_t>(length, INT_MAX)) - first);
    return first;
}

// Reads the main section of one kind and its secondary sections from an open file, appending to the array.
// RecordArrTP names its record type (RecordTP), its Header and its Secondaries.
// *count is what the count line said, 0 when nothing was read. Without the memory for all of them
// std::bad_alloc is thrown, and the array is what it was.
template <class RecordArrTP> SectionStatus slReadSection(VrIOCL& io, RecordArrTP& records, int* count)
{
    SectionReaderCL section(io, RecordArrTP::Header);
    const SectionStatus status = section.OpenM(slFewestValues<typename RecordArrTP::RecordTP>());
    *count = section.CountM();
    if (status != SectionStatus::Read) {
        return status;
    }
    std::optional<RecordArrTP> before; // Entries may be for records that were there already.
    if (records.GetBoundM() > 0) {
        before.emplace() = records;
    }
    TakeBackCL half([&records, &before, count] {
        *count = 0;
        if (before) {
            records.SwapListM(*before);
        } else {
            records.DelAllM();
        }
    });
    const int firstNew = slMakeRoom(records, *count);
    section.PoolTextsM();
    for (int i = 0; i < *count; ++i) {
        const int index = records.AddDefaultsM(firstNew);
        if (index < 0) {
            throw std::bad_alloc();
        }
        slReadFreshRecord(records.ElementAtM(index), section.RecordM(i));
    }
    section.EndM();
    for (const auto& secondary : RecordArrTP::Secondaries) {
        if (slReadSecondary(io, records, secondary) != SectionStatus::Read) {
            section.SetStatusM(SectionStatus::Incomplete);
            break;
        }
    }
    half.KeepM();
    return section.StatusM();
}

// Reads the same without keeping the records: see(number, record) is shown each when it was read, without
// what its secondary sections add, all in the same record, and may take from it what it likes.
template <class RecordArrTP, class SeeTP> SectionStatus slEachRecordRead(VrIOCL& io, SeeTP&& see)
{
    using RecordTP = typename RecordArrTP::RecordTP;
    SectionReaderCL section(io, RecordArrTP::Header);
    const SectionStatus status = section.OpenM(slFewestValues<RecordTP>());
    if (status != SectionStatus::Read) {
        return status;
    }
    const RecordTP defaults(AliveTag);
    RecordTP record(AliveTag);
    section.PoolTextsM();
    IdsOfRecordsCL ids(RecordArrTP::Secondaries.empty() ? 0 : section.CountM());
    for (int i = 0; i < section.CountM(); ++i) {
        record = defaults;
        slReadFreshRecord(record, section.RecordM(i));
        if constexpr (!RecordArrTP::Secondaries.empty()) {
            ids.AddM(record.GetFuncIDM(), i);
        }
        see(i, record);
    }
    section.EndM();
    for (const auto& secondary : RecordArrTP::Secondaries) {
        if (slReadEntries(
                io, secondary.header, secondary.fields, false, [&ids]() -> IdsOfRecordsCL& { return ids; },
                [](int, const RowCL&) {})
            != SectionStatus::Read) {
            section.SetStatusM(SectionStatus::Incomplete);
            break;
        }
    }
    return section.StatusM();
}
