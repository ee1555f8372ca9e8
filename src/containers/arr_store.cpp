// The stores of an array: how they grow, are shared, copied and left.
#include "baselib/helpers.h"
#include "baselib/moved_bytes.h"
#include "containers/arr_slots.h"
#include <cstdint>
#include <cstring>
#include <limits>
#include <utility>

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

// A block whose elements are being made, from one of them on. Unless it is taken, it is freed with those made
// so far.
class ArrSlotsCL::FreshBlockCL
{
public:
    FreshBlockCL(const ArrSlotsCL& slots, std::int64_t count, int first = 0)
        : slots_(slots)
        , elements_(allocateBlock(count, slots.elements_.size))
        , first_(first)
        , end_(first)
    {
    }
    FreshBlockCL(const FreshBlockCL&) = delete;
    FreshBlockCL& operator=(const FreshBlockCL&) = delete;
    ~FreshBlockCL()
    {
        if (elements_ != nullptr) {
            while (end_ > first_) {
                slots_.BaseM(slots_.AtM(elements_, --end_)).~VrBaseCL();
            }
            freeBlock(elements_);
        }
    }

    bool IsThereM() const { return elements_ != nullptr; }
    void* ElementsM() const { return elements_; }
    void MakeM(int n) // So many more.
    {
        for (; n > 0; --n, ++end_) {
            slots_.elements_.construct(slots_.AtM(elements_, end_));
        }
    }
    void* TakeM() { return std::exchange(elements_, nullptr); }

private:
    const ArrSlotsCL& slots_;
    void* elements_;
    int first_;
    int end_;
};

void ArrSlotsCL::ShareM(void* heapStore)
{
    ++ownersOf(heapStore);
}

void ArrSlotsCL::BeginM(int n)
{
    FreshBlockCL block(*this, n);
    if (block.IsThereM()) {
        block.MakeM(n);
        *heapStore_ = block.TakeM();
        counts_.length = n;
    }
}

void ArrSlotsCL::AssignM(ArrSlotsCL other)
{
    const ArrCountsCL from = other.counts_;
    if (from.length <= InlineLength) {
        assignFewM(other, 0);
        return;
    }
    FreshBlockCL block(*this, std::int64_t { InlineLength } + from.length);
    if (!block.IsThereM()) {
        return;
    }
    block.MakeM(InlineLength + from.length);
    if (elements_.copiesFirst) {
        CopyM(other.SlotsM(), from.bound, block.ElementsM());
    }
    if (*heapStore_ != nullptr && *heapStore_ == *other.heapStore_) {
        LetGoM(inlineStore_, InlineLength); // Deleting the items would delete those about to be copied.
        returnToInlineM();
    }
    DelAllM();
    *heapStore_ = block.TakeM();
    counts_ = from;
    counts_.length = InlineLength + from.length;
    if (!elements_.copiesFirst) {
        CopyM(other.SlotsM(), from.bound, SlotsM());
    }
}

// Assigns an array without a heap store. Copies of its items from i on wait until all are there: none
// replaces anything before.
void ArrSlotsCL::assignFewM(ArrSlotsCL& other, int i)
{
    const ArrCountsCL from = other.counts_;
    if (elements_.copiesFirst && i < from.bound) {
        WithFreshM([&](void* copy) {
            CopyM(other.SlotM(i), 1, copy);
            assignFewM(other, i + 1);
            ExchangeM(copy, SlotM(i), 1);
            LetGoM(copy, 1);
        });
        return;
    }
    DelAllM();
    if (!elements_.copiesFirst) {
        CopyM(other.SlotsM(), from.bound, SlotsM());
    }
    counts_ = from;
}

int ArrSlotsCL::AddSizeM(int n)
{
    if (n < 1) {
        return 1;
    }
    const int length = counts_.length;
    void* const before = *heapStore_;
    const bool isMoving = before != nullptr && ownersOf(before) == 1;
    FreshBlockCL fresh(*this, std::int64_t { length } + n, isMoving ? length : 0);
    if (!fresh.IsThereM()) {
        return 0;
    }
    void* const block = fresh.ElementsM();
    fresh.MakeM(isMoving ? n : length + n);
    if (isMoving) {
        std::memcpy(block, before, BytesM(length));
        slTellMovedBytes(before, BytesM(length), block);
        freeBlock(before);
    } else {
        // Inline elements live on until the array dies, those of a shared block until its other owners go.
        CopyM(SlotsM(), length, block);
        DropHeapStoreM();
    }
    counts_.length += n;
    *heapStore_ = fresh.TakeM();
    return 1;
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
