#pragma once
#include "containers/string_arr.h"

// A list as member of a record: copying the record copies it, while copies of a plain list share its store.
template <class ListTP> class OwnListCL : public ListTP
{
public:
    OwnListCL() = default;
    OwnListCL(const OwnListCL& other)
        : ListTP()
    {
        *this = other;
    }
    OwnListCL& operator=(const OwnListCL& other)
    {
        ListTP::operator=(other);
        return *this;
    }
};
// Texts as member of a record.
using TextListCL = OwnListCL<VrStringArr>;
