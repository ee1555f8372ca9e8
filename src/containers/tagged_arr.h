#pragma once
#include "baselib/base.h"
#include <cstddef>
#include <memory>

// A growing list of slots of N ints each, alive or deleted, that keep their index for life.
// Copy construction shares the storage: both see every change, the last to let go frees it (a list
// that never held anything has no storage to share). Assignment makes an independent copy.
// The object is one shared pointer and may be moved by bytes. Without memory std::bad_alloc is thrown and
// nothing has changed.
template <int N> class TaggedArr
{
public:
    TaggedArr() = default;
    TaggedArr(const TaggedArr&) = default;
    TaggedArr& operator=(const TaggedArr& other);
    ~TaggedArr() = default;

    int GetBoundM() const;                 // One more than the last slot in use.
    int GetAvailableNumM() const;          // Number of alive slots.
    int GetAvailableNumM(int after) const; // Number of alive slots with an index above `after`.
    int CheckAvailableM(int index) const;  // 1 if the slot is below the bound and alive.

    // Stores N ints, alive, growing as needed; slots skipped over are deleted ones holding 0. Result 1;
    // 0 and nothing stored for a negative index, one that leaves a gap beyond MaxGap, or null.
    int SetItemM(const int* values, int index);
    int AddItemM(const int* values); // Appends; the index used, -1 for null.
    // Shifts the slots from `index` up by one; from the bound on as SetItemM.
    int InsertItemM(const int* values, int index);

    int GetItemM(int* out, int index) const; // Alive or not; 0 and nothing written outside 0..bound-1.
    const int* GetItemPM(int index) const;   // The N ints of a slot, alive or not; null outside 0..bound-1.
    int* ElementAtPM(int index);             // The same to write to; valid until the list grows.

    int GetNextIdxM(int from) const; // First alive slot above `from`, -1 when none.
    int GetFirstIdxM() const;        // First alive slot, -1 when none.
    int GetLastIdxM() const;         // Last alive slot, -1 when none.

    // Deletes a slot; the last one also lowers the bound, by one only. Outside 0..bound-1: nothing. 1.
    int DelItemM(int index);
    int DelAllM(); // Lets go of the storage: a list that shared it keeps its items. 1.
    void SwapListM(TaggedArr& other) noexcept; // Both hold what the other held; needs no memory.

    // The most slots that storing beyond the bound may skip.
    static constexpr int MaxGap = 1 << 22;

private:
    enum
    {
        FirstRoom = 8
    };

    // The first slots lie in it: most lists are short, and a list takes one block then.
    class Store
    {
    public:
        Store() { } // NOLINT: by default all would be zeroed first.
        Store(const Store& other);
        Store& operator=(const Store&) = delete;
        void SetBoundM(int slots);      // New slots are deleted ones holding 0.
        int AppendM(const int* values); // An alive one. Its index.
        int BoundM() const { return bound_; }
        int* ValuesM(int index) { return values_ + static_cast<std::ptrdiff_t>(index) * N; }
        char* TagsM() { return tags_; }
        int available { 0 };

    private:
        int* values_ { firstValues_ };
        char* tags_ { firstTags_ };
        int bound_ { 0 };
        int room_ { FirstRoom };
        void makeRoomM(int slots);

        std::unique_ptr<int[]> moreValues_; // All of them when there are more.
        std::unique_ptr<char[]> moreTags_;
        int firstValues_[FirstRoom * N];
        char firstTags_[FirstRoom];
    };

    bool insideM(int index) const { return index >= 0 && index < GetBoundM(); }
    inline Store& storeM(); // Inline: nothing private is exported.

    std::shared_ptr<Store> store_;
};

extern template class PANELKIT_API TaggedArr<1>;
extern template class PANELKIT_API TaggedArr<2>;
extern template class PANELKIT_API TaggedArr<3>;
