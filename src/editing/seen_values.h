#pragma once
#include "records/read_observer.h"
#include <cstddef>
#include <cstdint>
#include <memory>

// One value as the library's reader met it; see ValueSeenCL.
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

// The values of one section, in a part of a block that several sections share.
class SeenValuesCL
{
public:
    SeenValuesCL() = default;
    SeenValuesCL(SeenValuesCL&&) = default;
    SeenValuesCL& operator=(SeenValuesCL&&) = default;
    // As those of a vector.
    const SeenValueCL* begin() const { return first_; }
    const SeenValueCL* end() const { return first_ + size_; }
    const SeenValueCL* data() const { return first_; }
    const SeenValueCL& back() const { return first_[size_ - 1]; }
    std::size_t size() const { return size_; }
    bool empty() const { return size_ == 0; }
    void clear() { size_ = 0; }
    // Whether SeenBlocksCL::MakeRoomM must make room before the next value.
    bool IsFullM() const { return size_ == room_; }
    // One more, to be filled.
    SeenValueCL& AddM() { return first_[size_++]; }

private:
    friend class SeenBlocksCL;

    std::shared_ptr<SeenValueCL[]> block_;
    SeenValueCL* first_ { nullptr };
    std::size_t size_ { 0 };
    std::size_t room_ { 0 };
};

// Makes room for the values of many sections that are read one after the other. Each block is as large as all
// before it: a list that grows mostly does so where it lies, and who reads again and again (an editor, at
// each key) gets the same few blocks back, where small ones would be returned to the system, and cleared,
// each time.
class SeenBlocksCL
{
public:
    // More room for a list that is full; its values may lie elsewhere from then on.
    void MakeRoomM(SeenValuesCL& values);

private:
    std::shared_ptr<SeenValueCL[]> block_; // The last one.
    std::size_t used_ { 0 };               // Its values that some list has.
    std::size_t size_ { 0 };
};
