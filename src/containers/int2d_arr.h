#pragma once
#include "containers/tagged_arr.h"

// A list of int pairs with alive and deleted slots; see TaggedArr for what is shared and copied.
class Int2DArr : public TaggedArr<2>
{
public:
    // As those of TaggedArr.
    int SetItemM(const int pair[2], int index) { return TaggedArr::SetItemM(pair, index); }
    int AddItemM(const int pair[2]) { return TaggedArr::AddItemM(pair); }
    int InsertItemM(const int pair[2], int index) { return TaggedArr::InsertItemM(pair, index); }

    // The pair of a slot below the bound; unchecked.
    const int* operator[](int index) const { return GetItemPM(index); }
    int* operator[](int index) { return ElementAtPM(index); }
};
