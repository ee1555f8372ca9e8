// Values by function id, typed and checked.
#include "dialog/basic_dialog.h"
#include "toolkit/life.h"
#include <set>

namespace {

// What a kind with a value has, and no other.
template <class ControlTP, class = void> struct ReadsValueCL : std::false_type
{
};
template <class ControlTP>
struct ReadsValueCL<ControlTP, std::void_t<decltype(std::declval<ControlTP&>().ReadValueM())>>
    : std::true_type
{
};

constexpr bool isAbilityOfAll()
{
    return slLastRow([](auto row) {
        using RowTP = decltype(row);
        return RowTP::CanM(HasValue) != ReadsValueCL<typename RowTP::Controls::ControlTP>::value;
    }) < 0;
}
static_assert(
    isAbilityOfAll(), "a kind that reads a value needs the ability HasValue, and the other way round");

template <class PartTP> std::optional<PartTP> onlyOf(const std::vector<PartTP>& list, PartTP none)
{
    return list.size() > 1 ? std::nullopt : std::optional(list.empty() ? none : list.front());
}

} // namespace

unsigned DialogValuesCL::PartsM(int id) const
{
    unsigned parts = NoPart;
    dialog_.withControlM(id, [&parts](auto row, auto& control) {
        if constexpr (decltype(row)::CanM(HasValue)) {
            parts = control.ValuePartsM();
        }
    });
    return parts;
}

ControlValueCL DialogValuesCL::ValueM(int id) const
{
    ControlValueCL value;
    dialog_.withControlM(id, [&value](auto row, auto& control) {
        if constexpr (decltype(row)::CanM(HasValue)) {
            value = control.ReadValueM();
        }
    });
    return value;
}

bool DialogValuesCL::SetValueM(int id, const ControlValueCL& value)
{
    bool isSet = false;
    dialog_.withControlM(id, [&isSet, &value](auto row, auto& control) {
        if constexpr (decltype(row)::CanM(HasValue)) {
            isSet = control.WriteValueM(value);
        }
    });
    return isSet;
}

std::optional<int> DialogValuesCL::IntM(int id) const
{
    return ValueM(id).number;
}

bool DialogValuesCL::SetIntM(int id, int value)
{
    ControlValueCL part;
    part.number = value;
    return SetValueM(id, part);
}

std::optional<float> DialogValuesCL::RealM(int id) const
{
    return ValueM(id).real;
}

bool DialogValuesCL::SetRealM(int id, double value)
{
    ControlValueCL part;
    part.real = static_cast<float>(value);
    return SetValueM(id, part);
}

std::optional<ValueTextCL> DialogValuesCL::TextM(int id) const
{
    return ValueM(id).text;
}

bool DialogValuesCL::SetTextM(int id, const ValueTextCL& text)
{
    ControlValueCL part;
    part.text = text;
    return SetValueM(id, part);
}

int DialogValuesCL::TextM(int id, char* gbk, int size) const
{
    const auto text = TextM(id);
    return text ? text->GbkM(gbk, size) : 0;
}

int DialogValuesCL::Utf8TextM(int id, char* utf8, int size) const
{
    const auto text = TextM(id);
    return text ? text->Utf8M(utf8, size) : 0;
}

int DialogValuesCL::WideTextM(int id, wchar_t* wide, int size) const
{
    const auto text = TextM(id);
    return text ? text->WideM(wide, size) : 0;
}

std::optional<bool> DialogValuesCL::CheckedM(int id) const
{
    return ValueM(id).checked;
}

bool DialogValuesCL::SetCheckedM(int id, bool checked)
{
    ControlValueCL part;
    part.checked = checked;
    return SetValueM(id, part);
}

std::optional<int> DialogValuesCL::GroupM(int id) const
{
    std::optional<int> checked;
    dialog_.withControlM(id, [&checked](auto row, auto& control) {
        if constexpr (decltype(row)::CanM(StandsInGroups)) {
            checked = control.CheckedInGroupM();
        }
    });
    return checked;
}

std::optional<int> DialogValuesCL::IndexM(int id) const
{
    const auto lines = SelectionM(id);
    return lines ? onlyOf(*lines, -1) : std::nullopt;
}

bool DialogValuesCL::SetIndexM(int id, int index)
{
    return SetSelectionM(id, index == -1 ? std::vector<int>() : std::vector<int> { index });
}

std::optional<std::vector<int>> DialogValuesCL::SelectionM(int id) const
{
    return ValueM(id).lines;
}

bool DialogValuesCL::SetSelectionM(int id, const std::vector<int>& lines)
{
    ControlValueCL part;
    part.lines = lines;
    return SetValueM(id, part);
}

std::optional<ValueTextCL> DialogValuesCL::PathM(int id) const
{
    return ValueM(id).path;
}

bool DialogValuesCL::SetPathM(int id, const ValueTextCL& path)
{
    ControlValueCL part;
    part.path = path;
    return SetValueM(id, part);
}

std::optional<std::string> DialogValuesCL::SavedM(int id) const
{
    const unsigned parts = PartsM(id);
    const ControlValueCL value = ValueM(id).OnlyM(parts);
    return parts != NoPart && value.PartsM() == parts ? std::optional(value.SavedM()) : std::nullopt;
}

bool DialogValuesCL::RestoreM(int id, const std::string& saved)
{
    const auto value = ControlValueCL::FromSavedM(saved, PartsM(id));
    return value && SetValueM(id, *value);
}

DialogValuesCL::SavedTP DialogValuesCL::AllM() const
{
    SavedTP all;
    std::set<int> seen; // Of equal ids a look-up finds the first.
    dialog_.eachControlsM([this, &all, &seen](auto, auto& controls) {
        for (int i = controls.GetFirstIdxM(); i >= 0; i = controls.GetNextIdxM(i)) {
            const int id = controls.ControlAtM(i).GetFunctionIDM();
            const auto saved = seen.insert(id).second ? SavedM(id) : std::nullopt;
            if (saved) {
                all.emplace_back(id, *saved);
            }
        }
    });
    return all;
}

std::vector<int> DialogValuesCL::SetAllM(const SavedTP& saved)
{
    std::vector<int> refused;
    const LifeCL life(&dialog_);
    for (const auto& [id, text] : saved) {
        if (!life.IsAliveM() || !RestoreM(id, text)) {
            refused.push_back(id);
        }
    }
    return refused;
}
