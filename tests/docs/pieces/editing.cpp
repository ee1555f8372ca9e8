#include <panelkit/baselib/gbk_texts.h>
#include <panelkit/panelkit.h>
#include <string>

namespace EditingPage {

//@ docs/editing.md cpp 1

} // namespace EditingPage
