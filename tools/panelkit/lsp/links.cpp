// Ids: from who names a control to its record, from there to all of them, and another number for all.
#include "baselib/number_text.h"
#include "editing/description_editor.h"
#include "features.h"
#include <algorithm>
#include <cstring>

namespace {

JsonTP locationOf(const OpenFileCL& file, const SeenValueCL& value)
{
    return { { "uri", file.DocumentM().UriM() }, { "range", file.DocumentM().RangeM(spanOf(value)) } };
}

bool isAt(const SeenValueCL& value, std::size_t offset)
{
    return offset >= value.begin && offset <= value.end;
}

// The section whose controls a use of an id means; -1: any.
int ownerOf(const IdUseCL& use)
{
    const char* const owner = slGrammars()[static_cast<std::size_t>(use.place.grammar)].owner;
    return use.isControl ? use.place.grammar : owner != nullptr ? slGrammarOf(owner) : -1;
}

// The uses of the id at a place, that one first. Where several kinds of controls have the id, those of the
// kind that the place means.
std::vector<IdUseCL> usesAt(OpenFileCL& file, std::size_t offset)
{
    std::vector<IdUseCL> ids = file.IdsM();
    const auto at = std::find_if(
        ids.begin(), ids.end(), [offset](const IdUseCL& use) { return isAt(*use.place.value, offset); });
    if (at == ids.end()) {
        return {};
    }
    const IdUseCL one = *at;
    const int owner = ownerOf(one);
    bool isShared = false;
    for (const IdUseCL& use : ids) {
        isShared = isShared || (use.id == one.id && use.isControl && use.place.grammar != owner);
    }
    std::vector<IdUseCL> uses { one };
    for (const IdUseCL& use : ids) {
        const bool isMeant = !isShared || owner == -1 || ownerOf(use) == owner;
        if (use.id == one.id && isMeant && use.place.value != one.place.value) {
            uses.push_back(use);
        }
    }
    return uses;
}

// A picture of a new rotate button names the button by its place.
const SeenValueCL* buttonAt(OpenFileCL& file, std::size_t offset)
{
    const ValueInTextCL place = file.ValueAtM(offset);
    if (place.grammar != slGrammarOf(NewRotateBtnBitmapHeader)
        || std::strcmp(place.value->field, "button") != 0) {
        return nullptr;
    }
    const SeenSectionCL& buttons = file.ReadingM().SectionM(NewRotateBtnHeader);
    const int button = file.NumberM(*place.value);
    return button >= 0 && button < buttons.RecordsM() ? buttons.FindM(button, "function_id") : nullptr;
}

std::size_t offsetAt(const OpenFileCL& file, const JsonTP& params)
{
    return file.DocumentM().OffsetM(params.at("position"));
}

} // namespace

JsonTP definitionOf(OpenFileCL& file, const JsonTP& params)
{
    const std::size_t offset = offsetAt(file, params);
    const SeenValueCL* const button = buttonAt(file, offset);
    if (button != nullptr) {
        return locationOf(file, *button);
    }
    for (const IdUseCL& use : usesAt(file, offset)) {
        if (use.isControl) {
            return locationOf(file, *use.place.value);
        }
    }
    return nullptr;
}

JsonTP referencesOf(OpenFileCL& file, const JsonTP& params)
{
    const bool withControls = params.value("context", JsonTP::object()).value("includeDeclaration", true);
    JsonTP locations = JsonTP::array();
    for (const IdUseCL& use : usesAt(file, offsetAt(file, params))) {
        if (withControls || !use.isControl) {
            locations.push_back(locationOf(file, *use.place.value));
        }
    }
    return locations;
}

JsonTP preparedRename(OpenFileCL& file, const JsonTP& params)
{
    const std::vector<IdUseCL> uses = usesAt(file, offsetAt(file, params));
    if (uses.empty()) {
        return nullptr;
    }
    return { { "range", file.DocumentM().RangeM(spanOf(*uses[0].place.value)) },
        { "placeholder", std::to_string(uses[0].id) } };
}

JsonTP renamed(OpenFileCL& file, const JsonTP& params)
{
    const std::vector<IdUseCL> uses = usesAt(file, offsetAt(file, params));
    const std::string& name = params.at("newName").get_ref<const std::string&>();
    const auto control
        = std::find_if(uses.begin(), uses.end(), [](const IdUseCL& use) { return use.isControl; });
    if (uses.empty() || control == uses.end()) {
        throw RefusalCL { uses.empty() ? "only function ids can be renamed" : "no control has this id" };
    }
    int id = 0;
    const char* const end = name.data() + name.size();
    if (slReadInt(name.data(), end, &id) != end || std::to_string(id) != name) {
        throw RefusalCL { "'" + name + "' is no function id: it must be a number" };
    }
    const ValueInTextCL& place = control->place;
    const RecordPlaceCL record { slGrammars()[static_cast<std::size_t>(place.grammar)].header, place.record };
    DescriptionEditorCL editor(file.DocumentM().GbkM());
    const bool isOwn = std::strcmp(place.value->field, "function_id") == 0; // Arrows have an id too.
    switch (isOwn ? editor.RenameM(record, id) : editor.SetM({ record, place.value->field }, name)) {
    case EditResult::Done:
        break;
    case EditResult::IdTaken:
        throw RefusalCL { "a control has the id " + name + " already" };
    default:
        throw RefusalCL { "mend the findings first: a section that names the id doesn't read whole" };
    }
    return { { "changes", { { file.DocumentM().UriM(), textEdits(file, editor.ChangesM()) } } } };
}
