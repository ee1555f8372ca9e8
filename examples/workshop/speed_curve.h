// The picture of a move.
#pragma once
#include "move.h"
#include "toolkit/toolkit.h"

// Speed over time, in a picture of that size. scale: the speed (mm/s) at the upper end of its axis. now: for
// how long the move has been under way (s), which a dot shows; negative: it is not under way.
void slDrawCurve(CDC& dc, const CSize& size, CFont* font, const MoveCL& move, double scale, double now);
