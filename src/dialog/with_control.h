#pragma once
#include "dialog/basic_dialog.h"

// The host's own walks over its arrays, for its .cpp files.

// Calls see(row, controls) with the runtime array of every kind, in member order.
template <class FunctionTP> void DuBasicDialogCL::eachControlsM(FunctionTP&& see)
{
    slEachKind([this, &see](auto row) { see(row, std::get<KindMembersCL<decltype(row)>>(kinds_).controls); });
}

// Calls see(row, control) for the first control with that id: the first array in member order that holds one.
// 0 when there is none.
template <class FunctionTP> int DuBasicDialogCL::withControlM(int id, FunctionTP&& see)
{
    int found = 0;
    eachControlsM([id, &see, &found](auto row, auto& controls) {
        auto* control = found == 0 ? controls.GetControlPtrM(id) : nullptr;
        if (control != nullptr) {
            found = 1;
            see(row, *control);
        }
    });
    return found;
}
