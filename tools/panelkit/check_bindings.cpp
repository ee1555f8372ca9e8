// How controls follow the size of their dialog.
#include "baselib/gbk_texts.h"
#include "control_list.h"

namespace {

bool hasAbility(int kind, Ability ability)
{
    bool has = false;
    slEachKind([&](auto row) { has = has || (decltype(row)::Code == kind && decltype(row)::CanM(ability)); });
    return has;
}

class BindingsCheckerCL
{
public:
    BindingsCheckerCL(FileReadingCL& file, const CheckedControlsTP& controls, FindingsCL& findings)
        : file_(file)
        , section_(file.SectionM(BindingHeader))
        , findings_(findings)
    {
        isWhole_ = !file.HasStrayTextM();
        for (std::size_t i = 0; i < slGrammars().size(); ++i) {
            isWhole_ = isWhole_ && !file.SectionM(static_cast<int>(i)).isFaulty;
        }
        for (const CheckedControlCL& control : controls) {
            if (control.kind != 0) { // New rotate buttons are the application's own to move.
                kinds_.emplace(control.id, control.kind);
            }
        }
    }
    void CheckM()
    {
        RecordViewCL view;
        std::vector<NamedPictureCL> pictures; // There are none.
        for (int i = 0; i < section_.soundRecords; ++i) {
            BindingCL& binding = file_.BindingsM()[static_cast<std::size_t>(i)];
            view.BeginM(section_, i);
            binding.EachFieldM(view);
            checkValues(file_, view, false, pictures, findings_);
            controlM(i, binding);
            edgesM(i, binding, Along::X);
            edgesM(i, binding, Along::Y);
        }
    }

private:
    std::size_t atM(int record, const char* field) const { return section_.FindM(record, field)->begin; }
    void controlM(int record, const BindingCL& binding)
    {
        const std::size_t at = atM(record, "control");
        const auto [first, isNew] = lines_.emplace(binding.control, file_.LineM(at) + 1);
        if (!isNew) {
            findings_.AddM(
                Says::BoundTwice, at, { std::to_string(binding.control), std::to_string(first->second) });
        } else if (isWhole_ && kinds_.count(binding.control) == 0) {
            findings_.AddM(Says::UnknownControl, at, { std::to_string(binding.control) });
        }
    }
    void edgesM(int record, const BindingCL& binding, Along along)
    {
        const bool isX = along == Along::X;
        const auto kind = kinds_.find(binding.control);
        if (binding.ShrinksM(along)) {
            findings_.AddM(Says::ControlShrinks, atM(record, isX ? "left" : "top"),
                { isX ? "left" : "top", isX ? "right" : "bottom" });
        } else if (binding.StretchesM(along) && kind != kinds_.end()
            && (hasAbility(kind->second, KeepsSize) || (!isX && hasAbility(kind->second, KeepsHeight)))) {
            findings_.AddM(Says::SizeKept, atM(record, isX ? "left" : "top"), { isX ? "width" : "height" });
        }
    }

    FileReadingCL& file_;
    const SeenSectionCL& section_;
    FindingsCL& findings_;
    std::unordered_map<int, int> kinds_;         // By id.
    std::unordered_map<int, std::size_t> lines_; // Of the first entry for an id.
    bool isWhole_ { false };
};

} // namespace

void checkBindings(FileReadingCL& file, const CheckedControlsTP& controls, FindingsCL& findings)
{
    if (file.SectionM(BindingHeader).soundRecords > 0) {
        BindingsCheckerCL(file, controls, findings).CheckM();
    }
}
