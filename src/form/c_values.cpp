// The C interface: values by function id.
#include "form/dialog_handles.h"

namespace {

// Why a setter failed: has: whether the control has such a value at all.
panelkit_status setStatus(bool isSet, bool has)
{
    if (isSet) {
        return PANELKIT_OK;
    }
    return has ? PANELKIT_ERROR_REFUSED : PANELKIT_ERROR_NO_VALUE;
}

// Gives set(values) for a control; part: the ValuePart bits of what it sets.
template <class FunctionTP>
panelkit_status setPart(panelkit_dialog* dialog, int id, unsigned part, FunctionTP&& set)
{
    return slWithControl(dialog, id, [=, &set](HostedDialogCL&, DialogValuesCL& values) {
        const bool isSet = set(values);
        return setStatus(isSet, (values.PartsM(id) & part) != 0);
    });
}

template <class FunctionTP, class OutTP>
panelkit_status getPart(panelkit_dialog* dialog, int id, OutTP* out, FunctionTP&& get)
{
    return slWithControl(dialog, id, [&](HostedDialogCL& hosted, const DialogValuesCL& values) {
        return slGive(hosted, get(values), out);
    });
}

panelkit_status giveText(const std::optional<ValueTextCL>& text, char* buffer, size_t size, size_t* needed)
{
    return text ? slGiveText(text->Utf8M(), buffer, size, needed) : PANELKIT_ERROR_NO_VALUE;
}

} // namespace

panelkit_status panelkit_get_int(panelkit_dialog* dialog, int32_t id, int32_t* value)
{
    return getPart(dialog, id, value, [id](const DialogValuesCL& values) { return values.IntM(id); });
}

panelkit_status panelkit_set_int(panelkit_dialog* dialog, int32_t id, int32_t value)
{
    return setPart(dialog, id, NumberPart, [=](DialogValuesCL& values) { return values.SetIntM(id, value); });
}

panelkit_status panelkit_get_real(panelkit_dialog* dialog, int32_t id, double* value)
{
    return getPart(dialog, id, value, [id](const DialogValuesCL& values) { return values.RealM(id); });
}

panelkit_status panelkit_set_real(panelkit_dialog* dialog, int32_t id, double value)
{
    return setPart(dialog, id, RealPart, [=](DialogValuesCL& values) { return values.SetRealM(id, value); });
}

panelkit_status panelkit_get_text(
    panelkit_dialog* dialog, int32_t id, char* buffer, size_t size, size_t* needed)
{
    return slWithControl(dialog, id, [=](HostedDialogCL&, const DialogValuesCL& values) {
        return giveText(values.TextM(id), buffer, size, needed);
    });
}

panelkit_status panelkit_set_text(panelkit_dialog* dialog, int32_t id, const char* text)
{
    if (text == nullptr) {
        return slRefuseNull(dialog);
    }
    return slWithControl(dialog, id, [=](HostedDialogCL&, DialogValuesCL& values) {
        const bool has = (values.PartsM(id) & TextPart) != 0 || values.TextM(id);
        return setStatus(values.SetTextM(id, ValueTextCL::FromUtf8M(text)), has);
    });
}

panelkit_status panelkit_get_checked(panelkit_dialog* dialog, int32_t id, int32_t* checked)
{
    return getPart(dialog, id, checked, [id](const DialogValuesCL& values) { return values.CheckedM(id); });
}

panelkit_status panelkit_set_checked(panelkit_dialog* dialog, int32_t id, int32_t checked)
{
    return setPart(dialog, id, CheckedPart,
        [=](DialogValuesCL& values) { return values.SetCheckedM(id, checked != 0); });
}

panelkit_status panelkit_get_group(panelkit_dialog* dialog, int32_t id, int32_t* checked_id)
{
    return slWithControl(dialog, id, [=](HostedDialogCL& hosted, const DialogValuesCL& values) {
        int kind = PANELKIT_KIND_NONE;
        const auto checked = values.GroupM(id);
        hosted.GetContrlPtrM(id, &kind);
        const bool isRadio = kind == static_cast<int>(PANELKIT_KIND_RADIO_BUTTON);
        return slGive(hosted, isRadio ? std::optional(checked.value_or(0)) : std::nullopt, checked_id);
    });
}

panelkit_status panelkit_get_index(panelkit_dialog* dialog, int32_t id, int32_t* index)
{
    return getPart(dialog, id, index, [id](const DialogValuesCL& values) { return values.IndexM(id); });
}

panelkit_status panelkit_set_index(panelkit_dialog* dialog, int32_t id, int32_t index)
{
    return setPart(
        dialog, id, LinesPart, [=](DialogValuesCL& values) { return values.SetIndexM(id, index); });
}

panelkit_status panelkit_get_selection(
    panelkit_dialog* dialog, int32_t id, int32_t* lines, size_t capacity, size_t* count)
{
    return slWithControl(dialog, id, [=](HostedDialogCL&, const DialogValuesCL& values) -> panelkit_status {
        if (lines == nullptr && capacity > 0) {
            return PANELKIT_ERROR_ARGUMENT;
        }
        const auto selected = values.SelectionM(id);
        if (!selected) {
            return PANELKIT_ERROR_NO_VALUE;
        }
        if (count != nullptr) {
            *count = selected->size();
        }
        for (size_t i = 0; i < selected->size() && i < capacity; ++i) {
            lines[i] = (*selected)[i];
        }
        return lines != nullptr && selected->size() > capacity ? PANELKIT_ERROR_BUFFER : PANELKIT_OK;
    });
}

panelkit_status panelkit_set_selection(
    panelkit_dialog* dialog, int32_t id, const int32_t* lines, size_t count)
{
    if (lines == nullptr && count > 0) {
        return slRefuseNull(dialog);
    }
    return setPart(dialog, id, LinesPart, [=](DialogValuesCL& values) {
        return values.SetSelectionM(
            id, count == 0 ? std::vector<int>() : std::vector<int>(lines, lines + count));
    });
}

panelkit_status panelkit_get_path(
    panelkit_dialog* dialog, int32_t id, char* buffer, size_t size, size_t* needed)
{
    return slWithControl(dialog, id, [=](HostedDialogCL&, const DialogValuesCL& values) {
        return giveText(values.PathM(id), buffer, size, needed);
    });
}

panelkit_status panelkit_set_path(panelkit_dialog* dialog, int32_t id, const char* path)
{
    if (path == nullptr) {
        return slRefuseNull(dialog);
    }
    return setPart(dialog, id, PathPart,
        [=](DialogValuesCL& values) { return values.SetPathM(id, ValueTextCL::FromUtf8M(path)); });
}
