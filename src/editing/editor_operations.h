#pragma once
#include "editing/editor_state.h"

// What the operations of an editor share.

// Whether its records can neither be inserted nor deleted.
inline bool hasFixedRecords(int grammar)
{
    return grammarOf(grammar).head == HeadKind::Comments;
}
// A record's values as they are, for slFormsOf.
std::vector<NamedTextCL> namedTextsOf(const EditPlanCL& plan, int grammar, int record);
// A value's number in its record, by the name of its field; -1: none.
int numberOfValue(const SeenSectionCL& section, int record, const char* field, int part = 0);
// Records of a section have other places from now on: writes those into what names them by place. False when
// that isn't sound.
bool renumber(EditPlanCL& plan, int grammar, const std::function<int(int place)>& placeOf);
