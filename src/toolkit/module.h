#pragma once
#include "toolkit/platform.h"

// The modules of the program.
PANELKIT_API HINSTANCE AfxGetInstanceHandle(); // of the program, not of this library
PANELKIT_API HINSTANCE AfxGetResourceHandle(); // where templates, icons and bitmaps are looked up
// From now on there.
PANELKIT_API void AfxSetResourceHandle(HINSTANCE module);
void AfxLogFailure(LPCSTR call, LPCSTR argument); // to the debugger, with the system's last error
