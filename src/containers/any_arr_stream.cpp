// The list form of arrays.
#include "baselib/helpers.h"
#include "baselib/io.h"
#include "baselib/take_back.h"
#include "containers/any_arr.h"
#include "containers/arr_slots.h"
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

// Binary: the count, then the elements. Text: a line with the count, for each element a line
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
