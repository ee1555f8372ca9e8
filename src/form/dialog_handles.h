#pragma once
#include "baselib/call_ref.h"
#include "form/hosted_dialog.h"

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

// The status of call(), which lets no exception out; error keeps what went wrong, null: that of the thread.
panelkit_status slGuarded(std::string* error, CallRefCL<panelkit_status()> call);

// Gives call(dialog) if the handle is the caller's; its status.
using DialogCallTP = CallRefCL<panelkit_status(HostedDialogCL& dialog)>;
panelkit_status slWithDialog(const panelkit_dialog* handle, DialogCallTP call);
// The same for calls that need its window.
panelkit_status slWithWindow(const panelkit_dialog* handle, DialogCallTP call);
// The same for calls about one control: what they do is the program's doing.
using ControlCallTP = CallRefCL<panelkit_status(HostedDialogCL& dialog, DialogValuesCL& values)>;
panelkit_status slWithControl(const panelkit_dialog* handle, int id, ControlCallTP call);

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
