#pragma once
#include "containers/any_arr.h"
#include "containers/arr.h"

// The members of Arr: nearly all hand on to what is the same for elements of any class.

template <class T>
Arr<T>::Arr()
    : inlineStore_ {}
{
}

template <class T>
Arr<T>::Arr(int n)
    : Arr()
{
    AnyArrCL::BeginM(this, n, ArrElementsOf<T>);
}

template <class T>
Arr<T>::Arr(const Arr& other)
    : heapStore_(other.heapStore_)
    , inlineStore_(other.inlineStore_)
    , length_(other.length_)
    , bound_(other.bound_)
    , available_(other.available_)
    , increment_(other.increment_)
{
    AnyArrCL::ShareM(heapStore_);
}

template <class T> Arr<T>& Arr<T>::operator=(const Arr& other)
{
    AnyArrCL::AssignM(this, &other, ArrElementsOf<T>);
    return *this;
}

template <class T> Arr<T>::~Arr()
{
    static_assert(sizeof(Arr) >= ArrStoreAt(alignof(T)) + InlineLength * sizeof(T) + 4 * sizeof(int),
        "AnyArrCL knows where the parts of an array are");
    if (heapStore_ != nullptr) {
        AnyArrCL::DropHeapStoreM(this, ArrElementsOf<T>);
    }
}

template <class T> void Arr<T>::FmInputEvrLstM(VrIOCL* io)
{
    AnyArrCL::FmInputEvrLstM(this, io, ArrElementsOf<T>);
}

template <class T> void Arr<T>::FmOutputEvrLstM(VrIOCL* io, const char* name) const
{
    AnyArrCL::FmOutputEvrLstM(this, io, name, ArrElementsOf<T>);
}

// None of these is inline in the class: an importing program without optimization calls the exported one.
template <class T> int Arr<T>::InitialSizeM(int n)
{
    return n > length_ ? AddSizeM(n - length_) : 1;
}

template <class T> int Arr<T>::SetIncrementM(int n)
{
    if (n > 0) {
        increment_ = n;
    }
    return 1;
}

template <class T> int Arr<T>::AddSizeM(int n)
{
    return AnyArrCL::AddSizeM(this, n, ArrElementsOf<T>);
}

template <class T> int Arr<T>::GetLengthM() const
{
    return length_;
}

template <class T> int Arr<T>::GetBoundM() const
{
    return bound_;
}

template <class T> int Arr<T>::GetAvailableNumM() const
{
    return available_;
}

template <class T> int Arr<T>::GetAvailableNumM(int i)
{
    return AnyArrCL::GetAvailableNumM(this, i, ArrElementsOf<T>);
}

template <class T> int Arr<T>::CheckAvailableM(int i) const
{
    const T* slot = GetItemPM(i);
    return slot != nullptr && slot->IsAliveM() ? 1 : 0;
}

template <class T> int Arr<T>::SetItemM(const T& item, int i)
{
    return AnyArrCL::SetItemM(this, &item, i, ArrElementsOf<T>);
}

template <class T> int Arr<T>::AddItemM(const T& item)
{
    return AnyArrCL::AddItemM(this, &item, ArrElementsOf<T>);
}

template <class T> int Arr<T>::AddItemM(int i, int* newIndex)
{
    return AnyArrCL::AddItemM(this, i, newIndex, ArrElementsOf<T>);
}

template <class T> int Arr<T>::InsertItemM(const T& item, int i)
{
    return AnyArrCL::InsertItemM(this, &item, i, ArrElementsOf<T>);
}

template <class T> int Arr<T>::MergeM(const Arr& other)
{
    return AnyArrCL::MergeM(this, &other, ArrElementsOf<T>);
}

template <class T> int Arr<T>::DelItemM(int i)
{
    return AnyArrCL::DelItemM(this, i, ArrElementsOf<T>);
}

template <class T> int Arr<T>::DelAllVirtualM()
{
    return AnyArrCL::DelAllVirtualM(this, ArrElementsOf<T>);
}

template <class T> int Arr<T>::DelAllM()
{
    return AnyArrCL::DelAllM(this, ArrElementsOf<T>);
}

template <class T> int Arr<T>::PurgeDeletedItemM()
{
    return AnyArrCL::PurgeDeletedItemM(this, ArrElementsOf<T>);
}

template <class T> int Arr<T>::PurgeAllM(IntArr* remap)
{
    return AnyArrCL::PurgeAllM(this, remap, ArrElementsOf<T>);
}

template <class T> int Arr<T>::SwapM(int i, int j)
{
    return AnyArrCL::SwapM(this, i, j, ArrElementsOf<T>);
}

template <class T> void Arr<T>::SwapListM(Arr& other) noexcept
{
    AnyArrCL::SwapListM(this, &other, ArrElementsOf<T>);
}

template <class T> int Arr<T>::GetItemM(T* out, int i) const
{
    return AnyArrCL::GetItemM(this, out, i, ArrElementsOf<T>);
}

template <class T> const T* Arr<T>::GetItemPM(int i) const
{
    return i >= 0 && i < bound_ ? getCurrentItemPrtM() + i : nullptr;
}

template <class T> T* Arr<T>::ElementAtPM(int i)
{
    return i >= 0 && i < bound_ ? getCurrentItemPrtM() + i : nullptr;
}

template <class T> T& Arr<T>::ElementAtM(int i)
{
    return i >= 0 && i < length_ ? getCurrentItemPrtM()[i] : spareM();
}

template <class T> T& Arr<T>::operator[](int i)
{
    return ElementAtM(i);
}

template <class T> int Arr<T>::GetNextM(T* out, int* idx, int from) const
{
    return AnyArrCL::GetNextM(this, out, idx, from, ArrElementsOf<T>);
}

template <class T> int Arr<T>::GetFirstM(T* out, int* idx) const
{
    return GetNextM(out, idx, -1);
}

template <class T> const T* Arr<T>::GetNextPM(int* idx, int from) const
{
    return static_cast<const T*>(AnyArrCL::GetNextPM(this, idx, from, ArrElementsOf<T>));
}

template <class T> const T* Arr<T>::GetFirstPM(int* idx) const
{
    return GetNextPM(idx, -1);
}

template <class T> const T* Arr<T>::GetLastPM(int* idx) const
{
    return static_cast<const T*>(AnyArrCL::GetLastPM(this, idx, ArrElementsOf<T>));
}

template <class T> int Arr<T>::GetNextIdxM(int from) const
{
    return AnyArrCL::GetNextIdxM(this, from, ArrElementsOf<T>);
}

template <class T> int Arr<T>::GetFirstIdxM() const
{
    return GetNextIdxM(-1);
}

template <class T> T* Arr<T>::getCurrentItemPrtM()
{
    return heapStore_ != nullptr ? static_cast<T*>(heapStore_) : inlineStore_.slots;
}

template <class T> const T* Arr<T>::getCurrentItemPrtM() const
{
    return heapStore_ != nullptr ? static_cast<const T*>(heapStore_) : inlineStore_.slots;
}

template <class T> void Arr<T>::setCountsM(int bound, int available)
{
    bound_ = bound;
    available_ = available;
}

template <class T> T& Arr<T>::spareM()
{
    return *static_cast<T*>(ArrElementsOf<T>.spare());
}
