// Null where lists want a pointer: refused, nothing read or changed.
#include "containers/arr_elements.h"
#include <gtest/gtest.h>

TEST(NullPointers, ListsNeitherReadNorWriteWithoutAFile)
{
    Arr<CountedCL> arr;
    fill(&arr, { 1, 2 });
    arr.FmInputEvrLstM(nullptr);
    arr.FmOutputEvrLstM(nullptr, "list");
    EXPECT_EQ(shown(arr), "12");
}

TEST(NullPointers, ListsGiveNoItemAway)
{
    Arr<CountedCL> arr;
    fill(&arr, { 1, 2 });
    CountedCL out;
    int index = 0;
    EXPECT_EQ(arr.GetItemM(nullptr, 0), 0);
    EXPECT_EQ(arr.GetItemM(nullptr, 9), 0);
    EXPECT_EQ(arr.GetFirstM(nullptr, &index), -1);
    EXPECT_EQ(arr.GetNextM(nullptr, &index, -1), -1);
    EXPECT_EQ(index, 0);
    EXPECT_EQ(arr.GetFirstM(&out, nullptr), -1);
    EXPECT_EQ(arr.GetNextPM(nullptr, -1), nullptr);
    EXPECT_EQ(arr.GetFirstPM(nullptr), nullptr);
    EXPECT_EQ(arr.GetLastPM(nullptr), nullptr);
    EXPECT_EQ(out.number, 0);
}
