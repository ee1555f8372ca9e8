#include "containers/any_arr.h"
#include "baselib/take_back.h"
#include "containers/arr_slots.h"
#include "containers/int_arr.h"
#include <algorithm>

void AnyArrCL::BeginM(void* arr, int n, const ArrElementsCL& elements)
{
    ArrSlotsCL slots(arr, elements);
    if (n > ArrSlotsCL::InlineLength) {
        slots.BeginM(n);
    }
}

void AnyArrCL::ShareM(void* heapStore)
{
    if (heapStore != nullptr) {
        ArrSlotsCL::ShareM(heapStore);
    }
}

void AnyArrCL::AssignM(void* arr, const void* other, const ArrElementsCL& elements)
{
    if (arr != other) {
        ArrSlotsCL(arr, elements).AssignM(ArrSlotsCL(other, elements));
    }
}

void AnyArrCL::DropHeapStoreM(void* arr, const ArrElementsCL& elements)
{
    ArrSlotsCL(arr, elements).DropHeapStoreM();
}

int AnyArrCL::AddSizeM(void* arr, int n, const ArrElementsCL& elements)
{
    return ArrSlotsCL(arr, elements).AddSizeM(n);
}

int AnyArrCL::GetAvailableNumM(const void* arr, int i, const ArrElementsCL& elements)
{
    ArrSlotsCL slots(arr, elements);
    int count = 0;
    for (int k = slots.GetNextIdxM(i); k >= 0; k = slots.GetNextIdxM(k)) {
        ++count;
    }
    return count;
}

int AnyArrCL::SetItemM(void* arr, const void* item, int i, const ArrElementsCL& elements)
{
    return ArrSlotsCL(arr, elements).SetItemM(item, i);
}

int AnyArrCL::AddItemM(void* arr, const void* item, const ArrElementsCL& elements)
{
    ArrSlotsCL slots(arr, elements);
    const int index = slots.CountsM().bound;
    return slots.SetItemM(item, index) != 0 ? index : -1;
}

int AnyArrCL::AddItemM(void* arr, int i, int* newIndex, const ArrElementsCL& elements)
{
    ArrSlotsCL slots(arr, elements);
    const ArrCountsCL& counts = slots.CountsM();
    int index = -1;
    if (i >= 0 && i < counts.length) {
        if (slots.BaseM(i).GetDeleteTagM() == DeletedTag) {
            slots.BaseM(i).SetDeleteTagM(AliveTag);
            ++slots.CountsM().available;
            index = i;
        } else if (counts.bound < counts.length || slots.AddSizeM(counts.increment) != 0) {
            index = AddItemM(arr, slots.SlotM(i), elements);
        }
    }
    if (newIndex != nullptr) {
        *newIndex = index;
    }
    return index;
}

int AnyArrCL::InsertItemM(void* arr, const void* item, int i, const ArrElementsCL& elements)
{
    ArrSlotsCL slots(arr, elements);
    ArrCountsCL& counts = slots.CountsM();
    if (i < 0) {
        return 0;
    }
    if (i >= counts.bound) {
        return slots.SetItemM(item, i);
    }
    const int own = slots.SlotOfM(item); // Growth and moving change where an item of this very array lies.
    if (counts.bound == counts.length && slots.AddSizeM(counts.increment) == 0) {
        return 0;
    }
    slots.WithFreshM([&](void* copy) {
        slots.CopyM(own < 0 ? item : slots.SlotM(own), 1, copy);
        slots.InsertWithinM(copy, i);
        slots.LetGoM(copy, 1);
    });
    ++counts.bound;
    if (slots.BaseM(i).IsAliveM()) {
        ++counts.available;
    }
    return 1;
}

int AnyArrCL::MergeM(void* arr, const void* other, const ArrElementsCL& elements)
{
    ArrSlotsCL slots(arr, elements);
    ArrSlotsCL from(other, elements);
    ArrCountsCL& counts = slots.CountsM();
    const int otherBound = from.CountsM().bound; // Merging an array with itself moves its bound.
    TakeBackCL half([&slots, &counts, bound = counts.bound, available = counts.available] {
        for (int k = bound; k < std::min(counts.bound + 1, counts.length); ++k) {
            slots.BaseM(k).SetDeleteTagM(DeletedTag);
        }
        counts.bound = bound;
        counts.available = available;
    });
    if (slots.AddSizeM(from.CountsM().available - counts.length + counts.bound) == 0) {
        return 0;
    }
    for (int k = 0; k < otherBound; ++k) {
        if (!from.IsAliveM(k)) {
            continue;
        }
        // There may be more alive ones than other has counted.
        if (counts.bound == counts.length && slots.AddSizeM(counts.increment) == 0) {
            return 0;
        }
        elements.merge(slots.SlotM(counts.bound), from.SlotM(k), counts.bound);
        ++counts.bound;
        ++counts.available;
    }
    half.KeepM();
    return 1;
}

int AnyArrCL::DelItemM(void* arr, int i, const ArrElementsCL& elements)
{
    ArrSlotsCL(arr, elements).DelItemM(i);
    return 1;
}

int AnyArrCL::DelAllVirtualM(void* arr, const ArrElementsCL& elements)
{
    ArrSlotsCL(arr, elements).DelAllVirtualM();
    return 1;
}

int AnyArrCL::DelAllM(void* arr, const ArrElementsCL& elements)
{
    ArrSlotsCL(arr, elements).DelAllM();
    return 1;
}

int AnyArrCL::PurgeDeletedItemM(void* arr, const ArrElementsCL& elements)
{
    ArrSlotsCL slots(arr, elements);
    ArrCountsCL& counts = slots.CountsM();
    int alive = 0;
    for (int k = 0; k < counts.bound; ++k) {
        if (!slots.IsAliveM(k)) {
            continue;
        }
        if (alive != k) {
            slots.CopyM(slots.SlotM(k), 1, slots.SlotM(alive));
        }
        ++alive;
    }
    counts.bound = alive;
    counts.available = alive;
    return 1;
}

int AnyArrCL::PurgeAllM(void* arr, IntArr* remap, const ArrElementsCL& elements)
{
    constexpr int gone = static_cast<int>(0x80000001U);
    ArrSlotsCL slots(arr, elements);
    const int bound = slots.CountsM().bound;
    int removed = 0;
    for (int i = 0; i < bound; ++i) {
        const bool alive = slots.IsAliveM(i);
        if (!alive) {
            ++removed;
        } else if (removed > 0) {
            slots.CopyM(slots.SlotM(i), 1, slots.SlotM(i - removed));
            elements.deleteItem(slots.SlotM(i));
        }
        if (remap != nullptr) {
            remap->SetItemM(alive ? i - removed : gone, i);
        }
    }
    if (bound > ArrSlotsCL::InlineLength && bound - removed <= ArrSlotsCL::InlineLength) {
        slots.MoveInlineM(bound - removed);
    }
    slots.CountsM().bound = bound - removed;
    return 1;
}

int AnyArrCL::SwapM(void* arr, int i, int j, const ArrElementsCL& elements)
{
    ArrSlotsCL slots(arr, elements);
    const int bound = slots.CountsM().bound;
    if (i < 0 || i >= bound || j < 0 || j >= bound) {
        return 0;
    }
    slots.WithFreshM([&](void* temporary) {
        slots.CopyM(slots.SlotM(i), 1, temporary);
        slots.CopyM(slots.SlotM(j), 1, slots.SlotM(i));
        slots.CopyM(temporary, 1, slots.SlotM(j));
    });
    return 1;
}

void AnyArrCL::SwapListM(void* arr, void* other, const ArrElementsCL& elements) noexcept
{
    ArrSlotsCL(arr, elements).SwapListM(ArrSlotsCL(other, elements));
}

int AnyArrCL::GetItemM(const void* arr, void* out, int i, const ArrElementsCL& elements)
{
    if (out == nullptr) {
        return 0;
    }
    ArrSlotsCL slots(arr, elements);
    if (i >= 0 && i < slots.CountsM().bound) {
        slots.CopyM(slots.SlotM(i), 1, out);
    } else {
        elements.deleteItem(out);
    }
    return 1;
}

int AnyArrCL::GetNextM(const void* arr, void* out, int* idx, int from, const ArrElementsCL& elements)
{
    if (out == nullptr || idx == nullptr) {
        return -1;
    }
    if (const void* const slot = GetNextPM(arr, idx, from, elements)) {
        elements.assign(out, slot);
    }
    return *idx;
}

const void* AnyArrCL::GetNextPM(const void* arr, int* idx, int from, const ArrElementsCL& elements)
{
    if (idx == nullptr) {
        return nullptr;
    }
    ArrSlotsCL slots(arr, elements);
    *idx = slots.GetNextIdxM(from);
    return *idx >= 0 ? slots.SlotM(*idx) : nullptr;
}

const void* AnyArrCL::GetLastPM(const void* arr, int* idx, const ArrElementsCL& elements)
{
    if (idx == nullptr) {
        return nullptr;
    }
    ArrSlotsCL slots(arr, elements);
    *idx = slots.CountsM().bound - 1;
    while (*idx >= 0 && !slots.IsAliveM(*idx)) {
        --*idx;
    }
    return *idx >= 0 ? slots.SlotM(*idx) : nullptr;
}

int AnyArrCL::GetNextIdxM(const void* arr, int from, const ArrElementsCL& elements)
{
    return ArrSlotsCL(arr, elements).GetNextIdxM(from);
}
