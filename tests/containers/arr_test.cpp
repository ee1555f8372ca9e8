#include "containers/arr_elements.h"
#include <climits>
#include <gtest/gtest.h>

// Construction, growth and storing.

TEST(Arr, StartsEmptyOnFourSlots)
{
    Arr<CountedCL> arr;
    EXPECT_EQ(arr.GetLengthM(), 4);
    EXPECT_EQ(arr.GetBoundM(), 0);
    EXPECT_EQ(arr.GetAvailableNumM(), 0);
    for (int i = 0; i < 4; ++i) {
        EXPECT_FALSE(arr[i].IsAliveM());
    }
}

TEST(Arr, IsMadeWithTheSlotsAskedForButAtLeastFour)
{
    EXPECT_EQ(Arr<CountedCL>(-3).GetLengthM(), 4);
    EXPECT_EQ(Arr<CountedCL>(4).GetLengthM(), 4);
    Arr<CountedCL> five(5);
    EXPECT_EQ(five.GetLengthM(), 5);
    EXPECT_EQ(five.GetBoundM(), 0);
    EXPECT_EQ(five.GetAvailableNumM(), 0);
    EXPECT_FALSE(five[4].IsAliveM());
}

TEST(Arr, StoreThatCannotExistIsRefusedAtConstruction)
{
    Arr<CountedCL> arr(INT_MAX);
    EXPECT_EQ(arr.GetLengthM(), 4);
    EXPECT_EQ(arr.AddItemM(CountedCL(1)), 0);
}

TEST(Arr, FifthAddedItemDoublesTheStore)
{
    Arr<CountedCL> arr;
    fill(&arr, { 0, 1, 2, 3 });
    EXPECT_EQ(arr.GetLengthM(), 4);
    EXPECT_EQ(arr.AddItemM(CountedCL(4)), 4);
    EXPECT_EQ(arr.GetLengthM(), 8);
    EXPECT_EQ(arr.GetAvailableNumM(), 5);
    EXPECT_EQ(shown(arr), "01234");
}

TEST(Arr, StoringFarBeyondTheStoreGrowsToThere)
{
    Arr<CountedCL> arr;
    EXPECT_EQ(arr.SetItemM(CountedCL(7), 20), 1);
    EXPECT_EQ(arr.GetLengthM(), 21);
    EXPECT_EQ(arr.GetBoundM(), 21);
    EXPECT_EQ(arr.GetAvailableNumM(), 1);
    EXPECT_EQ(shown(arr), std::string(20, '.') + "7");
}

TEST(Arr, StoringAtANegativeIndexDoesNothing)
{
    Arr<CountedCL> arr;
    EXPECT_EQ(arr.SetItemM(CountedCL(7), -1), 1);
    EXPECT_EQ(arr.SetItemM(CountedCL(7), INT_MIN), 1);
    EXPECT_EQ(arr.GetBoundM(), 0);
    EXPECT_EQ(arr.GetAvailableNumM(), 0);
}

TEST(Arr, StoringAtAHugeIndexIsRefusedAndChangesNothing)
{
    Arr<CountedCL> arr;
    fill(&arr, { 1, 2 });
    for (const int index : { 2'000'000'000, INT_MAX }) {
        EXPECT_EQ(arr.SetItemM(CountedCL(7), index), 0);
        EXPECT_EQ(arr.InsertItemM(CountedCL(7), index), 0);
        EXPECT_EQ(arr.InitialSizeM(index), 0);
        EXPECT_EQ(arr.AddSizeM(index), 0);
    }
    EXPECT_EQ(arr.GetLengthM(), 4);
    EXPECT_EQ(arr.GetBoundM(), 2);
    EXPECT_EQ(shown(arr), "12");
}

TEST(Arr, DeletedItemStoredOverAnAliveOneStaysCounted)
{
    Arr<CountedCL> arr;
    fill(&arr, { 1 });
    arr.SetItemM(CountedCL(2, DeletedTag), 0);
    EXPECT_EQ(arr.CheckAvailableM(0), 0);
    EXPECT_EQ(arr.GetAvailableNumM(), 1);
    arr.SetItemM(CountedCL(3), 0);
    EXPECT_EQ(arr.GetAvailableNumM(), 2);
    arr.SetItemM(CountedCL(4), 0); // Alive over alive.
    EXPECT_EQ(arr.GetAvailableNumM(), 2);
    arr.SetItemM(CountedCL(5, DeletedTag), 1);
    EXPECT_EQ(arr.GetAvailableNumM(), 2);
    EXPECT_EQ(arr.GetBoundM(), 2);
}

TEST(Arr, SizeIsAddedExactly)
{
    Arr<CountedCL> arr;
    EXPECT_EQ(arr.AddSizeM(0), 1);
    EXPECT_EQ(arr.AddSizeM(-5), 1);
    EXPECT_EQ(arr.GetLengthM(), 4);
    arr.AddSizeM(1);
    EXPECT_EQ(arr.GetLengthM(), 5);
    arr.AddSizeM(3);
    EXPECT_EQ(arr.GetLengthM(), 8);
    arr.InitialSizeM(8);
    arr.InitialSizeM(INT_MIN);
    EXPECT_EQ(arr.GetLengthM(), 8);
    arr.InitialSizeM(11);
    EXPECT_EQ(arr.GetLengthM(), 11);
    EXPECT_EQ(arr.GetBoundM(), 0);
}

TEST(Arr, GrowthAssignsOutOfTheObjectAndMovesHeapElementsByTheirBytes)
{
    Arr<CountedCL> arr;
    fill(&arr, { 1, 2, 3, 4 });
    CountedCL::StartCountingM();
    arr.AddSizeM(2);
    EXPECT_EQ(CountedCL::constructed, 6);
    EXPECT_EQ(CountedCL::assigned, 4);
    EXPECT_EQ(CountedCL::destroyed, 0);
    CountedCL::StartCountingM();
    arr.AddSizeM(3);
    EXPECT_EQ(CountedCL::constructed, 3);
    EXPECT_EQ(CountedCL::assigned, 0);
    EXPECT_EQ(CountedCL::destroyed, 0);
    EXPECT_EQ(shown(arr), "1234");
}

TEST(Arr, DestructionEndsEveryElementOfBothStores)
{
    CountedCL::StartCountingM();
    {
        Arr<CountedCL> arr;
        arr.SetItemM(CountedCL(1), 9);
        arr.InsertItemM(CountedCL(2), 3);
        arr.AddSizeM(5);
    }
    EXPECT_EQ(CountedCL::LiveM(), 0);
}

TEST(Arr, InsertingIntoAFullStoreGrowsByTheIncrement)
{
    Arr<CountedCL> arr;
    fill(&arr, { 0, 1, 2, 3 });
    EXPECT_EQ(arr.InsertItemM(CountedCL(9), 1), 1);
    EXPECT_EQ(arr.GetLengthM(), 14);
    EXPECT_EQ(arr.GetAvailableNumM(), 5);
    EXPECT_EQ(shown(arr), "09123");
    arr.InitialSizeM(14);
    while (arr.GetBoundM() < 14) {
        arr.AddItemM(CountedCL(5));
    }
    arr.SetIncrementM(3);
    arr.SetIncrementM(0);
    arr.SetIncrementM(-1);
    arr.InsertItemM(CountedCL(8), 0);
    EXPECT_EQ(arr.GetLengthM(), 17);
}

TEST(Arr, InsertingDeletedItemIsNotCounted)
{
    Arr<CountedCL> arr;
    fill(&arr, { 1, 2 });
    arr.InsertItemM(CountedCL(9, DeletedTag), 0);
    EXPECT_EQ(shown(arr), ".12");
    EXPECT_EQ(arr.GetAvailableNumM(), 2);
}

TEST(Arr, InsertingAtOrBehindTheBoundStores)
{
    Arr<CountedCL> arr;
    fill(&arr, { 1 });
    arr.InsertItemM(CountedCL(2), 1);
    EXPECT_EQ(shown(arr), "12");
    arr.InsertItemM(CountedCL(3), 5);
    EXPECT_EQ(shown(arr), "12...3");
    EXPECT_EQ(arr.GetLengthM(), 8);
    EXPECT_EQ(arr.InsertItemM(CountedCL(4), -1), 0);
    EXPECT_EQ(shown(arr), "12...3");
}

TEST(Arr, ItemOfTheSameArrayCanBeStoredAndInserted)
{
    Arr<HeapCL> arr;
    fill(&arr, { 1, 2, 3, 4 });
    arr.AddItemM(arr[1]);    // Grows out of the object.
    arr.SetItemM(arr[2], 8); // Grows the heap store.
    EXPECT_EQ(shown(arr), "12342...3");
    arr.InsertItemM(arr[8], 0);
    arr.InsertItemM(arr[0], 2);
    EXPECT_EQ(shown(arr),
        "31323"
        "42...3");
    arr.InsertItemM(arr[arr.GetBoundM()], 1); // The slot that the moved ones overwrite.
    EXPECT_EQ(shown(arr), "3.132342...3");
    arr[arr.GetBoundM()] = HeapCL(8);
    arr.InsertItemM(arr[arr.GetBoundM()], 0);
    arr[arr.GetLengthM() - 1] = HeapCL(7);
    arr.InsertItemM(arr[arr.GetLengthM() - 1], 0);
    EXPECT_EQ(shown(arr), "783.132342...3");
}

TEST(Arr, InsertingGivesNothingBackThatAnAliveItemShares)
{
    Arr<SharingCL> arr;
    fill(&arr, { 1, 2, 3 });
    arr.DelItemM(0);
    arr.PurgeDeletedItemM(); // The slot behind still shares the last one's.
    SharingCL::givenBack.clear();
    arr.InsertItemM(SharingCL(), 0);
    EXPECT_EQ(SharingCL::givenBack, "");
    arr.PurgeDeletedItemM();
    EXPECT_EQ(shown(arr), "23");
    ASSERT_EQ(arr[2].number, 3);
    arr.InsertItemM(arr[2], 0);
    EXPECT_EQ(SharingCL::givenBack, "");
    EXPECT_EQ(shown(arr), "323");
}

TEST(Arr, AddingByIndexRevivesADeletedSlotInPlace)
{
    Arr<CountedCL> arr;
    fill(&arr, { 1, 2, 3 });
    arr.DelItemM(1);
    int index = -5;
    EXPECT_EQ(arr.AddItemM(1, &index), 1);
    EXPECT_EQ(index, 1);
    EXPECT_EQ(shown(arr), "123");
    EXPECT_EQ(arr.GetAvailableNumM(), 3);
}

TEST(Arr, AddingByIndexAppendsACopyOfAnAliveSlot)
{
    Arr<HeapCL> arr;
    fill(&arr, { 1, 2, 3, 4 });
    int index = -5;
    EXPECT_EQ(arr.AddItemM(1, &index), 4);
    EXPECT_EQ(index, 4);
    EXPECT_EQ(shown(arr), "12342");
    EXPECT_EQ(arr.GetLengthM(), 14); // By the increment, not doubled.
    EXPECT_EQ(arr.AddItemM(0, nullptr), 5);
}

TEST(Arr, AddingByAnIndexOutsideTheStoreIsRefused)
{
    Arr<CountedCL> arr;
    fill(&arr, { 1 });
    for (const int bad : { -1, INT_MIN, 4, INT_MAX }) {
        int index = 0;
        EXPECT_EQ(arr.AddItemM(bad, &index), -1);
        EXPECT_EQ(index, -1);
    }
    EXPECT_EQ(shown(arr), "1");
}

TEST(Arr, AddingByAnIndexBehindTheBoundRevivesTheSlotThere)
{
    Arr<CountedCL> arr;
    fill(&arr, { 1 });
    int index = -5;
    EXPECT_EQ(arr.AddItemM(3, &index), 3);
    EXPECT_TRUE(arr[3].IsAliveM());
    EXPECT_EQ(arr.GetAvailableNumM(), 2);
    EXPECT_EQ(arr.GetBoundM(), 1);
}

TEST(Arr, MergedSlotsKeepWhatTheyHeldYetCountAsAvailable)
{
    Arr<CountedCL> arr;
    Arr<CountedCL> other;
    fill(&arr, { 1, 2, 3 });
    fill(&other, { 4, 5, 6 });
    other.DelItemM(1);
    EXPECT_EQ(arr.MergeM(other), 1);
    EXPECT_EQ(arr.GetLengthM(), 5);
    EXPECT_EQ(arr.GetBoundM(), 5);
    EXPECT_EQ(arr.GetAvailableNumM(), 5);
    EXPECT_EQ(shown(arr), "123..");
    EXPECT_EQ(numberOf(*arr.GetItemPM(3)), 0);
}

class MergingCL : public CountedCL
{
public:
    using CountedCL::CountedCL;
    void SetByMergeM(const VrBaseCL& other, int index) override
    {
        *this = static_cast<const MergingCL&>(other);
        number += 10 * index;
    }
};

TEST(Arr, MergingHandsEachAliveItemAndItsNewIndexToTheSlot)
{
    Arr<MergingCL> arr;
    Arr<MergingCL> other;
    fill(&arr, { 1, 2, 3 });
    fill(&other, { 4, 5, 6, 7, 8, 9 });
    other.DelItemM(1);
    arr.MergeM(other);
    EXPECT_EQ(arr.GetLengthM(), 8);
    EXPECT_EQ(shown(arr), "1233446576879");
    arr.MergeM(arr);
    EXPECT_EQ(arr.GetBoundM(), 16);
    EXPECT_EQ(arr.GetAvailableNumM(), 16);
    EXPECT_EQ(arr.GetItemPM(15)->number, 79 + 150);
}

TEST(Arr, MergingMoreAliveItemsThanCountedStaysInsideTheStore)
{
    Arr<MergingCL> other(40);
    other.SetItemM(MergingCL(1, DeletedTag), 39);
    for (int i = 0; i < 40; ++i) {
        other[i].SetDeleteTagM(AliveTag); // Behind the array's back.
    }
    Arr<MergingCL> arr;
    arr.MergeM(other);
    EXPECT_EQ(arr.GetBoundM(), 40);
    EXPECT_GE(arr.GetLengthM(), 40);
}
