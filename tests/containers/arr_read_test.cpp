#include "containers/arr_elements.h"
#include <climits>
#include <gtest/gtest.h>

// Access and iteration.

namespace {

// Alive 1, deleted, alive 3, deleted.
void fillWithGaps(Arr<CountedCL>* arr)
{
    fill(arr, { 1, 2, 3 });
    arr->AddItemM(CountedCL(4, DeletedTag));
    arr->DelItemM(1);
}

} // namespace

TEST(ArrRead, AvailabilityIsThatOfAnAliveSlotOfTheArray)
{
    Arr<CountedCL> arr;
    fillWithGaps(&arr);
    EXPECT_EQ(arr.CheckAvailableM(0), 1);
    EXPECT_EQ(arr.CheckAvailableM(1), 0);
    EXPECT_EQ(arr.CheckAvailableM(-1), 0);
    EXPECT_EQ(arr.CheckAvailableM(4), 0);
    arr.DelAllVirtualM();
    arr[0].SetDeleteTagM(AliveTag);
    EXPECT_EQ(arr.CheckAvailableM(0), 0); // Alive, but at the bound.
}

TEST(ArrRead, AvailableItemsBehindASlotAreCounted)
{
    Arr<CountedCL> arr;
    fillWithGaps(&arr);
    EXPECT_EQ(arr.GetAvailableNumM(-1), 2);
    EXPECT_EQ(arr.GetAvailableNumM(INT_MIN), 2);
    EXPECT_EQ(arr.GetAvailableNumM(0), 1);
    EXPECT_EQ(arr.GetAvailableNumM(2), 0);
    EXPECT_EQ(arr.GetAvailableNumM(3), 0);
    EXPECT_EQ(arr.GetAvailableNumM(INT_MAX), 0);
}

TEST(ArrRead, ItemIsCopiedAliveOrDeleted)
{
    Arr<CountedCL> arr;
    fillWithGaps(&arr);
    CountedCL out;
    EXPECT_EQ(arr.GetItemM(&out, 2), 1);
    EXPECT_EQ(out.number, 3);
    EXPECT_TRUE(out.IsAliveM());
    arr.GetItemM(&out, 1);
    EXPECT_EQ(out.number, 2);
    EXPECT_FALSE(out.IsAliveM());
}

TEST(ArrRead, ItemOutsideTheArrayMarksTheOutputDeleted)
{
    Arr<CountedCL> arr;
    fillWithGaps(&arr);
    for (const int bad : { -1, 4, INT_MIN, INT_MAX }) {
        CountedCL out(9);
        EXPECT_EQ(arr.GetItemM(&out, bad), 1);
        EXPECT_EQ(out.GetDeleteTagM(), 32);
        EXPECT_EQ(out.number, 9);
    }
}

TEST(ArrRead, PointersAreToSlotsOfTheArrayOnly)
{
    Arr<CountedCL> arr;
    fillWithGaps(&arr);
    EXPECT_EQ(arr.GetItemPM(1), &arr[1]);
    EXPECT_EQ(arr.ElementAtPM(1), &arr[1]);
    for (const int bad : { -1, 4, INT_MIN, INT_MAX }) {
        EXPECT_EQ(arr.GetItemPM(bad), nullptr);
        EXPECT_EQ(arr.ElementAtPM(bad), nullptr);
    }
}

TEST(ArrRead, ElementOutsideTheStoreIsASpareThatNoArrayShows)
{
    Arr<HeapCL> arr;
    fill(&arr, { 1, 2 });
    for (const int bad : { -1, 4, 1000, INT_MIN, INT_MAX }) {
        EXPECT_FALSE(arr.ElementAtM(bad).IsAliveM());
        arr[bad] = HeapCL(7);
        EXPECT_FALSE(arr[bad].IsAliveM());
        EXPECT_EQ(arr[bad].NumberM(), 0);
    }
    EXPECT_EQ(shown(arr), "12");
    EXPECT_EQ(&arr[3], &arr[0] + 3); // Inside the store, behind the bound.
}

TEST(ArrRead, IterationPassesOverDeletedSlots)
{
    Arr<CountedCL> arr;
    fillWithGaps(&arr);
    CountedCL out;
    int index = -5;
    EXPECT_EQ(arr.GetFirstM(&out, &index), 0);
    EXPECT_EQ(index, 0);
    EXPECT_EQ(out.number, 1);
    EXPECT_EQ(arr.GetNextM(&out, &index, index), 2);
    EXPECT_EQ(index, 2);
    EXPECT_EQ(out.number, 3);
    EXPECT_EQ(arr.GetNextM(&out, &index, index), -1);
    EXPECT_EQ(index, -1);
    EXPECT_EQ(out.number, 3);

    EXPECT_EQ(arr.GetFirstPM(&index), &arr[0]);
    EXPECT_EQ(index, 0);
    EXPECT_EQ(arr.GetNextPM(&index, 0), &arr[2]);
    EXPECT_EQ(index, 2);
    EXPECT_EQ(arr.GetNextPM(&index, 2), nullptr);
    EXPECT_EQ(index, -1);
    EXPECT_EQ(arr.GetFirstIdxM(), 0);
    EXPECT_EQ(arr.GetNextIdxM(0), 2);
    EXPECT_EQ(arr.GetNextIdxM(INT_MIN), 0);
    EXPECT_EQ(arr.GetNextIdxM(INT_MAX), -1);
}

TEST(ArrRead, LastAliveSlotIsFound)
{
    Arr<CountedCL> arr;
    int index = -5;
    EXPECT_EQ(arr.GetLastPM(&index), nullptr);
    EXPECT_EQ(index, -1);
    fillWithGaps(&arr);
    EXPECT_EQ(arr.GetLastPM(&index), &arr[2]);
    EXPECT_EQ(index, 2);
    arr.DelItemM(0);
    arr.DelItemM(2);
    index = -5;
    EXPECT_EQ(arr.GetLastPM(&index), nullptr);
    EXPECT_EQ(index, -1);
}

class OpenArr : public Arr<CountedCL>
{
public:
    const CountedCL* StoreM() { return getCurrentItemPrtM(); }
    bool IsInsideM(const CountedCL* slot) const
    {
        const auto* at = reinterpret_cast<const char*>(slot);
        const auto* begin = reinterpret_cast<const char*>(this);
        return at >= begin && at < begin + sizeof *this;
    }
};

TEST(ArrRead, FourSlotsLieInsideTheObjectAndMoreOnTheHeap)
{
    OpenArr arr;
    EXPECT_TRUE(arr.IsInsideM(arr.StoreM()));
    EXPECT_EQ(arr.StoreM(), &arr[0]);
    arr.AddSizeM(1);
    EXPECT_FALSE(arr.IsInsideM(arr.StoreM()));
    EXPECT_EQ(arr.StoreM(), &arr[0]);
    arr.DelAllM();
    EXPECT_TRUE(arr.IsInsideM(arr.StoreM()));
}
