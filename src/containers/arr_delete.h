#pragma once
#include "baselib/moved_bytes.h"
#include "containers/arr.h"
#include "containers/arr_block.h"
#include "containers/int_arr.h"
#include <algorithm>
#include <utility>

// Deleting and purging of Arr.

template <class T> int Arr<T>::DelItemM(int i)
{
    if (i < 0 || i >= bound_) {
        return 1;
    }
    T& slot = getCurrentItemPrtM()[i];
    if (slot.IsAliveM()) {
        slot.DelItemM();
        --available_;
    }
    if (i == bound_ - 1) {
        --bound_;
    }
    return 1;
}

template <class T> int Arr<T>::DelAllVirtualM()
{
    for (int k = 0; k < bound_; ++k) {
        DelItemM(k);
    }
    bound_ = 0;
    available_ = 0;
    return 1;
}

template <class T> int Arr<T>::DelAllM()
{
    DelAllVirtualM();
    returnToInlineM();
    increment_ = DefaultIncrement;
    return 1;
}

template <class T> int Arr<T>::PurgeDeletedItemM()
{
    T* slots = getCurrentItemPrtM();
    int alive = 0;
    for (int k = 0; k < bound_; ++k) {
        if (!slots[k].IsAliveM()) {
            continue;
        }
        if (alive != k) {
            slots[alive] = slots[k];
        }
        ++alive;
    }
    bound_ = alive;
    available_ = alive;
    return 1;
}

template <class T> int Arr<T>::PurgeAllM(IntArr* remap)
{
    constexpr int gone = static_cast<int>(0x80000001U);
    T* slots = getCurrentItemPrtM();
    int removed = 0;
    for (int i = 0; i < bound_; ++i) {
        const bool alive = slots[i].IsAliveM();
        if (!alive) {
            ++removed;
        } else if (removed > 0) {
            slots[i - removed] = slots[i];
            slots[i].DelItemM();
        }
        if (remap != nullptr) {
            remap->SetItemM(alive ? i - removed : gone, i);
        }
    }
    const int left = bound_ - removed;
    if (bound_ > InlineLength && left <= InlineLength) {
        std::copy_n(slots, left, inlineStore_);
        if (ArrBlock<T>::DropM(heapStore_)) {
            slTellMovedBytes(heapStore_, length_ * sizeof(T), nullptr);
            ArrBlock<T>::FreeM(heapStore_);
        }
        heapStore_ = nullptr;
        length_ = InlineLength;
    }
    bound_ = left;
    return 1;
}

template <class T> int Arr<T>::SwapM(int i, int j)
{
    if (i < 0 || i >= bound_ || j < 0 || j >= bound_) {
        return 0;
    }
    T* slots = getCurrentItemPrtM();
    T temporary;
    temporary = slots[i];
    slots[i] = slots[j];
    slots[j] = temporary;
    return 1;
}

template <class T> void Arr<T>::SwapListM(Arr& other) noexcept
{
    using std::swap;
    swap(heapStore_, other.heapStore_);
    swap(inlineStore_, other.inlineStore_);
    swap(length_, other.length_);
    swap(bound_, other.bound_);
    swap(available_, other.available_);
    swap(increment_, other.increment_);
}

// Lets go of the heap block; its last owner destroys the elements. The other members stay.
template <class T> void Arr<T>::dropHeapStoreM()
{
    if (heapStore_ == nullptr) {
        return;
    }
    if (ArrBlock<T>::DropM(heapStore_)) {
        for (int k = 0; k < length_; ++k) {
            heapStore_[k].~T();
        }
        ArrBlock<T>::FreeM(heapStore_);
    }
    heapStore_ = nullptr;
}

// An empty array on its inline store, whose old items must not count as alive again. Nothing to do without a
// heap store.
template <class T> void Arr<T>::returnToInlineM()
{
    if (heapStore_ == nullptr) {
        return;
    }
    dropHeapStoreM();
    length_ = InlineLength;
    for (T& slot : inlineStore_) {
        slot.DelItemM();
    }
    bound_ = 0;
    available_ = 0;
}
