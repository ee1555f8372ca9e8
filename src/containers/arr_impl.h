#pragma once
#include "baselib/moved_bytes.h"
#include "containers/arr.h"
#include "containers/arr_block.h"
#include <algorithm>
#include <cstdint>
#include <cstring>
#include <new>

// Construction, growth and storing of Arr.

template <class T>
Arr<T>::Arr()
    : inlineStore_ {}
{
}

template <class T>
Arr<T>::Arr(int n)
    : Arr()
{
    if (n <= InlineLength) {
        return;
    }
    if (T* block = ArrBlock<T>::AllocateM(n)) {
        constructM(block, n);
        heapStore_ = block;
        length_ = n;
    }
}

template <class T>
Arr<T>::Arr(const Arr& other)
    : heapStore_(other.heapStore_)
    , inlineStore_ { other.inlineStore_[0], other.inlineStore_[1], other.inlineStore_[2],
        other.inlineStore_[3] }
    , length_(other.length_)
    , bound_(other.bound_)
    , available_(other.available_)
    , increment_(other.increment_)
{
    if (heapStore_ != nullptr) {
        ArrBlock<T>::ShareM(heapStore_);
    }
}

template <class T> Arr<T>& Arr<T>::operator=(const Arr& other)
{
    if (this == &other) {
        return *this;
    }
    T* block = nullptr;
    if (other.length_ > InlineLength) {
        block = ArrBlock<T>::AllocateM(std::int64_t { InlineLength } + other.length_);
        if (block == nullptr) {
            return *this;
        }
    }
    if (heapStore_ != nullptr && heapStore_ == other.heapStore_) {
        letGoM(inlineStore_, InlineLength); // Deleting the items would delete those about to be copied.
        returnToInlineM();
    }
    DelAllM();
    if (block != nullptr) {
        constructM(block, InlineLength + other.length_);
        heapStore_ = block;
        length_ = InlineLength + other.length_;
    }
    std::copy_n(other.getCurrentItemPrtM(), other.bound_, getCurrentItemPrtM());
    available_ = other.available_;
    bound_ = other.bound_;
    increment_ = other.increment_;
    return *this;
}

template <class T> Arr<T>::~Arr()
{
    dropHeapStoreM();
}

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
    if (n < 1) {
        return 1;
    }
    T* block = ArrBlock<T>::AllocateM(std::int64_t { length_ } + n);
    if (block == nullptr) {
        return 0;
    }
    if (heapStore_ != nullptr && !ArrBlock<T>::IsSharedM(heapStore_)) {
        std::memcpy(static_cast<void*>(block), static_cast<const void*>(heapStore_), length_ * sizeof(T));
        slTellMovedBytes(heapStore_, length_ * sizeof(T), block);
        ArrBlock<T>::FreeM(heapStore_);
    } else {
        // Inline elements live on until the array dies, those of a shared block until its other owners go.
        constructM(block, length_);
        std::copy_n(getCurrentItemPrtM(), length_, block);
        dropHeapStoreM();
    }
    constructM(block + length_, n);
    length_ += n;
    heapStore_ = block;
    return 1;
}

template <class T> int Arr<T>::SetItemM(const T& item, int i)
{
    if (i < 0) {
        return 1;
    }
    const T* source = &item;
    if (i >= length_) {
        const int own = slotOfM(&item); // Growth moves an item that lies in this very array.
        if (AddSizeM(std::max(length_, i - length_ + 1)) == 0) {
            return 0;
        }
        if (own >= 0) {
            source = getCurrentItemPrtM() + own;
        }
    }
    bound_ = std::max(bound_, i + 1);
    T& slot = getCurrentItemPrtM()[i];
    if (!slot.IsAliveM() && source->IsAliveM()) {
        ++available_;
    }
    slot = *source;
    return 1;
}

template <class T> int Arr<T>::AddItemM(const T& item)
{
    const int index = bound_;
    return SetItemM(item, index) != 0 ? index : -1;
}

template <class T> int Arr<T>::AddItemM(int i, int* newIndex)
{
    int index = -1;
    if (i >= 0 && i < length_) {
        if (ElementAtM(i).GetDeleteTagM() == DeletedTag) {
            ElementAtM(i).SetDeleteTagM(AliveTag);
            ++available_;
            index = i;
        } else if (bound_ < length_ || AddSizeM(increment_) != 0) {
            index = AddItemM(ElementAtM(i));
        }
    }
    if (newIndex != nullptr) {
        *newIndex = index;
    }
    return index;
}

template <class T> int Arr<T>::InsertItemM(const T& item, int i)
{
    if (i < 0) {
        return 0;
    }
    if (i >= bound_) {
        return SetItemM(item, i);
    }
    const int own = slotOfM(&item); // Growth and moving change where an item of this very array lies.
    if (bound_ == length_ && AddSizeM(increment_) == 0) {
        return 0;
    }
    T* slots = getCurrentItemPrtM();
    T overwritten; // For an item that lies in the slot at the bound.
    const T* source = &item;
    if (own == bound_) {
        overwritten = slots[own];
        source = &overwritten;
    } else if (own >= 0) {
        source = slots + (own < i || own > bound_ ? own : own + 1);
    }
    letGoM(slots + bound_, 1);
    slots[bound_].~T(); // The moved bytes overwrite it.
    std::memmove(
        static_cast<void*>(slots + i + 1), static_cast<const void*>(slots + i), (bound_ - i) * sizeof(T));
    slTellMovedBytes(slots + i, (bound_ - i) * sizeof(T), slots + i + 1);
    constructM(slots + i, 1);
    slots[i] = *source;
    letGoM(&overwritten, 1);
    ++bound_;
    if (slots[i].IsAliveM()) {
        ++available_;
    }
    return 1;
}

template <class T> int Arr<T>::MergeM(const Arr& other)
{
    const int otherBound = other.bound_; // Merging an array with itself moves its bound.
    if (AddSizeM(other.available_ - length_ + bound_) == 0) {
        return 0;
    }
    for (int k = 0; k < otherBound; ++k) {
        if (other.CheckAvailableM(k) == 0) {
            continue;
        }
        if (bound_ == length_ && AddSizeM(increment_) == 0) { // More alive than other has counted.
            return 0;
        }
        getCurrentItemPrtM()[bound_].SetByMergeM(other.getCurrentItemPrtM()[k], bound_);
        ++bound_;
        ++available_;
    }
    return 1;
}

template <class T> void Arr<T>::constructM(T* slots, int n)
{
    for (int k = 0; k < n; ++k) {
        ::new (static_cast<void*>(slots + k)) T();
    }
}

// Empties slots before they are destroyed or marked deleted, as storing over them would: what they share with
// an alive item, such as a bitmap, must not be deleted with them.
template <class T> void Arr<T>::letGoM(T* slots, int n)
{
    std::fill_n(slots, n, T());
}

// The slot in which an item lies, -1 for an item from elsewhere.
template <class T> int Arr<T>::slotOfM(const T* item) const
{
    const auto at = reinterpret_cast<std::uintptr_t>(item);
    const auto begin = reinterpret_cast<std::uintptr_t>(getCurrentItemPrtM());
    if (at < begin || at - begin >= length_ * sizeof(T)) {
        return -1;
    }
    return static_cast<int>((at - begin) / sizeof(T));
}
