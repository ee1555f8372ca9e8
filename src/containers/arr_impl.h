#pragma once
#include "baselib/moved_bytes.h"
#include "baselib/take_back.h"
#include "containers/arr.h"
#include "containers/arr_block.h"
#include <algorithm>
#include <cstdint>
#include <cstring>
#include <new>
#include <type_traits>
#include <utility>

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
    typename ArrBlock<T>::FreshCL block(ArrBlock<T>::AllocateM(n));
    if (block.IsThereM()) {
        block.MakeM(n);
        heapStore_ = block.TakeM();
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
    // Copied before anything is deleted where a copy may find no memory.
    constexpr bool CopiesFirst
        = !std::is_nothrow_copy_assignable_v<T> && std::is_nothrow_move_assignable_v<T>;
    const bool isLong = other.length_ > InlineLength;
    typename ArrBlock<T>::FreshCL block(
        isLong ? ArrBlock<T>::AllocateM(std::int64_t { InlineLength } + other.length_) : nullptr);
    if (isLong && !block.IsThereM()) {
        return *this;
    }
    if (isLong) {
        block.MakeM(InlineLength + other.length_);
    }
    std::conditional_t<CopiesFirst, T[InlineLength], char> few {};
    if constexpr (CopiesFirst) {
        std::copy_n(other.getCurrentItemPrtM(), other.bound_, isLong ? block.ElementsM() : few);
    }
    if (heapStore_ != nullptr && heapStore_ == other.heapStore_) {
        letGoM(inlineStore_, InlineLength); // Deleting the items would delete those about to be copied.
        returnToInlineM();
    }
    DelAllM();
    if (isLong) {
        heapStore_ = block.TakeM();
        length_ = InlineLength + other.length_;
    }
    if constexpr (!CopiesFirst) {
        std::copy_n(other.getCurrentItemPrtM(), other.bound_, getCurrentItemPrtM());
    } else if (!isLong) {
        std::move(few, few + other.bound_, inlineStore_);
    }
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
    const bool isMoving = heapStore_ != nullptr && !ArrBlock<T>::IsSharedM(heapStore_);
    typename ArrBlock<T>::FreshCL fresh(
        ArrBlock<T>::AllocateM(std::int64_t { length_ } + n), isMoving ? length_ : 0);
    if (!fresh.IsThereM()) {
        return 0;
    }
    T* const block = fresh.ElementsM();
    fresh.MakeM(isMoving ? n : length_ + n);
    if (isMoving) {
        std::memcpy(static_cast<void*>(block), static_cast<const void*>(heapStore_), length_ * sizeof(T));
        slTellMovedBytes(heapStore_, length_ * sizeof(T), block);
        ArrBlock<T>::FreeM(heapStore_);
    } else {
        // Inline elements live on until the array dies, those of a shared block until its other owners go.
        std::copy_n(getCurrentItemPrtM(), length_, block);
        dropHeapStoreM();
    }
    length_ += n;
    heapStore_ = fresh.TakeM();
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
    T& slot = getCurrentItemPrtM()[i];
    const char before = slot.GetDeleteTagM();
    if (!std::is_nothrow_copy_assignable_v<T> && std::is_nothrow_move_assignable_v<T> && i < bound_) {
        T copy; // An element that finds no memory may have taken half of another.
        copy = *source;
        slot = std::move(copy);
    } else {
        TakeBackCL half([&slot, before] { slot.SetDeleteTagM(before); });
        slot = *source;
        half.KeepM();
    }
    bound_ = std::max(bound_, i + 1);
    if (before != AliveTag && slot.IsAliveM()) {
        ++available_;
    }
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
    T copy; // First: growth and moving change where an item of this very array lies.
    copy = item;
    if (bound_ == length_ && AddSizeM(increment_) == 0) {
        return 0;
    }
    T* slots = getCurrentItemPrtM();
    letGoM(slots + bound_, 1);
    slots[bound_].~T(); // The moved bytes overwrite it.
    std::memmove(
        static_cast<void*>(slots + i + 1), static_cast<const void*>(slots + i), (bound_ - i) * sizeof(T));
    slTellMovedBytes(slots + i, (bound_ - i) * sizeof(T), slots + i + 1);
    ::new (static_cast<void*>(slots + i)) T();
    slots[i] = std::move(copy);
    letGoM(&copy, 1);
    ++bound_;
    if (slots[i].IsAliveM()) {
        ++available_;
    }
    return 1;
}

template <class T> int Arr<T>::MergeM(const Arr& other)
{
    const int otherBound = other.bound_; // Merging an array with itself moves its bound.
    TakeBackCL half([this, bound = bound_, available = available_] {
        for (int k = bound; k < std::min(bound_ + 1, length_); ++k) {
            ElementAtM(k).SetDeleteTagM(DeletedTag);
        }
        setCountsM(bound, available);
    });
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
    half.KeepM();
    return 1;
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
