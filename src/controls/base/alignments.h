#pragma once
#include "records/fields.h"

// How labels and edits place their text.
inline constexpr ChoiceCL Alignments[] = { { 1, "left" }, { 2, "left" }, { 3, "centred" }, { 4, "right" } };
