#include "controls/lists/tree_record.h"

template class PANELKIT_API Arr<DVrTreeCL>;

void DVrTreeCL::EachFieldM(FieldVisitorCL& visitor)
{
    lines_.VisitM(visitor, "items");
}

int DVrTreeCL::AddStringM(
    const int triple[3], const char* text, const char* selectedPicture, const char* normalPicture)
{
    if (triple == nullptr || text == nullptr || selectedPicture == nullptr || normalPicture == nullptr) {
        return 0;
    }
    lines_.AddM(triple, text, selectedPicture, normalPicture);
    return 1;
}
