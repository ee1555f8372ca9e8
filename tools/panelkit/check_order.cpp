// What follows what when the user presses Tab.
#include "baselib/gbk_texts.h"
#include "control_list.h"
#include <algorithm>
#include <climits>

namespace {

// Pixels between a control and a label that still belongs to it.
constexpr std::int64_t Near = 40;

bool isPictureControl(const CheckedControlCL& control)
{
    static constexpr KindsCL Pictures { BmpButtonCode, MultiStateButtonCode, RotateBtnCode };
    return control.IsM(Pictures);
}

bool needsLabel(const CheckedControlCL& control)
{
    static constexpr KindsCL WithoutText { SingleEditCode, SpinEditCode, MultiEditCode, TextListBoxCode,
        BmpListBoxCode, ComboBoxCode, ListCtrlCode, TreeCode };
    return !control.isReadOnly && control.IsM(WithoutText);
}

bool needsName(const CheckedControlCL& control)
{
    return needsLabel(control) || isPictureControl(control);
}

bool isNear(const CheckedControlCL& label, const CheckedControlCL& control)
{
    return label.x - Near < control.RightM() && control.x - Near < label.RightM()
        && label.y - Near < control.BottomM() && control.y - Near < label.BottomM();
}

// A label to the right of what it stands near tells its unit.
bool isName(const CheckedControlCL& label, const CheckedControlCL& control, bool isAnySide)
{
    return label.kind == LabelCode && label.hasText && isNear(label, control)
        && (isAnySide || (label.x < control.RightM() && label.y < control.BottomM()));
}

class OrderCheckerCL
{
public:
    OrderCheckerCL(
        FileReadingCL& file, const CheckedControlsTP& controls, const StackTP& stack, FindingsCL& findings)
        : file_(file)
        , controls_(controls)
        , findings_(findings)
        , order_ { stack.data(), stack.data() }
    {
        while (order_.last < stack.data() + stack.size() && (*order_.last)->isStacked) {
            ++order_.last;
        }
    }
    void CheckM()
    {
        findUnstackedM();
        if (file_.IsSoundM(LabelHeader)) {
            findUnnamedM();
        }
        findSplitGroupsM();
        const CheckedControlCL* first = nullptr;
        for (const CheckedControlCL& control : controls_) {
            if (control.isDefault && first != nullptr) {
                findings_.AddM(Says::TwoDefaults, control.idAt, { lineM(*first) });
            }
            first = control.isDefault && first == nullptr ? &control : first;
        }
    }

private:
    std::string lineM(const CheckedControlCL& control) const
    {
        return std::to_string(file_.LineM(control.idAt) + 1);
    }

    void findUnstackedM()
    {
        const int last = order_.empty() ? INT_MIN : order_.back()->windowIndex;
        for (const CheckedControlCL& control : controls_) {
            if (!control.isStacked && control.kind != 0 && control.windowIndex < last) {
                findings_.AddM(Says::WrongTabOrder, control.indexAt, { std::to_string(control.windowIndex) });
            }
        }
    }

    void findUnnamedM()
    {
        const CheckedControlCL* before = nullptr;
        for (const CheckedControlCL* const control : order_) {
            if (needsName(*control)) {
                sayUnnamedM(
                    *control, before != nullptr && isName(*before, *control, isPictureControl(*control)));
            }
            before = control;
        }
        const auto isToName
            = [](const CheckedControlCL& control) { return !control.isStacked && needsName(control); };
        if (std::none_of(controls_.begin(), controls_.end(), isToName)) {
            return;
        }
        // Those have no place among the labels.
        std::vector<const CheckedControlCL*> labels;
        std::copy_if(order_.begin(), order_.end(), std::back_inserter(labels),
            [](const CheckedControlCL* control) { return control->kind == LabelCode && control->hasText; });
        std::sort(labels.begin(), labels.end(),
            [](const CheckedControlCL* a, const CheckedControlCL* b) { return a->y < b->y; });
        int tallest = 0;
        for (const CheckedControlCL* const label : labels) {
            tallest = std::max(tallest, label->h);
        }
        for (const CheckedControlCL& control : controls_) {
            if (!isToName(control)) {
                continue;
            }
            auto label = std::lower_bound(labels.begin(), labels.end(), control.y - Near - tallest,
                [](const CheckedControlCL* one, std::int64_t y) { return one->y < y; });
            bool isNamed = false;
            for (; label != labels.end() && (*label)->y < control.BottomM() + Near && !isNamed; ++label) {
                isNamed = isName(**label, control, isPictureControl(control));
            }
            sayUnnamedM(control, isNamed);
        }
    }
    void sayUnnamedM(const CheckedControlCL& control, bool isNamed)
    {
        if (!isNamed && needsLabel(control)) {
            findings_.AddM(Says::NoLabel, control.idAt);
        } else if (!isNamed && isPictureControl(control)) {
            findings_.AddM(Says::NoAccessibleName, control.idAt);
        }
    }

    // Neighbouring records with equal numbers are one group; the stack must keep them together.
    void findSplitGroupsM()
    {
        std::vector<const CheckedControlCL*> radios;
        for (const CheckedControlCL& control : controls_) {
            if (control.kind == RadioBoxCode) {
                radios.push_back(&control);
            }
        }
        if (radios.empty()) {
            return;
        }
        std::unordered_map<const CheckedControlCL*, std::size_t> placeOf;
        for (std::size_t i = 0; i < order_.size(); ++i) {
            if (order_[i]->kind == RadioBoxCode) {
                placeOf[order_[i]] = i;
            }
        }
        for (std::size_t begin = 0; begin < radios.size();) {
            std::size_t end = begin;
            std::vector<std::size_t> places;
            while (end < radios.size() && radios[end]->group == radios[begin]->group) {
                places.push_back(placeOf[radios[end++]]);
            }
            std::sort(places.begin(), places.end());
            for (std::size_t i = 1; i < places.size(); ++i) {
                for (std::size_t between = places[i - 1] + 1; between < places[i]; ++between) {
                    findings_.AddM(Says::SplitRadioGroup, order_[between]->indexAt,
                        { std::to_string(order_[between]->windowIndex), lineM(*radios[begin]) });
                }
            }
            begin = end;
        }
    }

    FileReadingCL& file_;
    const CheckedControlsTP& controls_;
    FindingsCL& findings_;
    struct OrderCL // The stack without those that have no place in it.
    {
        const CheckedControlCL* const* first;
        const CheckedControlCL* const* last;
        const CheckedControlCL* const* begin() const { return first; }
        const CheckedControlCL* const* end() const { return last; }
        std::size_t size() const { return static_cast<std::size_t>(last - first); }
        bool empty() const { return first == last; }
        const CheckedControlCL* operator[](std::size_t i) const { return first[i]; }
        const CheckedControlCL* back() const { return last[-1]; }
    };
    OrderCL order_;
};

} // namespace

void checkOrder(
    FileReadingCL& file, const CheckedControlsTP& controls, const StackTP& stack, FindingsCL& findings)
{
    OrderCheckerCL(file, controls, stack, findings).CheckM();
}
