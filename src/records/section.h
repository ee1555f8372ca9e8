#pragma once
#include "baselib/base.h"
#include "baselib/io.h"
#include "records/fields.h"
#include <cstddef>
#include <unordered_map>

// What became of a counted section of a description file.
enum class SectionStatus
{
    Missing,    // The header stands nowhere.
    Empty,      // The count is 0 or less, or can't be read.
    Broken,     // The count can't be meant: the rest of the file is too short for it.
    Incomplete, // The records were read, but a secondary section is missing or broken.
    Read
};

// Whether so many bytes can hold `count` records or entries, each of at least `values` numbers and texts. A
// small count may leave much to the defaults; a large one only serves to make the reader waste memory.
PANELKIT_API bool slCanHold(std::size_t bytes, int count, int values);

// Finds a counted section in an open file and reads up to its first record: header, count, comment lines.
// *count is the number of records or entries, each of at least `values` numbers and texts; 0 unless the
// result is Read.
PANELKIT_API SectionStatus slOpenSection(VrIOCL& io, const char* header, int values, int* count);

// One entry of a secondary section: the function id of the record that it belongs to, numbers, texts.
struct SectionEntryCL
{
    static constexpr int MostNumbers = 3;
    static constexpr int MostTexts = 3;
    int functionId;
    int numbers[MostNumbers];
    char texts[MostTexts][TextSize];
};

// How many numbers an entry of the relations between controls has. It has no text.
constexpr int RelationNumbers = 3;

// How the entries of one secondary section of a kind are laid out and attached to its records.
template <class RecordTP> struct SecondarySectionCL
{
    const char* header;
    int numberCount;
    int textCount;
    int textSize; // Bytes of each text with its terminator.
    int (*attach)(RecordTP& record, const SectionEntryCL& entry);
};

// The same for a section whose entries have so many numbers and texts behind the function id.
PANELKIT_API SectionStatus slOpenEntries(
    VrIOCL& io, const char* header, int numberCount, int textCount, int* count);
PANELKIT_API void slReadEntry(
    VrIOCL& io, SectionEntryCL& entry, int numberCount, int textCount, int textSize);

// Reads the entries of one secondary section and gives each to the first alive record with its function id.
// An entry whose first text is "NULL" or "null", or that no record takes, is passed over.
template <class RecordArrTP, class RecordTP>
SectionStatus slReadSecondary(VrIOCL& io, RecordArrTP& records, const SecondarySectionCL<RecordTP>& section)
{
    int count = 0;
    const SectionStatus status
        = slOpenEntries(io, section.header, section.numberCount, section.textCount, &count);
    if (status == SectionStatus::Missing || status == SectionStatus::Broken) {
        return status;
    }
    std::unordered_map<int, int> firstOfId;
    for (int i = records.GetFirstIdxM(); i >= 0; i = records.GetNextIdxM(i)) {
        firstOfId.emplace(records.ElementAtM(i).GetFuncIDM(), i);
    }
    SectionEntryCL entry;
    for (int i = 0; i < count; ++i) {
        slReadEntry(io, entry, section.numberCount, section.textCount, section.textSize);
        const auto found = firstOfId.find(entry.functionId);
        if (found != firstOfId.end() && slIsNullWord(entry.texts[0]) == 0) {
            section.attach(records.ElementAtM(found->second), entry);
        }
    }
    return SectionStatus::Read;
}

// Reads the main section of one kind and its secondary sections from an open file, appending to the array.
// RecordArrTP names its record type (RecordTP), its Header and its Secondaries.
// *count is what the count line said, 0 when nothing was read.
template <class RecordArrTP> SectionStatus slReadSection(VrIOCL& io, RecordArrTP& records, int* count)
{
    const SectionStatus status
        = slOpenSection(io, RecordArrTP::Header, slFewestValues<typename RecordArrTP::RecordTP>(), count);
    if (status != SectionStatus::Read) {
        return status;
    }
    typename RecordArrTP::RecordTP scratch(AliveTag);
    for (int i = 0; i < *count; ++i) {
        scratch.FmReadInterfaceM(&io);
        records.AddItemM(scratch);
    }
    for (const auto& section : RecordArrTP::Secondaries) {
        const SectionStatus secondary = slReadSecondary(io, records, section);
        if (secondary != SectionStatus::Read) {
            return SectionStatus::Incomplete;
        }
    }
    return SectionStatus::Read;
}
