#pragma once
#include "dialog/basic_dialog.h"

// The host's own walks over its arrays, for its .cpp files.

// Calls see(row, controls) with the runtime array of every kind, in member order.
template <class FunctionTP> void DuBasicDialogCL::eachControlsM(FunctionTP&& see)
{
    slEachKind([this, &see](auto row) { see(row, std::get<KindMembersCL<decltype(row)>>(kinds_).controls); });
}

// Calls see(row, control) for the first control with that id: the first array in member order that holds one.
// Whether there is one.
template <class FunctionTP> bool DuBasicDialogCL::withControlM(int id, FunctionTP&& see)
{
    if (!index_.IsFilledM()) {
        fillIndexM();
    }
    for (const ControlIndexCL::PlaceCL& place : index_.PlacesM(id)) {
        bool found = false;
        int number = 0;
        const int slot = place.slot;
        const int wanted = place.row;
        eachControlsM([&](auto row, auto& controls) {
            if (number++ == wanted && controls.CheckAvailableM(slot) == 1
                && controls.ElementAtM(slot).GetFunctionIDM() == id) {
                found = true;
                see(row, controls.ElementAtM(slot));
            }
        });
        if (found) {
            return true; // What see() did may have changed the index.
        }
    }
    return false;
}
