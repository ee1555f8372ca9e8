#pragma once
#include "toolkit/gbk_string.h"
#include "toolkit/object.h"
#include <algorithm>
#include <iterator>
#include <stdexcept>
#include <vector>

// A growable array that copies and destroys its elements in order, so that these may own things. Sizes are
// INT_PTR. An index outside the array throws std::out_of_range and has changed nothing. New elements are zero
// or as their constructor makes them. ARG is what elements are given as; they may lie in the array itself.
template <class TYPE, class ARG = const TYPE&> class CArray : public CObject
{
public:
    CArray() = default;

    // How many elements there are.
    INT_PTR GetSize() const { return static_cast<INT_PTR>(slots_.size()); }
    // The same.
    INT_PTR GetCount() const { return GetSize(); }
    // Whether there is none.
    BOOL IsEmpty() const { return slots_.empty(); }
    INT_PTR GetUpperBound() const { return GetSize() - 1; } // -1: empty
    // What grows; growBy is only a hint of how many elements come together, below 1: none.
    void SetSize(INT_PTR size, INT_PTR growBy = -1)
    {
        const size_t wanted = countM(size);
        if (growBy > 0 && wanted > slots_.capacity()) {
            slots_.reserve(wanted + static_cast<size_t>(growBy));
        }
        slots_.resize(wanted);
    }

    // Frees what is held in reserve.
    void FreeExtra() { slots_.shrink_to_fit(); }
    // Destroys all elements.
    void RemoveAll() { std::vector<SlotTP>().swap(slots_); }

    // The element at an index, which stays in the array.
    const TYPE& GetAt(INT_PTR index) const { return slots_.at(placeM(index)).value; }
    TYPE& GetAt(INT_PTR index) { return slots_.at(placeM(index)).value; }
    TYPE& ElementAt(INT_PTR index) { return GetAt(index); }
    const TYPE& ElementAt(INT_PTR index) const { return GetAt(index); }
    TYPE& operator[](INT_PTR index) { return GetAt(index); }
    const TYPE& operator[](INT_PTR index) const { return GetAt(index); }

    // Replaces one.
    void SetAt(INT_PTR index, ARG element) { GetAt(index) = element; }
    // Valid until the size changes; null where the array is empty.
    TYPE* GetData() { return slots_.empty() ? nullptr : &slots_.data()->value; }
    const TYPE* GetData() const { return slots_.empty() ? nullptr : &slots_.data()->value; }

    // Replaces one; beyond the end the array grows up to there.
    void SetAtGrow(INT_PTR index, ARG element)
    {
        SlotTP copy { element };
        if (countM(index) >= slots_.size()) {
            SetSize(index + 1);
        }
        slots_[placeM(index)] = std::move(copy);
    }
    INT_PTR Add(ARG element) // result: its index
    {
        slots_.push_back(SlotTP { element });
        return GetUpperBound();
    }
    INT_PTR Append(const CArray& other) // result: the index of the first
    {
        const INT_PTR first = GetSize();
        const std::vector<SlotTP> copy(other.slots_);
        slots_.insert(slots_.end(), copy.begin(), copy.end());
        return first;
    }

    // Becomes a copy of the other.
    void Copy(const CArray& other) { slots_ = std::vector<SlotTP>(other.slots_); }
    // Beyond the end: the array grows up to there first.
    void InsertAt(INT_PTR index, ARG element, INT_PTR count = 1)
    {
        const SlotTP copy { element };
        const size_t copies = countM(count);
        growToM(index, copies);
        slots_.insert(slots_.begin() + index, copies, copy);
    }
    void InsertAt(INT_PTR index, const CArray* other)
    {
        const std::vector<SlotTP> copy(other->slots_);
        growToM(index, copy.size());
        slots_.insert(slots_.begin() + index, copy.begin(), copy.end());
    }

    // Takes out `count` elements from the index on.
    void RemoveAt(INT_PTR index, INT_PTR count = 1)
    {
        const size_t first = placeM(index);
        if (first > slots_.size() || countM(count) > slots_.size() - first) {
            throw std::out_of_range("RemoveAt");
        }
        slots_.erase(slots_.begin() + index, slots_.begin() + index + count);
    }

private:
    // A truth value, too, is an element of its own.
    struct SlotTP
    {
        TYPE value {};
    };
    static size_t placeM(INT_PTR index) { return static_cast<size_t>(index); } // below 0: beyond every end
    static size_t countM(INT_PTR count)
    {
        if (count < 0) {
            throw std::out_of_range("a count below 0");
        }
        return static_cast<size_t>(count);
    }
    void growToM(INT_PTR index, size_t more)
    {
        if (countM(index) > slots_.size()) {
            slots_.reserve(countM(index) + more);
            SetSize(index);
        }
    }

    std::vector<SlotTP> slots_;
};

// Under the names that applications know; a name may be declared before as a class.
class CStringArray : public CArray<CString, const CString&>
{
};
class CByteArray : public CArray<BYTE, BYTE>
{
};
class CWordArray : public CArray<WORD, WORD>
{
};
class CDWordArray : public CArray<DWORD, DWORD>
{
};
class CUIntArray : public CArray<UINT, UINT>
{
};
class CPtrArray : public CArray<void*, void*>
{
};
class CObArray : public CArray<CObject*, CObject*> // the objects are the caller's
{
};
