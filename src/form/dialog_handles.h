#pragma once
#include "form/hosted_dialog.h"
#include <functional>

// What every function of the C interface does: it finds the dialog of a handle, keeps what went wrong, and
// lets no exception out.

// PANELKIT_OK, or why there is no dialog for the caller.
panelkit_status slFindDialog(const panelkit_dialog* handle, HostedDialogCL** dialog);
panelkit_dialog* slNewHandle();
void slKeepHandle(HostedDialogCL* dialog); // Of the calling thread.
void slDropHandle(const panelkit_dialog* handle);
bool slIsAnyDialogOpen(); // Of the calling thread.

// What went wrong in this thread's last call.
std::string& slThreadError();

// Notes why the call fails; text: more than the status says by itself.
panelkit_status slFail(HostedDialogCL& dialog, panelkit_status status, const std::string& text);

panelkit_status slGuarded(std::string* error, const std::function<panelkit_status()>& call);

// Gives call(dialog) if the handle is the caller's; its status.
template <class FunctionTP> panelkit_status slWithDialog(const panelkit_dialog* handle, FunctionTP&& call)
{
    return slGuarded(nullptr, [handle, &call]() -> panelkit_status {
        HostedDialogCL* dialog = nullptr;
        const panelkit_status found = slFindDialog(handle, &dialog);
        if (found != PANELKIT_OK) {
            return found;
        }
        const HostedDialogCL::UseCL use(*dialog, HostedDialogCL::UseCL::ByCall);
        const panelkit_status status
            = slGuarded(&dialog->ErrorM(), [dialog, &call] { return call(*dialog); });
        slThreadError() = dialog->ErrorM();
        return status;
    });
}

// The same for calls that need its window.
template <class FunctionTP> panelkit_status slWithWindow(const panelkit_dialog* handle, FunctionTP&& call)
{
    return slWithDialog(handle, [&call](HostedDialogCL& dialog) -> panelkit_status {
        if (!dialog.HasWindowM()) {
            return slFail(dialog, PANELKIT_ERROR_STATE, "the dialog's window is gone");
        }
        return call(dialog);
    });
}

// The same for calls about one control: call(dialog, values), what it does being the program's doing.
template <class FunctionTP>
panelkit_status slWithControl(const panelkit_dialog* handle, int id, FunctionTP&& call)
{
    return slWithWindow(handle, [id, &call](HostedDialogCL& dialog) -> panelkit_status {
        if (!dialog.ValuesM().IsEnabledM(id)) {
            return slFail(dialog, PANELKIT_ERROR_ID, "there is no control " + std::to_string(id));
        }
        const HostedDialogCL::QuietCL quiet(dialog);
        return call(dialog, dialog.ValuesM());
    });
}

// The call has a null where something is wanted.
inline panelkit_status slRefuseNull(const panelkit_dialog* handle)
{
    return slWithDialog(handle, [](HostedDialogCL&) { return PANELKIT_ERROR_ARGUMENT; });
}

// Gives out what a getter found.
template <class FoundTP, class OutTP>
panelkit_status slGive(HostedDialogCL& dialog, const FoundTP& found, OutTP* out)
{
    if (out == nullptr) {
        return PANELKIT_ERROR_ARGUMENT;
    }
    if (!found) {
        return slFail(dialog, PANELKIT_ERROR_NO_VALUE, "");
    }
    *out = static_cast<OutTP>(*found);
    return PANELKIT_OK;
}

// Copies a text (UTF-8) into a buffer, cut between characters.
panelkit_status slGiveText(const std::string& text, char* buffer, size_t size, size_t* needed);
