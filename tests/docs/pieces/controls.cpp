// Controls that programs make themselves.
#include <panelkit/panelkit.h>

namespace ControlsPages {

void showBox(CWnd& dialog)
{
    //@ docs/kinds/text_box.md cpp 1
}

void showTip(CWnd& dialog, int left, int top, int right, int bottom, const char* text)
{
    //@ docs/kinds/tool_tip.md cpp 1
}

} // namespace ControlsPages
