#pragma once
#include "containers/element_class.h"

class IntArr;

// What Arr does whatever the class of its elements is: in the library once, not once for each class. The
// functions are those of Arr, of an array `arr` of such elements, and no more than Arr may call them.
class PANELKIT_API AnyArrCL
{
public:
    // Makes room in an array without a heap store, unless there is no memory.
    static void BeginM(void* arr, int n, const ArrElementsCL& elements);
    static void ShareM(void* heapStore); // Adds an owner to a heap block; null: nothing.
    // Makes arr a copy of other, heap block and all.
    static void AssignM(void* arr, const void* other, const ArrElementsCL& elements);
    // Leaves the heap store, which goes with its last owner; without one: nothing.
    static void DropHeapStoreM(void* arr, const ArrElementsCL& elements);

    // As Arr::FmInputEvrLstM.
    static void FmInputEvrLstM(void* arr, VrIOCL* io, const ArrElementsCL& elements);
    // As Arr::FmOutputEvrLstM.
    static void FmOutputEvrLstM(const void* arr, VrIOCL* io, const char* name, const ArrElementsCL& elements);

    // As Arr::AddSizeM.
    static int AddSizeM(void* arr, int n, const ArrElementsCL& elements);
    // As Arr::GetAvailableNumM.
    static int GetAvailableNumM(const void* arr, int i, const ArrElementsCL& elements);
    // As Arr::SetItemM.
    static int SetItemM(void* arr, const void* item, int i, const ArrElementsCL& elements);
    // As Arr::AddItemM.
    static int AddItemM(void* arr, const void* item, const ArrElementsCL& elements);
    // As Arr::AddItemM.
    static int AddItemM(void* arr, int i, int* newIndex, const ArrElementsCL& elements);
    // As Arr::InsertItemM.
    static int InsertItemM(void* arr, const void* item, int i, const ArrElementsCL& elements);
    // As Arr::MergeM.
    static int MergeM(void* arr, const void* other, const ArrElementsCL& elements);

    // As Arr::DelItemM.
    static int DelItemM(void* arr, int i, const ArrElementsCL& elements);
    // As Arr::DelAllVirtualM.
    static int DelAllVirtualM(void* arr, const ArrElementsCL& elements);
    // As Arr::DelAllM.
    static int DelAllM(void* arr, const ArrElementsCL& elements);
    // As Arr::PurgeDeletedItemM.
    static int PurgeDeletedItemM(void* arr, const ArrElementsCL& elements);
    // As Arr::PurgeAllM.
    static int PurgeAllM(void* arr, IntArr* remap, const ArrElementsCL& elements);
    // As Arr::SwapM.
    static int SwapM(void* arr, int i, int j, const ArrElementsCL& elements);
    // As Arr::SwapListM.
    static void SwapListM(void* arr, void* other, const ArrElementsCL& elements) noexcept;

    // As Arr::GetItemM.
    static int GetItemM(const void* arr, void* out, int i, const ArrElementsCL& elements);
    // As Arr::GetNextM.
    static int GetNextM(const void* arr, void* out, int* idx, int from, const ArrElementsCL& elements);
    // As Arr::GetNextPM.
    static const void* GetNextPM(const void* arr, int* idx, int from, const ArrElementsCL& elements);
    // As Arr::GetLastPM.
    static const void* GetLastPM(const void* arr, int* idx, const ArrElementsCL& elements);
    // As Arr::GetNextIdxM.
    static int GetNextIdxM(const void* arr, int from, const ArrElementsCL& elements);
};
