#include <iostream>
#include <panelkit/form/form.h>

namespace FormPage {

void show(panelkit::Form& form)
{
    //@ docs/form.md cpp 2
}

void handle(panelkit::Form& form)
{
    //@ docs/form.md cpp 3
}

void readAndSet(panelkit::Form& form)
{
    //@ docs/form.md cpp 4
}

} // namespace FormPage
