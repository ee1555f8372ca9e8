#pragma once
#include <cstddef>
#include <cstdio>
#include <memory>

// Files by name; path is GBK on Windows, bytes as they are elsewhere.

// Opens in binary mode, for writing with the file emptied. Null when it can't be.
FILE* slOpenFile(const char* path, bool writing);

// A file read whole, with one byte to spare behind its *size bytes. Null, *size 0, for anything but a regular
// file that can be opened: a pipe or a device could wait for ever, and reading one never end.
std::unique_ptr<char[]> slReadFile(const char* path, std::size_t* size);
