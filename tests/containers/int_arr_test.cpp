#include "containers/int2d_arr.h"
#include "containers/int3d_arr.h"
#include "containers/int_arr.h"
#include <climits>
#include <cstring>
#include <gtest/gtest.h>
#include <vector>

namespace {

IntArr listOf(std::initializer_list<int> values)
{
    IntArr made;
    for (int value : values) {
        made.AddItemM(value);
    }
    return made;
}

template <typename List> std::vector<int> aliveIndices(const List& list)
{
    std::vector<int> indices;
    for (int k = list.GetFirstIdxM(); k >= 0; k = list.GetNextIdxM(k)) {
        indices.push_back(k);
    }
    return indices;
}

} // namespace

TEST(IntArr, FreshListIsEmpty)
{
    const IntArr list;
    EXPECT_EQ(list.GetBoundM(), 0);
    EXPECT_EQ(list.GetAvailableNumM(), 0);
    EXPECT_EQ(list.GetFirstIdxM(), -1);
    EXPECT_EQ(list.GetLastIdxM(), -1);
    EXPECT_EQ(list.GetItemPM(0), nullptr);
}

TEST(IntArr, AddItemGivesTheIndexUsedAndGrows)
{
    IntArr list;
    for (int k = 0; k < 1000; ++k) {
        ASSERT_EQ(list.AddItemM(k * 3), k);
    }
    EXPECT_EQ(list.GetBoundM(), 1000);
    EXPECT_EQ(list[999], 2997);
    list[999] = 5;
    int value = 0;
    EXPECT_EQ(list.GetItemM(&value, 999), 1);
    EXPECT_EQ(value, 5);
}

TEST(IntArr, SlotsSkippedOverByAnIndexAreDeletedOnes)
{
    IntArr list;
    EXPECT_EQ(list.SetItemM(7, 20), 1);
    EXPECT_EQ(list.GetBoundM(), 21);
    EXPECT_EQ(list.GetAvailableNumM(), 1);
    EXPECT_EQ(list.CheckAvailableM(3), 0);
    EXPECT_EQ(list.CheckAvailableM(20), 1);
    EXPECT_EQ(*list.GetItemPM(3), 0);
    EXPECT_EQ(list.SetItemM(8, 3), 1);
    EXPECT_EQ(list.GetAvailableNumM(), 2);
    EXPECT_EQ(list.SetItemM(9, 3), 1);
    EXPECT_EQ(list.GetAvailableNumM(), 2);
    EXPECT_EQ(aliveIndices(list), (std::vector<int> { 3, 20 }));
}

TEST(IntArr, NegativeAndAbsurdIndicesAreHarmless)
{
    IntArr list = listOf({ 1, 2 });
    for (int index : { -1, INT_MIN, INT_MAX, INT_MAX - 1, 2 + IntArr::MaxGap + 1 }) {
        EXPECT_EQ(list.SetItemM(5, index), 0) << index;
        EXPECT_EQ(list.DelItemM(index), 1) << index;
        EXPECT_EQ(list.CheckAvailableM(index), 0) << index;
        EXPECT_EQ(list.GetItemPM(index), nullptr) << index;
        int value = 42;
        EXPECT_EQ(list.GetItemM(&value, index), 0) << index;
        EXPECT_EQ(value, 42) << index;
    }
    EXPECT_EQ(list.GetBoundM(), 2);
    EXPECT_EQ(list.GetNextIdxM(INT_MAX), -1);
    EXPECT_EQ(list.GetNextIdxM(INT_MIN), 0);
    EXPECT_EQ(list.GetAvailableNumM(INT_MAX), 0);
    EXPECT_EQ(list.GetAvailableNumM(INT_MIN), 2);
    EXPECT_EQ(list.GetAvailableNumM(0), 1);
}

TEST(IntArr, DeletingTheMiddleKeepsTheOthersAtTheirIndices)
{
    IntArr list = listOf({ 10, 20, 30 });
    list.DelItemM(1);
    list.DelItemM(1);
    EXPECT_EQ(list.GetBoundM(), 3);
    EXPECT_EQ(list.GetAvailableNumM(), 2);
    EXPECT_EQ(aliveIndices(list), (std::vector<int> { 0, 2 }));
    EXPECT_EQ(*list.GetItemPM(1), 20);
    EXPECT_EQ(list.GetLastIdxM(), 2);
}

TEST(IntArr, DeletingTheLastSlotLowersTheBoundByOneOnly)
{
    IntArr list = listOf({ 10, 20, 30 });
    list.DelItemM(1);
    list.DelItemM(2);
    EXPECT_EQ(list.GetBoundM(), 2);
    EXPECT_EQ(list.GetAvailableNumM(), 1);
    EXPECT_EQ(list.GetLastIdxM(), 0);
    EXPECT_EQ(list.AddItemM(40), 2);
}

TEST(IntArr, InsertionShiftsTheSlotsAbove)
{
    IntArr list = listOf({ 10, 20, 30 });
    list.DelItemM(0);
    EXPECT_EQ(list.InsertItemM(15, 1), 1);
    EXPECT_EQ(aliveIndices(list), (std::vector<int> { 1, 2, 3 }));
    EXPECT_EQ(list[1], 15);
    EXPECT_EQ(list[2], 20);
    EXPECT_EQ(list.InsertItemM(50, 5), 1);
    EXPECT_EQ(list.GetBoundM(), 6);
    EXPECT_EQ(list.InsertItemM(50, -1), 0);
}

TEST(IntArr, CopyConstructionSharesAndAssignmentDoesNot)
{
    IntArr list = listOf({ 1, 2 });
    auto shared = std::make_unique<IntArr>(list);
    IntArr assigned;
    assigned = list;
    list.SetItemM(9, 0);
    shared->AddItemM(3);
    EXPECT_EQ((*shared)[0], 9);
    EXPECT_EQ(list.GetBoundM(), 3);
    EXPECT_EQ(assigned[0], 1);
    EXPECT_EQ(assigned.GetBoundM(), 2);
    shared.reset();
    EXPECT_EQ(list[2], 3);
}

TEST(IntArr, AssigningToItselfOrToOneThatSharesKeepsTheItems)
{
    IntArr list = listOf({ 1, 2 });
    const IntArr& same = list;
    list = same;
    EXPECT_EQ(list.GetAvailableNumM(), 2);
    IntArr shared(list);
    shared = list;
    list.SetItemM(7, 0);
    EXPECT_EQ(shared[0], 1);
}

TEST(IntArr, DelAllEmptiesTheListAndLeavesTheOneThatShared)
{
    IntArr list = listOf({ 1, 2 });
    const IntArr shared(list);
    EXPECT_EQ(list.DelAllM(), 1);
    EXPECT_EQ(list.GetBoundM(), 0);
    EXPECT_EQ(list.GetAvailableNumM(), 0);
    EXPECT_EQ(shared.GetBoundM(), 2);
    EXPECT_EQ(list.AddItemM(5), 0);
    EXPECT_EQ(shared[0], 1);
}

TEST(IntArr, MayBeMovedByBytes)
{
    alignas(IntArr) unsigned char from[sizeof(IntArr)];
    alignas(IntArr) unsigned char to[sizeof(IntArr)];
    (new (from) IntArr())->AddItemM(6);
    std::memcpy(to, from, sizeof to);
    IntArr* const moved = reinterpret_cast<IntArr*>(to);
    moved->AddItemM(7);
    EXPECT_EQ((*moved)[0] + (*moved)[1], 13);
    moved->~IntArr();
}

TEST(Int2DArr, HoldsPairsByIndex)
{
    Int2DArr list;
    const int corner[2] = { 30, 40 };
    EXPECT_EQ(list.SetItemM(corner, 1), 1);
    EXPECT_EQ(list.AddItemM(corner), 2);
    EXPECT_EQ(list[1][0], 30);
    list[2][1] = 5;
    int out[2] = {};
    EXPECT_EQ(list.GetItemM(out, 2), 1);
    EXPECT_EQ(out[0], 30);
    EXPECT_EQ(out[1], 5);
    EXPECT_EQ(aliveIndices(list), (std::vector<int> { 1, 2 }));
    EXPECT_EQ(list.SetItemM(nullptr, 0), 0);
}

TEST(Int2DArr, TakesAValueOutOfItselfWhileGrowing)
{
    Int2DArr list;
    const int first[2] = { 1, 2 };
    list.AddItemM(first);
    for (int k = 0; k < 100; ++k) {
        list.AddItemM(list[0]);
        list.InsertItemM(list[k], 0);
    }
    EXPECT_EQ(list[200][1], 2);
    EXPECT_EQ(list.GetAvailableNumM(), 201);
}

TEST(Int3DArr, HoldsTriplesThroughDeletion)
{
    Int3DArr list;
    for (int k = 0; k < 4; ++k) {
        const int triple[3] = { k, k + 1, k + 2 };
        list.AddItemM(triple);
    }
    list.DelItemM(0);
    EXPECT_EQ(list.GetFirstIdxM(), 1);
    EXPECT_EQ(list[3][2], 5);
    EXPECT_EQ(list.GetAvailableNumM(), 3);
    EXPECT_EQ(list.GetAvailableNumM(1), 2);
}
