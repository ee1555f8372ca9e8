#pragma once
#include "control_state.h"
#include <map>
#include <tuple>
#include <typeindex>
#include <utility>

// What the user has changed in a dialog, carried over to the same dialog built anew: typed texts, checks,
// selections, and where the user is. A control's successor is the one of its id and kind. What the user left
// as it was built becomes what the file now says.
class KeptValuesCL
{
public:
    void NoteBuiltM(HWND dialog); // The dialog is as its file says.
    // Before its controls go. focus: the one that has the focus, or would have it if the dialog were active.
    void TakeM(HWND dialog, HWND focus);
    // After NoteBuiltM of the new controls. The successor of the one with the focus, which the caller gives
    // it; null when there is none.
    HWND GiveBackM(HWND dialog) const;

private:
    using KeyTP = std::tuple<int, std::type_index, int>; // Id, kind, number among those alike.
    using StatesTP = std::map<KeyTP, ControlStateCL>;
    static std::map<KeyTP, HWND> controlsOf(HWND dialog);

    StatesTP built_;
    StatesTP changed_; // What has a value of the user.
    StatesTP places_;  // Of all controls.
    KeyTP focus_ { 0, typeid(void), 0 };
};
