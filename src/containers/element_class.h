#pragma once
#include "baselib/base.h"
#include <cstddef>
#include <new>
#include <type_traits>

// A class of elements, as what is the same for all arrays needs to know it. Slots are addresses of such
// elements.
struct ArrElementsCL
{
    std::size_t size;    // Of an element, in bytes.
    std::size_t storeAt; // Where in an array the inline store begins.
    std::ptrdiff_t base; // Where in an element its VrBaseCL part is.
    bool copiesFirst;    // A copy may find no memory: one is made before what it is to replace changes.
    void (*construct)(void* slot);                          // Makes an element there, with its defaults.
    void (*assign)(void* slot, const void* from);           // Makes it a copy of another one.
    void (*deleteItem)(void* slot);                         // Deletes it, as VrBaseCL::DelItemM.
    void (*merge)(void* slot, const void* from, int index); // As VrBaseCL::SetByMergeM.
    void (*withFresh)(void (*use)(void* element, void* context), void* context); // With one that is new.
    void* (*spare)(); // What an index outside the store gives.
};

// What an array does with elements of class T.
template <class T> struct ArrOperationsCL
{
    // As the members of ArrElementsCL, with the element's class known.
    static void ConstructM(void* slot) { ::new (slot) T(); }
    static void AssignM(void* slot, const void* from)
    {
        *static_cast<T*>(slot) = *static_cast<const T*>(from);
    }
    static void DeleteItemM(void* slot) { static_cast<T*>(slot)->DelItemM(); }
    static void MergeM(void* slot, const void* from, int index)
    {
        static_cast<T*>(slot)->SetByMergeM(*static_cast<const T*>(from), index);
    }
    static void WithFreshM(void (*use)(void* element, void* context), void* context)
    {
        T element = T();
        use(&element, context);
    }
    // What an index outside the store gives: fresh at every use, so nothing written there is ever read again.
    static void* SpareM()
    {
        static T spare;
        WithFreshM([](void* fresh, void* to) { AssignM(to, fresh); }, &spare);
        DeleteItemM(&spare);
        return &spare;
    }
};

// Where in an array the inline store begins, in bytes, by the elements' alignment.
constexpr std::size_t ArrStoreAt(std::size_t alignment)
{
    return (2 * sizeof(void*) + alignment - 1) / alignment * alignment; // Behind two pointers.
}

// What AnyArrCL is told of arrays of T.
template <class T>
const ArrElementsCL ArrElementsOf { sizeof(T), ArrStoreAt(alignof(T)),
    reinterpret_cast<char*>(static_cast<VrBaseCL*>(reinterpret_cast<T*>(alignof(std::max_align_t))))
        - reinterpret_cast<char*>(alignof(std::max_align_t)),
    !std::is_nothrow_copy_assignable_v<T> && std::is_nothrow_move_assignable_v<T>,
    &ArrOperationsCL<T>::ConstructM, &ArrOperationsCL<T>::AssignM, &ArrOperationsCL<T>::DeleteItemM,
    &ArrOperationsCL<T>::MergeM, &ArrOperationsCL<T>::WithFreshM, &ArrOperationsCL<T>::SpareM };
