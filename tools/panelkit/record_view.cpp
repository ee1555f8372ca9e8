#include "record_view.h"
#include <cstring>

const FieldCL* RecordViewCL::searchM(const char* name) const
{
    std::size_t place = 0;
    while (place < count_ && std::strcmp(fields_[place].name, name) != 0) {
        ++place;
    }
    found_[placeM(name)] = { name, shape_, count_, place };
    return place < count_ ? &fields_[place] : nullptr;
}
