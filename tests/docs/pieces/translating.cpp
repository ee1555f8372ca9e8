#include <panelkit/form/form.h>
#include <panelkit/panelkit.h>

namespace TranslatingPage {

class MyDialogCL : public DuBasicDialogCL
{
};

void host()
{
    //@ docs/translating.md cpp 1
}

void form()
{
    //@ docs/translating.md cpp 2
}

} // namespace TranslatingPage
