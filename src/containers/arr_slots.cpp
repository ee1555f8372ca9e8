#include "containers/arr_slots.h"
#include "baselib/helpers.h"
#include "baselib/moved_bytes.h"
#include <algorithm>
#include <cstdint>
#include <cstring>
#include <limits>

namespace {

// A heap block: raw room for elements behind the number of arrays that use it. Copy-constructed arrays share
// a block; counting its owners lets the last one free it.
constexpr std::size_t BlockHeadSize = alignof(std::max_align_t);

int& ownersOf(void* elements)
{
    return *reinterpret_cast<int*>(static_cast<char*>(elements) - BlockHeadSize);
}

// With one owner; null when there is no memory, or for 2 GB and more: what no list needs is refused alike
// whatever the machine could give.
void* allocateBlock(std::int64_t count, std::size_t size)
{
    constexpr std::int64_t mostBytes = std::numeric_limits<std::int32_t>::max();
    if (count < 1 || count > (mostBytes - std::int64_t { BlockHeadSize }) / static_cast<std::int64_t>(size)) {
        return nullptr;
    }
    void* const block = slMalloc(BlockHeadSize + static_cast<std::size_t>(count) * size);
    if (block == nullptr) {
        return nullptr;
    }
    *static_cast<int*>(block) = 1;
    return static_cast<char*>(block) + BlockHeadSize;
}

// The elements are not destroyed here.
void freeBlock(void* elements)
{
    slFree(static_cast<char*>(elements) - BlockHeadSize);
}

// Gives up one ownership; true for the last one, whose caller then frees the block.
bool dropBlock(void* elements)
{
    return --ownersOf(elements) == 0;
}

} // namespace

void ArrSlotsCL::ShareM(void* heapStore)
{
    ++ownersOf(heapStore);
}

int ArrSlotsCL::SlotOfM(const void* item)
{
    const auto at = reinterpret_cast<std::uintptr_t>(item);
    const auto begin = reinterpret_cast<std::uintptr_t>(SlotsM());
    if (at < begin || at - begin >= BytesM(counts_.length)) {
        return -1;
    }
    return static_cast<int>((at - begin) / elements_.size);
}

int ArrSlotsCL::GetNextIdxM(int from)
{
    if (from >= counts_.bound) {
        return -1;
    }
    for (int k = std::max(from, -1) + 1; k < counts_.bound; ++k) {
        if (BaseM(k).IsAliveM()) {
            return k;
        }
    }
    return -1;
}

void ArrSlotsCL::BeginM(int n)
{
    if (void* const block = allocateBlock(n, elements_.size)) {
        ConstructM(block, n);
        *heapStore_ = block;
        counts_.length = n;
    }
}

void ArrSlotsCL::AssignM(ArrSlotsCL other)
{
    const ArrCountsCL from = other.counts_;
    void* block = nullptr;
    if (from.length > InlineLength) {
        block = allocateBlock(std::int64_t { InlineLength } + from.length, elements_.size);
        if (block == nullptr) {
            return;
        }
    }
    if (*heapStore_ != nullptr && *heapStore_ == *other.heapStore_) {
        LetGoM(inlineStore_, InlineLength); // Deleting the items would delete those about to be copied.
        returnToInlineM();
    }
    DelAllM();
    if (block != nullptr) {
        ConstructM(block, InlineLength + from.length);
        *heapStore_ = block;
        counts_.length = InlineLength + from.length;
    }
    CopyM(other.SlotsM(), from.bound, SlotsM());
    counts_.available = from.available;
    counts_.bound = from.bound;
    counts_.increment = from.increment;
}

int ArrSlotsCL::AddSizeM(int n)
{
    if (n < 1) {
        return 1;
    }
    const int length = counts_.length;
    void* const block = allocateBlock(std::int64_t { length } + n, elements_.size);
    if (block == nullptr) {
        return 0;
    }
    void* const before = *heapStore_;
    if (before != nullptr && ownersOf(before) == 1) {
        std::memcpy(block, before, BytesM(length));
        slTellMovedBytes(before, BytesM(length), block);
        freeBlock(before);
    } else {
        // Inline elements live on until the array dies, those of a shared block until its other owners go.
        ConstructM(block, length);
        CopyM(SlotsM(), length, block);
        DropHeapStoreM();
    }
    ConstructM(AtM(block, length), n);
    counts_.length += n;
    *heapStore_ = block;
    return 1;
}

int ArrSlotsCL::SetItemM(const void* item, int i)
{
    if (i < 0) {
        return 1;
    }
    if (i >= counts_.length) {
        const int own = SlotOfM(item); // Growth moves an item that lies in this very array.
        if (AddSizeM(std::max(counts_.length, i - counts_.length + 1)) == 0) {
            return 0;
        }
        if (own >= 0) {
            item = SlotM(own);
        }
    }
    counts_.bound = std::max(counts_.bound, i + 1);
    char* const slot = SlotM(i);
    if (!BaseM(slot).IsAliveM() && BaseM(item).IsAliveM()) {
        ++counts_.available;
    }
    elements_.assign(slot, item);
    return 1;
}

void ArrSlotsCL::InsertWithinM(const void* item, int i)
{
    const int bound = counts_.bound;
    LetGoM(SlotM(bound), 1);
    BaseM(bound).~VrBaseCL(); // The moved bytes overwrite it.
    const std::size_t moved = BytesM(bound - i);
    std::memmove(SlotM(i + 1), SlotM(i), moved);
    slTellMovedBytes(SlotM(i), moved, SlotM(i + 1));
    ConstructM(SlotM(i), 1);
    elements_.assign(SlotM(i), item);
}

void ArrSlotsCL::DelItemM(int i)
{
    if (i < 0 || i >= counts_.bound) {
        return;
    }
    char* const slot = SlotM(i);
    if (BaseM(slot).IsAliveM()) {
        DeleteM(slot);
        --counts_.available;
    }
    if (i == counts_.bound - 1) {
        --counts_.bound;
    }
}

void ArrSlotsCL::DelAllVirtualM()
{
    for (int k = 0; k < counts_.bound; ++k) {
        DelItemM(k);
    }
    counts_.bound = 0;
    counts_.available = 0;
}

void ArrSlotsCL::DelAllM()
{
    DelAllVirtualM();
    returnToInlineM();
    counts_.increment = DefaultIncrement;
}

void ArrSlotsCL::MoveInlineM(int n)
{
    void* const store = *heapStore_;
    CopyM(store, n, inlineStore_);
    if (dropBlock(store)) {
        slTellMovedBytes(store, BytesM(counts_.length), nullptr);
        freeBlock(store);
    }
    *heapStore_ = nullptr;
    counts_.length = InlineLength;
}

void ArrSlotsCL::DropHeapStoreM()
{
    void* const store = *heapStore_;
    if (store == nullptr) {
        return;
    }
    if (dropBlock(store)) {
        for (int k = 0; k < counts_.length; ++k) {
            BaseM(AtM(store, k)).~VrBaseCL();
        }
        freeBlock(store);
    }
    *heapStore_ = nullptr;
}

// An empty array on its inline store, whose old items must not count as alive again. Nothing to do without a
// heap store.
void ArrSlotsCL::returnToInlineM()
{
    if (*heapStore_ == nullptr) {
        return;
    }
    DropHeapStoreM();
    counts_.length = InlineLength;
    for (int k = 0; k < InlineLength; ++k) {
        DeleteM(AtM(inlineStore_, k));
    }
    counts_.bound = 0;
    counts_.available = 0;
}
