#pragma once
#include "baselib/file_text.h"
#include <cstdint>

// What became of a counted section of a description file.
enum class SectionStatus
{
    Missing,    // The header stands nowhere.
    Empty,      // The count is 0 or less, or can't be read.
    Broken,     // The count can't be meant: the rest of the file is too short for it.
    Incomplete, // The records were read, but a secondary section is missing or broken.
    Read
};

// What became of a value. All but Read, Saturated, Cut and NullWord leave the value that it had before.
enum class Fate
{
    Read,
    Saturated,  // A number beyond the range of its type became the nearest limit.
    Cut,        // The text is longer than its field holds, or goes on behind a NUL.
    NullWord,   // "NULL" or "null" where that stands for no text, or for no entry.
    NotANumber, // Something else stands there; the next value starts at the same place.
    Missing,    // The file ends before it.
    NotLookedAt // The record was given up before it.
};

// One value: where it belongs, where it stands, what became of it.
struct ValueSeenCL
{
    const char* section; // The header of its section, GBK; "" for a record read on its own.
    int record;          // The number of its record or entry in the section, from 0.
    const char* field;   // The name of its field.
    int part; // Its number, from 0, among the values of a field with several: x and y, red, green and blue.
    SpanCL span; // What was found; what is no number to the next blank, at most 259 bytes. Or empty.
    Fate fate;   // What became of it.
    bool isFileName { false }; // It names a picture.
};

// The same, as it is kept; see SeenRoomCL.
struct SeenValueCL
{
    const char* field;   // The name of its field.
    std::uint32_t begin; // Where it stands in the file: the offset of its first byte,
    std::uint32_t end;   // and the offset behind its last one.
    std::uint8_t part;   // Its number among the values of a field with several.
    Fate fate;           // What became of it.

    // Those bytes.
    SpanCL SpanM() const { return { begin, end }; }
    // Whether nothing was read: no number stands there, or the file or the record ends before it.
    bool IsAbsentM() const
    {
        return fate == Fate::NotANumber || fate == Fate::Missing || fate == Fate::NotLookedAt;
    }
};

// Where the reader keeps the values that it meets, for who wants many.
struct SeenRoomCL
{
    SeenValueCL* next { nullptr }; // The place of the next one,
    SeenValueCL* end { nullptr };  // and the end of the room.
    // The reader sets this to false where not all values that it has kept here were read whole, with blanks
    // between them; it may do so without need.
    bool isPlain { false };
};

// Why an entry belongs to no record.
enum class EntryFault
{
    UnknownId, // No record has the function id, or the number, that it names.
    NullWord,  // Its text says that it doesn't count.
    BadSlot    // It names a slot below 0, or one so far that it can't be meant.
};

// An entry of a secondary section that belongs to no record.
struct EntryDroppedCL
{
    const char* section; // The header of the section, GBK.
    int entry;           // Its number in the section, from 0.
    SpanCL span;         // All its values.
    EntryFault fault;    // Why.
};

// One section as a whole. Spans of what isn't there are empty.
struct SectionSeenCL
{
    const char* header;   // GBK.
    SectionStatus status; // What became of it.
    int count;            // Records or entries that were read.
    SpanCL headerSpan;    // Where the header stands.
    SpanCL countSpan;     // The number of records.
    SpanCL countLine;     // All of that number's line.
    SpanCL commentCount;  // The number of comment lines.
    SpanCL comments;      // Those lines.
    std::size_t end;      // Behind the last value.
    SpanCL follows;       // The next text behind it, to the end of its line.
};

// Is told what the reading of a description file finds, as it goes; see VrIOCL::SetObserverM. Names and spans
// hold for as long as the file's text does (VrIOCL::FileTextM). The reading itself takes no notice.
class PANELKIT_API ReadObserverCL
{
public:
    virtual ~ReadObserverCL();
    // Before the values of a record or entry of a section: room for them, which holds while the record is
    // read. The reader keeps them there; those that have no room left, and here all, ValueM is told.
    virtual SeenRoomCL* BeginRecordM(const char* section, int record);
    // Do nothing here. What they are given holds until they return.
    virtual void ValueM(const ValueSeenCL& value);
    virtual void EntryDroppedM(const EntryDroppedCL& entry);
    virtual void SectionM(const SectionSeenCL& section); // The same, when all was read, secondary ones too.
};
