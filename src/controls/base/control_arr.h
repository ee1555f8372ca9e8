#pragma once
#include "containers/arr.h"
#include "controls/base/control_common.h"
#include "controls/base/id_index.h"
#include "controls/base/stand_ins.h"
#include <functional>
#include <memory>

// Makes a control of the application's own class, derived from the kind's, for the description with that
// function id; null: the library's own will do.
template <class ControlTP> using ControlFactoryTP = std::function<std::unique_ptr<ControlTP>(int functionId)>;

// What the runtime array of every kind does. Controls are created in place: once a window exists, the array
// must not grow.
template <class ControlParamTP> class ControlArr : public Arr<ControlParamTP>
{
public:
    using ControlTP = ControlParamTP; // The control's class.

    // From now on an object stands in place of the element at slot i of the array, whose element keeps the
    // slot alive; the array owns the object. It stays with the slot: what moves elements doesn't move it.
    // Null or a slot without an alive element: nothing, 0.
    int StandInM(int i, std::unique_ptr<ControlTP> control)
    {
        if (control == nullptr || this->CheckAvailableM(i) == 0) {
            return 0;
        }
        control->SetDeleteTagM(AliveTag);
        standIns_.PutM(i, std::move(control));
        index_.ForgetM();
        return 1;
    }
    // The control of a slot: the object that stands there, else the element.
    ControlTP& ControlAtM(int i)
    {
        ControlTP* const own = standIns_.AtM(i);
        return own != nullptr ? *own : this->ElementAtM(i);
    }
    // As every array does it, with the objects that stand in place.
    int DelItemM(int i)
    {
        standIns_.DelM(i);
        return Arr<ControlParamTP>::DelItemM(i);
    }
    int DelAllVirtualM()
    {
        standIns_.EndAllM();
        return Arr<ControlParamTP>::DelAllVirtualM();
    }
    int DelAllM()
    {
        standIns_.ClearM();
        return Arr<ControlParamTP>::DelAllM();
    }

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
        if (findIndexedM()) {
            for (const auto& [slotId, slot] : index_.PlacesM(id)) {
                if (this->CheckAvailableM(slot) == 1 && ControlAtM(slot).GetFunctionIDM() == id) {
                    return &ControlAtM(slot);
                }
            }
            return nullptr;
        }
        for (int i = this->GetFirstIdxM(); i >= 0; i = this->GetNextIdxM(i)) {
            if (ControlAtM(i).GetFunctionIDM() == id) {
                return &ControlAtM(i);
            }
        }
        return nullptr;
    }

    // Gives the command to the first control with that id, to every control for -1. 0 for an empty array.
    int SetItemCmdM(int id, int command)
    {
        const int result = this->GetAvailableNumM() > 0 ? 1 : 0;
        if (id != -1) {
            if (ControlTP* const control = GetControlPtrM(id)) {
                control->SetItemCmdM(command);
            }
            return result;
        }
        for (int i = this->GetFirstIdxM(); i >= 0; i = this->GetNextIdxM(i)) {
            ControlTP& control = ControlAtM(i);
            if (!slOutlives(&control, [&control, command] { control.SetItemCmdM(command); })) {
                break; // With the array.
            }
        }
        return result;
    }

protected:
    // Does something with the alive controls in order, up to the first result that is not 1. 0 when there is
    // none, else the last result.
    template <class OperationTP> int untilFailureM(OperationTP&& operation)
    {
        int result = 0;
        for (int i = this->GetFirstIdxM(); i >= 0; i = this->GetNextIdxM(i)) {
            result = operation(ControlAtM(i));
            if (result != 1) {
                break;
            }
        }
        return result;
    }

private:
    // Whether the index can answer. It is filled by the second look-up since the last change.
    bool findIndexedM()
    {
        const int bound = this->GetBoundM();
        if (index_.IsFilledM(bound)) {
            return true;
        }
        const bool isWorthWhile = index_.IsKnownM(bound);
        index_.RememberM(bound);
        if (isWorthWhile) {
            for (int i = 0; i < bound; ++i) {
                index_.AddM(ControlAtM(i).GetFunctionIDM(), i);
            }
            index_.EndM();
        }
        return isWorthWhile;
    }

    StandInsCL<ControlTP> standIns_;
    IdIndexCL<int> index_;
};
