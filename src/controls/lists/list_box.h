#pragma once
#include "controls/base/control.h"

// What both list boxes share: creation and the way their lines are selected.
class PANELKIT_API ListBoxCL : public ControlCL<CListBox>
{
public:
    using ControlCL::ControlCL;

    // 2 multiple, 3 extended, 4 none, else single; takes effect when the window is created.
    int SetSelModeM(int mode) { return slKeep(selMode_, mode); }
    int GetSelNumM(int* count); // How many lines are selected: 1, or 0 when the platform refuses.

protected:
    DWORD selectionStyleM() const;
    int selectM(int line, BOOL select); // In a list that selects several lines; 0 in any other.

    static constexpr int SelectOne = 1;
    static constexpr int SelectMany = 2;
    static constexpr int SelectExtended = 3;
    static constexpr int SelectNone = 4;
    int selMode_ { SelectOne };
};
