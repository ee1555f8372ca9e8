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
