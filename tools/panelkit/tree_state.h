#pragma once
#include "control_state.h"

// The part of a control's state that a tree has: the selected item, and its open branches. An item is known
// by the texts on the way to it.
void noteTree(HWND tree, ControlStateCL* state);
void giveTree(HWND tree, const ControlStateCL& state);
