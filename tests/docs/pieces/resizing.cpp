#include <panelkit/panelkit.h>

namespace ResizingPage {

class FillCL : public CWnd
{
public:
    void OnSize(UINT type, int width, int height);

private:
    DuBasicDialogCL dialog_;
};

//@ docs/resizing.md cpp 1

} // namespace ResizingPage
