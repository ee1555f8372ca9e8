#pragma once
#include "editing/seen_sections.h"
#include "editing/text_changes.h"
#include <optional>
#include <string>
#include <string_view>

// A record as text.
struct RecordTextCL
{
    std::string lines;   // Without the end of its last line.
    std::string lineEnd; // That; empty where the text came from the end of a file, or is new.
};

// Where records stand among the lines of their section.
class RecordLinesCL
{
public:
    // Both must live as long.
    RecordLinesCL(std::string_view bytes, const SeenSectionCL& section);

    SpanCL ValuesM(int record) const { return { section_.FirstM(record)->begin, lastM(record).end }; }
    // How lines end here.
    const std::string& LineEndM() const { return lineEnd_; }
    // The record's lines if nothing else stands there, else its values with what is between them. `begin`:
    // where that is.
    RecordTextCL CutM(int record, std::size_t* begin) const;
    // What takes away the records from first to last.
    TextChangeCL DeletingM(int first, int last) const;
    // What writes a record before another one; RecordsM for behind the last.
    TextChangeCL InsertingM(int before, const RecordTextCL& text) const;

private:
    const SeenValueCL& lastM(int record) const { return *(section_.EndM(record) - 1); }
    std::optional<std::size_t> lineBeginM(int record) const; // If the record begins its line.
    // Behind the end of the line, if nothing but blanks stands from here on.
    std::optional<std::size_t> behindLineM(std::size_t at) const;
    bool hasLineEndM(std::size_t behindLine) const
    {
        return behindLine > 0 && bytes_[behindLine - 1] == '\n';
    }
    TextChangeCL insertingBehindM(std::size_t at, const RecordTextCL& text) const;
    std::size_t behindHeadM() const;

    std::string_view bytes_;
    const SeenSectionCL& section_;
    std::string lineEnd_;
};

// How lines end where a text has that offset.
std::string lineEndNear(std::string_view bytes, std::size_t at);
