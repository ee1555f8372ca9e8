#include "editing/editor_state.h"
#include "baselib/gbk_texts.h"
#include "baselib/number_text.h"
#include <algorithm>
#include <climits>

namespace {

int numberIn(std::string_view text)
{
    int number = 0;
    slReadInt(text.data(), text.data() + text.size(), &number);
    return number;
}

// The fields of each grammar's records that name a control; empty for records that aren't controls.
std::vector<std::vector<std::string>> makeIdFields()
{
    std::vector<std::vector<std::string>> fields;
    for (const GrammarCL& grammar : slGrammars()) {
        std::vector<std::string>& ids = fields.emplace_back();
        for (const ValueFormCL& form : slFormsOf(grammar, 0, {})) {
            if (form.isId && isOfControls(grammar)) {
                ids.emplace_back(form.field);
            }
        }
    }
    return fields;
}

} // namespace

bool isOfControls(const GrammarCL& grammar)
{
    return grammar.owner == nullptr && grammar.idField != nullptr && !grammar.NamesControlsM();
}

EditorStateCL::EditorStateCL(std::string_view bytes)
    : text_(std::make_shared<const FileTextCL>(bytes))
{
}

const SeenSectionsCL& EditorStateCL::SeenM() const
{
    if (!seen_) {
        seen_ = slReadSections(text_);
    }
    return *seen_;
}

EditResult EditorStateCL::DoM(TextChangesTP changes, const EditPlanCL* plan)
{
    const auto after = std::make_shared<const FileTextCL>(slWithChanges(BytesM(), changes));
    std::optional<SeenSectionsCL> read;
    if (plan != nullptr) {
        read = slReadSections(after);
        if (!plan->IsMetM(*after, *read)) {
            return EditResult::Misread;
        }
    }
    if (changes.empty()) {
        changes_.clear();
        return EditResult::Done;
    }
    StepCL step { changes, slUndoing(BytesM(), changes) };
    if (steps_.capacity() == stepsDone_) {
        steps_.reserve(2 * stepsDone_ + 4);
    }
    steps_.resize(stepsDone_); // From here on nothing needs memory.
    steps_.push_back(std::move(step));
    ++stepsDone_;
    changes_ = std::move(changes);
    text_ = after;
    seen_ = std::move(read);
    return EditResult::Done;
}

void EditorStateCL::goM(const TextChangesTP& changes)
{
    TextChangesTP made = changes;
    text_ = std::make_shared<const FileTextCL>(slWithChanges(BytesM(), changes));
    seen_.reset();
    changes_ = std::move(made);
}

bool EditorStateCL::UndoM()
{
    if (stepsDone_ == 0) {
        return false;
    }
    goM(steps_[stepsDone_ - 1].undoing);
    --stepsDone_;
    return true;
}

bool EditorStateCL::RedoM()
{
    if (stepsDone_ == steps_.size()) {
        return false;
    }
    goM(steps_[stepsDone_].done);
    ++stepsDone_;
    return true;
}

int EditorStateCL::SectionAtM(const RecordPlaceCL& place) const
{
    const int grammar = slGrammarOf(place.section);
    const bool isThere = grammar >= 0 && grammarOf(grammar).head != HeadKind::Line && place.record >= 0
        && place.record <= SeenM().AtM(grammar).RecordsM();
    return isThere ? grammar : -1;
}

int EditorStateCL::RecordAtM(const RecordPlaceCL& place) const
{
    const int grammar = SectionAtM(place);
    return grammar >= 0 && place.record < SeenM().AtM(grammar).RecordsM() ? grammar : -1;
}

int EditorStateCL::FlagsM(int grammar) const
{
    const SectionSeenCL& head = SeenM().AtM(grammar).head;
    if (grammarOf(grammar).head != HeadKind::Signed || grammarOf(grammar).owner != nullptr) {
        return 0;
    }
    return (numberIn(text_->CutM(head.commentCount)) < 0 ? HasShowCondition : 0)
        | (numberIn(text_->CutM(head.countSpan)) < 0 ? HasDescription : 0);
}

std::vector<int> EditorStateCL::IdsM() const
{
    static const std::vector<std::vector<std::string>> Fields = makeIdFields();
    std::vector<int> ids;
    for (std::size_t i = 0; i < Fields.size(); ++i) {
        if (Fields[i].empty()) {
            continue;
        }
        for (const SeenValueCL& value : SeenM().AtM(static_cast<int>(i)).values) {
            if (!value.IsAbsentM()
                && std::find(Fields[i].begin(), Fields[i].end(), value.field) != Fields[i].end()) {
                ids.push_back(numberIn(text_->CutM(value.SpanM())));
            }
        }
    }
    return ids;
}

int EditorStateCL::FreeIdM(int from, const std::vector<int>& others) const
{
    std::vector<int> taken = IdsM();
    taken.insert(taken.end(), others.begin(), others.end());
    std::sort(taken.begin(), taken.end());
    for (const int id : taken) {
        from += id == from && from < INT_MAX ? 1 : 0;
    }
    return from;
}

int EditorStateCL::NextIndexM() const
{
    const EditPlanCL plan = PlanM();
    int highest = 0;
    for (std::size_t i = 0; i < slGrammars().size(); ++i) {
        const auto grammar = static_cast<int>(i);
        for (int record = 0; isOfControls(grammarOf(grammar)) && record < SeenM().AtM(grammar).RecordsM();
             ++record) {
            highest = std::max(highest, plan.NumberM(grammar, record, "window_index"));
        }
    }
    return highest < INT_MAX ? highest + 1 : highest;
}

int EditorStateCL::controlsWithM(int id) const
{
    const EditPlanCL plan = PlanM();
    int count = 0;
    for (std::size_t i = 0; i < slGrammars().size(); ++i) {
        const auto grammar = static_cast<int>(i);
        for (int record = 0; isOfControls(grammarOf(grammar)) && record < SeenM().AtM(grammar).RecordsM();
             ++record) {
            count += plan.NumberM(grammar, record, "function_id") == id ? 1 : 0;
        }
    }
    return count;
}

int EditorStateCL::ByPlaceM(int grammar)
{
    for (std::size_t i = 0; i < slGrammars().size(); ++i) {
        const GrammarCL& other = slGrammars()[i];
        if (other.owner == grammarOf(grammar).header && other.idField == nullptr) {
            return static_cast<int>(i);
        }
    }
    return -1;
}

bool EditorStateCL::EachDependantM(const EditPlanCL& plan, int grammar, int record,
    const std::function<void(int grammar, int record)>& see) const
{
    if (!isOfControls(grammarOf(grammar))) {
        return true;
    }
    const int id = plan.NumberM(grammar, record, "function_id");
    bool isFirst = true; // The first one gets the entries of an id.
    for (int other = 0; other < record; ++other) {
        isFirst = isFirst && plan.NumberM(grammar, other, "function_id") != id;
    }
    const bool isOnly = controlsWithM(id) == 1;
    for (std::size_t i = 0; i < slGrammars().size(); ++i) {
        const GrammarCL& other = slGrammars()[i];
        const bool isRelation = other.NamesControlsM();
        const bool isEntry = other.owner == grammarOf(grammar).header;
        const auto place = static_cast<int>(i);
        if (!(isRelation ? isOnly : isEntry) || !SeenM().AtM(place).IsThereM()) {
            continue;
        }
        if (!plan.IsSoundM(place)) {
            return false;
        }
        const bool isByPlace = other.idField == nullptr;
        for (int entry = 0; entry < SeenM().AtM(place).RecordsM() && (isByPlace || isFirst || isRelation);
             ++entry) {
            const int owner = plan.NumberM(place, entry, isByPlace ? "button" : other.idField);
            if (owner == (isByPlace ? record : id)) {
                see(place, entry);
            }
        }
    }
    return true;
}
