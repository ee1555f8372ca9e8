#pragma once
#include "baselib/api.h"
#include <cstddef>

// Arrays move their elements by bytes, past all constructors. Whoever keeps addresses of objects that may lie
// in an array is told here.

// `size` bytes at `from` lie at `to` now, or are freed without a destructor: `to` is null.
typedef void (*slMovedBytesTP)(const void* from, std::size_t size, const void* to);

// Tells the listener, if there is one.
PANELKIT_API void slTellMovedBytes(const void* from, std::size_t size, const void* to);
PANELKIT_API void slHearMovedBytes(slMovedBytesTP listener); // the one listener, called by any thread
