#pragma once
#include "containers/tagged_arr.h"

// A list of ints with alive and deleted slots; see TaggedArr for what is shared and copied.
class IntArr : public TaggedArr<1>
{
public:
    // As those of TaggedArr.
    int SetItemM(int value, int index) { return TaggedArr::SetItemM(&value, index); }
    int AddItemM(int value) { return TaggedArr::AddItemM(&value); }
    int InsertItemM(int value, int index) { return TaggedArr::InsertItemM(&value, index); }

    // The int of a slot below the bound; unchecked.
    int operator[](int index) const { return *GetItemPM(index); }
    int& operator[](int index) { return *ElementAtPM(index); }
};
