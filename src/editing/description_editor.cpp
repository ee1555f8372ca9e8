#include "editing/description_editor.h"
#include "baselib/number_text.h"
#include "editing/editor_operations.h"
#include "editing/record_text.h"
#include <algorithm>

namespace {

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
    const int before = place.record;
    if ((isThere && !plan.IsSoundM(grammar))
        || !renumber(plan, grammar, [before](int at) { return at >= before ? at + 1 : at; })) {
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
    for (const int neighbour : { before - 1, before }) {
        if (!text && neighbour >= 0 && neighbour < plan.SectionM(grammar).RecordsM()) {
            text = laidOutLike(plan, state_->BytesM(), grammar, neighbour, forms);
        }
    }
    plan.InsertM(
        grammar, place.record, { text ? *text : laidOut(forms, isEntry, lines.LineEndM()), meantOf(forms) });
    return state_->DoM(plan);
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
