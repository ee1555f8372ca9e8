#pragma once
#include "containers/arr.h"
#include "toolkit/toolkit.h"

// What the runtime array of every kind does. Controls are created in place: once a window exists, the array
// must not grow.
template <class ControlParamTP> class ControlArr : public Arr<ControlParamTP>
{
public:
    using ControlTP = ControlParamTP; // The control's class.

    // Creates the windows of the alive controls in order as children of the parent, up to the first that
    // fails. 0 when there is none, else the last result.
    int Create(CWnd* parent)
    {
        return untilFailureM([parent](ControlTP& control) { return control.Create(parent); });
    }

    // Called by the host once it has created the windows. A kind with something to do then hides it.
    int AfterCreateM() { return 1; }

    // The first alive control with that function id, or null. The array keeps it.
    ControlTP* GetControlPtrM(int id)
    {
        for (int i = this->GetFirstIdxM(); i >= 0; i = this->GetNextIdxM(i)) {
            if (this->ElementAtM(i).GetFunctionIDM() == id) {
                return &this->ElementAtM(i);
            }
        }
        return nullptr;
    }

    // Gives the command to the first control with that id, to every control for -1. 0 for an empty array.
    int SetItemCmdM(int id, int command)
    {
        for (int i = this->GetFirstIdxM(); i >= 0; i = this->GetNextIdxM(i)) {
            ControlTP& control = this->ElementAtM(i);
            if (id == -1 || control.GetFunctionIDM() == id) {
                control.SetItemCmdM(command);
                if (id != -1) {
                    break;
                }
            }
        }
        return this->GetAvailableNumM() > 0 ? 1 : 0;
    }

protected:
    // Does something with the alive controls in order, up to the first result that is not 1. 0 when there is
    // none, else the last result.
    template <class OperationTP> int untilFailureM(OperationTP&& operation)
    {
        int result = 0;
        for (int i = this->GetFirstIdxM(); i >= 0; i = this->GetNextIdxM(i)) {
            result = operation(this->ElementAtM(i));
            if (result != 1) {
                break;
            }
        }
        return result;
    }
};
