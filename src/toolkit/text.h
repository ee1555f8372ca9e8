#pragma once
#include "toolkit/platform.h"
#include <string>

// Every char* of the toolkit is GBK, whatever the system's own code page is; the windows speak UTF-16. Of
// what GBK cannot say the nearest is taken, as Windows does for a program of that code page (U+00A5 gives the
// wide yen sign, U+00E2 an 'a'), and '?' where there is none; slWideToGbk, which is for names, takes nothing
// for another. Null counts as empty, length -1: up to the zero.
PANELKIT_API std::string WideToGbk(const wchar_t* text, int length = -1);

// As a window shows it: broken bytes as the platform itself converts them. Null counts as empty, length -1:
// up to the zero.
PANELKIT_API std::wstring GbkToWide(const char* text, int length = -1);
