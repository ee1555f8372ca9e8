#pragma once
#include "baselib/api.h"
#include <cstddef>
#include <memory>
#include <string_view>
#include <vector>

// A place as an editor shows it: lines and the characters of a line count from 1, a double-byte one as one.
struct PlaceCL
{
    std::size_t line { 1 };   // From 1.
    std::size_t column { 1 }; // From 1, in characters.
};

// Bytes of a file by their offsets; end is the first one behind them.
struct SpanCL
{
    std::size_t begin { 0 }; // The offset of the first one.
    std::size_t end { 0 };   // The offset behind the last one.
    // Whether it has no byte.
    bool EmptyM() const { return begin == end; }
};

// The text of a file: its bytes (GBK), and where an offset stands for who reads it. Lines end with LF or
// CR LF. Not for several threads at once: it remembers what it was asked for.
class PANELKIT_API FileTextCL
{
public:
    FileTextCL(std::unique_ptr<char[]> bytes, std::size_t size); // Takes over `size` bytes.
    explicit FileTextCL(std::string_view bytes);                 // A copy of them.

    // All of them, with no terminator; the object keeps them.
    const char* BytesM() const { return bytes_.get(); }
    std::size_t SizeM() const { return size_; }
    std::string_view CutM(SpanCL span) const; // What lies outside the file is left off.

    // The place of a byte, or of the file's end for an offset at or behind it. A byte inside a character has
    // that character's place, one of a line's end the place behind the line's last character.
    PlaceCL PlaceM(std::size_t offset) const;

    // Where the first such text that begins with '[' ends; SIZE_MAX when there is none. Text inside a
    // double-byte character isn't found. Much faster than a search when it is asked for often.
    std::size_t HeaderEndM(std::string_view header) const;

private:
    void findHeadersM() const;

    std::unique_ptr<char[]> bytes_;
    std::size_t size_;
    mutable bool hasHeaders_ { false };
    mutable std::vector<std::size_t> headers_;    // Each '[' that is a character, found when first asked for.
    mutable std::vector<std::size_t> lineStarts_; // Made when the first place is asked for.
    mutable std::size_t lastStart_ { 0 };         // Where the character of the last place asked for begins,
    mutable PlaceCL last_;                        // and that place: a long line is walked over once.
};
