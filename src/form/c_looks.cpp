// The C interface: what the description file doesn't say.
#include "form/dialog_handles.h"

static_assert(PANELKIT_SCALE_AUTOMATIC == DuBasicDialogCL::AutomaticScale, "one number for both");
static_assert(static_cast<int>(PANELKIT_MESSAGE_BAD_VALUE) == BadValueMessage
        && static_cast<int>(PANELKIT_MESSAGE_TEXT_TOO_LONG) == TextTooLongMessage
        && static_cast<int>(PANELKIT_MESSAGE_REAL_TOO_LARGE) == RealTooLargeMessage
        && static_cast<int>(PANELKIT_MESSAGE_REAL_AT_MAXIMUM) == RealAtMaximumMessage
        && static_cast<int>(PANELKIT_MESSAGE_SPIN_EDIT_CAPTION) == SpinEditCaption,
    "the messages are numbered as in their table");

panelkit_status panelkit_set_text_colour(panelkit_dialog* dialog, int32_t id, int32_t colour)
{
    return slWithControl(dialog, id, [=](HostedDialogCL& hosted, DialogValuesCL&) -> panelkit_status {
        if (colour < PANELKIT_COLOUR_OF_SYSTEM || colour > 0xFFFFFF) {
            return PANELKIT_ERROR_ARGUMENT;
        }
        const auto wanted = colour == PANELKIT_COLOUR_OF_SYSTEM
            ? std::nullopt
            : std::optional<COLORREF>(RGB(colour >> 16 & 0xFF, colour >> 8 & 0xFF, colour & 0xFF));
        return hosted.SetTextColourM(id, wanted) ? PANELKIT_OK : PANELKIT_ERROR_REFUSED;
    });
}

panelkit_status panelkit_set_accessible_name(panelkit_dialog* dialog, int32_t id, const char* name)
{
    return slWithControl(dialog, id, [=](HostedDialogCL& hosted, DialogValuesCL&) {
        return hosted.SetAccessibleNameM(id, ValueTextCL::FromUtf8M(name)) ? PANELKIT_OK : PANELKIT_ERROR_ID;
    });
}

panelkit_status panelkit_set_select_refused(panelkit_dialog* dialog, int32_t select)
{
    return slWithDialog(dialog, [select](HostedDialogCL& hosted) {
        hosted.SetSelectRefusedM(select != 0);
        return PANELKIT_OK;
    });
}

panelkit_status panelkit_set_message_owner(panelkit_dialog* dialog, int32_t over)
{
    return slWithDialog(dialog, [over](HostedDialogCL& hosted) {
        hosted.SetMessageOwnerM(over != 0);
        return PANELKIT_OK;
    });
}

panelkit_status panelkit_set_scale(panelkit_dialog* dialog, int32_t percent)
{
    return slWithDialog(dialog, [percent](HostedDialogCL& hosted) -> panelkit_status {
        const HostedDialogCL::QuietCL quiet(hosted);
        return hosted.SetScaleM(percent) == 1 ? PANELKIT_OK : PANELKIT_ERROR_ARGUMENT;
    });
}

panelkit_status panelkit_get_scale(panelkit_dialog* dialog, int32_t* percent)
{
    return slWithDialog(dialog, [percent](HostedDialogCL& hosted) -> panelkit_status {
        if (percent == nullptr) {
            return PANELKIT_ERROR_ARGUMENT;
        }
        *percent = hosted.ScaleM();
        return PANELKIT_OK;
    });
}

panelkit_status panelkit_set_message_text(int32_t message, const char* text)
{
    return slGuarded(nullptr, [=]() -> panelkit_status {
        return DuBasicDialogCL::SetMessageTextM(message, ValueTextCL::FromUtf8M(text))
            ? PANELKIT_OK
            : PANELKIT_ERROR_ARGUMENT;
    });
}

panelkit_status panelkit_get_message_text(int32_t message, char* buffer, size_t size, size_t* needed)
{
    return slGuarded(nullptr, [=]() -> panelkit_status {
        if (message < 0 || message >= MessageTextCount) {
            return PANELKIT_ERROR_ARGUMENT;
        }
        return slGiveText(DuBasicDialogCL::MessageTextM(message).Utf8M(), buffer, size, needed);
    });
}
