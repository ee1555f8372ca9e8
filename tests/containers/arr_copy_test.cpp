#include "containers/arr_elements.h"
#include "containers/int_arr.h"
#include <gtest/gtest.h>
#include <memory>

// Assignment, and copies that share a heap store.

namespace {

void fillSix(Arr<HeapCL>* arr)
{
    fill(arr, { 1, 2, 3, 4, 5, 6 });
}

} // namespace

TEST(ArrAssign, CopyOfALargeStoreIsFourSlotsLonger)
{
    Arr<HeapCL> arr(14);
    fill(&arr, { 1, 2, 3 });
    arr.DelItemM(1);
    arr.SetIncrementM(7);
    Arr<HeapCL> copy;
    fill(&copy, { 9, 9, 9, 9, 9 });
    copy = arr;
    EXPECT_EQ(copy.GetLengthM(), 18);
    EXPECT_EQ(shown(copy), "1.3");
    EXPECT_EQ(copy.GetAvailableNumM(), 2);
    EXPECT_FALSE(copy[17].IsAliveM());
    copy.SetItemM(HeapCL(5), 17);
    copy.InsertItemM(HeapCL(6), 0);
    EXPECT_EQ(copy.GetLengthM(), 25); // The increment came along.
    EXPECT_EQ(shown(arr), "1.3");     // An independent copy.
}

TEST(ArrAssign, CopyOfASmallArrayReturnsIntoTheObject)
{
    Arr<HeapCL> arr;
    fill(&arr, { 1, 2 });
    Arr<HeapCL> copy;
    fillSix(&copy);
    copy = arr;
    EXPECT_EQ(copy.GetLengthM(), 4);
    EXPECT_EQ(shown(copy), "12");
    EXPECT_EQ(copy.GetAvailableNumM(), 2);
    copy.SetItemM(HeapCL(7), 0);
    EXPECT_EQ(shown(arr), "12");
}

TEST(ArrAssign, SelfAssignmentChangesNothing)
{
    Arr<HeapCL> arr;
    fillSix(&arr);
    const Arr<HeapCL>& same = arr;
    arr = same;
    EXPECT_EQ(arr.GetLengthM(), 8);
    EXPECT_EQ(shown(arr), "123456");
}

TEST(ArrShare, CopyConstructedArraysSeeOneHeapStoreFreedByTheLast)
{
    const int before = HeapCL::live;
    {
        auto arr = std::make_unique<Arr<HeapCL>>();
        fillSix(arr.get());
        Arr<HeapCL> copy(*arr);
        Arr<HeapCL> third(copy);
        EXPECT_EQ(copy.GetLengthM(), 8);
        EXPECT_EQ(copy.GetBoundM(), 6);
        EXPECT_EQ(copy.GetAvailableNumM(), 6);
        EXPECT_EQ(copy.GetItemPM(0), arr->GetItemPM(0));
        arr->SetItemM(HeapCL(9), 2);
        EXPECT_EQ(shown(copy), "129456");
        arr.reset();
        EXPECT_EQ(shown(copy), "129456");
        EXPECT_EQ(shown(third), "129456");
    }
    EXPECT_EQ(HeapCL::live, before);
}

TEST(ArrShare, InlineElementsAndNumbersAreCopied)
{
    Arr<HeapCL> arr;
    fill(&arr, { 1, 2, 3 });
    arr.DelItemM(1);
    arr.SetIncrementM(2);
    Arr<HeapCL> copy(arr);
    arr.SetItemM(HeapCL(9), 0);
    EXPECT_EQ(shown(copy), "1.3");
    EXPECT_EQ(copy.GetAvailableNumM(), 2);
    copy.AddItemM(HeapCL(4));
    copy.InsertItemM(HeapCL(5), 0);
    EXPECT_EQ(copy.GetLengthM(), 6);
}

TEST(ArrShare, GrowingOneCopyLeavesTheOtherItsElements)
{
    const int before = HeapCL::live;
    {
        Arr<HeapCL> arr;
        fillSix(&arr);
        Arr<HeapCL> copy(arr);
        copy.AddSizeM(1);
        EXPECT_EQ(copy.GetLengthM(), 9);
        copy.SetItemM(HeapCL(9), 0);
        EXPECT_EQ(shown(copy), "923456");
        EXPECT_EQ(shown(arr), "123456");
        arr.AddSizeM(1); // The only owner now: moved by bytes.
        EXPECT_EQ(shown(arr), "123456");
    }
    EXPECT_EQ(HeapCL::live, before);
}

TEST(ArrShare, InsertingIntoASharedStoreLosesNoElement)
{
    const int before = HeapCL::live;
    {
        Arr<HeapCL> arr;
        fillSix(&arr);
        Arr<HeapCL> copy(arr);
        copy.InsertItemM(HeapCL(9), 1);
        EXPECT_EQ(shown(copy), "1923456");
        EXPECT_EQ(shown(arr), "192345"); // The same store, seen up to its own bound.
        copy.InsertItemM(HeapCL(8), 0);
        copy.InsertItemM(HeapCL(7), 0); // Grows: no longer shared.
        EXPECT_EQ(shown(copy), "781923456");
        EXPECT_EQ(shown(arr), "819234");
    }
    EXPECT_EQ(HeapCL::live, before);
}

TEST(ArrShare, DeletingAllOfOneCopyDeletesTheSharedItemsButNotTheirStore)
{
    const int before = HeapCL::live;
    {
        Arr<HeapCL> arr;
        fillSix(&arr);
        {
            Arr<HeapCL> copy(arr);
            copy.DelAllM();
            EXPECT_EQ(copy.GetLengthM(), 4);
            copy.AddItemM(HeapCL(7));
            EXPECT_EQ(copy.GetAvailableNumM(), 1);
        }
        EXPECT_EQ(shown(arr), "......");
        EXPECT_EQ(arr.GetItemPM(5)->NumberM(), 6);
        arr.AddItemM(HeapCL(7));
        EXPECT_EQ(shown(arr), "......7");
    }
    EXPECT_EQ(HeapCL::live, before);
}

TEST(ArrShare, AssigningFromTheOtherOwnerMakesAnIndependentCopy)
{
    const int before = HeapCL::live;
    {
        Arr<HeapCL> arr;
        fillSix(&arr);
        Arr<HeapCL> copy(arr);
        copy = arr;
        EXPECT_EQ(copy.GetLengthM(), 12);
        EXPECT_EQ(shown(copy), "123456");
        EXPECT_EQ(copy.GetAvailableNumM(), 6);
        arr.SetItemM(HeapCL(9), 0);
        EXPECT_EQ(shown(copy), "123456");
        EXPECT_EQ(shown(arr), "923456");
    }
    EXPECT_EQ(HeapCL::live, before);
}

TEST(ArrShare, PurgingOneCopyIntoItsObjectLeavesTheStoreToTheOther)
{
    const int before = HeapCL::live;
    {
        Arr<HeapCL> arr;
        fillSix(&arr);
        Arr<HeapCL> copy(arr);
        arr.DelItemM(0);
        arr.DelItemM(1);
        arr.DelItemM(3);
        IntArr remap;
        arr.PurgeAllM(&remap);
        EXPECT_EQ(arr.GetLengthM(), 4);
        EXPECT_EQ(shown(arr), "356");
        EXPECT_EQ(copy.GetLengthM(), 8);
        EXPECT_EQ(shown(copy), "356...");
    }
    EXPECT_EQ(HeapCL::live, before);
}

TEST(ArrShare, MergingASharedStoreIntoItsOtherOwnerIsSafe)
{
    const int before = HeapCL::live;
    {
        Arr<HeapCL> arr;
        fillSix(&arr);
        Arr<HeapCL> copy(arr);
        copy.MergeM(arr);
        EXPECT_EQ(copy.GetBoundM(), 12);
        EXPECT_EQ(copy.GetAvailableNumM(), 12);
        EXPECT_EQ(shown(arr), "123456");
    }
    EXPECT_EQ(HeapCL::live, before);
}
