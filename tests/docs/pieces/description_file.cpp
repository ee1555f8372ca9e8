#include <cstdio>
#include <panelkit/panelkit.h>

namespace DescriptionFilePage {

//@ docs/description-file.md cpp 1

void build(DuBasicDialogCL& dialog)
{
    //@ docs/description-file.md cpp 2
}

} // namespace DescriptionFilePage
