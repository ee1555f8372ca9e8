// The C interface: lines by function id.
#include "form/dialog_handles.h"

namespace {

// Gives change(values) for a control with lines: `line` must be one of them, or one behind them if `isNew`.
template <class FunctionTP>
panelkit_status changeLines(panelkit_dialog* dialog, int id, int line, bool isNew, FunctionTP&& change)
{
    return slWithControl(
        dialog, id, [=, &change](HostedDialogCL&, DialogValuesCL& values) -> panelkit_status {
            const auto count = values.LineCountM(id);
            if (!count) {
                return PANELKIT_ERROR_NO_VALUE;
            }
            if (line < 0 || line > *count || (line == *count && !isNew)) {
                return PANELKIT_ERROR_ID;
            }
            return change(values) ? PANELKIT_OK : PANELKIT_ERROR_REFUSED;
        });
}

} // namespace

panelkit_status panelkit_line_count(panelkit_dialog* dialog, int32_t id, int32_t* count)
{
    return slWithControl(dialog, id, [=](HostedDialogCL& hosted, const DialogValuesCL& values) {
        return slGive(hosted, values.LineCountM(id), count);
    });
}

panelkit_status panelkit_get_line(
    panelkit_dialog* dialog, int32_t id, int32_t line, char* buffer, size_t size, size_t* needed)
{
    return slWithControl(dialog, id, [=](HostedDialogCL&, const DialogValuesCL& values) -> panelkit_status {
        const auto count = values.LineCountM(id);
        if (!count) {
            return PANELKIT_ERROR_NO_VALUE;
        }
        if (line < 0 || line >= *count) {
            return PANELKIT_ERROR_ID;
        }
        const auto text = values.LineM(id, line);
        return text ? slGiveText(text->Utf8M(), buffer, size, needed) : PANELKIT_ERROR_NO_VALUE;
    });
}

panelkit_status panelkit_add_line(panelkit_dialog* dialog, int32_t id, const char* text, int32_t data)
{
    if (text == nullptr) {
        return slRefuseNull(dialog);
    }
    return changeLines(dialog, id, 0, true,
        [=](DialogValuesCL& values) { return values.AddLineM(id, ValueTextCL::FromUtf8M(text), data); });
}

panelkit_status panelkit_insert_line(
    panelkit_dialog* dialog, int32_t id, int32_t line, const char* text, int32_t data)
{
    if (text == nullptr) {
        return slRefuseNull(dialog);
    }
    return changeLines(dialog, id, line, true, [=](DialogValuesCL& values) {
        return values.InsertLineM(id, line, ValueTextCL::FromUtf8M(text), data);
    });
}

panelkit_status panelkit_delete_line(panelkit_dialog* dialog, int32_t id, int32_t line)
{
    return changeLines(
        dialog, id, line, false, [=](DialogValuesCL& values) { return values.DeleteLineM(id, line); });
}

panelkit_status panelkit_clear_lines(panelkit_dialog* dialog, int32_t id)
{
    return changeLines(dialog, id, 0, true, [=](DialogValuesCL& values) { return values.ClearLinesM(id); });
}
