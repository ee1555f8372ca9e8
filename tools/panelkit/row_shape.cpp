#include "row_shape.h"
#include <algorithm>

RowShapeCL::RowShapeCL(const GrammarCL& grammar)
{
    if (grammar.row != nullptr) {
        SectionEntryCL entry;
        entry.EachFieldM(*this, grammar.row);
    } else if (grammar.owner != nullptr) { // The pictures of new rotate buttons.
        SlotPictureCL().EachFieldM(*this);
    }
}

const RowShapeCL::TextCL* RowShapeCL::searchM(const char* field, std::size_t place) const
{
    const auto found = texts_.find(field);
    asked_.resize(std::max(asked_.size(), place + 1));
    asked_[place] = { field, found != texts_.end() ? &found->second : nullptr };
    return asked_[place].second;
}
