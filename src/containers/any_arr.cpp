#include "containers/any_arr.h"
#include "baselib/helpers.h"
#include "baselib/io.h"
#include "baselib/take_back.h"
#include "containers/arr_slots.h"
#include "containers/int_arr.h"
#include <algorithm>
#include <cstdio>

namespace {

constexpr int LabelSize = 260; // What the texts around a list's elements need.

// A line of a number and what it stands for.
void outputLabelled(VrIOCL* io, int number, const char* label)
{
    char line[LabelSize + 16];
    std::snprintf(line, sizeof line, "%d, %s", number, label);
    io->EndBegunLineM();
    io->OutputSM(line, -1, 1);
}

// The elements of a list of n, for which there is room.
void inputElements(ArrSlotsCL& slots, VrIOCL* io, int n, const ArrElementsCL& elements)
{
    for (int k = 0; k < n; ++k) {
        // A slot that the file doesn't fill must not show what it held long ago. Only marked: what it shares
        // with others isn't deleted.
        slots.BaseM(k).SetDeleteTagM(DeletedTag);
    }
    slots.CountsM().bound = n;
    TakeBackCL half([&slots] { slots.DelAllVirtualM(); });
    for (int read = 0; read < n; ++read) {
        int k = read;
        if (!io->IsBinaryM()) {
            if (io->InputDM(&k) == 0) {
                break;
            }
            io->SkipLineM();
        }
        const bool isInside = k >= 0 && k < n;
        VrBaseCL& element = isInside ? slots.BaseM(k) : slots.BaseM(elements.spare());
        element.FmInputEvrFileM(io);
        if (isInside && element.IsAliveM()) {
            ++slots.CountsM().available;
        }
    }
    half.KeepM();
}

} // namespace

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

// The list form. Binary: the count, then the elements. Text: a line with the count, for each element a line
// with its index and then its own text, an end line.
void AnyArrCL::FmOutputEvrLstM(const void* arr, VrIOCL* io, const char* name, const ArrElementsCL& elements)
{
    if (io == nullptr) {
        return;
    }
    ArrSlotsCL slots(arr, elements);
    const int bound = slots.CountsM().bound;
    if (io->IsBinaryM()) {
        io->OutputDM(bound);
        for (int k = 0; k < bound; ++k) {
            slots.BaseM(k).FmOutputEvrFileM(io);
        }
        return;
    }
    char label[LabelSize];
    slGetArrBeginStr(label, name);
    outputLabelled(io, bound, label);
    slGetArrIndexStr(label, name);
    for (int k = 0; k < bound; ++k) {
        outputLabelled(io, k, label);
        slots.BaseM(k).FmOutputEvrFileM(io);
    }
    slGetArrEndStr(label, name);
    io->EndBegunLineM();
    io->OutputSM(label, -1, 1);
}

void AnyArrCL::FmInputEvrLstM(void* arr, VrIOCL* io, const ArrElementsCL& elements)
{
    if (io == nullptr) {
        return;
    }
    int n = 0;
    io->InputDM(&n);
    if (!io->IsBinaryM()) {
        io->SkipLineM();
    }
    // Each element takes at least a byte; a larger count cannot be meant.
    const bool sound = n > 0 && static_cast<std::size_t>(n) <= io->BytesLeftM();
    if (sound) {
        ArrSlotsCL slots(arr, elements);
        slots.DelAllVirtualM();
        if (slots.AddSizeM(n - slots.CountsM().length) != 0) {
            inputElements(slots, io, n, elements);
        }
    }
    if (!io->IsBinaryM()) {
        io->SkipEndLineM();
    }
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
