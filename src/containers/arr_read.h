#pragma once
#include "containers/arr.h"
#include <algorithm>

// Access and iteration of Arr.

// None of these is inline in the class: an importing program without optimization calls the exported one.
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

template <class T> T& Arr<T>::operator[](int i)
{
    return ElementAtM(i);
}

template <class T> int Arr<T>::GetFirstM(T* out, int* idx) const
{
    return GetNextM(out, idx, -1);
}

template <class T> const T* Arr<T>::GetFirstPM(int* idx) const
{
    return GetNextPM(idx, -1);
}

template <class T> int Arr<T>::GetFirstIdxM() const
{
    return GetNextIdxM(-1);
}

template <class T> int Arr<T>::GetAvailableNumM(int i)
{
    int count = 0;
    for (int k = GetNextIdxM(i); k >= 0; k = GetNextIdxM(k)) {
        ++count;
    }
    return count;
}

template <class T> int Arr<T>::CheckAvailableM(int i) const
{
    const T* slot = GetItemPM(i);
    return slot != nullptr && slot->IsAliveM() ? 1 : 0;
}

template <class T> int Arr<T>::GetItemM(T* out, int i) const
{
    if (out == nullptr) {
        return 0;
    }
    if (const T* slot = GetItemPM(i)) {
        *out = *slot;
    } else {
        out->DelItemM();
    }
    return 1;
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

template <class T> int Arr<T>::GetNextM(T* out, int* idx, int from) const
{
    if (out == nullptr || idx == nullptr) {
        return -1;
    }
    if (const T* slot = GetNextPM(idx, from)) {
        *out = *slot;
    }
    return *idx;
}

template <class T> const T* Arr<T>::GetNextPM(int* idx, int from) const
{
    if (idx == nullptr) {
        return nullptr;
    }
    *idx = GetNextIdxM(from);
    return GetItemPM(*idx);
}

template <class T> const T* Arr<T>::GetLastPM(int* idx) const
{
    if (idx == nullptr) {
        return nullptr;
    }
    *idx = bound_ - 1;
    while (*idx >= 0 && CheckAvailableM(*idx) == 0) {
        --*idx;
    }
    return GetItemPM(*idx);
}

template <class T> int Arr<T>::GetNextIdxM(int from) const
{
    if (from >= bound_) {
        return -1;
    }
    for (int k = std::max(from, -1) + 1; k < bound_; ++k) {
        if (CheckAvailableM(k) != 0) {
            return k;
        }
    }
    return -1;
}

template <class T> T* Arr<T>::getCurrentItemPrtM()
{
    return heapStore_ != nullptr ? heapStore_ : inlineStore_;
}

template <class T> const T* Arr<T>::getCurrentItemPrtM() const
{
    return heapStore_ != nullptr ? heapStore_ : inlineStore_;
}

// What an index outside the store gives: fresh at every use, so nothing written there is ever read again.
template <class T> T& Arr<T>::spareM()
{
    static T spare;
    spare = T();
    spare.DelItemM();
    return spare;
}
