#pragma once

// A message interrupts presses of the mouse: both the one that is held when the message opens and the one
// that the user begins by leaving a field, whose control takes the mouse only when the message is over.

// Ends the press that there is, without a click. The one to come is to end too.
void slInterruptPress();
// Once all that began to handle it is done and before any further input, the press to come ends; but nothing
// happens, and it is still to end, when mayEnd() is false by then.
void slEndInterruptedPress(bool (*mayEnd)());
