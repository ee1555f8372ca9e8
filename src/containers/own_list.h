#pragma once
#include "containers/string_arr.h"
#include <utility>

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
    OwnListCL(OwnListCL&& other) noexcept
        : ListTP()
    {
        *this = std::move(other);
    }
    OwnListCL& operator=(const OwnListCL& other)
    {
        ListTP::operator=(other);
        return *this;
    }
    OwnListCL& operator=(OwnListCL&& other) noexcept // They exchange what they hold.
    {
        ListTP::SwapListM(other);
        return *this;
    }
};
// Texts as member of a record.
using TextListCL = OwnListCL<VrStringArr>;
