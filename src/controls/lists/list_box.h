#pragma once
#include "controls/base/control.h"
#include "controls/base/control_value.h"

// What both list boxes share: creation and the way their lines are selected.
class PANELKIT_API ListBoxCL : public ControlCL<CListBox>
{
public:
    using ControlCL::ControlCL;

    // 2 multiple, 3 extended, 4 none, else single; takes effect when the window is created.
    int SetSelModeM(int mode) { return slKeep(selMode_, mode); }
    int GetSelNumM(int* count); // How many lines are selected: 1, or 0 when the platform refuses.

    // The value by id: the lines selected, as the window was created; none where nothing can be selected.
    unsigned ValuePartsM() const { return selectsM(LBS_NOSEL) ? NoPart : LinesPart; }
    ControlValueCL ReadValueM() const;
    bool WriteValueM(const ControlValueCL& value); // Sets it, and sends nothing.

    // Its lines by id.
    int LineCountM() const { return GetCount(); }
    bool DeleteLineM(int line) { return DeleteString(static_cast<UINT>(line)) != LB_ERR; }
    void ClearLinesM() { ResetContent(); }

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
    DWORD selectionStyleM() const; // The window style of the selection mode.
    bool selectsM(DWORD styles) const { return (GetStyle() & styles) != 0; } // One of these.
    int selectM(int line, BOOL select); // In a list that selects several lines; 0 in any other.

    // The selection modes.
    static constexpr int SelectOne = 1;
    static constexpr int SelectMany = 2;
    static constexpr int SelectExtended = 3;
    static constexpr int SelectNone = 4;
    int selMode_ { SelectOne }; // The mode for the next window.
};
