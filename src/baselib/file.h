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

// Whether slReadFile gave nothing because there is no memory for the file: it can be opened, and isn't empty.
bool slIsTooLargeToRead(const char* path);

// The first bytes of a regular file, at most `most`, and *size, how many it has in all. Their number; 0 for
// anything else.
std::size_t slReadFileBeginning(const char* path, void* to, std::size_t most, std::size_t* size);
