#pragma once
#include "baselib/api.h"

constexpr int PathSize = 260; // Buffers of file names and of a line's text, terminator included.

// File names are GBK; both '/' and '\\' separate, unless the byte belongs to a character. Null counts as
// empty; without a buffer the result is 0.

// The last component of a path, a part of it: "" when it ends with a separator.
PANELKIT_API const char* slGetFileName(const char* path);

// What follows the last point of the last component, without the point; "" when it has none. out: 260
// bytes. 1.
PANELKIT_API int slGetFileExtension(const char* file, char* out);

// Joins a directory and a file name, with a '/' where the directory needs a separator; an empty directory
// adds nothing. out: 260 bytes, may be one of the two; what is too long is cut between characters. 1.
PANELKIT_API int slCatFileNameWithPath(const char* path, const char* file, char* out);
