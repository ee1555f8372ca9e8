#pragma once
#include "support/all.h"

// Clicks with a key held. The pointer is there first: its arrival would let go of the key.
inline void clickWith(WORD modifier, HWND window, int x, int y)
{
    testing_support::MoveMouseToM(window, x, y);
    testing_support::SettleM();
    if (modifier != 0) {
        testing_support::KeyDownM(modifier);
    }
    testing_support::PressM();
    testing_support::ReleaseM();
    if (modifier != 0) {
        testing_support::KeyUpM(modifier);
    }
}
