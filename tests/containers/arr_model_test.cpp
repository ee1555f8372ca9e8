#include "containers/arr_elements.h"
#include "containers/int_arr.h"
#include <algorithm>
#include <gtest/gtest.h>
#include <random>
#include <vector>

// Thousands of random operations, compared step by step with plain values.

namespace {

struct Slot
{
    int number { 0 };
    bool alive { false };
};

// What an array must hold, with the leftovers above its bound, which later operations can meet.
struct Model
{
    std::vector<Slot> inside = std::vector<Slot>(4);
    std::vector<Slot> heap;
    int bound { 0 };
    int available { 0 };
    int increment { 10 };

    std::vector<Slot>& store() { return heap.empty() ? inside : heap; }
    int length() { return static_cast<int>(store().size()); }

    void grow(int n)
    {
        if (n > 0) {
            heap = std::vector<Slot>(store());
            heap.resize(heap.size() + n);
        }
    }
    void set(Slot item, int i)
    {
        if (i < 0) {
            return;
        }
        if (i >= length()) {
            grow(std::max(length(), i - length() + 1));
        }
        bound = std::max(bound, i + 1);
        available += !store()[i].alive && item.alive ? 1 : 0;
        store()[i] = item;
    }
    int addByIndex(int i)
    {
        if (i < 0 || i >= length()) {
            return -1;
        }
        if (!store()[i].alive) {
            store()[i].alive = true;
            ++available;
            return i;
        }
        if (bound == length()) {
            grow(increment);
        }
        set(store()[i], bound);
        return bound - 1;
    }
    void insert(Slot item, int i)
    {
        if (i < 0) {
            return;
        }
        if (i >= bound) {
            set(item, i);
            return;
        }
        if (bound == length()) {
            grow(increment);
        }
        std::copy_backward(store().begin() + i, store().begin() + bound, store().begin() + bound + 1);
        store()[i] = item;
        ++bound;
        available += item.alive ? 1 : 0;
    }
    void del(int i)
    {
        if (i < 0 || i >= bound) {
            return;
        }
        available -= store()[i].alive ? 1 : 0;
        store()[i].alive = false;
        bound -= i == bound - 1 ? 1 : 0;
    }
    void delAllVirtual()
    {
        for (int i = 0; i < bound; ++i) {
            store()[i].alive = false;
        }
        bound = available = 0;
    }
    void delAll()
    {
        delAllVirtual();
        if (!heap.empty()) {
            heap.clear();
            for (Slot& slot : inside) {
                slot.alive = false;
            }
        }
        increment = 10;
    }
    void purgeDeleted()
    {
        int to = 0;
        for (int i = 0; i < bound; ++i) {
            if (store()[i].alive) {
                store()[to++] = store()[i];
            }
        }
        bound = available = to;
    }
    std::vector<int> purgeAll()
    {
        std::vector<int> remap;
        int to = 0;
        for (int i = 0; i < bound; ++i) {
            const Slot old = store()[i];
            remap.push_back(old.alive ? to : static_cast<int>(0x80000001U));
            if (old.alive) {
                store()[i].alive = false;
                store()[to++] = old;
            }
        }
        if (bound > 4 && to < 5) {
            std::copy_n(heap.begin(), to, inside.begin());
            heap.clear();
        }
        bound = to;
        return remap;
    }
    void merge(Model& other)
    {
        const int alive = static_cast<int>(std::count_if(other.store().begin(),
            other.store().begin() + other.bound, [](const Slot& slot) { return slot.alive; }));
        grow(other.available - length() + bound);
        while (bound + alive > length()) {
            grow(increment);
        }
        bound += alive;
        available += alive;
    }
    void assign(Model& other)
    {
        delAll();
        if (!other.heap.empty()) {
            heap.resize(4 + other.heap.size());
        }
        std::copy_n(other.store().begin(), other.bound, store().begin());
        bound = other.bound;
        available = other.available;
        increment = other.increment;
    }
};

template <class T> void expectSame(Arr<T>& arr, Model& model)
{
    ASSERT_EQ(arr.GetLengthM(), model.length());
    ASSERT_EQ(arr.GetBoundM(), model.bound);
    ASSERT_EQ(arr.GetAvailableNumM(), model.available);
    std::vector<int> alive;
    for (int i = 0; i < model.length(); ++i) {
        const Slot& slot = model.store()[i];
        ASSERT_EQ(arr[i].IsAliveM(), slot.alive) << i;
        ASSERT_EQ(numberOf(arr[i]), slot.number) << i;
        if (slot.alive && i < model.bound) {
            alive.push_back(i);
        }
    }
    std::vector<int> iterated;
    for (int i = arr.GetFirstIdxM(); i >= 0; i = arr.GetNextIdxM(i)) {
        iterated.push_back(i);
    }
    ASSERT_EQ(iterated, alive);
    int last = 0;
    arr.GetLastPM(&last);
    ASSERT_EQ(last, alive.empty() ? -1 : alive.back());
}

enum class Purging
{
    Any,
    WithoutRelease
};

// Purging releases elements without their destructor; elements with memory of their own are spared that.
template <class T> void compare(unsigned seed, Purging purging)
{
    std::mt19937 random(seed);
    const auto below = [&random](int n) { return static_cast<int>(random() % static_cast<unsigned>(n)); };
    Arr<T> arr;
    Arr<T> other;
    Model model;
    Model otherModel;
    for (int step = 0; step < 6000; ++step) {
        const Slot item { below(1000), below(4) != 0 };
        const T element(item.number, item.alive ? AliveTag : DeletedTag);
        const int i = below(model.bound + 4) - 1;
        const int j = below(model.bound + 4) - 1;
        switch (const int operation = below(model.bound > 60 ? 24 : 20)) {
        case 0:
            arr.SetItemM(element, i);
            model.set(item, i);
            break;
        case 1:
            ASSERT_EQ(arr.AddItemM(i, nullptr), model.addByIndex(i));
            break;
        case 2:
        case 3:
            ASSERT_EQ(arr.InsertItemM(element, i), i < 0 ? 0 : 1);
            model.insert(item, i);
            break;
        case 4:
        case 5:
        case 6:
            arr.DelItemM(i);
            model.del(i);
            break;
        case 7: {
            const bool inside = i >= 0 && j >= 0 && i < model.bound && j < model.bound;
            ASSERT_EQ(arr.SwapM(i, j), inside ? 1 : 0);
            if (inside) {
                std::swap(model.store()[i], model.store()[j]);
            }
            break;
        }
        case 8:
            arr.SetIncrementM(i);
            model.increment = i > 0 ? i : model.increment;
            break;
        case 9:
            if (below(8) == 0) {
                arr.AddSizeM(i);
                model.grow(i);
            }
            break;
        case 10:
            arr.PurgeDeletedItemM();
            model.purgeDeleted();
            break;
        case 11:
        case 20: {
            if (purging == Purging::WithoutRelease) {
                break;
            }
            IntArr remap;
            arr.PurgeAllM(&remap);
            const std::vector<int> expected = model.purgeAll();
            ASSERT_EQ(remap.GetBoundM(), static_cast<int>(expected.size()));
            for (int k = 0; k < remap.GetBoundM(); ++k) {
                ASSERT_EQ(remap[k], expected[k]);
            }
            break;
        }
        case 12:
            if (below(6) == 0) {
                arr.MergeM(other);
                model.merge(otherModel);
            }
            break;
        case 13:
            other = arr;
            otherModel.assign(model);
            break;
        case 14:
            arr = other;
            model.assign(otherModel);
            break;
        case 15:
            if (below(6) == 0) {
                arr.DelAllVirtualM();
                model.delAllVirtual();
            }
            break;
        case 21:
            arr.DelAllM();
            model.delAll();
            break;
        case 22:
        case 23:
            arr.DelItemM(model.bound - 1);
            model.del(model.bound - 1);
            break;
        default:
            ASSERT_EQ(arr.AddItemM(element), model.bound) << operation;
            model.set(item, model.bound);
            break;
        }
        expectSame(arr, model);
        if (::testing::Test::HasFatalFailure()) {
            FAIL() << "seed " << seed << ", step " << step;
        }
    }
    expectSame(other, otherModel);
}

} // namespace

TEST(ArrModel, RandomOperationsGiveWhatPlainValuesGive)
{
    for (unsigned seed = 1; seed <= 4; ++seed) {
        compare<CountedCL>(seed, Purging::Any);
    }
}

TEST(ArrModel, RandomOperationsLoseNoElementWithMemory)
{
    const int before = HeapCL::live;
    for (unsigned seed = 11; seed <= 14; ++seed) {
        compare<HeapCL>(seed, Purging::WithoutRelease);
    }
    EXPECT_EQ(HeapCL::live, before);
}
