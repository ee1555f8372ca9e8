#pragma once
#include "toolkit/toolkit.h"

// How the system shows windows where monitors have more or fewer pixels an inch.

constexpr int PlainDpi = 96; // Where pixels are those of description files.

// Messages that newer systems than the headers are for send: WM_GETDPISCALEDSIZE, WM_DPICHANGED.
constexpr UINT GetDpiScaledSizeMsg = 0x02E4;
constexpr UINT DpiChangedMsg = 0x02E0;

// Pixels an inch of the monitor that the window is on, as far as the program is told of it; null: what fonts
// of the system are made for.
int slDpiOf(HWND window);
// How much larger than its client area the window is there: what its frame takes on both sides together.
CSize slFrameOf(HWND window);
// The same where monitors have so many pixels an inch; as good as the system knows.
CSize slFrameOf(HWND window, int dpi);
