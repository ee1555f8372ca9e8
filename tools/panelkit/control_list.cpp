// What the checks across records keep of each control.
#include "control_list.h"
#include "sort_rows.h"

std::uint32_t offsetOf(const FieldCL& field)
{
    return field.seen != nullptr ? field.seen->begin : 0;
}

CheckedControlCL checkedControlOf(const RecordViewCL& view, const CommonFieldsCL& common, int kind,
    [[maybe_unused]] const char* kindName, int grammar, bool isStacked)
{
    const FieldCL& index = *common.index;
    const FieldCL& id = *common.id;
    const FieldCL& position = *common.position;
    const FieldCL& size = *common.size;
    CheckedControlCL control;
    control.kind = static_cast<std::int8_t>(kind);
    control.grammar = static_cast<std::int8_t>(grammar);
    control.isStacked = isStacked;
    control.windowIndex = index.ints[0];
    control.id = id.ints[0];
    control.x = position.ints[0];
    control.y = position.ints[1];
    control.w = size.ints[0];
    control.h = size.ints[1];
    control.idAt = offsetOf(id);
    control.indexAt = offsetOf(index);
    control.positionAt = offsetOf(position);
#ifdef _WIN32
    control.kindName = kindName;
    control.isSunken = kind == LabelCode && view.IntM("edge") == 1;
#endif
    static constexpr KindsCL Captioned { LabelCode, GroupBoxCode, CheckBoxCode, RadioBoxCode,
        StandardButtonCode };
    static constexpr KindsCL Texts { LabelCode, GroupBoxCode };
    static constexpr KindsCL MayBeReadOnly { SingleEditCode, MultiEditCode };
    if (control.IsM(Captioned)) {
        const FieldCL& caption = *view.FindM(control.IsM(Texts) ? "text" : "caption");
        control.hasText = kind == LabelCode && !caption.text->EmptyM();
#ifdef _WIN32
        control.captionAt = offsetOf(caption);
        control.caption = std::move(*caption.text);
#endif
    }
    control.isReadOnly = control.IsM(MayBeReadOnly) && view.IntM("read_only") == 1;
    control.isDefault = kind == StandardButtonCode && view.IntM("default_button") == 1;
    control.group = kind == RadioBoxCode ? view.IntM("group") : 0;
    if (kind == SpinEditCode && view.IntM("data_type") > 0) {
        control.windowIndex = view.IntM("edit_window_index");
        control.indexAt = offsetOf(*view.FindM("edit_window_index"));
    }
    return control;
}

StackTP stackOf(const CheckedControlsTP& controls)
{
    StackTP stack;
    stack.reserve(controls.size());
    for (const CheckedControlCL& control : controls) {
        if (control.isStacked) {
            stack.push_back(&control);
        }
    }
    sortRows(stack, [](const CheckedControlCL* one, const CheckedControlCL* other) {
        return one->windowIndex < other->windowIndex;
    });
    for (const CheckedControlCL& control : controls) {
        if (!control.isStacked) {
            stack.push_back(&control);
        }
    }
    return stack;
}
