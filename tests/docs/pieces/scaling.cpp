#include <panelkit/panelkit.h>

namespace ScalingPage {

//@ docs/scaling.md cpp 1

} // namespace ScalingPage
