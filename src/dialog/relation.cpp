#include "dialog/relation.h"
#include "baselib/gbk_texts.h"

void RelationCL::EachFieldM(FieldVisitorCL& visitor)
{
    visitor.IdM("control", control);
    visitor.IntsM("values", values, 3);
}

SectionStatus slReadRelations(VrIOCL& io, const std::function<void(RelationCL& relation)>& see)
{
    RelationCL relation;
    FieldCounterCL values;
    relation.EachFieldM(values);
    SectionReaderCL section(io, RelationHeader);
    section.OpenM(values.ValuesM());
    for (int i = 0; i < section.CountM(); ++i) {
        relation = RelationCL();
        relation.EachFieldM(section.RecordM(i));
        if (see != nullptr) {
            see(relation);
        }
    }
    return section.StatusM();
}
