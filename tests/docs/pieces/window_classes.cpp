#include <panelkit/panelkit.h>

constexpr int SpeedId = 1051;

class PlotterDialogCL : public DuBasicDialogCL
{
protected:
    afx_msg HBRUSH OnCtlColor(CDC* dc, CWnd* child, UINT kind);
    void DoDataExchange(CDataExchange* data) override;
    BOOL PreTranslateMessage(MSG* message) override;
    void openM();
    void readPointsM(const CString& file);

private:
    int badField_ { 0 };
    int speed_ { 0 };
    HACCEL keys_ { nullptr };
};

//@ docs/window-classes.md cpp 1
//@ docs/window-classes.md cpp 2
//@ docs/window-classes.md cpp 3
//@ docs/window-classes.md cpp 4

void PlotterDialogCL::openM()
{
    //@ docs/window-classes.md cpp 6
}

namespace WithTips {

class PlotterDialogCL : public DuBasicDialogCL
{
protected:
    BOOL PreTranslateMessage(MSG* message) override;

private:
    CToolTipCtrl tips_;
};

//@ docs/window-classes.md cpp 5

} // namespace WithTips
