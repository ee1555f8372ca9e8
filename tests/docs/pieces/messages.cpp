#include <panelkit/panelkit.h>

namespace MessagesPage {

class PanelCL : public DuBasicDialogCL
{
protected:
    afx_msg LRESULT onButtonM(WPARAM wParam, LPARAM lParam);
    DECLARE_MESSAGE_MAP()
};

//@ docs/messages.md cpp 1

} // namespace MessagesPage
