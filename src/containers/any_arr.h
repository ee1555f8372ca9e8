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
    static void AssignM(void* arr, const void* other, const ArrElementsCL& elements);
    static void DropHeapStoreM(void* arr, const ArrElementsCL& elements);

    static void FmInputEvrLstM(void* arr, VrIOCL* io, const ArrElementsCL& elements);
    static void FmOutputEvrLstM(const void* arr, VrIOCL* io, const char* name, const ArrElementsCL& elements);

    static int AddSizeM(void* arr, int n, const ArrElementsCL& elements);
    static int GetAvailableNumM(const void* arr, int i, const ArrElementsCL& elements);
    static int SetItemM(void* arr, const void* item, int i, const ArrElementsCL& elements);
    static int AddItemM(void* arr, const void* item, const ArrElementsCL& elements);
    static int AddItemM(void* arr, int i, int* newIndex, const ArrElementsCL& elements);
    static int InsertItemM(void* arr, const void* item, int i, const ArrElementsCL& elements);
    static int MergeM(void* arr, const void* other, const ArrElementsCL& elements);

    static int DelItemM(void* arr, int i, const ArrElementsCL& elements);
    static int DelAllVirtualM(void* arr, const ArrElementsCL& elements);
    static int DelAllM(void* arr, const ArrElementsCL& elements);
    static int PurgeDeletedItemM(void* arr, const ArrElementsCL& elements);
    static int PurgeAllM(void* arr, IntArr* remap, const ArrElementsCL& elements);
    static int SwapM(void* arr, int i, int j, const ArrElementsCL& elements);
    static void SwapListM(void* arr, void* other, const ArrElementsCL& elements) noexcept;

    static int GetItemM(const void* arr, void* out, int i, const ArrElementsCL& elements);
    static int GetNextM(const void* arr, void* out, int* idx, int from, const ArrElementsCL& elements);
    static const void* GetNextPM(const void* arr, int* idx, int from, const ArrElementsCL& elements);
    static const void* GetLastPM(const void* arr, int* idx, const ArrElementsCL& elements);
    static int GetNextIdxM(const void* arr, int from, const ArrElementsCL& elements);
};
