#include "record_view.h"
#include <algorithm>
#include <cstring>

FieldCL& RecordViewCL::addM(const char* name, Verb verb, int parts)
{
    fields_.push_back({ name, verb, next_ < end_ ? next_ : nullptr, parts });
    next_ = std::min(next_ + parts, end_);
    return fields_.back();
}

const FieldCL* RecordViewCL::FindM(const char* name) const
{
    for (const FieldCL& field : fields_) {
        if (std::strcmp(field.name, name) == 0) {
            return &field;
        }
    }
    return nullptr;
}
