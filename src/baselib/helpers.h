#pragma once
#include "baselib/api.h"
#include <cstddef>

// The nearest int, halves away from zero, held to the range of int; 0 for what is no number.
PANELKIT_API int slRound(float value);

// A block of memory that slFree releases, by whichever program or library; null when there is none left.
PANELKIT_API void* slMalloc(std::size_t bytes);
PANELKIT_API void slFree(void* block); // Releases such a block; null is harmless.

// The texts around and in a list's text form, made of its name into a buffer of 260 bytes; cut between
// characters. Line ends in the name become spaces. Null counts as empty. 1; 0 without a buffer.
PANELKIT_API int slGetArrBeginStr(char* buffer, const char* name);
PANELKIT_API int slGetArrIndexStr(char* buffer, const char* name);
PANELKIT_API int slGetArrEndStr(char* buffer, const char* name);
