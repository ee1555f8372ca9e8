#include "containers/arr_elements.h"
#include "containers/int_arr.h"
#include <climits>
#include <gtest/gtest.h>

// Deleting, purging and swapping.

namespace {

constexpr int Gone = static_cast<int>(0x80000001U);

// An array of alive items 0, 1, 2... where pattern has 'a' and deleted ones elsewhere.
Arr<CountedCL> patterned(const std::string& pattern)
{
    Arr<CountedCL> arr;
    for (std::size_t i = 0; i < pattern.size(); ++i) {
        arr.AddItemM(CountedCL(static_cast<int>(i), pattern[i] == 'a' ? AliveTag : DeletedTag));
    }
    return arr;
}

std::string mapping(const IntArr& remap)
{
    std::string text;
    for (int i = 0; i < remap.GetBoundM(); ++i) {
        text += remap[i] == Gone ? "-" : std::to_string(remap[i]);
    }
    return text;
}

} // namespace

TEST(ArrDelete, DeletedSlotInTheMiddleKeepsItsPlace)
{
    Arr<CountedCL> arr = patterned("aaa");
    EXPECT_EQ(arr.DelItemM(1), 1);
    EXPECT_EQ(arr.GetBoundM(), 3);
    EXPECT_EQ(arr.GetAvailableNumM(), 2);
    EXPECT_EQ(arr.GetFirstIdxM(), 0);
    EXPECT_EQ(arr.GetNextIdxM(0), 2);
    EXPECT_EQ(arr.GetNextIdxM(2), -1);
    EXPECT_EQ(arr.GetItemPM(1), &arr[1]);
    EXPECT_EQ(arr[1].GetDeleteTagM(), 32);
    EXPECT_EQ(arr[1].number, 1);
}

TEST(ArrDelete, OnlyTheLastSlotIsTrimmed)
{
    Arr<CountedCL> arr = patterned("aaa");
    arr.DelItemM(1);
    EXPECT_EQ(arr.GetBoundM(), 3);
    arr.DelItemM(2);
    EXPECT_EQ(arr.GetBoundM(), 2);
    EXPECT_EQ(shown(arr), "0.");
    arr.DelItemM(1); // Deleted already: only trimmed.
    EXPECT_EQ(arr.GetBoundM(), 1);
    EXPECT_EQ(arr.GetAvailableNumM(), 1);
}

TEST(ArrDelete, DeletingOutsideTheArrayDoesNothing)
{
    Arr<CountedCL> arr = patterned("aa");
    for (const int bad : { -1, INT_MIN, 2, 3, 100, INT_MAX }) {
        EXPECT_EQ(arr.DelItemM(bad), 1);
    }
    EXPECT_EQ(shown(arr), "01");
    EXPECT_EQ(arr.GetAvailableNumM(), 2);
}

TEST(ArrDelete, DeletingAllVirtuallyKeepsStoreAndIncrement)
{
    Arr<CountedCL> arr = patterned("aaadaa");
    arr.SetIncrementM(3);
    EXPECT_EQ(arr.DelAllVirtualM(), 1);
    EXPECT_EQ(arr.GetLengthM(), 8);
    EXPECT_EQ(arr.GetBoundM(), 0);
    EXPECT_EQ(arr.GetAvailableNumM(), 0);
    for (int i = 0; i < 6; ++i) {
        EXPECT_FALSE(arr[i].IsAliveM());
        EXPECT_EQ(arr[i].number, i);
    }
    arr.SetItemM(CountedCL(1), 7);
    arr.InsertItemM(CountedCL(2), 0);
    EXPECT_EQ(arr.GetLengthM(), 11);
}

TEST(ArrDelete, DeletingAllDropsTheHeapStoreAndResetsTheIncrement)
{
    Arr<CountedCL> arr = patterned("aaaaaa");
    arr.SetIncrementM(3);
    CountedCL::StartCountingM();
    EXPECT_EQ(arr.DelAllM(), 1);
    EXPECT_EQ(CountedCL::destroyed, 8);
    EXPECT_EQ(CountedCL::constructed, 0);
    EXPECT_EQ(arr.GetLengthM(), 4);
    EXPECT_EQ(arr.GetBoundM(), 0);
    EXPECT_EQ(arr.GetAvailableNumM(), 0);
    fill(&arr, { 1, 2, 3, 4 }); // The slots inside the object have been deleted too.
    EXPECT_EQ(arr.GetAvailableNumM(), 4);
    arr.InsertItemM(CountedCL(2), 0);
    EXPECT_EQ(arr.GetLengthM(), 14);
}

TEST(ArrDelete, DeletingAllOfASmallArrayResetsTheIncrement)
{
    Arr<CountedCL> arr = patterned("aa");
    arr.SetIncrementM(3);
    arr.DelAllM();
    EXPECT_EQ(arr.GetBoundM(), 0);
    EXPECT_FALSE(arr[0].IsAliveM());
    EXPECT_FALSE(arr[1].IsAliveM());
    fill(&arr, { 1, 2, 3, 4 });
    arr.InsertItemM(CountedCL(2), 0);
    EXPECT_EQ(arr.GetLengthM(), 14);
}

TEST(ArrDelete, PurgingDeletedItemsClosesTheGapsInTheSameStore)
{
    Arr<CountedCL> arr = patterned("dadaa");
    EXPECT_EQ(arr.PurgeDeletedItemM(), 1);
    EXPECT_EQ(shown(arr), "134");
    EXPECT_EQ(arr.GetAvailableNumM(), 3);
    EXPECT_EQ(arr.GetLengthM(), 8);
    EXPECT_TRUE(arr[3].IsAliveM()); // Slots above the bound keep what they held...
    EXPECT_EQ(arr[4].number, 4);
    arr.AddItemM(CountedCL(9)); // ...so storing over an alive one there doesn't count.
    EXPECT_EQ(shown(arr), "1349");
    EXPECT_EQ(arr.GetAvailableNumM(), 3);
}

TEST(ArrDelete, PurgingDeletedItemsCountsAnew)
{
    Arr<CountedCL> arr = patterned("aa");
    arr.SetItemM(CountedCL(5, DeletedTag), 0); // Still counted.
    arr.PurgeDeletedItemM();
    EXPECT_EQ(arr.GetAvailableNumM(), 1);
    EXPECT_EQ(shown(arr), "1");

    Arr<CountedCL> empty;
    empty.AddItemM(2, nullptr); // Counted behind the bound.
    empty.PurgeDeletedItemM();
    EXPECT_EQ(empty.GetAvailableNumM(), 0);
    EXPECT_EQ(empty.GetBoundM(), 0);
}

TEST(ArrDelete, PurgingDeletedItemsAssignsOnlyWhatMoves)
{
    Arr<CountedCL> arr = patterned("aadaa");
    CountedCL::StartCountingM();
    arr.PurgeDeletedItemM();
    EXPECT_EQ(CountedCL::assigned, 2);
    EXPECT_EQ(CountedCL::constructed, 0);
    EXPECT_EQ(CountedCL::destroyed, 0);
}

TEST(ArrPurgeAll, TellsTheNewIndexOfEveryOldOne)
{
    Arr<CountedCL> arr = patterned("adada");
    IntArr remap;
    EXPECT_EQ(arr.PurgeAllM(&remap), 1);
    EXPECT_EQ(mapping(remap), "0-1-2");
    EXPECT_EQ(remap[1], INT_MIN + 1);
    EXPECT_EQ(arr.GetBoundM(), 3);
    EXPECT_EQ(shown(arr), "024");
    EXPECT_EQ(arr.GetAvailableNumM(), 3);
}

TEST(ArrPurgeAll, ReturnsIntoTheObjectWhenTheRestFits)
{
    Arr<CountedCL> arr = patterned("ddaaaaa");
    IntArr remap;
    arr.PurgeAllM(&remap);
    EXPECT_EQ(arr.GetLengthM(), 8); // Five are left.
    EXPECT_EQ(shown(arr), "23456");
    EXPECT_FALSE(arr[5].IsAliveM()); // The slots that moved are marked deleted.
    EXPECT_FALSE(arr[6].IsAliveM());
    arr.DelItemM(0);
    CountedCL::StartCountingM();
    arr.PurgeAllM(&remap);
    EXPECT_EQ(arr.GetLengthM(), 4);
    EXPECT_EQ(shown(arr), "3456");
    EXPECT_EQ(mapping(remap).substr(0, 5), "-0123");
    EXPECT_EQ(CountedCL::assigned, 8);  // Four down in the block, four into the object.
    EXPECT_EQ(CountedCL::destroyed, 0); // The released elements end without a destructor.
}

TEST(ArrPurgeAll, SmallArrayInALargeStoreStaysThere)
{
    Arr<CountedCL> arr(9);
    fill(&arr, { 1, 2, 3, 4 });
    arr.DelItemM(1);
    IntArr remap;
    arr.PurgeAllM(&remap);
    EXPECT_EQ(arr.GetLengthM(), 9); // The old bound was below five.
    EXPECT_EQ(shown(arr), "134");
    EXPECT_FALSE(arr[3].IsAliveM());
}

TEST(ArrPurgeAll, LeavesTheAvailableCountAndAllowsNoMapping)
{
    Arr<CountedCL> arr = patterned("aa");
    arr.SetItemM(CountedCL(5, DeletedTag), 0); // Still counted.
    arr.PurgeAllM(nullptr);
    EXPECT_EQ(shown(arr), "1");
    EXPECT_EQ(arr.GetAvailableNumM(), 2);
    Arr<CountedCL> empty;
    IntArr remap;
    EXPECT_EQ(empty.PurgeAllM(&remap), 1);
    EXPECT_EQ(remap.GetBoundM(), 0);
}

TEST(ArrSwap, ExchangesItemsWithTheirTags)
{
    CountedCL::StartCountingM();
    Arr<CountedCL> arr = patterned("aad");
    CountedCL::StartCountingM();
    EXPECT_EQ(arr.SwapM(0, 2), 1);
    EXPECT_EQ(CountedCL::assigned, 3);
    EXPECT_EQ(CountedCL::constructed, 1);
    EXPECT_EQ(shown(arr), ".10");
    EXPECT_EQ(arr.GetAvailableNumM(), 2);
    EXPECT_EQ(arr.SwapM(1, 1), 1);
    EXPECT_EQ(shown(arr), ".10");
}

TEST(ArrSwap, RefusesAnIndexOutsideTheArray)
{
    Arr<CountedCL> arr = patterned("aa");
    for (const int bad : { -1, 2, 3, INT_MIN, INT_MAX }) {
        EXPECT_EQ(arr.SwapM(0, bad), 0);
        EXPECT_EQ(arr.SwapM(bad, 1), 0);
    }
    EXPECT_EQ(shown(arr), "01");
}
