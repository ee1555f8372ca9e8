#pragma once
#include "baselib/call_ref.h"
#include "containers/element_class.h"

// The members of an Arr behind its inline store.
struct ArrCountsCL
{
    int length;
    int bound;
    int available;
    int increment;
};

// An array and the class of its elements, to work with: what the members of Arr are made of.
class ArrSlotsCL
{
public:
    enum
    {
        InlineLength = 4, // As in Arr.
        DefaultIncrement = 10
    };

    ArrSlotsCL(const void* arr, const ArrElementsCL& elements)
        : elements_(elements)
        , heapStore_(reinterpret_cast<void**>(static_cast<char*>(const_cast<void*>(arr)) + sizeof(void*)))
        , inlineStore_(static_cast<char*>(const_cast<void*>(arr)) + elements.storeAt)
        , counts_(*reinterpret_cast<ArrCountsCL*>(inlineStore_ + InlineLength * elements.size))
    {
    }

    static void ShareM(void* heapStore); // Adds an owner.

    ArrCountsCL& CountsM() { return counts_; }
    char* SlotsM() { return *heapStore_ != nullptr ? static_cast<char*>(*heapStore_) : inlineStore_; }
    char* AtM(void* slots, int i) const
    {
        return static_cast<char*>(slots) + static_cast<std::size_t>(i) * elements_.size;
    }
    const char* AtM(const void* slots, int i) const { return AtM(const_cast<void*>(slots), i); }
    char* SlotM(int i) { return AtM(SlotsM(), i); }
    std::size_t BytesM(int n) const { return static_cast<std::size_t>(n) * elements_.size; }

    VrBaseCL& BaseM(void* slot) const
    {
        return *reinterpret_cast<VrBaseCL*>(static_cast<char*>(slot) + elements_.base);
    }
    const VrBaseCL& BaseM(const void* slot) const { return BaseM(const_cast<void*>(slot)); }
    VrBaseCL& BaseM(int i) { return BaseM(SlotM(i)); }
    bool IsAliveM(int i) { return i >= 0 && i < counts_.bound && BaseM(i).IsAliveM(); }

    void ConstructM(void* slots, int n) const
    {
        for (int k = 0; k < n; ++k) {
            elements_.construct(AtM(slots, k));
        }
    }
    void CopyM(const void* from, int n, void* to) const
    {
        for (int k = 0; k < n; ++k) {
            elements_.assign(AtM(to, k), AtM(from, k));
        }
    }
    void ExchangeM(void* one, void* other, int n) const; // By their bytes: needs no memory.
    void DeleteM(void* slot) const { elements_.deleteItem(slot); }
    void WithFreshM(CallRefCL<void(void* fresh)> use) const
    {
        elements_.withFresh(
            [](void* element, void* context) {
                (*static_cast<CallRefCL<void(void* fresh)>*>(context))(element);
            },
            &use);
    }
    // Empties slots before they are destroyed or marked deleted, as storing over them would: what they share
    // with an alive item, such as a bitmap, must not be deleted with them.
    void LetGoM(void* slots, int n) const
    {
        WithFreshM([&](void* fresh) {
            for (int k = 0; k < n; ++k) {
                elements_.assign(AtM(slots, k), fresh);
            }
        });
    }

    // What is told of the functions of Arr holds for those of the same name.
    int SlotOfM(const void* item); // The slot in which an item lies, -1 for an item from elsewhere.
    int GetNextIdxM(int from);
    void BeginM(int n); // For an array without a heap store: makes one of n slots, unless there is no memory.
    void AssignM(ArrSlotsCL other);
    int AddSizeM(int n);
    int SetItemM(const void* item, int i);
    void InsertWithinM(void* copy, int i); // Before an item of an array that has room for one more.
    void DelItemM(int i);
    void DelAllVirtualM();
    void DelAllM();
    void MoveInlineM(int n); // The first n items of a heap store, which is released.
    void DropHeapStoreM();   // Its last owner destroys the elements. The other members stay.
    void SwapListM(ArrSlotsCL other);

private:
    class FreshBlockCL;
    void assignFewM(ArrSlotsCL& other, int i);
    void replaceM(void* slot, const void* item);
    void returnToInlineM();

    const ArrElementsCL& elements_;
    void** heapStore_;
    char* inlineStore_;
    ArrCountsCL& counts_;
};
