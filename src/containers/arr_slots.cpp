#include "containers/arr_slots.h"
#include "baselib/moved_bytes.h"
#include "baselib/take_back.h"
#include <algorithm>
#include <cstdint>
#include <cstring>
#include <utility>

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

void ArrSlotsCL::ExchangeM(void* one, void* other, int n) const
{
    char between[256];
    for (std::size_t at = 0, size = 0; at < BytesM(n); at += size) {
        size = std::min(sizeof between, BytesM(n) - at);
        char* const here = static_cast<char*>(one) + at;
        char* const there = static_cast<char*>(other) + at;
        const auto move = [size](const char* from, char* to) {
            std::memmove(to, from, size); // A list may be exchanged with itself.
            slTellMovedBytes(from, size, to);
        };
        move(here, between);
        move(there, here);
        move(between, there);
    }
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
    char* const slot = SlotM(i);
    const char before = BaseM(slot).GetDeleteTagM();
    if (elements_.copiesFirst && i < counts_.bound) {
        replaceM(slot, item);
    } else {
        TakeBackCL half([this, slot, before] { BaseM(slot).SetDeleteTagM(before); });
        elements_.assign(slot, item);
        half.KeepM();
    }
    counts_.bound = std::max(counts_.bound, i + 1);
    if (before != AliveTag && BaseM(slot).IsAliveM()) {
        ++counts_.available;
    }
    return 1;
}

// An element that finds no memory may have taken half of another.
void ArrSlotsCL::replaceM(void* slot, const void* item)
{
    WithFreshM([&](void* copy) {
        elements_.assign(copy, item);
        ExchangeM(copy, slot, 1);
        LetGoM(copy, 1);
    });
}

void ArrSlotsCL::InsertWithinM(void* copy, int i)
{
    const int bound = counts_.bound;
    LetGoM(SlotM(bound), 1);
    BaseM(bound).~VrBaseCL(); // The moved bytes overwrite it.
    const std::size_t moved = BytesM(bound - i);
    std::memmove(SlotM(i + 1), SlotM(i), moved);
    slTellMovedBytes(SlotM(i), moved, SlotM(i + 1));
    ConstructM(SlotM(i), 1);
    if (elements_.copiesFirst) {
        ExchangeM(copy, SlotM(i), 1);
    } else {
        elements_.assign(SlotM(i), copy);
    }
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

void ArrSlotsCL::SwapListM(ArrSlotsCL other)
{
    ExchangeM(inlineStore_, other.inlineStore_, InlineLength);
    std::swap(*heapStore_, *other.heapStore_);
    std::swap(counts_, other.counts_);
}
