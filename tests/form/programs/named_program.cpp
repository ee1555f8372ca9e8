// A form whose check box has a name for screen readers.
#include <panelkit/form/form.h>

int main()
{
    panelkit::Form form("panel.dlg");
    return form.SetAccessibleName(1003, "Frame the drawing") && form.Run() == 2 ? 0 : 1;
}
