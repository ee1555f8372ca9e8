#pragma once
#include "records/fields.h"

// How many lines of a list box the user can select.
inline constexpr ChoiceCL SelectionModes[]
    = { { 1, "single" }, { 2, "multiple" }, { 3, "extended" }, { 4, "none" } };
