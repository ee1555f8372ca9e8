#include "dialog/relation.h"
#include "baselib/gbk_texts.h"

void RelationCL::EachFieldM(FieldVisitorCL& visitor)
{
    visitor.IdM("control", control);
    visitor.IntsM("values", values, 3);
}

SectionStatus slReadRelations(VrIOCL& io, const std::function<void(RelationCL& relation)>& see)
{
    SectionReaderCL section(io, RelationHeader);
    section.OpenM();
    for (int i = 0; i < section.CountM(); ++i) {
        RelationCL relation;
        relation.EachFieldM(section.RecordM(i));
        see(relation);
    }
    return section.StatusM();
}
