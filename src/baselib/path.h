#pragma once
#include "baselib/api.h"

constexpr int PathSize = 260; // Buffers of file names and of a line's text, terminator included.

// The last component of a GBK path, "" when it ends with a separator ('/' and '\\' both are).
PANELKIT_API const char* slGetFileName(const char* path);
