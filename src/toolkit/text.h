#pragma once
#include "toolkit/platform.h"
#include <string>

// Every char* of the toolkit is GBK, whatever the system's own code page is; the windows speak UTF-16.
inline constexpr UINT GbkCodePage = 936;

// Null counts as empty. A byte that is no GBK becomes a replacement character.
PANELKIT_API std::wstring GbkToWide(const char* text);
// What GBK cannot say becomes '?'.
PANELKIT_API std::string WideToGbk(const wchar_t* text, int length = -1);
// Copies into size bytes including the final zero, never splitting a double-byte character; returns the
// number of bytes copied. Nothing is written when size < 1.
PANELKIT_API int CopyGbk(char* to, int size, const std::string& from);
