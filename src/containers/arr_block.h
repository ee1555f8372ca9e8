#pragma once
#include "baselib/helpers.h"
#include <cstddef>
#include <cstdint>
#include <limits>
#include <new>
#include <utility>

// The heap block of an Arr: raw room for elements behind the number of arrays that use it. Copy-constructed
// arrays share a block; counting its owners lets the last one free it.
template <class T> class ArrBlock
{
public:
    // Raw room with one owner; null when there is no memory, or for 2 GB and more: what no list needs is
    // refused alike whatever the machine could give.
    static T* AllocateM(std::int64_t count)
    {
        constexpr std::int64_t mostBytes = std::numeric_limits<std::int32_t>::max();
        if (count < 1 || count > (mostBytes - HeadSize) / static_cast<std::int64_t>(sizeof(T))) {
            return nullptr;
        }
        void* block = slMalloc(HeadSize + static_cast<std::size_t>(count) * sizeof(T));
        if (block == nullptr) {
            return nullptr;
        }
        *static_cast<int*>(block) = 1;
        return reinterpret_cast<T*>(static_cast<char*>(block) + HeadSize);
    }

    // Adds an owner; whether there are several.
    static void ShareM(T* elements) { ++ownersM(elements); }
    static bool IsSharedM(T* elements) { return ownersM(elements) > 1; }

    // Gives up one ownership; true for the last one, whose caller then frees the block.
    static bool DropM(T* elements) { return --ownersM(elements) == 0; }

    // The elements are not destroyed here.
    static void FreeM(T* elements) { slFree(headM(elements)); }

    // A block whose elements are being made, from one of them on. Unless it is taken, it is freed with those
    // made so far.
    class FreshCL
    {
    public:
        explicit FreshCL(T* elements, int first = 0)
            : elements_(elements)
            , first_(first)
            , end_(first)
        {
        }
        FreshCL(const FreshCL&) = delete;
        FreshCL& operator=(const FreshCL&) = delete;
        ~FreshCL()
        {
            if (elements_ != nullptr) {
                while (end_ > first_) {
                    elements_[--end_].~T();
                }
                FreeM(elements_);
            }
        }

        bool IsThereM() const { return elements_ != nullptr; }
        T* ElementsM() const { return elements_; }
        void MakeM(int n) // So many more.
        {
            for (; n > 0; --n, ++end_) {
                ::new (static_cast<void*>(elements_ + end_)) T();
            }
        }
        T* TakeM() { return std::exchange(elements_, nullptr); }

    private:
        T* elements_;
        int first_;
        int end_;
    };

private:
    static constexpr int HeadSize = alignof(std::max_align_t);
    static_assert(alignof(T) <= alignof(std::max_align_t), "elements are placed behind a head of that size");

    static void* headM(T* elements) { return reinterpret_cast<char*>(elements) - HeadSize; }
    static int& ownersM(T* elements) { return *static_cast<int*>(headM(elements)); }
};
