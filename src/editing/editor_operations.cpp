#include "editing/editor_operations.h"

std::vector<NamedTextCL> namedTextsOf(const EditPlanCL& plan, int grammar, int record)
{
    std::vector<NamedTextCL> texts;
    for (const MeantValueCL& value : plan.MeantM(grammar, record)) {
        texts.push_back({ value.field, value.part, value.text, false });
    }
    return texts;
}

int numberOfValue(const SeenSectionCL& section, int record, const char* field, int part)
{
    const SeenValueCL* const value = field != nullptr ? section.FindM(record, field, part) : nullptr;
    return value != nullptr ? static_cast<int>(value - section.FirstM(record)) : -1;
}

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
