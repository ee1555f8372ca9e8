#pragma once
#include "dialog/basic_dialog.h"
#include "toolkit/life.h"

// How the host goes through its controls: private members of DuBasicDialogCL, whose header brings them.

// Calls see(row, controls) with the runtime array of every kind, in member order. What it does may have the
// application delete the host: then there are no more.
template <class FunctionTP> void DuBasicDialogCL::eachControlsM(FunctionTP&& see)
{
    if (isParted_) {
        return;
    }
    const LifeCL life(this);
    slEachKind([this, &see, &life](auto row) {
        if (life.IsAliveM()) {
            see(row, membersM<decltype(row)>().controls);
        }
    });
}

// Calls see(row, control) for the first control with that id: the first array in member order that holds one.
// Whether there is one.
template <class FunctionTP> bool DuBasicDialogCL::withControlM(int id, FunctionTP&& see)
{
    int wanted = 0;
    void* const found = findM(id, &wanted);
    if (found != nullptr) {
        int number = 0;
        slEachKind([&](auto row) {
            if (number++ == wanted) {
                see(row, *static_cast<typename decltype(row)::Controls::ControlTP*>(found));
            }
        });
    }
    return found != nullptr;
}
