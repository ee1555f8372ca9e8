#include "editing/grammars.h"
#include "baselib/gbk_texts.h"
#include "controls/buttons/new_rotate_btn_record.h"
#include "dialog/binding.h"
#include "dialog/dialog_header.h"
#include "dialog/kinds.h"
#include "dialog/relation.h"
#include <algorithm>
#include <climits>
#include <cstring>

namespace {

template <class RecordsTP> void visitRecord(FieldVisitorCL& visitor, int)
{
    typename RecordsTP::RecordTP record(AliveTag);
    record.EachCommonFieldM(visitor);
    record.EachFieldM(visitor);
}

template <class RecordsTP, std::size_t placeN> void visitEntry(FieldVisitorCL& visitor, int)
{
    SectionEntryCL entry;
    entry.EachFieldM(visitor, RecordsTP::Secondaries[placeN].fields);
}

template <class RecordsTP, std::size_t... placeN>
void addKindGrammars(std::vector<GrammarCL>& all, std::index_sequence<placeN...>)
{
    all.push_back(
        { RecordsTP::Header, nullptr, HeadKind::Counted, &visitRecord<RecordsTP>, nullptr, "function_id" });
    (all.push_back({ RecordsTP::Secondaries[placeN].header, RecordsTP::Header, HeadKind::Counted,
         &visitEntry<RecordsTP, placeN>, RecordsTP::Secondaries[placeN].fields, "function_id" }),
        ...);
}

void visitNothing(FieldVisitorCL&, int) { }

void visitDialog(FieldVisitorCL& visitor, int)
{
    DialogHeaderCL header;
    header.EachFieldM(visitor);
}

void visitRelation(FieldVisitorCL& visitor, int)
{
    RelationCL relation;
    relation.EachFieldM(visitor);
}

void visitBinding(FieldVisitorCL& visitor, int)
{
    BindingCL binding;
    binding.EachFieldM(visitor);
}

void visitNewRotateButton(FieldVisitorCL& visitor, int flags)
{
    DVrNewRotateBtnCL record(AliveTag);
    record.EachCommonFieldM(visitor, 1);
    record.EachFieldM(visitor, flags & HasShowCondition, flags & HasDescription);
}

void visitSlotPicture(FieldVisitorCL& visitor, int)
{
    SlotPictureCL entry;
    entry.EachFieldM(visitor);
}

std::vector<GrammarCL> makeGrammars()
{
    std::vector<GrammarCL> all;
    all.push_back({ VersionHeader, nullptr, HeadKind::Line, &visitNothing });
    all.push_back({ DialogHeader, nullptr, HeadKind::Comments, &visitDialog });
    slEachKindAsBuilt([&all](auto row) {
        using RecordsTP = typename decltype(row)::Records;
        addKindGrammars<RecordsTP>(
            all, std::make_index_sequence<std::tuple_size_v<decltype(RecordsTP::Secondaries)>>());
    });
    all.push_back({ RelationHeader, nullptr, HeadKind::Counted, &visitRelation, nullptr, "control" });
    all.push_back({ BindingHeader, nullptr, HeadKind::Counted, &visitBinding, nullptr, "control" });
    all.push_back(
        { NewRotateBtnHeader, nullptr, HeadKind::Signed, &visitNewRotateButton, nullptr, "function_id" });
    all.push_back({ NewRotateBtnBitmapHeader, NewRotateBtnHeader, HeadKind::Signed, &visitSlotPicture });
    return all;
}

int fewestValues(const GrammarCL& grammar, int flags)
{
    FieldCounterCL counter;
    grammar.visit(counter, flags);
    return counter.ValuesM();
}

int magnitude(int value)
{
    return value == INT_MIN ? INT_MAX : std::abs(value);
}

// As the readers of both sections take their heads.
int openSigned(SectionReaderCL& section, const GrammarCL& grammar)
{
    int count = 0;
    int lines = 0;
    section.InputCountM(&count);
    section.InputCommentsM(&lines);
    const bool hasFlags = grammar.owner == nullptr;
    const int flags = hasFlags ? (lines < 0 ? HasShowCondition : 0) | (count < 0 ? HasDescription : 0) : 0;
    section.SetCountM(hasFlags ? magnitude(count) : count, fewestValues(grammar, flags));
    section.SkipCommentsM(hasFlags ? magnitude(lines) : lines);
    return flags;
}

} // namespace

const std::vector<GrammarCL>& slGrammars()
{
    static const std::vector<GrammarCL> grammars = makeGrammars();
    return grammars;
}

int slGrammarOf(const char* header)
{
    const std::vector<GrammarCL>& all = slGrammars();
    const auto found = std::find_if(all.begin(), all.end(), [header](const GrammarCL& grammar) {
        return header != nullptr && std::strcmp(grammar.header, header) == 0;
    });
    return found != all.end() ? static_cast<int>(found - all.begin()) : -1;
}

void slReadAlone(VrIOCL& io, int grammar)
{
    const GrammarCL& kind = slGrammars()[static_cast<std::size_t>(grammar)];
    SectionReaderCL section(io, kind.header);
    int flags = 0;
    int count = 0;
    switch (kind.head) {
    case HeadKind::Line:
        return;
    case HeadKind::Comments:
        section.InputCommentsM();
        count = section.StatusM() == SectionStatus::Read ? 1 : 0;
        break;
    case HeadKind::Counted:
        section.OpenM(fewestValues(kind, 0));
        count = section.CountM();
        break;
    case HeadKind::Signed:
        flags = openSigned(section, kind);
        count = section.StatusM() == SectionStatus::Read ? section.CountM() : 0;
        break;
    }
    for (int i = 0; i < count; ++i) {
        kind.visit(section.RecordM(i), flags);
    }
}
