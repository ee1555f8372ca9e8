#pragma once
#include "dialog/basic_dialog.h"
#include "form/form.h"

// From the short interfaces to the class library, for what they lack. Only for programs compiled with the
// library's own compiler.

// The host behind a dialog, which keeps it; null for a handle that is no dialog of this thread's. Its own
// functions count as what the user does: their notifications become events.
PANELKIT_API DuBasicDialogCL* slHostOf(panelkit_dialog* dialog);
inline DuBasicDialogCL* slHostOf(const panelkit::Form& form)
{
    return slHostOf(form.Handle());
}
