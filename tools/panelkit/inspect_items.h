#pragma once
#include "json.h"
#include <windows.h>

// Adds what a control of the given window class holds: items, checked, columns and rows, tree.
void addItems(HWND window, const wchar_t* windowClass, JsonTP& control);
