#pragma once
#include <string>
#include <windows.h>

// Writes what a window shows, frame included, as a PNG file. False when it can't be written.
bool saveWindowAsPng(HWND window, const std::wstring& file);
