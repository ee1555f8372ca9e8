#pragma once
#include "containers/tagged_arr.h"

// A list of int triples with alive and deleted slots; see TaggedArr for what is shared and copied.
class Int3DArr : public TaggedArr<3>
{
public:
    // As those of TaggedArr.
    int SetItemM(const int triple[3], int index) { return TaggedArr::SetItemM(triple, index); }
    int AddItemM(const int triple[3]) { return TaggedArr::AddItemM(triple); }
    int InsertItemM(const int triple[3], int index) { return TaggedArr::InsertItemM(triple, index); }

    // The triple of a slot below the bound; unchecked.
    const int* operator[](int index) const { return GetItemPM(index); }
    int* operator[](int index) { return ElementAtPM(index); }
};
