#include "record_view.h"
#include <algorithm>
#include <cstring>

FieldCL& RecordViewCL::addM(const char* name, Verb verb, int parts)
{
    FieldCL& field = fields_.emplace_back();
    field.name = name;
    field.verb = verb;
    field.seen = next_ < end_ ? next_ : nullptr;
    field.parts = parts;
    next_ = std::min(next_ + parts, end_);
    return field;
}

const FieldCL* RecordViewCL::FindM(const char* name) const
{
    for (const FieldCL& field : fields_) {
        if (field.name == name || std::strcmp(field.name, name) == 0) {
            return &field;
        }
    }
    return nullptr;
}
