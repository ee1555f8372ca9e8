#include "editing/description_editor.h"
#include "editing/editor_operations.h"
#include <algorithm>

namespace {

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

} // namespace

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
