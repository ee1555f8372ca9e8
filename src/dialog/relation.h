#pragma once
#include "records/section.h"
#include <functional>

// One relation between controls of a description file: three numbers that the application knows the meaning
// of.
struct RelationCL
{
    int control { 0 }; // The function id of the control that gets them.
    int values[3] {};  // What the application makes of them; see DControlCommonCL::AddRelationItemM.

    PANELKIT_API void EachFieldM(FieldVisitorCL& visitor);
};

// Calls see(relation), unless it is null, for each entry of "[相关对象信息]" in an open file.
PANELKIT_API SectionStatus slReadRelations(VrIOCL& io, const std::function<void(RelationCL& relation)>& see);
