#pragma once
#include "baselib/helpers.h"
#include "baselib/io.h"
#include "baselib/take_back.h"
#include "containers/arr.h"
#include <cstddef>
#include <cstdio>

// The list form of Arr. Binary: the count, then the elements. Text: a line with the count, for each element a
// line with its index and then its own text, an end line.

template <class T> void Arr<T>::FmOutputEvrLstM(VrIOCL* io, const char* name) const
{
    if (io == nullptr) {
        return;
    }
    const T* slots = getCurrentItemPrtM();
    if (io->IsBinaryM()) {
        io->OutputDM(bound_);
        for (int k = 0; k < bound_; ++k) {
            slots[k].FmOutputEvrFileM(io);
        }
        return;
    }
    char label[LabelSize];
    slGetArrBeginStr(label, name);
    outputLabelledM(io, bound_, label);
    slGetArrIndexStr(label, name);
    for (int k = 0; k < bound_; ++k) {
        outputLabelledM(io, k, label);
        slots[k].FmOutputEvrFileM(io);
    }
    slGetArrEndStr(label, name);
    io->EndBegunLineM();
    io->OutputSM(label, -1, 1);
}

template <class T> void Arr<T>::FmInputEvrLstM(VrIOCL* io)
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
        DelAllVirtualM();
        if (InitialSizeM(n) != 0) {
            inputElementsM(io, n);
        }
    }
    if (!io->IsBinaryM()) {
        io->SkipEndLineM();
    }
}

template <class T> void Arr<T>::inputElementsM(VrIOCL* io, int n)
{
    T* slots = getCurrentItemPrtM();
    for (int k = 0; k < n; ++k) {
        // A slot that the file doesn't fill must not show what it held long ago. Only marked: what it shares
        // with others isn't deleted.
        slots[k].SetDeleteTagM(DeletedTag);
    }
    bound_ = n;
    TakeBackCL half([this] { DelAllVirtualM(); });
    for (int read = 0; read < n; ++read) {
        int k = read;
        if (!io->IsBinaryM()) {
            if (io->InputDM(&k) == 0) {
                break;
            }
            io->SkipLineM();
        }
        T& slot = k >= 0 && k < n ? slots[k] : spareM();
        slot.FmInputEvrFileM(io);
        if (k >= 0 && k < n && slot.IsAliveM()) {
            ++available_;
        }
    }
    half.KeepM();
}

// A line of a number and what it stands for.
template <class T> void Arr<T>::outputLabelledM(VrIOCL* io, int number, const char* label)
{
    char line[LabelSize + 16];
    std::snprintf(line, sizeof line, "%d, %s", number, label);
    io->EndBegunLineM();
    io->OutputSM(line, -1, 1);
}
