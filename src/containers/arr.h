#pragma once
#include "baselib/base.h"
#include "baselib/helpers.h" // Who writes a class of elements needs these too.
#include "baselib/io.h"
#include "baselib/moved_bytes.h"

class IntArr;

// The one container of the library: a growable array of elements with a VrBaseCL part. Four elements are
// stored inside the object, more in a heap block. Deleting only marks an element by its tag, so indices stay
// valid until a purge; iteration passes over whatever is not alive.
//
// Elements are moved by their bytes: none may hold a pointer into itself. An index is a slot number from 0;
// the result is 1 unless said otherwise. A null pointer is refused unless said otherwise: nothing happens and
// the result is 0, or null, or -1 where an index is reported.
// When there is no memory, or a store would reach 2 GB, what needed it changes nothing and reports 0 (-1
// where an index is reported). An element that finds none for what it holds itself throws std::bad_alloc: the
// items are then what they were; only purging may have moved some of them already.
//
// The slots at or above the bound are outside the array but keep whatever they held, tags included; storing
// over one that is still alive doesn't count as one more available item.
//
// Instantiations are exported one by one: `extern template class PANELKIT_API Arr<X>;` behind class X, and
// `template class PANELKIT_API Arr<X>;` in its .cpp.
template <class T> class Arr
{
public:
    Arr();
    explicit Arr(int n); // A store of n slots, at least four.

    // Shares other's heap block, which lives until the last of its owners lets go: elements changed through
    // one array are seen by the other, until either needs another block. Assign for an independent copy.
    Arr(const Arr& other);

    // An independent copy. Of a heap store it has four slots more than its source.
    Arr& operator=(const Arr& other);

    // A list as FmOutputEvrLstM wrote it replaces the items. A count of 0 or less, or one beyond the bytes
    // left, leaves them; one there is no memory for only deletes them (and throws, where it is an element
    // that found none). Elements with an index outside the
    // list are read and dropped.
    virtual void FmInputEvrLstM(VrIOCL* io);
    // Writes every slot below the bound, alive or deleted. The name (GBK, may be null) only labels the text
    // form.
    virtual void FmOutputEvrLstM(VrIOCL* io, const char* name) const;
    virtual ~Arr();

    int InitialSizeM(int n); // At least n slots.
    int SetIncrementM(
        int n);             // Slots that InsertItemM and AddItemM(int, int*) add at a time; n < 1: unchanged.
    int AddSizeM(int n);    // n slots more; n < 1: none.
    int GetLengthM() const; // Slots of the store.
    int GetBoundM() const;  // One past the highest slot of the array.
    int GetAvailableNumM() const;     // Alive slots.
    int GetAvailableNumM(int i);      // Alive slots behind slot i.
    int CheckAvailableM(int i) const; // 1 for an alive slot of the array, otherwise 0.

    // Stores a copy at i, growing as needed; i < 0: nothing happens. An alive item counts where none alive
    // stood; a deleted one stored over an alive one doesn't uncount it.
    int SetItemM(const T& item, int i);
    int AddItemM(const T& item); // Stores at the bound; the index used.
    // Revives slot i if it is deleted, otherwise appends its copy. The index of that one, also in newIndex
    // (may be null); -1 for an i outside the store.
    int AddItemM(int i, int* newIndex);
    int InsertItemM(const T& item, int i); // Moves i and what follows up by one; 0 for i < 0.
    // Appends a slot for each alive item of other and leaves its filling to the element's SetByMergeM. Where
    // that does nothing the slot keeps what it held, yet counts as available.
    int MergeM(const Arr& other);

    int DelItemM(int i);     // Outside the array: nothing. Only the last slot lowers the bound.
    int DelAllVirtualM();    // Deletes every item; the store and the increment stay.
    int DelAllM();           // Also drops the heap store; the increment becomes 10 again.
    int PurgeDeletedItemM(); // Closes the gaps; the store stays as it is.
    // Closes the gaps. remap (may be null) gets for each old index the new one, 0x80000001 for an item that
    // was not alive. A heap store whose items now fit inside the object is released, its elements not
    // destroyed: they were moved.
    int PurgeAllM(IntArr* remap);
    int SwapM(int i, int j);             // 0 when either is outside the array.
    void SwapListM(Arr& other) noexcept; // Both hold what the other held; needs no memory.

    int GetItemM(T* out, int i) const; // Outside the array: out is marked deleted.
    const T* GetItemPM(int i) const;   // Alive or not; null outside the array. The array keeps it.
    T* ElementAtPM(int i);             // The same to write to.
    // A slot of the store. Outside it: a deleted element that belongs to no array.
    T& ElementAtM(int i);
    T& operator[](int i);

    // The first alive slot behind `from` in index order; its index is in *idx too, -1 when there is none (out
    // is then unchanged, a pointer null).
    int GetNextM(T* out, int* idx, int from) const;
    int GetFirstM(T* out, int* idx) const;
    const T* GetNextPM(int* idx, int from) const;
    const T* GetFirstPM(int* idx) const;
    const T* GetLastPM(int* idx) const; // The last alive slot.
    // The index of the first alive slot behind `from`, of the first one at all; -1 when there is none.
    int GetNextIdxM(int from) const;
    int GetFirstIdxM() const;

protected:
    // The first slot of the store in use.
    T* getCurrentItemPrtM();
    const T* getCurrentItemPrtM() const;
    // For lists that fill slots of the store themselves: both at most the length.
    void setCountsM(int bound, int available);

private:
    enum
    {
        InlineLength = 4, // AnyArrCL knows of it, and of the order of what follows.
        DefaultIncrement = 10
    };
    struct InlineStoreCL // Initialized and copied as one, an array is so in a loop.
    {
        T slots[InlineLength];
    };

    static inline T& spareM(); // Inline: nothing private is exported.

    void* heapStore_ { nullptr }; // Null while the inline store is in use.
    InlineStoreCL inlineStore_;
    int length_ { InlineLength }; // Slots of the store in use; InlineLength means the inline store.
    int bound_ { 0 };             // One past the highest slot in use.
    int available_ { 0 };         // Alive items.
    int increment_ { DefaultIncrement };
};

#include "containers/arr_impl.h"
