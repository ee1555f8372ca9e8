#include <panelkit/form/form_host.h>
#include <string>
#include <vector>

namespace PaintingPage {

void paint(panelkit::Form& form)
{
    //@ docs/painting.md cpp 1
}

void paintOverFrames(panelkit::Form& form)
{
    //@ docs/painting.md cpp 2
}

void paintWithTheClasses(panelkit::Form& form)
{
    //@ docs/painting.md cpp 3
}

} // namespace PaintingPage
