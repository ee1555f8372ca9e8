#include "editing/description_editor.h"
#include "baselib/number_text.h"
#include "editing/editor_state.h"
#include "editing/record_text.h"
#include <algorithm>
#include <functional>

namespace {

const GrammarCL& grammarOf(int grammar)
{
    return slGrammars()[static_cast<std::size_t>(grammar)];
}

bool hasFixedRecords(int grammar)
{
    return grammarOf(grammar).head == HeadKind::Comments;
}

// The record's values as they are, for slFormsOf.
std::vector<NamedTextCL> namedTextsOf(const EditPlanCL& plan, int grammar, int record)
{
    std::vector<NamedTextCL> texts;
    for (const MeantValueCL& value : plan.MeantM(grammar, record)) {
        texts.push_back({ value.field, value.part, value.text, false });
    }
    return texts;
}

// Its number among the record's values, by the name of its field; -1: none.
int numberOfValue(const SeenSectionCL& section, int record, const char* field, int part = 0)
{
    const SeenValueCL* const value = field != nullptr ? section.FindM(record, field, part) : nullptr;
    return value != nullptr ? static_cast<int>(value - section.FirstM(record)) : -1;
}

// Records of a section have other places from now on: writes those into what names them by place.
// False when that isn't sound.
bool renumber(EditPlanCL& plan, int grammar, const std::function<int(int place)>& placeOf)
{
    const int byPlace = EditorStateCL::ByPlaceM(grammar);
    if (byPlace < 0 || !plan.SectionM(byPlace).IsThereM()) {
        return true;
    }
    if (!plan.IsSoundM(byPlace)) {
        return false;
    }
    for (int entry = 0; entry < plan.SectionM(byPlace).RecordsM(); ++entry) {
        const int place = plan.NumberM(byPlace, entry, "button");
        if (placeOf(place) != place) {
            plan.SetM(byPlace, entry,
                static_cast<std::size_t>(numberOfValue(plan.SectionM(byPlace), entry, "button")),
                std::to_string(placeOf(place)));
        }
    }
    return true;
}

// The ids of a control's copy, by the numbers of their values: besides its own those that it has further.
std::map<std::size_t, std::string> idsOfCopy(
    const EditorStateCL& state, const EditPlanCL& plan, int grammar, int record, int newId)
{
    std::map<std::size_t, std::string> others;
    std::vector<int> taken { newId };
    const std::vector<ValueFormCL> forms
        = slFormsOf(grammarOf(grammar), state.FlagsM(grammar), namedTextsOf(plan, grammar, record));
    for (std::size_t i = 0; i < forms.size(); ++i) {
        if (!forms[i].isId) {
            continue;
        }
        const bool isOwn = grammarOf(grammar).idField == std::string_view(forms[i].field);
        if (isOwn) {
            others[i] = std::to_string(newId);
        } else if (plan.NumberM(grammar, record, forms[i].field) != 0) {
            taken.push_back(state.FreeIdM(newId, taken));
            others[i] = std::to_string(taken.back());
        }
    }
    return others;
}

// Where a section that isn't there belongs: behind the last of those that are read before it.
TextChangeCL addingSection(const EditorStateCL& state, int grammar, const RecordTextCL* record)
{
    const std::string_view bytes = state.BytesM();
    std::size_t at = bytes.size();
    for (int before = grammar - 1; before >= 0 && at == bytes.size(); --before) {
        at = state.SeenM().AtM(before).IsThereM() ? state.SeenM().AtM(before).regionEnd : at;
    }
    const std::string lineEnd = lineEndNear(bytes, at);
    while (at > 0 && slIsBlank(bytes[at - 1])) {
        --at;
    }
    const std::string text = sectionText(grammarOf(grammar), lineEnd, record);
    const std::size_t feed = bytes.find('\n', at);
    const std::string between = at == 0 ? "" : lineEnd;
    return feed != std::string_view::npos
        ? TextChangeCL { { feed + 1, feed + 1 }, between + text }
        : TextChangeCL { { bytes.size(), bytes.size() }, between + between + text };
}

} // namespace

DescriptionEditorCL::DescriptionEditorCL(std::string_view bytes)
    : state_(std::make_unique<EditorStateCL>(bytes))
{
}
DescriptionEditorCL::DescriptionEditorCL(DescriptionEditorCL&&) noexcept = default;
DescriptionEditorCL& DescriptionEditorCL::operator=(DescriptionEditorCL&&) noexcept = default;
DescriptionEditorCL::~DescriptionEditorCL() = default;

std::string_view DescriptionEditorCL::BytesM() const
{
    return state_->BytesM();
}

const std::shared_ptr<const FileTextCL>& DescriptionEditorCL::TextM() const
{
    return state_->TextM();
}

const SeenSectionsCL& DescriptionEditorCL::SectionsM() const
{
    return state_->SeenM();
}

const TextChangesTP& DescriptionEditorCL::ChangesM() const
{
    return state_->ChangesM();
}

bool DescriptionEditorCL::UndoM()
{
    return state_->UndoM();
}

bool DescriptionEditorCL::RedoM()
{
    return state_->RedoM();
}

int DescriptionEditorCL::FreeIdM(int from) const
{
    return state_->FreeIdM(from);
}

EditResult DescriptionEditorCL::SetM(const ValuePlaceCL& place, std::string_view text)
{
    const int grammar = state_->RecordAtM(place.record);
    const int record = place.record.record;
    const int number
        = grammar >= 0 ? numberOfValue(state_->SeenM().AtM(grammar), record, place.field, place.part) : -1;
    if (number < 0) {
        return EditResult::NoSuchPlace;
    }
    EditPlanCL plan = state_->PlanM();
    const SeenSectionCL& section = plan.SectionM(grammar);
    if (std::any_of(section.FirstM(record), section.EndM(record), [&section](const SeenValueCL& value) {
            return value.IsAbsentM() || value.end > section.regionEnd;
        })) {
        return EditResult::Unsound;
    }
    const int flags = state_->FlagsM(grammar);
    std::vector<NamedTextCL> given = namedTextsOf(plan, grammar, record);
    const std::vector<ValueFormCL> before = slFormsOf(grammarOf(grammar), flags, given);
    given[static_cast<std::size_t>(number)].text = text;
    given[static_cast<std::size_t>(number)].isNeeded = true;
    std::vector<ValueFormCL> forms = slFormsOf(grammarOf(grammar), flags, given);
    if (forms.empty()) {
        return EditResult::BadValue;
    }
    TextChangesTP changes = forms.size() == before.size() && before.size() == given.size()
        ? valuesAnew(plan, state_->BytesM(), grammar, record, number, before, forms)
        : recordAnew(plan, state_->BytesM(), grammar, record, forms);
    plan.RewriteM(grammar, record, changes, meantOf(forms));
    return state_->DoM(plan);
}

EditResult DescriptionEditorCL::InsertM(const RecordPlaceCL& place, const std::vector<NamedTextCL>& values)
{
    const int grammar = state_->SectionAtM(place);
    if (grammar < 0 || hasFixedRecords(grammar)) {
        return EditResult::NoSuchPlace;
    }
    EditPlanCL plan = state_->PlanM();
    const bool isThere = plan.SectionM(grammar).IsThereM();
    if (isThere && !plan.IsSoundM(grammar)) {
        return EditResult::Unsound;
    }
    std::vector<NamedTextCL> given = values;
    if (isOfControls(grammarOf(grammar))) {
        given.insert(given.begin(),
            { { "window_index", 0, std::to_string(state_->NextIndexM()), false },
                { "function_id", 0, std::to_string(state_->FreeIdM(1001)), false } });
    }
    const std::vector<ValueFormCL> forms = slFormsOf(grammarOf(grammar), state_->FlagsM(grammar), given);
    if (forms.empty()) {
        return EditResult::BadValue;
    }
    const bool isEntry = grammarOf(grammar).owner != nullptr;
    if (!isThere) {
        const RecordTextCL text = laidOut(forms, isEntry, lineEndNear(state_->BytesM(), 0));
        plan.AddSectionM(grammar, addingSection(*state_, grammar, &text), { meantOf(forms) });
        return state_->DoM(plan);
    }
    const RecordLinesCL lines(state_->BytesM(), plan.SectionM(grammar));
    std::optional<RecordTextCL> text;
    for (const int neighbour : { place.record - 1, place.record }) {
        if (!text && neighbour >= 0 && neighbour < plan.SectionM(grammar).RecordsM()) {
            text = laidOutLike(plan, state_->BytesM(), grammar, neighbour, forms);
        }
    }
    plan.InsertM(
        grammar, place.record, { text ? *text : laidOut(forms, isEntry, lines.LineEndM()), meantOf(forms) });
    const int before = place.record;
    if (!renumber(plan, grammar, [before](int at) { return at >= before ? at + 1 : at; })) {
        return EditResult::Unsound;
    }
    return state_->DoM(plan);
}

EditResult DescriptionEditorCL::DeleteM(const RecordPlaceCL& place)
{
    const int grammar = state_->RecordAtM(place);
    if (grammar < 0 || hasFixedRecords(grammar)) {
        return EditResult::NoSuchPlace;
    }
    EditPlanCL plan = state_->PlanM();
    const int gone = place.record;
    plan.DeleteM(grammar, gone);
    const bool isSound = plan.IsSoundM(grammar)
        && renumber(plan, grammar, [gone](int at) { return at > gone ? at - 1 : at; })
        && state_->EachDependantM(
            plan, grammar, gone, [&plan](int other, int record) { plan.DeleteM(other, record); });
    return isSound ? state_->DoM(plan) : EditResult::Unsound;
}

EditResult DescriptionEditorCL::MoveM(const RecordPlaceCL& place, int before)
{
    const int grammar = state_->RecordAtM(place);
    if (grammar < 0 || hasFixedRecords(grammar) || state_->SectionAtM({ place.section, before }) < 0) {
        return EditResult::NoSuchPlace;
    }
    EditPlanCL plan = state_->PlanM();
    if (!plan.IsSoundM(grammar)) {
        return EditResult::Unsound;
    }
    const int from = place.record;
    if (before != from && before != from + 1) {
        plan.InsertM(grammar, before, plan.CopyM(grammar, from, {}));
        plan.DeleteM(grammar, from);
    }
    const auto placeOf = [from, before](int at) {
        const int to = before > from ? before - 1 : before;
        return at == from ? to : from < at && at < before ? at - 1 : before <= at && at < from ? at + 1 : at;
    };
    return renumber(plan, grammar, placeOf) ? state_->DoM(plan) : EditResult::Unsound;
}

EditResult DescriptionEditorCL::DuplicateM(const RecordPlaceCL& place, int newId)
{
    const int grammar = state_->RecordAtM(place);
    if (grammar < 0 || hasFixedRecords(grammar)) {
        return EditResult::NoSuchPlace;
    }
    EditPlanCL plan = state_->PlanM();
    if (!plan.IsSoundM(grammar)) {
        return EditResult::Unsound;
    }
    const bool isControl = isOfControls(grammarOf(grammar));
    const std::vector<int> ids = state_->IdsM();
    if (isControl && std::find(ids.begin(), ids.end(), newId) != ids.end()) {
        return EditResult::IdTaken;
    }
    const int record = place.record;
    std::map<std::size_t, std::string> others;
    if (isControl) {
        others = idsOfCopy(*state_, plan, grammar, record, newId);
    }
    plan.InsertM(grammar, record + 1, plan.CopyM(grammar, record, others));
    // Copies of what belongs to it stand together, behind the last original.
    std::map<int, std::vector<int>> dependants;
    const bool isSound = renumber(plan, grammar, [record](int at) { return at > record ? at + 1 : at; })
        && state_->EachDependantM(
            plan, grammar, record, [&](int other, int entry) { dependants[other].push_back(entry); });
    if (!isSound) {
        return EditResult::Unsound;
    }
    for (const auto& [other, entries] : dependants) {
        const char* const idField = grammarOf(other).idField;
        const std::string id = std::to_string(idField != nullptr ? newId : record + 1);
        for (const int entry : entries) {
            const int number
                = numberOfValue(plan.SectionM(other), entry, idField != nullptr ? idField : "button");
            plan.InsertM(other, entries.back() + 1,
                plan.CopyM(other, entry, { { static_cast<std::size_t>(number), id } }));
        }
    }
    return state_->DoM(plan);
}

EditResult DescriptionEditorCL::RenameM(const RecordPlaceCL& place, int newId)
{
    const int grammar = state_->RecordAtM(place);
    if (grammar < 0 || !isOfControls(grammarOf(grammar))) {
        return EditResult::NoSuchPlace;
    }
    EditPlanCL plan = state_->PlanM();
    const std::vector<int> ids = state_->IdsM();
    if (std::find(ids.begin(), ids.end(), newId) != ids.end()) {
        return EditResult::IdTaken;
    }
    const std::string id = std::to_string(newId);
    const auto rename = [&](int other, int record) {
        const char* const idField = grammarOf(other).idField;
        if (idField != nullptr) {
            plan.SetM(other, record,
                static_cast<std::size_t>(numberOfValue(plan.SectionM(other), record, idField)), id);
        }
    };
    const bool isSound
        = plan.IsSoundM(grammar) && state_->EachDependantM(plan, grammar, place.record, rename);
    rename(grammar, place.record);
    return isSound ? state_->DoM(plan) : EditResult::Unsound;
}

EditResult DescriptionEditorCL::AddSectionM(const char* header)
{
    const int grammar = slGrammarOf(header);
    const bool isCounted = grammar >= 0 && !hasFixedRecords(grammar) && grammar != VersionGrammar;
    if (!isCounted || state_->SeenM().AtM(grammar).IsThereM()) {
        return EditResult::NoSuchPlace;
    }
    EditPlanCL plan = state_->PlanM();
    plan.AddSectionM(grammar, addingSection(*state_, grammar, nullptr), {});
    return state_->DoM(plan);
}

EditResult DescriptionEditorCL::ReplaceM(const TextChangesTP& changes, bool asRead)
{
    if (!slAreInOrder(changes, state_->BytesM().size())) {
        return EditResult::NoSuchPlace;
    }
    const EditPlanCL nothing = state_->PlanM();
    return state_->DoM(changes, asRead ? &nothing : nullptr);
}
