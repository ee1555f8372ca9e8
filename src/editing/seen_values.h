#pragma once
#include "records/read_observer.h"
#include <cstddef>
#include <cstdint>
#include <memory>

// The values of one section, in a part of a block that several sections share.
class SeenValuesCL
{
public:
    SeenValuesCL() = default;
    SeenValuesCL(SeenValuesCL&&) = default;
    SeenValuesCL& operator=(SeenValuesCL&&) = default;
    // As those of a vector.
    const SeenValueCL* begin() const { return first_; }
    const SeenValueCL* end() const { return room_.next; }
    const SeenValueCL* data() const { return first_; }
    const SeenValueCL& back() const { return room_.next[-1]; }
    std::size_t size() const { return static_cast<std::size_t>(room_.next - first_); }
    bool empty() const { return room_.next == first_; }
    void clear() { room_.next = first_; }
    // Whether SeenBlocksCL::MakeRoomM must make room before the next value.
    bool IsFullM() const { return room_.next == room_.end; }
    // Where the next ones are put.
    SeenRoomCL& RoomM() { return room_; }
    const SeenRoomCL& RoomM() const { return room_; }

private:
    friend class SeenBlocksCL;

    std::shared_ptr<SeenValueCL[]> block_;
    SeenValueCL* first_ { nullptr };
    SeenRoomCL room_;
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
