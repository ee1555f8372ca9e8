#include <panelkit/form/form.h>
#include <panelkit/panelkit.h>

namespace OwnBehaviourPage {

void words(DuBasicDialogCL& dialog, panelkit::Form& form)
{
    //@ docs/own-behaviour.md cpp 2
}

void looks(DuBasicDialogCL& dialog, panelkit::Form& form)
{
    //@ docs/own-behaviour.md cpp 3
}

} // namespace OwnBehaviourPage
