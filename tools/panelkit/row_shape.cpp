#include "row_shape.h"

RowShapeCL::RowShapeCL(const GrammarCL& grammar)
{
    if (grammar.row != nullptr) {
        SectionEntryCL entry;
        entry.EachFieldM(*this, grammar.row);
    } else if (grammar.owner != nullptr) { // The pictures of new rotate buttons.
        SlotPictureCL().EachFieldM(*this);
    }
}

const RowShapeCL::TextCL* RowShapeCL::searchM(const char* field) const
{
    const auto found = texts_.find(field);
    asked_.push_back({ field, found != texts_.end() ? &found->second : nullptr });
    return asked_.back().second;
}
