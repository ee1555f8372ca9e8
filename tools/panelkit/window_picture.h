#pragma once
#include <string>
#include <windows.h>

// Writes what the screen shows of a window, frame included, as a .bmp of 24 bits or as a .png.
bool saveWindow(HWND window, const std::wstring& file, bool asBmp);
